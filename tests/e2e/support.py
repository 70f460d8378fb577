# SPDX-License-Identifier: GPL-3.0-or-later
"""What the end-to-end tests share: running the program in a place of its own, pictures of a tree, and readers of what
a branded folder holds that have nothing in common with the program's own code. Plain standard library.

Paths are str with surrogate escapes, so any bytes can stand in a name."""
import hashlib
import importlib
import os
import re
import shutil
import stat
import struct
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True

PROGRAM = os.environ.get("QUORVANE", "")
BUILD = os.environ.get("QUORVANE_BUILD", "")
CMAKE = os.environ.get("QUORVANE_CMAKE", "cmake")
ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
SHARED = os.environ.get("QUORVANE_SHARED", os.path.join(os.path.dirname(ROOT), "shared"))
# A run that takes longer counts as hanging. Sanitizers are given more.
PATIENCE = float(os.environ.get("QUORVANE_PATIENCE", "10"))
NOBODY = 65534
with open(os.path.join(ROOT, "cmake/Identity.cmake"), encoding="utf-8") as _identity:
    APP_ID = re.search(r'set\(QUORVANE_APP_ID "(.+)"\)', _identity.read())[1]

ICON = "Icon\r"
ICON_COMPANION = "._Icon\r"
BACKUP = ".BackupIcon.icns"
FINDER_INFO = "user.com.apple.FinderInfo"
CUSTOM_ICON, INITED, INVISIBLE = 0x0400, 0x0100, 0x4000
ELEMENTS = ["ic09", "ic08", "it32", "t8mk", "il32", "l8mk", "icl8", "ICN#", "is32", "s8mk", "ics8", "ics#"]
LABEL = ("--label", r"Invoices\n2026", "--color", "#b00020", "--effect", "soft")


class Outcome:
    def __init__(self, arguments, code, out, err):
        self.arguments, self.code = arguments, code
        self.out, self.err = out.decode("utf-8", "surrogateescape"), err.decode("utf-8", "surrogateescape")

    def __repr__(self):
        return f"quorvane {self.arguments} -> {self.code}\n--- stdout\n{self.out}\n--- stderr\n{self.err}"


