# SPDX-License-Identifier: GPL-3.0-or-later
"""Others at work at the same time: somebody swaps the folder, its parent and our names for links; fifty of us on one
folder; the folder renamed or removed while a run is on it."""
import os
import random
import shutil
import subprocess
import threading
import time
import unittest

import promises
from harsh import APPLY, APPLY_OLD, INSIDE, RESET, REVERT, HarshTest
from points import Tracer
from promises import Picture
from scenarios import foreign, plain
from support import PATIENCE, PROGRAM, tree, write

LABELS = tuple(("apply", "--json", "--label", letter, "--size", "20") for letter in "abc")


class Swapper(threading.Thread):
    """Exchanges things for links and back, as fast as it can, until it is stopped; counts its rounds."""

    def __init__(self, swaps):
        super().__init__(daemon=True)
        self.swaps, self.rounds, self.stopped = swaps, 0, threading.Event()

    def run(self):
        while not self.stopped.is_set():
            for place, aside, target in self.swaps:
                try:
                    os.rename(place, aside)
                    os.symlink(target, place)
                    self.rounds += 1
                    os.remove(place)
                    os.rename(aside, place)
                except OSError:
                    self.put_back(place, aside)

    @staticmethod
    def put_back(place, aside):
        try:
            if os.path.islink(place):
                os.remove(place)
            if os.path.lexists(aside) and not os.path.lexists(place):
                os.rename(aside, place)
        except OSError:
            pass

    def stop(self):
        self.stopped.set()
        self.join()
        for place, aside, _target in self.swaps:
            self.put_back(place, aside)


