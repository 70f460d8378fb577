# SPDX-License-Identifier: GPL-3.0-or-later
"""The checkers' own guard: each is shown to see a folder that was broken on purpose."""
import os
import unittest

from support import (BACKUP, CUSTOM_ICON, FINDER_INFO, FOREIGN, ICON, ICON_COMPANION, INITED, EndToEndTest,
                     can_store_finder_info, elements, family_file, plant_custom_icon, read, tree, write)


class SupportTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.path = self.folder()
        if not can_store_finder_info(self.path):
            self.skipTest("no extended attributes here")

    def test_a_half_branded_folder_is_not_taken_for_a_branded_one(self):
        companion_path = os.path.join(self.path, ICON_COMPANION)

        def patch(offset, data):
            whole = bytearray(read(companion_path))
            whole[offset:offset + len(data)] = data
            write(companion_path, whole)

        inited = CUSTOM_ICON | INITED
        faults = (lambda: os.removexattr(self.path, FINDER_INFO),
                  lambda: os.setxattr(self.path, FINDER_INFO, bytes(8) + inited.to_bytes(2, "big") + bytes(22)),
                  lambda: os.remove(companion_path), lambda: os.remove(os.path.join(self.path, ICON)),
                  lambda: write(os.path.join(self.path, ICON), b"x"),
                  lambda: write(companion_path, read(companion_path)[:-9]), lambda: patch(0, b"\1"),
                  lambda: patch(50, b"ICON"), lambda: patch(58, b"\0"))
        for number, fault in enumerate(faults):
            with self.subTest(fault=number):
                plant_custom_icon(self.path, FOREIGN)
                self.assertEqual(self.assert_branded(self.path), FOREIGN)
                fault()
                with self.assertRaises((AssertionError, OSError, KeyError)):
                    self.assert_branded(self.path)

    def test_a_cut_family_is_not_read_as_a_whole_one(self):
        short_element = family_file(("is32", b""))[:-4] + bytes(4)
        for family in (FOREIGN[:-1], FOREIGN + b"\0", b"icnt" + FOREIGN[4:], short_element):
            with self.subTest(family=family[:20]), self.assertRaises(AssertionError):
                elements(family)

    def test_every_change_of_a_tree_is_seen(self):
        letter = os.path.join(self.path, "letter.txt")
        changes = (lambda: os.chmod(letter, 0o600), lambda: os.utime(letter, (1, 1)),
                   lambda: os.chmod(self.path, 0o700),
                   lambda: os.setxattr(letter, "user.note", b"x"), lambda: os.setxattr(self.path, "user.note", b"x"),
                   lambda: os.link(letter, os.path.join(self.place, "other name")), lambda: os.remove(letter),
                   lambda: os.symlink("nowhere", letter), lambda: os.mkdir(os.path.join(self.path, BACKUP)))
        for number, change in enumerate(changes):
            with self.subTest(change=number):
                before = tree(self.work)
                change()
                self.assertNotEqual(tree(self.work), before)


if __name__ == "__main__":
    unittest.main(verbosity=2)
