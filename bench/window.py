#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""window.py [--rounds N]  what the window costs, as ratios within one run, on a virtual display of its own:

- from the start of the process to the first painted frame, against an empty main window of the same toolkit, and
  against one with a single word in it
- an apply, from the click until it is written, against composing and writing the same icon in the same process

Each round measures both, in turn. Printed are the medians and the smallest values, wall and processor time; the
smallest are the least disturbed by what else the machine does. Build WindowProbe and EmptyWindow first."""
import argparse
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(ROOT, "tests/desktop"))
sys.dont_write_bytecode = True

import session  # pylint: disable=wrong-import-position

BENCH = os.environ.get("QUORVANE_BENCH", os.path.join(ROOT, "build/release/bench"))


def first_frame(desktop, program):
    """Wall and processor seconds from the start to the first frame."""
    begun = time.monotonic()
    name, *arguments = program.split()
    done = desktop.run(os.path.join(BENCH, name), *arguments)
    painted, processor = map(float, done.stdout.split())
    return painted - begun, processor


def tell(what, ours, reference):
    print(what)
    for name, place in (("wall", 0), ("processor", 1)):
        mine, other = [row[place] for row in ours], [row[place] for row in reference]
        ratios = [a / b for a, b in zip(mine, other)]
        print(f"  {name:9} median {1000 * statistics.median(mine):6.1f} ms against {1000 * statistics.median(other):6.1f}"
              f" ms; ratio {statistics.median(ratios):.2f} ({min(ratios):.2f} to {max(ratios):.2f}); of the smallest "
              f"{min(mine) / min(other):.2f}")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--rounds", type=int, default=15)
    rounds = parser.parse_args().rounds
    print(f"{len(os.sched_getaffinity(0))} processors, load {os.getloadavg()[0]:.1f}, {rounds} rounds")
    place = tempfile.mkdtemp(prefix="quorvane-bench-", dir="/dev/shm" if os.path.isdir("/dev/shm") else None)
    try:
        with session.Session((1680, 900), session.OPENBOX.replace("<maximized>yes</maximized>", "")) as desktop:
            programs = ["WindowProbe", "EmptyWindow", "EmptyWindow word"]
            taken = {program: [] for program in programs}
            for program in programs:
                first_frame(desktop, program)  # into the caches
            for number in range(rounds):
                for program in programs if number % 2 else programs[::-1]:
                    taken[program].append(first_frame(desktop, program))
            tell("first frame, the window against an empty one:", taken["WindowProbe"], taken["EmptyWindow"])
            tell("first frame, the window against one with a word in it:", taken["WindowProbe"],
                 taken["EmptyWindow word"])

            done = subprocess.run([os.path.join(BENCH, "WindowProbe"), place], capture_output=True, text=True,
                                  env={**desktop.environment, "QUORVANE_ROUNDS": str(rounds)}, check=False)
            if done.returncode != 0:
                sys.exit(f"WindowProbe: {done.returncode} {done.stderr}")
            rows = [line.split() for line in done.stdout.splitlines()]
            applies = {kind: [(float(wall), float(processor)) for what, wall, processor in rows if what == kind]
                       for kind in ("window", "direct")}
            tell("apply, a click in the window against the same written directly:", applies["window"],
                 applies["direct"])
    finally:
        shutil.rmtree(place, ignore_errors=True)


if __name__ == "__main__":
    main()