class RacesTest(HarshTest):
    def victims(self):
        """A folder like the one that is worked on, with the same names in it: what links lead to."""
        place = os.path.join(self.place, "victims")
        foreign(os.path.join(place, "Invoices"))
        write(os.path.join(place, "file"), b"precious", mode=0o640, seconds=1_000_000_000)
        os.mkdir(os.path.join(place, "Invoices", ".quorvane"))
        return place, Picture(place, [])

    def check_swaps(self, swaps_of, rounds):
        place, before = self.victims()
        work = self.lay("swapped", foreign)
        swapper = Swapper(swaps_of(work, place))
        swapper.start()
        runs = 0
        try:
            while swapper.rounds < rounds or runs < 9:
                work.run((LABELS[runs % 3], RESET, LABELS[1], REVERT)[runs % 4])
                runs += 1
                self.assertLess(runs, 500, "nothing is swapped")
        finally:
            swapper.stop()
        self.assertEqual(Picture(place, []).rows, before.rows, "something was written at the far end of a link")
        code, out, err = work.run(RESET)
        self.assertEqual(code, 0, out + err)
        return work

    def test_the_folder_and_its_parent_are_swapped_for_links(self):
        self.check_swaps(lambda work, place: (
            (work.path, work.path + ".aside", os.path.join(place, "Invoices")),
            (os.path.dirname(work.path), os.path.join(work.root, "aside"), place)), 5000)

    def test_our_names_are_swapped_for_links(self):
        def swaps(work, place):
            names = ("Icon\r", "._Icon\r", ".BackupIcon.icns", ".quorvane", ".directory", ".hidden")
            return [(os.path.join(work.path, name), os.path.join(work.root, f"aside {number}"),
                     os.path.join(place, "Invoices", name) if number % 2 else os.path.join(place, "file"))
                    for number, name in enumerate(names)]

        self.check_swaps(swaps, 5000)

    def test_fifty_runs_on_one_folder_at_once(self):
        for kind in (plain, foreign):
            with self.subTest(kind=kind.__name__):
                work = self.lay(kind.__name__, kind)
                commands = [LABELS[number % 3] if number % 5 < 3 else (REVERT, RESET)[number % 2]
                            for number in range(50)]
                random.Random(7).shuffle(commands)
                running = [subprocess.Popen([PROGRAM, *command, work.path], stdout=subprocess.PIPE,
                                            stderr=subprocess.PIPE, env=self.environment(), cwd="/")
                           for command in commands]
                for command, process in zip(commands, running):
                    _out, err = process.communicate(timeout=600)
                    # Whoever had to wait for too long says so.
                    if process.returncode != 0:
                        self.assertEqual(process.returncode, 1, (command, err))
                        self.assertIn(b"another program is changing this folder", err)
                now = work.picture()
                self.assertEqual(promises.check_others(work.pristine, now), [])
                code, out, err = work.run(("verify",))
                self.assertEqual(code, 0, out + err)
                work.way_back()

    def test_the_folder_is_renamed_or_removed_while_a_run_is_on_it(self):
        environment = self.environment()
        if shutil.which("strace") is None or not Tracer(PROGRAM, environment, PATIENCE).works():
            self.skipTest("nothing can be slowed down here")
        held = 0
        # A run is held up at one of its calls until the folder has gone from under it.
        for number, act in enumerate((self.rename, self.rename_above, self.remove, self.remove_and_make_anew)):
            for command, call, when in ((APPLY, "renameat2", 1), (APPLY, "fsetxattr", 1), (APPLY, "renameat2", 6),
                                        (RESET, "fsetxattr", 1), (RESET, "unlinkat", 2)):
                with self.subTest(act=act.__name__, command=command[0], call=call, when=when):
                    work = self.lay(f"{number} {command[0]} {call} {when}", foreign, (APPLY_OLD,))
                    before, start = tree(work.path), self.listing(work.path)
                    process = subprocess.Popen(
                        ["strace", "-f", "-o", "/dev/null", "-e", "trace=" + call, "-e",
                         f"inject={call}:delay_enter=500000:when={when}", PROGRAM, *command, work.path],
                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=environment, cwd="/")
                    while process.poll() is None and self.listing(work.path) == start:
                        time.sleep(0.01)
                    held += process.poll() is None
                    moved = act(work)
                    _out, err = process.communicate(timeout=60)
                    self.assertIn(process.returncode, (0, 1), err)
                    self.check_moved(work, moved, before)
        self.assertGreater(held, 10, "too few were held up")

    @staticmethod
    def listing(path):
        inside = os.path.join(path, ".quorvane")
        return os.listdir(path) + (os.listdir(inside) if os.path.isdir(inside) else [])

    def check_moved(self, work, moved, before):
        """Nothing was made under the old path; what was moved is whole, and can be given back where it is."""
        if moved is None:
            self.assertFalse(os.path.lexists(work.path))
            self.assertEqual(sorted(os.listdir(os.path.dirname(work.path))), ["neighbour"])
        elif moved == work.path:
            self.assertEqual(os.listdir(moved), [], "the new folder is not ours")
        else:
            self.assertFalse(os.path.lexists(work.path))
            now = tree(moved)
            for name in ("./letter.txt", "./empty", "./link", "./inner"):
                self.assertEqual(now[name], before[name])
            moved_work = Picture(os.path.dirname(moved), [os.path.basename(moved)])
            self.assertEqual(moved_work.strays(), [])
            self.expect(0, "reset", moved)
            pristine = {name[len(INSIDE) + 3:]: row for name, row in work.pristine.rows.items()
                        if name.startswith(os.path.join(".", INSIDE, ""))}
            self.assertEqual({name[2:]: row for name, row in tree(moved).items() if name != "."}, pristine)

    @staticmethod
    def rename(work):
        moved = work.path + " moved"
        os.rename(work.path, moved)
        return moved

    @staticmethod
    def rename_above(work):
        above = os.path.dirname(work.path)
        os.rename(above, above + " moved")
        return os.path.join(above + " moved", os.path.basename(work.path))

    @staticmethod
    def remove(work):
        for _attempt in range(100):
            shutil.rmtree(work.path, ignore_errors=True)
            if not os.path.lexists(work.path):
                return None
        raise AssertionError("it comes again and again")

    @classmethod
    def remove_and_make_anew(cls, work):
        cls.remove(work)
        os.mkdir(work.path)
        return work.path


if __name__ == "__main__":
    unittest.main(verbosity=2)
