#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""memory.py [--applies N]  whether one run of the window holds more and more memory: N icons are applied to a folder by
clicks, on a virtual display of its own. Printed are the kilobytes held after each tenth, and the ratio of the last to
the second; the exit code is 1 when that is above 1.05. Build WindowProbe first."""
import argparse
import os
import shutil
import subprocess
import sys
import tempfile

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(ROOT, "tests/desktop"))
sys.dont_write_bytecode = True

import session  # pylint: disable=wrong-import-position

BENCH = os.environ.get("QUORVANE_BENCH", os.path.join(ROOT, "build/release/bench"))
MOST = 1.05


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--applies", type=int, default=1000)
    place = tempfile.mkdtemp(prefix="quorvane-bench-", dir="/dev/shm" if os.path.isdir("/dev/shm") else None)
    try:
        with session.Session((1680, 900)) as desktop:
            done = subprocess.run([os.path.join(BENCH, "WindowProbe"), place], capture_output=True, text=True, check=False,
                                  env={**desktop.environment, "QUORVANE_APPLIES": str(parser.parse_args().applies)})
        if done.returncode != 0:
            sys.exit(f"WindowProbe: {done.returncode} {done.stderr}")
        rows = [tuple(map(int, line.split())) for line in done.stdout.splitlines()]
        for number, kilobytes in rows:
            print(f"after {number:5} applies {kilobytes:8} kB")
        ratio = rows[-1][1] / rows[1][1]
        print(f"the last against the second: {ratio:.3f}")
        sys.exit(ratio > MOST)
    finally:
        shutil.rmtree(place, ignore_errors=True)


if __name__ == "__main__":
    main()
