# SPDX-License-Identifier: GPL-3.0-or-later
"""What must hold for a folder whatever went wrong while the program worked on it. Every check compares pictures taken
before and after, has nothing in common with the program's own code, and gives back the broken promises in words.
promises_test.py shows that each of them sees a folder that was broken on purpose."""
import os
import re
import struct
import sys
import zlib

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "e2e"))

from support import (CUSTOM_ICON, FINDER_INFO, ICON, ICON_COMPANION, companion, read, resources,  # noqa: E402
                     tree)

SERVER_RECORD = "user.org.netatalk.Metadata"
OUR_ATTRIBUTES = (FINDER_INFO, SERVER_RECORD)
STRAY = re.compile(r"\.quorvane-[0-9a-z]{8}\.tmp")
# What the program may make or change inside a folder.
OUR_NAMES = {ICON, ICON_COMPANION, "Icon\uf00d", "._Icon\uf00d", ".BackupIcon.icns", ".quorvane", "._."}
ENTRY_GROUPS = (b"[Desktop Entry]", b"[Desktop\\sEntry]")


def without_icon(text):
    """A .directory file without what says which icon there is, by lines; empty when nothing else is in it."""
    kept, group = [], None
    for line in text.splitlines():
        if line.startswith(b"["):
            group = line
        if not (group in ENTRY_GROUPS and line.partition(b"=")[0].strip() == b"Icon"):
            kept.append(line)
    return [line for index, line in enumerate(kept) if line not in ENTRY_GROUPS or
            index + 1 < len(kept) and not kept[index + 1].startswith(b"[")]


def without_name(text):
    """A .hidden file without the name of the icon's file."""
    return [line for line in text.split(b"\n") if line not in (b"Icon\r", b"")]


# Files that the program shares with others: it may change its own lines only.
MERGED = {".directory": without_icon, ".hidden": without_name}


class Picture:
    """All that can be seen of a place: `root` holds the folders at the relative paths `folders`."""

    def __init__(self, root, folders):
        self.rows = tree(root)
        self.folders = [os.path.join(".", path) for path in folders]
        self.shown = {path: shown(os.path.join(root, path)) for path in folders}
        self.places = {path: flag_places(os.path.join(root, path)) for path in folders}
        self.merged = {}
        for path in folders:
            for name, strip in MERGED.items():
                file = os.path.join(root, path, name)
                if os.path.isfile(file) and not os.path.islink(file):
                    row = self.rows[os.path.join(".", path, name)]
                    kept = strip(read(file))
                    self.merged[os.path.join(".", path, name)] = [row[:3], row[4], kept] if kept else None

    def of(self, path):
        """What is seen of one folder but times; not what the program keeps for itself."""
        top = os.path.join(".", path)
        record = os.path.join(top, ".quorvane", "")
        # Mode, owner, group, count of names; a link's target; a file's content.
        return [self.places[path]] + [(name, row[:4], row[4] if isinstance(row[4], str) else row[5:6])
                                      for name, row in self.rows.items()
                                      if (name == top or name.startswith(top + os.sep)) and
                                      not name.startswith(record)]

    def is_ours(self, name):
        parent, last = os.path.split(name)
        beside = {os.path.join(os.path.dirname(each), "._" + os.path.basename(each)) for each in self.folders}
        if name in beside or STRAY.fullmatch(last) and (parent in self.folders or
                                                        parent in map(os.path.dirname, self.folders)):
            return True
        for each in self.folders:
            if name.startswith(each + os.sep):
                first = name[len(each) + 1:].split(os.sep)[0]
                if first in OUR_NAMES or STRAY.fullmatch(first):
                    return True
        return False

    def others(self):
        """Everything that is not ours to change."""
        rows = {}
        for name, row in self.rows.items():
            if self.is_ours(name):
                continue
            if name in self.folders:
                row = [value if not isinstance(value, dict) else
                       {key: kept for key, kept in value.items() if key not in OUR_ATTRIBUTES} for value in row]
            row = self.merged.get(name, row)
            if row is not None:
                rows[name] = row
        return rows

    def strays(self):
        return [name for name in self.rows if any(STRAY.fullmatch(part) for part in name.split(os.sep))]


def record_flags(record):
    """Finder flags in a file server's attribute, or None when it is malformed."""
    if len(record) < 26 or struct.unpack(">II", record[:8]) not in ((0x00051607, 0x00020000), (0x00051607, 0x00010000)):
        return None
    for index in range(struct.unpack(">H", record[24:26])[0]):
        row = record[26 + 12 * index:38 + 12 * index]
        if len(row) < 12:
            return None
        kind, offset, length = struct.unpack(">III", row)
        if kind == 9 and length >= 32 and offset + length <= len(record):
            return struct.unpack(">H", record[offset + 8:offset + 10])[0]
    return None


def flag_places(folder):
    """place -> Finder flags of the folder there, of all places that can be read and hold any."""
    found = {}
    try:
        attributes = {name: os.getxattr(folder, name) for name in os.listxattr(folder)}
    except OSError:
        attributes = {}
    if FINDER_INFO in attributes:
        found["attribute"] = struct.unpack(">H", attributes[FINDER_INFO].ljust(10, b"\0")[8:10])[0]
    flags = record_flags(attributes.get(SERVER_RECORD, b""))
    if flags is not None:
        found["server record"] = flags
    parent, name = os.path.split(folder)
    for place, path in (("beside", os.path.join(parent, "._" + name)), ("inside", os.path.join(folder, "._."))):
        try:
            info, _fork = companion(path)
            found[place] = struct.unpack(">H", info[8:10])[0]
        except (OSError, AssertionError, KeyError, struct.error):
            pass
    return found


