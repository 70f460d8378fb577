# SPDX-License-Identifier: GPL-3.0-or-later
"""The checkers' own guard: each is shown to see a folder, or a verdict, that was broken on purpose."""
import os
import shutil
import struct
import unittest

import promises
from promises import SERVER_RECORD, Picture
from scenarios import foreign, plain, server_record
from support import (CUSTOM_ICON, FINDER_INFO, FOREIGN, ICON, ICON_COMPANION, EndToEndTest, plant_custom_icon, read,
                     write)

PATH = os.path.join("above", "Invoices")


class PromisesTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.count = 0

    def start(self, kind=foreign):
        self.count += 1
        self.root = os.path.join(self.place, str(self.count))
        self.path = os.path.join(self.root, PATH)
        os.makedirs(os.path.join(self.root, "home"))
        kind(self.path)
        write(os.path.join(self.root, "above", "neighbour"), b"x")
        return self.picture()

    def picture(self):
        return Picture(self.root, [PATH])

    def inside(self, name):
        return os.path.join(self.path, name)

    def append(self, name, text):
        with open(self.inside(name), "ab") as file:
            file.write(text)

    def test_changes_of_what_is_not_ours_are_seen_and_changes_of_what_is_ours_are_not(self):
        letter = "letter.txt"
        seen = (lambda: write(self.inside(letter), b"x"), lambda: os.utime(self.inside(letter), (1, 1)),
                lambda: os.link(self.inside(letter), self.inside("Icon")), lambda: os.chmod(self.path, 0o700),
                lambda: os.setxattr(self.path, "user.note", b"x"), lambda: os.removexattr(self.path, "user.note"),
                lambda: os.rename(self.path, self.path + "2"), lambda: os.mkdir(self.inside("inner/.quorvane")),
                lambda: write(os.path.join(self.root, "home", "trace"), b""),
                lambda: write(os.path.join(self.root, "above", "._neighbour"), b""),
                lambda: write(self.inside(".quorvane-0123456.tmp"), b""), lambda: os.remove(self.inside("link")))
        seen += (lambda: write(self.inside(".directory"), b"[Desktop Entry]\nIcon=x\n"),
                 lambda: write(self.inside(".hidden"), b"Icon\r\n"), lambda: os.chmod(self.inside(".hidden"), 0o644))
        unseen = (lambda: write(self.inside(ICON), b"x"),
                  lambda: self.append(".hidden", b"\nIcon\r\n"),
                  lambda: self.append(".directory", b"[Desktop\\sEntry]\nIcon=x\n"), lambda: os.remove(self.inside(ICON_COMPANION)),
                  lambda: os.setxattr(self.path, FINDER_INFO, bytes(32)), lambda: os.mkdir(self.inside(".quorvane")),
                  lambda: os.removexattr(self.path, SERVER_RECORD),
                  lambda: write(os.path.join(self.root, "above", "._Invoices"), b""))
        for expected, changes in ((True, seen), (False, unseen)):
            for number, change in enumerate(changes):
                with self.subTest(seen=expected, change=number):
                    before = self.start()
                    change()
                    self.assertEqual(bool(promises.check_others(before, self.picture())), expected)

    def test_half_an_icon_is_seen_unless_the_status_tells(self):
        def other_icon():
            plant_custom_icon(self.path, FOREIGN[:-1] + b"\1")
            os.removexattr(self.path, SERVER_RECORD)

        def no_flag():
            for name in (FINDER_INFO, SERVER_RECORD):
                os.removexattr(self.path, name)

        old = self.start(plain)
        new = self.start()
        breaks = (other_icon, no_flag, lambda: os.remove(self.inside(ICON_COMPANION)),
                  lambda: os.remove(self.inside(ICON)),
                  lambda: write(self.inside(ICON_COMPANION), read(self.inside(ICON_COMPANION))[:-9]))
        for number, change in enumerate(breaks):
            with self.subTest(broken=number):
                self.assertEqual(promises.check_sound(PATH, self.start()), [])
                self.assertEqual(promises.check_whole(PATH, self.picture(), old, new, []), [])
                change()
                self.assertTrue(promises.check_whole(PATH, self.picture(), old, new, []))
                if number > 0:
                    self.assertTrue(promises.check_sound(PATH, self.picture()))
                self.assertEqual(promises.check_whole(PATH, self.picture(), old, new, ["told"]), [])

    def test_every_place_of_the_flags_is_read(self):
        def companion(path):
            info = bytes(8) + struct.pack(">H", CUSTOM_ICON) + bytes(22)
            write(path, struct.pack(">II16xHIII", 0x00051607, 0x00020000, 1, 9, 38, 32) + info)

        for number, put in enumerate((
                lambda: os.setxattr(self.path, FINDER_INFO, bytes(8) + struct.pack(">H", CUSTOM_ICON) + bytes(22)),
                lambda: os.setxattr(self.path, SERVER_RECORD, server_record(CUSTOM_ICON)),
                lambda: companion(os.path.join(self.root, "above", "._Invoices")),
                lambda: companion(self.inside("._.")))):
            with self.subTest(place=number):
                self.assertFalse(self.start(plain).shown[PATH][1])
                put()
                self.assertTrue(self.picture().shown[PATH][1])
        for record in (b"", bytes(402), server_record(CUSTOM_ICON)[:60], server_record(CUSTOM_ICON)[:130]):
            self.assertIsNone(promises.record_flags(record))

    def test_false_verdicts_are_seen(self):
        old, new = self.start(plain), self.start(lambda path: (plain(path), plant_custom_icon(path, FOREIGN)))
        self.assertEqual(promises.check_success(PATH, new, new), [])
        self.assertTrue(promises.check_success(PATH, old, new))
        os.setxattr(self.path, SERVER_RECORD, server_record(0))
        self.assertTrue(promises.check_success(PATH, self.picture(), new), "one place contradicts")
        os.removexattr(self.path, SERVER_RECORD)
        self.assertTrue(promises.check_failure(PATH, self.picture(), old, new))
        self.assertEqual(promises.check_failure(PATH, old, old, new), [])
        write(self.inside(".quorvane-01234567.tmp"), b"")
        self.assertEqual(promises.check_failure(PATH, self.picture(), old, new), [])
        for code, killed, good in ((0, False, True), (1, False, True), (-9, True, True), (137, True, True),
                                   (0, True, False), (-11, False, False), (134, False, False), (2, False, False)):
            self.assertEqual(not promises.check_code(code, killed), good, (code, killed))

    def test_an_unfinished_next_run_and_a_lossy_way_back_are_seen(self):
        old, new = self.start(plain), self.start()
        self.assertEqual(promises.check_finished(PATH, 0, new, new, ""), [])
        self.assertTrue(promises.check_finished(PATH, 1, new, new, ""))
        self.assertTrue(promises.check_finished(PATH, 0, old, new, ""))
        self.assertEqual(promises.check_way_back(new, new, 0, ""), [])
        self.assertTrue(promises.check_way_back(new, new, 1, ""))
        for change in (lambda: os.utime(self.inside(ICON), (1, 1)), lambda: os.setxattr(self.path, FINDER_INFO, b"x"),
                       lambda: os.mkdir(self.inside(".quorvane")), lambda: os.chmod(self.path, 0o711)):
            before = self.start()
            change()
            self.assertTrue(promises.check_way_back(before, self.picture(), 0, ""))
        for where in (self.inside, lambda name: os.path.join(self.root, "above", name)):
            self.start()
            write(where(".quorvane-01234567.tmp"), b"")
            self.assertTrue(promises.check_strays(self.picture()))
            self.assertTrue(promises.check_finished(PATH, 0, self.picture(), new, ""))
            shutil.rmtree(self.root)


if __name__ == "__main__":
    unittest.main(verbosity=2)
