# SPDX-License-Identifier: GPL-3.0-or-later
"""Too little of something: room on the disk, length of files, open files, memory. An error with a reason, the old icon
whole, and a way back; or, where it suffices, the new one whole."""
import os
import resource
import unittest

from harsh import APPLY, APPLY_OLD, INSIDE, RESET, REVERT, HarshTest
from scenarios import foreign, plain

COMMANDS = ((plain, (), APPLY), (foreign, (), APPLY), (foreign, (APPLY_OLD,), APPLY), (foreign, (APPLY_OLD,), REVERT),
            (foreign, (APPLY_OLD,), RESET))


class ShortageTest(HarshTest):
    def each(self, amounts, limit):
        """Every command with every amount of what is short; some must fail and some succeed."""
        for number, (kind, commands, command) in enumerate(COMMANDS):
            codes = set()
            for amount in amounts:
                with self.subTest(command=command[0], number=number, amount=amount):
                    work = self.lay(f"{number} {amount}", kind, commands)
                    code, _err = work.attempt(command, work.wished(command), before=lambda: limit(amount))
                    codes.add(code)
                    work.way_back()
            self.assertEqual(codes, {0, 1}, f"the amounts for {command[0]} ({number}) are all alike")

    def test_files_that_may_not_grow(self):
        self.each((0, 700, 4096, 30_000, 1 << 20), lambda size: resource.setrlimit(resource.RLIMIT_FSIZE, (size, size)))

    def test_few_open_files(self):
        # Programs have three from the start; libraries open some more.
        self.each((*range(4, 16), 32), lambda count: resource.setrlimit(resource.RLIMIT_NOFILE, (count, count)))

    def test_a_disk_that_fills_up(self):
        disk = self.mounted("tmpfs", "size=1200k")
        filler = os.path.join(disk, "filler")
        for number, (kind, commands, command) in enumerate(COMMANDS):
            codes = set()
            for room in (0, 4, 8, 12, 16, 24, 32, 48, 64, 96, 400):
                with self.subTest(command=command[0], number=number, room=room):
                    work = self.lay(f"{number} {room}", kind, commands, place=disk)
                    wished = work.wished(command)
                    with open(filler, "wb") as file:
                        free = os.statvfs(disk).f_bavail * os.statvfs(disk).f_frsize
                        os.posix_fallocate(file.fileno(), 0, max(1, free - room * 1024))
                    code, _err = work.attempt(command, wished)
                    codes.add(code)
                    if command != RESET:
                        # The way back needs no room that is not there.
                        full_code, _out, err = work.run(RESET)
                        if full_code != 0:
                            self.assertIn("No space left", err)
                    os.remove(filler)
                    work.way_back()
                    os.rename(work.root, os.path.join(disk, "gone"))
                    self.clear(os.path.join(disk, "gone"))
            if command != RESET:
                self.assertEqual(codes, {0, 1}, f"the rooms for {command[0]} ({number}) are all alike")

    def clear(self, path):
        for where, folders, files in os.walk(path, topdown=False):
            for name in files:
                os.remove(os.path.join(where, name))
            for name in folders:
                full = os.path.join(where, name)
                os.remove(full) if os.path.islink(full) else os.rmdir(full)
        os.rmdir(path)

    def test_little_memory(self):
        # Sanitizers reserve more address space than any limit leaves.
        if "san" in os.environ.get("ASAN_OPTIONS", ""):
            self.skipTest("the sanitizers need the address space")
        work = self.lay("memory", foreign, (APPLY_OLD,))
        wished, codes = work.wished(APPLY), []
        for size in range(20, 400, 20):
            with self.subTest(megabytes=size):
                limit = size << 20
                codes.append(self.under_memory(work, wished, limit))
        self.assertEqual({0} & set(codes), {0}, codes)
        work.way_back()

    def under_memory(self, work, wished, limit):
        old = work.picture()
        code, _out, _err = work.run(APPLY, lambda: resource.setrlimit(resource.RLIMIT_AS, (limit, limit)))
        now = work.picture()
        self.assertIn(now.shown[INSIDE], (old.shown[INSIDE], wished.shown[INSIDE]))
        if code == 0:
            self.assertEqual(now.shown[INSIDE], wished.shown[INSIDE])
        return code


if __name__ == "__main__":
    unittest.main(verbosity=2)