def shown(folder):
    """What the folder shows as its icon: the family's bytes, or words for what stands in its place; its flag; and what
    the marks for other file managers say."""
    icon = None
    for name in (ICON, "Icon\uf00d"):
        if not os.path.lexists(os.path.join(folder, name)):
            continue
        try:
            _info, fork = companion(os.path.join(folder, "._" + name))
            icon = resources(fork).get(("icns", -16455), "no resource") if fork else "no fork"
        except (OSError, AssertionError, KeyError, struct.error) as error:
            icon = f"unreadable: {type(error).__name__}"
        break
    flags = flag_places(folder).values()
    return icon, any(flag & CUSTOM_ICON for flag in flags), marks(folder)


def marks(folder):
    """mark -> what it says: the picture that .directory names, for each group, and whether .hidden names the icon."""
    found, group = {}, None
    for line in lines(os.path.join(folder, ".directory")):
        line = line.rstrip(b"\r")
        group = line if line.startswith(b"[") else group
        key, _equals, value = line.partition(b"=")
        if group in ENTRY_GROUPS and key == b"Icon":
            path = os.path.normpath(os.path.join(os.fsencode(folder), value))
            known = path.startswith(os.fsencode(folder)) and os.path.isfile(path)
            found[f".directory {group.decode()}"] = f"picture {zlib.crc32(read(path)):08x}" if known else value
    if ICON.encode() in lines(os.path.join(folder, ".hidden")):
        found[".hidden"] = "hides the icon's file"
    return found


def lines(path):
    try:
        return read(path).split(b"\n")
    except OSError:
        return []


def check_others(before, after):
    """Nothing of anybody else's has changed: files, links, attributes, modes, owners, the places around."""
    was, now = before.others(), after.others()
    return [f"not ours, and changed: {name!r}: {was.get(name)} -> {now.get(name)}"
            for name in sorted(set(was) | set(now)) if was.get(name) != now.get(name)]


def check_whole(path, after, old, new, faults):
    """The folder shows wholly the old or wholly the new icon, or its status says what is wrong."""
    now = after.shown[path]
    if now in (old.shown[path], new.shown[path]) or faults:
        return []
    return [f"half an icon and a silent status: {words(now)}, neither {words(old.shown[path])} nor "
            f"{words(new.shown[path])}"]


def check_sound(path, after):
    """Whatever it shows, it shows it everywhere."""
    icon, flag, told = after.shown[path]
    pictures = {what for mark, what in told.items()
                if mark.startswith(".directory") and str(what).startswith("picture")}
    broken = []
    if isinstance(icon, str) or (icon is not None) != flag:
        broken.append(f"not sound: {words(after.shown[path])}")
    if len(pictures) > 1 or pictures and icon is None:
        broken.append(f"the marks name other pictures than the icon: {told}")
    return broken


def check_success(path, after, new, notes=()):
    """What was reported as done is there, save the marks that a note says could not be changed."""
    now, want = after.shown[path], new.shown[path]
    wrong = [mark for mark in set(now[2]) | set(want[2]) if now[2].get(mark) != want[2].get(mark)]
    unsaid = [mark for mark in wrong if not any(mark.split()[0] in note for note in notes)]
    if now[:2] != want[:2] or unsaid:
        return [f"success was reported, but it shows {words(now)} instead of {words(want)}; said was {notes}"]
    # The flags may have found another place, but those that are there all say alike that there is an icon, or none. A
    # place that said so already and could not be written keeps its "has been opened", which hides nothing.
    wanted = {flags & CUSTOM_ICON for flags in new.places[path].values()}
    return [f"success was reported, but the folder's flags are {flags:#06x} ({place})"
            for place, flags in after.places[path].items() if wanted and flags & CUSTOM_ICON not in wanted]


def check_failure(path, after, old, new):
    """What was reported as failed is not there."""
    if new.of(path) != old.of(path) and after.of(path) == new.of(path):
        return ["a failure was reported, but all is as was wished"]
    return []


def check_code(code, killed):
    """It ended as programs should: no crash, no odd exit code."""
    if killed:
        return [] if code in (-9, 137) else [f"it was to be killed, but ended with {code}"]
    return [] if code in (0, 1) else [f"it ended with {code}"]


def check_finished(path, code, after, new, output):
    """The next normal run did what it was asked for."""
    broken = [] if code == 0 else [f"the next run fails ({code}): {output.strip()}"]
    if after.shown[path] != new.shown[path]:
        broken.append(f"after the next run it shows {words(after.shown[path])} instead of {words(new.shown[path])}")
    return broken + check_strays(after)


def check_strays(after):
    return [f"left by the interrupted run and not cleared away: {name!r}" for name in after.strays()]


def check_way_back(pristine, after, code, output):
    """A reset leads back to what was there before the first apply, bit for bit."""
    if code != 0:
        return [f"no way back ({code}): {output.strip()}"]
    return [f"not as it was: {name!r}: {pristine.rows.get(name)} -> {after.rows.get(name)}"
            for name in sorted(set(pristine.rows) | set(after.rows)) if pristine.rows.get(name) != after.rows.get(name)]


def words(shown_icon):
    icon, flag, told = shown_icon
    what = "no icon" if icon is None else icon if isinstance(icon, str) else f"icon {zlib.crc32(icon):08x}"
    return f"{what} {'with' if flag else 'without'} the flag, marks {told}"
