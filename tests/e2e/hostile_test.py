# SPDX-License-Identifier: GPL-3.0-or-later
"""Folders that cannot or must not be branded: a message with path and reason, nothing of anybody's harmed, no hang."""
import os
import socket
import stat
import unittest

from support import BACKUP, ICON, ICON_COMPANION, LABEL, EndToEndTest, read, tree, write

NAMES = (ICON, ICON_COMPANION, BACKUP)
LINK_NAMES = NAMES + (".quorvane", ".directory", ".hidden")


class HostileFolderTest(EndToEndTest):
    def test_what_is_no_folder_is_named_with_the_reason(self):
        file = os.path.join(self.work, "file")
        write(file, b"text")
        dangling, loop, pipe = (os.path.join(self.work, name) for name in ("dangling", "loop", "pipe"))
        os.symlink("nowhere", dangling)
        os.symlink("loop", loop)
        os.mkfifo(pipe)
        before = tree(self.work)
        rows = ((os.path.join(self.work, "missing"), "No such file"), (file, "ot a "), (dangling, ""), (loop, ""),
                (pipe, "ot a "), (os.path.join(file, "below"), ""), ("/proc/self/nothing", ""), ("", ""),
                (self.work + "/" + "x" * 256, "too long"), (self.work + "/y" * 2100, "too long"))
        for command in (("apply", *LABEL), ("revert",), ("reset",)):
            for path, reason in rows:
                with self.subTest(command=command[0], path=path[-40:]):
                    outcome = self.run_program(*command, path)
                    self.assertIn(outcome.code, (1, 2), outcome)
                    self.assert_says(outcome, path, reason)
                    self.assertEqual(tree(self.work), before)

    def test_folders_that_belong_to_the_system_are_refused(self):
        for path in ("/", "/proc", "/sys", "/dev", "/proc/sys/kernel"):
            with self.subTest(path=path):
                outcome = self.expect(1, "apply", *LABEL, path)
                self.assert_says(outcome, path)
        self.assertFalse(os.path.lexists("/" + ICON))

    def test_read_only_folders_stay_as_they_are(self):
        nobody = self.need_nobody()
        closed, foreign = self.folder("closed"), self.folder("foreign")
        if nobody is not None:
            for path in (closed, os.path.join(closed, "letter.txt"), os.path.join(closed, "empty")):
                os.chown(path, nobody, nobody)
        os.chmod(closed, 0o555)
        before = tree(self.work)
        for path in (closed, foreign) if nobody is not None else (closed,):
            for command in (("apply", *LABEL), ("apply", "--dry-run", *LABEL)):
                with self.subTest(path=path, command=command):
                    outcome = self.expect(1, *command, path, user=nobody)
                    self.assert_says(outcome, path, "ermission denied")
        self.assertEqual(tree(self.work), before)

    def test_a_record_of_somebody_elses_fails_the_dry_run_as_it_does_the_run(self):
        nobody = self.need_nobody()
        shared = self.folder("shared")
        self.expect(0, "apply", *LABEL, shared)
        os.chmod(shared, 0o777)
        os.chmod(os.path.join(shared, ".quorvane"), 0o555 if nobody is None else 0o755)
        before = tree(self.work)
        for command in (("apply", "--label", "other"), ("revert",), ("reset",)):
            for mode in ((), ("--dry-run",)):
                with self.subTest(command=command, mode=mode):
                    outcome = self.expect(1, *command, *mode, shared, user=nobody)
                    self.assert_says(outcome, ".quorvane", "ermission denied")
        self.assertEqual(tree(self.work), before)
        # Nor is an icon put on what is kept of one.
        self.expect(1, "apply", *LABEL, os.path.join(shared, ".quorvane"))
        self.assertEqual(tree(self.work), before)

    def plant(self, kind, place, victims):
        """Puts something in the way at `place`, aimed at the folder `victims`."""
        if kind == "link":
            os.symlink(os.path.join(victims, "file"), place)
        elif kind == "relative link":
            os.symlink("../../victims/file", place)
        elif kind == "dangling link":
            os.symlink(os.path.join(victims, "new"), place)
        elif kind == "link to a folder":
            os.symlink(victims, place)
        elif kind == "hard link":
            os.link(os.path.join(victims, "file"), place)
        elif kind == "folder":
            os.mkdir(place)
            write(os.path.join(place, "inside"), b"keep me")
        elif kind == "pipe":
            os.mkfifo(place)
        elif kind == "socket":
            with socket.socket(socket.AF_UNIX) as server:
                here = os.getcwd()
                os.chdir(os.path.dirname(place))
                server.bind(os.path.basename(place))
                os.chdir(here)

    def test_what_stands_at_our_names_is_neither_followed_nor_harmed(self):
        victims = os.path.join(self.place, "victims")
        os.mkdir(victims)
        write(os.path.join(victims, "file"), b"precious", mode=0o640, seconds=1_000_000_000)
        kinds = ("link", "relative link", "dangling link", "link to a folder", "hard link", "folder", "pipe", "socket")
        for name in LINK_NAMES:
            for kind in kinds:
                for command in (("apply", *LABEL), ("revert",), ("reset",)):
                    with self.subTest(name=name, kind=kind, command=command[0]):
                        folder = self.folder(f"{name.strip()} {kind} {command[0]}")
                        place = os.path.join(folder, name)
                        self.plant(kind, place, victims)
                        before = os.lstat(place)
                        outcome = self.run_program(*command, folder)
                        self.check_planted(outcome, command[0], folder, name, kind, before)
                        self.assertEqual(os.listdir(victims), ["file"], "something was made at the far end")
                        self.assertEqual(read(os.path.join(victims, "file")), b"precious")
                        self.assertEqual(stat.S_IMODE(os.stat(os.path.join(victims, "file")).st_mode), 0o640)

    def check_planted(self, outcome, command, folder, name, kind, before):
        place = os.path.join(folder, name)
        if kind == "folder":
            self.assertEqual(read(os.path.join(place, "inside")), b"keep me")
        if command != "apply":
            return
        if outcome.code == 0:
            self.assert_branded(folder)
            self.assertNotIn(name, NAMES if kind != "hard link" else (), outcome)
        else:
            self.assertEqual(outcome.code, 1, outcome)
            self.assert_says(outcome, folder)
            self.assertGreater(len(outcome.err.strip()), len(folder) + 10, "no reason given")
            after = os.lstat(place)
            self.assertEqual((after.st_ino, after.st_mode), (before.st_ino, before.st_mode), "what stood there is gone")
            self.assertEqual([left for left in os.listdir(folder) if left not in (name, "letter.txt", "empty")], [],
                             "a failed apply has left something")

    def test_a_link_to_a_folder_is_the_folder(self):
        folder = self.folder("real")
        os.symlink("real", os.path.join(self.work, "link"))
        self.expect(0, "apply", *LABEL, os.path.join(self.work, "link"))
        self.assert_branded(folder)
        self.assertTrue(os.path.islink(os.path.join(self.work, "link")))


if __name__ == "__main__":
    unittest.main(verbosity=2)
