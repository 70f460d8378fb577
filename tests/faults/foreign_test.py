# SPDX-License-Identifier: GPL-3.0-or-later
"""Folders in which others have left odd things under the names that we use, or odd dates. Either they are branded and
given back to the letter, or refused with a reason and left to the letter; and what cannot be read is never lost."""
import os
import struct
import unittest

from harsh import APPLY, APPLY_OLD, INSIDE, RESET, HarshTest
from promises import SERVER_RECORD
from scenarios import plain, server_record
from support import FINDER_INFO, FOREIGN, ICON, ICON_COMPANION, plant_custom_icon, read, tree, write

DOUBLE = struct.pack(">II16xH", 0x00051607, 0x00020000, 2)


def rows(*entries):
    return DOUBLE + b"".join(struct.pack(">III", *entry) for entry in entries)


COMPANIONS = {
    "empty": b"", "cut": DOUBLE[:20], "no companion": b"hello" * 100, "zeros": bytes(4096),
    "apple single": b"\0\5\x16\0" + DOUBLE[4:], "unknown version": DOUBLE[:4] + b"\0\3\0\0" + DOUBLE[8:],
    "table cut": rows((9, 50, 32)), "outside": rows((9, 50, 32), (2, 0xFFFFFFF0, 0x20)) + bytes(100),
    "overlapping": rows((9, 50, 32), (2, 60, 32)) + bytes(100), "no fork": rows((9, 50, 32), (2, 82, 20)) + bytes(52),
    "fork of junk": rows((9, 50, 32), (2, 82, 300)) + bytes(32) + b"\xff" * 300,
    "too many entries": DOUBLE[:24] + b"\xff\xff" + bytes(12 * 0xFFFF),
}
DIRECTORIES = {
    "empty": b"", "binary": bytes(range(256)) * 10, "mark": b"\xef\xbb\xbf[Desktop Entry]\nName=x\n", "CR": b"a\rb\r",
    "two equal groups": b"[Desktop Entry]\nIcon=a\n[Other]\nIcon=b\n[Desktop Entry]\nIcon=c\nIcon[de]=d",
    "comments": b"# c\n" * 200_000 + b"[Desktop Entry]\r\nIcon = x \r\n",
    "long line": b"[Desktop Entry]\nIcon=" + b"x" * 500_000,
    "not text": b"[Desktop Entry]\nName=\xff\xfe\nIcon=\xff", "huge": b"#" * (11 << 20),
}
HIDDENS = {"empty": b"", "no end": b"Icon", "ours already": b"a\nIcon\r\nb", "binary": bytes(range(256)),
           "CRLF": b"a\r\nb\r\n", "huge": b"x\n" * (6 << 20)}


class ForeignTest(HarshTest):
    def there_and_back(self, work, name, may_fail=False):
        """Applied and reset, or refused; either way all is as it was. True when it was applied."""
        for command in (APPLY_OLD, APPLY):
            code, _out, err = work.run(command)
            if code != 0:
                self.assertTrue(may_fail, err)
                self.assertEqual(code, 1, err)
                self.assertIn(name, err)
                self.assertEqual(work.picture().rows, work.pristine.rows, "refused, and changed all the same")
                return False
        self.assertNotEqual(work.picture().shown[INSIDE], work.pristine.shown[INSIDE])
        work.way_back()
        return True

    def planted(self, tables, name):
        for label, data in tables.items():
            def kind(path, data=data):
                plain(path)
                write(os.path.join(path, name), data, mode=0o604, seconds=1_250_000_000)

            with self.subTest(name=name, holds=label):
                yield self.lay(f"{name.strip()} {label}", kind)

    def test_foreign_settings_files(self):
        for name, tables in ((".directory", DIRECTORIES), (".hidden", HIDDENS)):
            for work in self.planted(tables, name):
                self.assertTrue(self.there_and_back(work, name))

    def test_companions_that_are_none(self):
        for work in self.planted(COMPANIONS, ICON_COMPANION):
            self.there_and_back(work, "._Icon", may_fail=True)

    def test_a_companion_that_breaks_later_is_no_dead_end(self):
        for label, data in COMPANIONS.items():
            for start in (plain, lambda path: (plain(path), plant_custom_icon(path, FOREIGN))):
                with self.subTest(holds=label):
                    work = self.lay(f"{label} {start.__name__}", start, (APPLY_OLD,))
                    write(os.path.join(work.path, ICON_COMPANION), data)
                    code, _out, _err = work.run(("status",))
                    self.assertEqual(code, 0)
                    code, out, err = work.run(("repair",))
                    self.assertEqual(code, 0, out + err)
                    self.assertEqual(work.run(("verify",))[0], 0)
                    work.way_back()
                    # Nor is it for a reset alone.
                    work = self.lay(f"{label} {start.__name__} reset", start, (APPLY_OLD,))
                    write(os.path.join(work.path, ICON_COMPANION), data)
                    work.way_back()

    def test_broken_records_of_file_servers(self):
        for number, value in enumerate((b"", bytes(402), server_record(0x0400)[:100], b"\xff" * 402)):
            def kind(path, value=value):
                plain(path)
                plant_custom_icon(path, FOREIGN)
                os.setxattr(path, SERVER_RECORD, value)
                os.setxattr(os.path.join(path, ICON), SERVER_RECORD, value)

            with self.subTest(value=value[:10]):
                self.assertTrue(self.there_and_back(self.lay(f"record {number}", kind), ""))

    def test_finder_info_of_odd_lengths(self):
        for length in (0, 1, 9, 31, 33, 400):
            def kind(path, length=length):
                plain(path)
                os.setxattr(path, FINDER_INFO, b"\1" * length)

            with self.subTest(length=length):
                self.assertTrue(self.there_and_back(self.lay(f"info {length}", kind), ""))

    def test_odd_dates(self):
        for number, seconds in enumerate((-86_400 * 365 * 20, -1, 0, 1, 4_102_444_800, 2 ** 33)):
            def kind(path, seconds=seconds):
                plain(path)
                plant_custom_icon(path, FOREIGN)
                for name in ("letter.txt", ICON, ICON_COMPANION, "."):
                    os.utime(os.path.join(path, name), (seconds, seconds))

            with self.subTest(seconds=seconds):
                work = self.lay(f"dates {number}", kind)
                before = tree(work.path)
                self.assertTrue(self.there_and_back(work, ""))
                self.assertEqual(tree(work.path), before)
                self.assertEqual(os.stat(work.path).st_mtime_ns // 10 ** 9, seconds)
                # A change of an old or future date is still a change.
                work.run(APPLY)
                os.utime(os.path.join(work.path, ICON_COMPANION), (seconds, seconds))
                self.assertEqual(read(os.path.join(work.path, "letter.txt")), b"Dear reader\n")
                self.assertEqual(work.run(APPLY_OLD)[0], 0)
                self.assertEqual(work.run(RESET)[0], 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