class EndToEndTest(unittest.TestCase):
    """Each test gets a place of its own: home/ (all the program's own files), work/ (folders to brand)."""

    def setUp(self):
        self.place = tempfile.mkdtemp(prefix="quorvane-e2e-")
        self.addCleanup(shutil.rmtree, self.place, onerror=self._open_and_retry)
        os.chmod(self.place, 0o755)
        self.home, self.work = os.path.join(self.place, "home"), os.path.join(self.place, "work")
        os.mkdir(self.home)
        os.mkdir(self.work)

    def _open_and_retry(self, call, path, _error):
        if path != self.place:  # what the place stands in is not ours
            os.chmod(os.path.dirname(path), 0o700)
        if os.path.isdir(path) and not os.path.islink(path):
            os.chmod(path, 0o700)
            shutil.rmtree(path, ignore_errors=True)
        else:
            call(path)

    def folder(self, name="Invoices", parent=None):
        """A folder with two files of the user's in it."""
        path = os.path.join(parent or self.work, name)
        os.makedirs(path)
        write(os.path.join(path, "letter.txt"), b"Dear reader\n", mode=0o640, seconds=1_000_000_000)
        write(os.path.join(path, "empty"), b"", mode=0o600, seconds=1_100_000_000)
        return path

    def environment(self):
        kept = {key: value for key, value in os.environ.items() if key.endswith("SAN_OPTIONS") or key == "PATH"}
        return {**kept, "HOME": self.home, "LANG": "C.UTF-8", "XDG_CACHE_HOME": self.home + "/cache",
                "XDG_CONFIG_HOME": self.home + "/config", "XDG_DATA_HOME": self.home + "/data",
                "XDG_STATE_HOME": self.home + "/state"}

    def run_program(self, *arguments, stdin=b"", env=None, cwd=None, user=None):
        options = dict(user=user, group=user, extra_groups=[]) if user else {}
        try:
            done = subprocess.run([PROGRAM, *arguments], input=stdin, capture_output=True, timeout=PATIENCE,
                                  env=self.environment() if env is None else env, cwd=cwd or self.work, **options)
        except subprocess.TimeoutExpired:
            self.fail(f"quorvane {arguments} hangs")
        return Outcome(arguments, done.returncode, done.stdout, done.stderr)

    def need(self, command, option=""):
        """Skips a test of a command, or of an option of its, that this build does not have."""
        if not re.search(rf"^ +{command}\b", self.expect(0, "--help").out, re.MULTILINE):
            self.skipTest(f"there is no command {command} in this build")
        if option not in self.expect(0, command, "--help").out:
            self.skipTest(f"{command} has no {option} in this build")

    def expect(self, code, *arguments, **options):
        outcome = self.run_program(*arguments, **options)
        self.assertEqual(outcome.code, code, outcome)
        return outcome

    def need_nobody(self):
        """Skips where rights of files would not stop us, or an ordinary user cannot be played."""
        if os.geteuid() != 0:
            return None
        try:
            subprocess.run([PROGRAM, "--version"], user=NOBODY, group=NOBODY, extra_groups=[], capture_output=True,
                           timeout=PATIENCE, check=True, env=self.environment())
        except (OSError, subprocess.CalledProcessError):
            self.skipTest("an ordinary user cannot reach the program here")
        os.chown(self.home, NOBODY, NOBODY)
        return NOBODY

    def assert_branded(self, folder):
        """All that a branded folder holds, read independently; gives back the family's bytes."""
        info, fork = companion(os.path.join(folder, ICON_COMPANION))
        self.assertEqual(os.path.getsize(os.path.join(folder, ICON)), 0)
        self.assertEqual(info[:8], b"iconMACS")
        self.assertEqual(struct.unpack(">H", info[8:10])[0], INVISIBLE)
        self.assertEqual(info[10:16], bytes(6), "location and reserved field")
        flags = folder_flags(folder)
        self.assertTrue(flags & CUSTOM_ICON, hex(flags))
        self.assertFalse(flags & INITED, hex(flags))
        found = resources(fork)
        self.assertIn(("icns", -16455), found)
        return found["icns", -16455]

    def assert_says(self, outcome, *parts):
        for part in parts:
            self.assertIn(part, outcome.err, outcome)


def write(path, data, mode=None, seconds=None):
    with open(path, "wb") as file:
        file.write(data)
    if mode is not None:
        os.chmod(path, mode)
    if seconds is not None:
        os.utime(path, (seconds, seconds))


def read(path):
    with open(path, "rb") as file:
        return file.read()


def tree(path):
    """Everything that can be seen of a tree, except the times of folders: name -> what it is."""
    rows = {}

    def visit(entry, name):
        status = os.lstat(entry)
        row = [stat.filemode(status.st_mode), status.st_uid, status.st_gid, status.st_nlink]
        if stat.S_ISLNK(status.st_mode):
            row.append(os.readlink(entry))
        else:
            row.append({key: os.getxattr(entry, key) for key in sorted(os.listxattr(entry))})
        if stat.S_ISREG(status.st_mode):
            row += [hashlib.sha256(read(entry)).hexdigest(), status.st_mtime_ns]
        if stat.S_ISDIR(status.st_mode):
            row[3] = 0  # counts sub-folders
            for child in sorted(os.listdir(entry)):
                visit(os.path.join(entry, child), os.path.join(name, child))
        rows[name] = row

    visit(path, ".")
    return rows


def companion(path):
    """Finder info and resource fork of an AppleDouble file of version 2."""
    data = read(path)
    magic, version, count = struct.unpack(">II16xH", data[:26])
    assert (magic, version) == (0x00051607, 0x00020000), (hex(magic), hex(version))
    entries = {}
    for index in range(count):
        kind, offset, length = struct.unpack(">III", data[26 + 12 * index:38 + 12 * index])
        assert offset + length <= len(data), "an entry runs past the end"
        entries[kind] = data[offset:offset + length]
    return entries[9], entries.get(2, b"")


