# SPDX-License-Identifier: GPL-3.0-or-later
"""Too little of something: room on the disk, length of files, open files, memory. An error with a reason, the old icon
whole, and a way back; or, where it suffices, the new one whole."""
import os
import resource
import shutil
import unittest

from harsh import APPLY, APPLY_OLD, INSIDE, RESET, REVERT, HarshTest
from scenarios import foreign, plain
from support import read

COMMANDS = ((plain, (), APPLY), (foreign, (), APPLY), (foreign, (APPLY_OLD,), APPLY), (foreign, (APPLY_OLD,), REVERT),
            (foreign, (APPLY_OLD,), RESET))


def limited(what, amount):
    return lambda: resource.setrlimit(what, (amount, amount))


class ShortageTest(HarshTest):
    def each(self, what, amounts):
        """Every command with every amount of what is short: some suffice for it, some do not."""
        for number, (kind, commands, command) in enumerate(COMMANDS):
            work, codes = self.lay(str(number), kind, commands), []
            wished = work.wished(command)
            for amount in amounts:
                with self.subTest(command=command[0], number=number, amount=amount):
                    codes.append(work.attempt(command, wished, before=limited(what, amount))[0])
            self.assertEqual(codes[-1], 0, f"{amounts[-1]} should suffice for {command[0]} ({number})")
            self.assertEqual(codes[0], 1, codes)
            work.way_back()

    def test_files_that_may_not_grow(self):
        self.each(resource.RLIMIT_FSIZE, (0, 700, 4096, 30_000, 100_000, 1 << 20))

    def test_few_open_files(self):
        # Programs have three from the start; libraries open some more.
        self.each(resource.RLIMIT_NOFILE, (5, 6, 7, 8, 9, 10, 11, 12, 32))

    def test_a_program_that_cannot_even_start_says_so(self):
        work = self.lay()
        for count in (3, 4):
            code, _out, err = work.run(APPLY, limited(resource.RLIMIT_NOFILE, count))
            self.assertGreater(len(err), 10)
            self.assertIn(code, (1, 127), err)  # 127: libraries could not be loaded
        self.assertEqual(work.picture().rows, work.pristine.rows)

    def test_a_disk_that_fills_up(self):
        disk = self.mounted("tmpfs", "size=1500k")
        filler = os.path.join(disk, "filler")
        for number, (kind, commands, command) in enumerate(COMMANDS):
            codes = []
            for room in (0, 8, 16, 40, 100, 200, 1000):
                with self.subTest(command=command[0], number=number, room=room):
                    work = self.lay("work", kind, commands, place=disk)
                    wished = work.wished(command)
                    with open(filler, "wb") as file:
                        free = os.statvfs(disk).f_bavail * os.statvfs(disk).f_frsize
                        if free > room * 1024:
                            os.posix_fallocate(file.fileno(), 0, free - room * 1024)
                    codes.append(work.attempt(command, wished)[0])
                    os.remove(filler)
                    work.way_back()
                    shutil.rmtree(work.root)
            self.assertEqual(codes[-1], 0, codes)
            if command != RESET:
                self.assertEqual(codes[0], 1, codes)

    def test_a_picture_that_finds_no_room_leaves_the_earlier_one(self):
        disk = self.mounted("tmpfs", "size=2m")
        for ending in ("png", "jpg", "tif", "gif"):
            file = os.path.join(disk, "a." + ending)
            self.expect(0, "render", "--label", "a", "--pixels", "200", file)
            before = read(file)
            with open(os.path.join(disk, "filler"), "wb") as filler:
                free = os.statvfs(disk).f_bavail * os.statvfs(disk).f_frsize
                os.posix_fallocate(filler.fileno(), 0, free - 4096)
            with self.subTest(ending=ending):
                outcome = self.expect(1, "render", "--label", "other", "--pixels", "200", file)
                self.assert_says(outcome, "a." + ending, "No space left")
                self.assertEqual(read(file), before)
                self.assertEqual(sorted(os.listdir(disk)), ["a." + ending, "filler"])
            os.remove(os.path.join(disk, "filler"))
            self.expect(0, "render", "--label", "other", "--pixels", "200", file)
            self.assertNotEqual(read(file), before)
            os.remove(file)

    def test_little_memory(self):
        # Sanitizers reserve more address space than any limit leaves.
        if os.environ.get("ASAN_OPTIONS"):
            self.skipTest("the sanitizers need the address space")
        work = self.lay("memory", foreign, (APPLY_OLD,))
        wished, codes = work.wished(APPLY), []
        for megabytes in (*range(60, 360, 60), 2000):
            before = work.picture().shown[INSIDE]
            # The libraries end the program where memory ends; then nothing else must have ended.
            code, _out, _err = work.run(APPLY, limited(resource.RLIMIT_AS, megabytes << 20))
            now = work.picture().shown[INSIDE]
            with self.subTest(megabytes=megabytes, code=code):
                self.assertIn(now, (before, wished.shown[INSIDE]))
                if code == 0:
                    self.assertEqual(now, wished.shown[INSIDE])
            codes.append(code)
        self.assertEqual(codes[-1], 0, codes)
        self.assertNotEqual(codes[0], 0, codes)
        work.way_back()


if __name__ == "__main__":
    unittest.main(verbosity=2)
