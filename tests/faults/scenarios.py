# SPDX-License-Identifier: GPL-3.0-or-later
"""What is killed and hindered: each command on each kind of folder that it treats differently. All labels are tiny and
drawn on a small picture, so that a run takes no time."""
import os
import struct

from loop import Scenario
from promises import SERVER_RECORD, Picture
from support import FINDER_INFO, FOREIGN, ICON, ICON_COMPANION, plant_custom_icon, write

# One job: points are counted, and several would reach them in another order each time.
JSON = ("--json", "--jobs", "1")
NEW, OLD = (*JSON, "--label", "n", "--size", "20"), ("--jobs", "1", "--label", "o", "--size", "20")


def plain(path):
    """A folder with two files of the user's in it, and neighbours around."""
    os.makedirs(path)
    write(os.path.join(path, "letter.txt"), b"Dear reader\n", mode=0o640, seconds=1_000_000_000)
    write(os.path.join(path, "empty"), b"", mode=0o600, seconds=1_100_000_000)
    os.mkdir(os.path.join(path, "inner"))
    os.symlink("letter.txt", os.path.join(path, "link"))


def foreign(path):
    """The same with a custom icon that a Mac made over a file server: attributes in all places."""
    plain(path)
    plant_custom_icon(path, FOREIGN, flags=0x0500)
    os.setxattr(os.path.join(path, ICON), "user.note", b"keep me")
    os.setxattr(path, "user.note", b"and me")
    os.setxattr(path, SERVER_RECORD, server_record(0x0500))
    os.setxattr(os.path.join(path, ICON), SERVER_RECORD, server_record(0x4000))
    write(os.path.join(path, ".directory"), b"# mine\r\n[Desktop Entry]\r\nComment=x\r\nIcon=folder-red\r\n",
          mode=0o640, seconds=1_300_000_000)
    write(os.path.join(path, ".hidden"), b"secret\nno newline at the end", mode=0o600, seconds=1_300_000_001)


def server_record(flags):
    """What Samba keeps of a file or folder: 402 bytes."""
    rows = ((4, 0x9A, 0), (8, 0x162, 16), (9, 0x7A, 32), (14, 0x172, 4), (0x80444556, 0x176, 8),
            (0x80494E4F, 0x17E, 8), (0x8053594E, 0x186, 8), (0x8053567E, 0x18E, 4))
    header = struct.pack(">II16xH", 0x00051607, 0x00020000, len(rows))
    table = b"".join(struct.pack(">III", *row) for row in rows)
    return (header + table + bytes(8) + struct.pack(">H", flags)).ljust(402, b"\5")


def prepared(kind, *commands, count=1):
    """Fills a place with `count` folders and runs commands on them, after the picture of the beginning was taken. A
    function among the commands is called with each folder instead."""
    names = ["Invoices", "Letters", "Music"][:count]

    def prepare(root, run):
        os.makedirs(os.path.join(root, "home", ".cache"), mode=0o700)  # libraries of the desktop make it
        folders = [os.path.join("above", name) for name in names]
        for path in folders:
            kind(os.path.join(root, path))
        write(os.path.join(root, "above", "neighbour"), b"not ours", seconds=1_200_000_000)
        pristine = Picture(root, folders)
        for command in commands:
            for path in folders if callable(command) else ():
                command(os.path.join(root, path))
            if not callable(command):
                code, out, err = run([*command, *(os.path.join(root, path) for path in folders)], root)
                assert code == 0, (command, out, err)
        return folders, pristine

    return prepare


def damaged(path):
    """A branded folder that has lost its flag, its icon and a mark."""
    os.removexattr(path, FINDER_INFO)
    os.remove(os.path.join(path, ICON_COMPANION))
    os.remove(os.path.join(path, ".hidden"))


APPLY_OLD = ("apply", *OLD)
SCENARIOS = (
    Scenario("first apply", ("apply", *NEW), prepared(plain)),
    Scenario("second apply", ("apply", *NEW), prepared(plain, APPLY_OLD)),
    Scenario("apply over a custom icon", ("apply", *NEW), prepared(foreign)),
    Scenario("second apply over a custom icon", ("apply", *NEW), prepared(foreign, APPLY_OLD)),
    Scenario("revert", ("revert", *JSON), prepared(foreign, APPLY_OLD)),
    Scenario("repair", ("repair", *JSON), prepared(plain, APPLY_OLD, damaged)),
    Scenario("reset", ("reset", *JSON), prepared(plain, APPLY_OLD)),
    Scenario("reset to a custom icon", ("reset", *JSON), prepared(foreign, APPLY_OLD)),
    Scenario("apply to three", ("apply", *NEW), prepared(plain, count=3), every=5),
    Scenario("reset of three", ("reset", *JSON), prepared(plain, APPLY_OLD, count=3), every=5),
)
