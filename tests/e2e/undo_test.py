# SPDX-License-Identifier: GPL-3.0-or-later
"""The ways back: revert puts the backed-up icon back, reset gives back exactly what was there."""
import os
import shutil
import subprocess
import unittest

from support import (BACKUP, ICON, LABEL, EndToEndTest, can_store_finder_info, family_file, plant_custom_icon, read,
                     tree, write)

FOREIGN = family_file(("is32", b"\x81\x40" * 6), ("s8mk", b"\xff" * 256))


class UndoTest(EndToEndTest):
    def test_revert_brings_back_the_icon_from_before_the_first_apply(self):
        folder = self.folder()
        self.expect(0, "apply", *LABEL, folder)
        backup = read(os.path.join(folder, BACKUP))
        self.expect(0, "apply", "--label", "second", folder)
        self.expect(0, "revert", folder)
        self.assertEqual(self.assert_branded(folder), backup)
        self.assertFalse(os.path.lexists(os.path.join(folder, BACKUP)))
        before = tree(self.work)
        again = self.run_program("revert", folder)
        self.assertIn("nothing to revert", (again.out + again.err).lower(), again)
        self.assertEqual(tree(self.work), before)

    def test_reset_leaves_the_tree_as_it_was_bit_for_bit(self):
        def bare(folder):
            os.remove(os.path.join(folder, "letter.txt"))

        def settings_of_the_file_managers(folder):
            write(os.path.join(folder, ".directory"),
                  b"# mine\r\n[Desktop Entry]\r\nComment=x\r\nIcon=folder-red\r\n\r\n[Other]\r\nIcon=y", mode=0o640,
                  seconds=1_300_000_000)
            write(os.path.join(folder, ".hidden"), b"secret\nno newline at the end", seconds=1_300_000_001)

        def attributes(folder):
            os.setxattr(folder, "user.note", b"keep")
            os.setxattr(os.path.join(folder, "letter.txt"), "user.note", b"keep too")

        def custom_icon(folder):
            plant_custom_icon(folder, FOREIGN, flags=0x0500)
            os.setxattr(os.path.join(folder, ICON), "user.note", b"and this")

        def custom_icon_without_flag(folder):
            plant_custom_icon(folder, FOREIGN, flags=0)

        def flag_without_custom_icon(folder):
            os.setxattr(folder, "user.com.apple.FinderInfo", bytes(8) + b"\x04\x00" + bytes(22))

        def colour_tag(folder):
            os.setxattr(folder, "user.com.apple.FinderInfo", bytes(8) + b"\x01\x0c" + bytes(range(22)))

        def backup_of_the_users(folder):
            write(os.path.join(folder, BACKUP), FOREIGN, mode=0o604, seconds=1_300_000_002)

        def closed_to_others(folder):
            os.chmod(folder, 0o2700)

        for arrange in (bare, settings_of_the_file_managers, attributes, custom_icon, custom_icon_without_flag,
                        flag_without_custom_icon, colour_tag, backup_of_the_users, closed_to_others):
            with self.subTest(folder=arrange.__name__):
                folder = self.folder(arrange.__name__)
                if not can_store_finder_info(folder):
                    self.skipTest("no extended attributes here")
                arrange(folder)
                before = tree(self.work)
                self.expect(0, "apply", *LABEL, folder)
                self.assertNotEqual(tree(self.work), before)
                self.expect(0, "apply", "--label", "second", folder)
                self.expect(0, "reset", folder)
                self.assertEqual(tree(self.work), before)

    def test_reset_after_revert_still_finds_the_beginning(self):
        folder = self.folder()
        before = tree(self.work)
        self.expect(0, "apply", *LABEL, folder)
        self.expect(0, "revert", folder)
        self.expect(0, "reset", folder)
        self.assertEqual(tree(self.work), before)

    def test_the_ways_back_go_with_a_folder_that_is_moved_or_copied(self):
        folder = self.folder()
        pristine = tree(folder)
        self.expect(0, "apply", *LABEL, folder)
        backup = read(os.path.join(folder, BACKUP))
        moved, copied = os.path.join(self.place, "moved"), os.path.join(self.place, "copied")
        subprocess.run(["cp", "-a", folder, copied], check=True)
        os.rename(folder, moved)
        shutil.rmtree(self.home)  # nor does it need anything of ours outside
        os.mkdir(self.home)
        self.expect(0, "revert", copied)
        self.assertEqual(self.assert_branded(copied), backup)
        self.expect(0, "reset", moved)
        self.assertEqual(tree(moved), pristine)

    def test_a_folder_never_branded_has_nothing_to_take_back(self):
        folder = self.folder()
        before = tree(self.work)
        for command in ("revert", "reset"):
            with self.subTest(command=command):
                outcome = self.run_program(command, folder)
                self.assertIn("nothing to", (outcome.out + outcome.err).lower(), outcome)
                self.assertEqual(tree(self.work), before)

    def test_a_broken_backup_is_not_put_in_the_icons_place(self):
        rows = (("empty", b""), ("cut", FOREIGN[:40]), ("no icon", b"hello" * 10), ("only a header", b"icns\0\0\0\x08"))
        for name, data in rows:
            with self.subTest(backup=name):
                folder = self.folder(name)
                self.expect(0, "apply", *LABEL, folder)
                write(os.path.join(folder, BACKUP), data)
                before = tree(self.work)
                outcome = self.expect(1, "revert", folder)
                self.assert_says(outcome, folder)
                self.assertEqual(tree(self.work), before)


if __name__ == "__main__":
    unittest.main(verbosity=2)
