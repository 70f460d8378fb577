# SPDX-License-Identifier: GPL-3.0-or-later
"""Folders that may not be written, or not by everybody: the reason is said and nothing changes. Where it may be done,
what is made belongs to the folder's owner, and links that somebody planted are not followed, by root least of all."""
import os
import stat
import subprocess
import unittest

from harsh import APPLY, APPLY_OLD, BIND, INSIDE, READ_ONLY, REMOUNT, RESET, REVERT, HarshTest, mount
from promises import OUR_NAMES, shown
from scenarios import foreign, plain
from support import NOBODY, read, tree, write

ANOTHER = 65533
WAYS = (APPLY, REVERT, RESET)


def given(path, owner):
    for where, folders, files in os.walk(path):
        for name in (*folders, *files, "."):
            os.lchown(os.path.join(where, name), owner, owner)


class RightsTest(HarshTest):
    fast = False  # such places may be closed to others

    def setUp(self):
        super().setUp()
        if os.geteuid() != 0:
            self.skipTest("needs root to play other people")
        self.need_nobody()

    def refused(self, work, words, user=None, commands=WAYS):
        """None of the commands changes anything, and each says why."""
        options = dict(user=user, group=user, extra_groups=[]) if user else {}
        before = tree(work.root)
        for command in commands:
            with self.subTest(command=command[0], user=user):
                code, _out, err = work.run(command, **options)
                self.assertEqual(code, 1, err)
                self.assertRegex(err, words)
                self.assertEqual(tree(work.root), before)

    def test_a_read_only_mount(self):
        for kind in (plain, foreign):
            work = self.lay(kind.__name__, kind, (APPLY_OLD,))
            mounted = self.mounted("", flags=BIND, source=work.root)
            mount("none", mounted, flags=BIND | REMOUNT | READ_ONLY)
            writable, work.root, work.path = work.root, mounted, os.path.join(mounted, INSIDE)
            self.refused(work, "Read-only file system")
            work.root, work.path = writable, os.path.join(writable, INSIDE)
            work.way_back()

    def test_an_immutable_folder(self):
        work = self.lay("immutable", foreign, (APPLY_OLD,))
        if self.immutable(work.path, "+i") != 0:
            self.skipTest("nothing is immutable here")
        self.refused(work, "Operation not permitted")
        self.immutable(work.path, "-i")
        work.way_back()
        for name in ("Icon\r", "._Icon\r", ".BackupIcon.icns", ".directory", ".quorvane/record.json"):
            with self.subTest(immutable=name):
                work = self.lay(name.strip().replace("/", " "), foreign, (APPLY_OLD,))
                wished = {command: work.wished(command) for command in WAYS}
                self.assertEqual(self.immutable(os.path.join(work.path, name), "+i"), 0)
                for command in WAYS:
                    work.attempt(command, wished[command])
                for where, _folders, files in os.walk(work.path):
                    for each in files:
                        self.immutable(os.path.join(where, each), "-i")
                work.way_back()

    def immutable(self, path, change):
        done = subprocess.run(["chattr", change, path], capture_output=True, check=False)
        if change == "+i":
            self.addCleanup(self.immutable, path, "-i")
        return done.returncode

    def test_folders_of_others(self):
        work = self.lay("theirs", foreign, (APPLY_OLD,))
        given(work.root, ANOTHER)
        self.refused(work, "Permission denied", NOBODY)
        # In a sticky folder everybody may add, and only the owner remove or replace.
        os.chmod(work.path, 0o1777)
        self.refused(work, "not permitted|Permission denied", NOBODY)
        open_to_all = self.lay("open", plain)
        given(open_to_all.root, ANOTHER)
        os.chmod(open_to_all.path, 0o1777)
        before = open_to_all.picture()
        code, _out, err = open_to_all.run(APPLY, user=NOBODY, group=NOBODY, extra_groups=[])
        now = open_to_all.picture()
        self.assertEqual(now.others(), before.others())
        if code != 0:
            self.assertEqual(now.rows, before.rows, err)

    def test_root_makes_nothing_of_its_own_in_a_folder_of_others(self):
        for kind in (plain, foreign):
            work = self.lay(kind.__name__, kind)
            given(work.root, NOBODY)
            work.pristine = work.picture()
            for command in (APPLY_OLD, APPLY, REVERT, APPLY):
                self.assertEqual(work.run(command)[0], 0)
                for where, folders, files in os.walk(work.root):
                    for name in (*folders, *files):
                        info = os.lstat(os.path.join(where, name))
                        executable = info.st_mode & 0o111 if stat.S_ISREG(info.st_mode) else 0
                        self.assertEqual((info.st_uid, info.st_gid), (NOBODY, NOBODY), (command[0], where, name))
                        self.assertEqual(executable, 0, name)
            # The owner can go on alone.
            for command in (APPLY_OLD, RESET):
                code, out, err = work.run(command, user=NOBODY, group=NOBODY, extra_groups=[])
                self.assertEqual(code, 0, out + err)
            self.assertEqual(work.picture().rows, work.pristine.rows)

    def test_links_planted_for_root(self):
        victims = os.path.join(self.place, "victims")
        os.mkdir(victims)
        write(os.path.join(victims, "file"), b"precious", mode=0o600, seconds=1_000_000_000)
        before = tree(victims)
        for name in sorted(OUR_NAMES | {".directory", ".hidden", ".quorvane/record.json", ".quorvane/original/state",
                                        ".quorvane/marks"}):
            for target in ("file", "new", "."):
                with self.subTest(name=name, target=target):
                    work = self.lay(f"{name.strip()} {target}".replace("/", " "), foreign, (APPLY_OLD,))
                    given(work.root, NOBODY)
                    place = os.path.join(work.path, name)
                    if os.path.lexists(place):
                        os.rename(place, os.path.join(work.root, "aside"))
                    os.symlink(os.path.join(victims, target), place)
                    for command in WAYS:
                        work.run(command)
                        self.assertEqual(tree(victims), before, command[0])

    def test_an_unreadable_folder(self):
        work = self.lay("unreadable", foreign, (APPLY_OLD,))
        given(work.root, NOBODY)
        for mode in (0o000, 0o100, 0o300, 0o400, 0o500, 0o600):
            os.chmod(work.path, mode)
            with self.subTest(mode=oct(mode)):
                self.refused(work, "Permission denied", NOBODY)
        os.chmod(work.path, 0o755)
        self.assertIsInstance(shown(work.path)[0], bytes)
        self.assertEqual(read(os.path.join(work.path, "letter.txt")), b"Dear reader\n")


if __name__ == "__main__":
    unittest.main(verbosity=2)