def resources(fork):
    """(type, id) -> data of a resource fork."""
    data_offset, map_offset, _data_length, map_length = struct.unpack(">IIII", fork[:16])
    table = fork[map_offset:map_offset + map_length]
    types = struct.unpack(">H", table[24:26])[0]
    found = {}
    for index in range((struct.unpack(">H", table[types:types + 2])[0] + 1) & 0xFFFF):
        kind, last, references = struct.unpack(">4sHH", table[types + 2 + 8 * index:types + 10 + 8 * index])
        for number in range(last + 1):
            row = types + references + 12 * number
            identifier, _name, place = struct.unpack(">hHI", table[row:row + 8])
            start = data_offset + (place & 0xFFFFFF)
            length = struct.unpack(">I", fork[start:start + 4])[0]
            found[kind.decode("latin-1"), identifier] = fork[start + 4:start + 4 + length]
    return found


def elements(family):
    """(type, data) of each element of an icon family, in order."""
    magic, total = struct.unpack(">4sI", family[:8])
    assert magic == b"icns" and total == len(family), (magic, total, len(family))
    position, found = 8, []
    while position < total:
        kind, length = struct.unpack(">4sI", family[position:position + 8])
        assert length >= 8 and position + length <= total, (kind, length)
        found.append((kind.decode("latin-1"), family[position + 8:position + length]))
        position += length
    return found


def folder_flags(folder):
    """The folder's Finder flags, from wherever this file system lets them be."""
    try:
        info = os.getxattr(folder, FINDER_INFO)
    except OSError:
        parent, name = os.path.split(folder)
        if not os.path.exists(os.path.join(parent, "._" + name)):
            return 0
        info, _fork = companion(os.path.join(parent, "._" + name))
    return struct.unpack(">H", info[8:10])[0]


def family_file(*parts):
    """An icon family of these (type, data) elements."""
    body = b"".join(struct.pack(">4sI", kind.encode(), 8 + len(data)) + data for kind, data in parts)
    return struct.pack(">4sI", b"icns", 8 + len(body)) + body


# What another program's custom icon holds in these tests: 16 x 16 pixels of one grey. 0xFF repeats a byte 130 times.
FOREIGN = family_file(("is32", b"\xff\x40\xfb\x40" * 3), ("s8mk", b"\xff" * 256))


def plant_custom_icon(folder, family, *, flags=CUSTOM_ICON):
    """What another program leaves that gave the folder a custom icon."""
    data = struct.pack(">I", len(family)) + family
    table = bytes(24) + struct.pack(">HH", 28, 50) + struct.pack(">H", 0) + struct.pack(">4sHH", b"icns", 0, 10)
    table += struct.pack(">hHII", -16455, 0xFFFF, 0, 0)
    header = struct.pack(">IIII", 256, 256 + len(data), len(data), len(table))
    fork = header.ljust(256, b"\0") + data + header + table[16:]
    info = b"iconMACS" + struct.pack(">H", INVISIBLE) + bytes(22)
    entries = struct.pack(">III", 9, 50, 32) + struct.pack(">III", 2, 82, len(fork))
    double = struct.pack(">II16sH", 0x00051607, 0x00020000, b"Mac OS X        ", 2) + entries + info + fork
    write(os.path.join(folder, ICON), b"", seconds=1_200_000_000)
    write(os.path.join(folder, ICON_COMPANION), double, mode=0o600, seconds=1_200_000_000)
    os.setxattr(folder, FINDER_INFO, bytes(8) + struct.pack(">H", flags) + bytes(22))


def can_store_finder_info(folder):
    try:
        os.setxattr(folder, FINDER_INFO, bytes(32))
        os.removexattr(folder, FINDER_INFO)
        return True
    except OSError:
        return False


def oracle(name):
    """One of the independent checkers that may stand beside the project, or None."""
    path = os.path.join(SHARED, "oracles")
    if not os.path.isfile(os.path.join(path, name + ".py")):
        return None
    if path not in sys.path:
        sys.path.insert(0, path)
    try:
        return importlib.import_module(name)
    except ImportError:
        return None


def pictures():
    """Pillow, or None."""
    try:
        return importlib.import_module("PIL.Image")
    except ImportError:
        return None
