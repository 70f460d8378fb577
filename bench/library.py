#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""library.py [--rounds N] [--icons N]  what a large library of the user's own costs the window, as ratios within one
run, on a virtual display of its own:

- from the start of the process until the first frame is shown and the lists are filled, and the memory then, with so
  many icons (icns files of some 150 KB) against an empty library, in turn
- scrolling the icons on by one row, and the memory after it

Build quorvane and LibraryProbe first."""
import argparse
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path[:0] = [os.path.join(ROOT, "tests", name) for name in ("e2e", "desktop")]
sys.dont_write_bytecode = True

import session  # pylint: disable=wrong-import-position
from support import APP_ID  # pylint: disable=wrong-import-position

BUILD = os.environ.get("QUORVANE_BUILD", os.path.join(ROOT, "build/release"))


def fill(home, icons):
    """A library of one set with so many icons, of pictures that do not pack well."""
    from PIL import Image, ImageDraw
    folder = os.path.join(home, "data", APP_ID, "Many")
    os.makedirs(folder)
    noise = Image.effect_noise((512, 512), 12).convert("RGB")
    disc = Image.new("L", (512, 512))
    ImageDraw.Draw(disc).ellipse((120, 120, 392, 392), fill=255)
    sizes = []
    for number in range(8):
        picture = Image.new("RGBA", (512, 512))
        picture.paste(noise.rotate(45 * number), (0, 0), disc)
        source, made = os.path.join(home, f"{number}.png"), os.path.join(home, f"{number}.icns")
        picture.save(source)
        subprocess.run([os.path.join(BUILD, "src/cli/quorvane"), "icns", "make", "--quiet", source, made], check=True)
        sizes.append(os.path.getsize(made))
    for number in range(icons):
        shutil.copy(os.path.join(home, f"{number % 8}.icns"), os.path.join(folder, f"Icon {number:04}.icns"))
    return statistics.mean(sizes)


def run(desktop, home, rows=0):
    environment = {**desktop.environment, "HOME": home, "QUORVANE_ROWS": str(rows),
                   **{f"XDG_{kind}_HOME": os.path.join(home, kind.lower()) for kind in ("DATA", "CONFIG", "CACHE")}}
    begun = time.monotonic()
    done = subprocess.run([os.path.join(BUILD, "bench/LibraryProbe")], capture_output=True, text=True, check=True,
                          env=environment)
    lines = [line.split() for line in done.stdout.splitlines()]
    usable = next(line for line in lines if line[0] == "usable")
    end = next(line for line in lines if line[0] == "end")
    return (float(usable[1]) - begun, float(usable[2]), int(usable[3]) / 1024, int(end[1]) / 1024,
            [(float(line[1]), float(line[2])) for line in lines if line[0] == "row"])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--rounds", type=int, default=15)
    parser.add_argument("--icons", type=int, default=1000)
    options = parser.parse_args()
    print(f"{len(os.sched_getaffinity(0))} processors, load {os.getloadavg()[0]:.1f}, {options.rounds} rounds")
    place = tempfile.mkdtemp(prefix="quorvane-bench-", dir="/dev/shm" if os.path.isdir("/dev/shm") else None)
    try:
        homes = {name: os.path.join(place, name) for name in ("full", "empty")}
        for home in homes.values():
            os.mkdir(home)
        print(f"{options.icons} icons of {fill(homes['full'], options.icons) / 1000:.0f} kB")
        with session.Session((1680, 900), session.OPENBOX.replace("<maximized>yes</maximized>", "")) as desktop:
            taken = {name: [] for name in homes}
            for name, home in homes.items():
                run(desktop, home)  # into the caches
            for number in range(options.rounds):
                for name in list(homes) if number % 2 else list(homes)[::-1]:
                    taken[name].append(run(desktop, homes[name]))
            for what, column in (("wall", 0), ("processor", 1)):
                full, empty = ([row[column] for row in taken[name]] for name in ("full", "empty"))
                ratios = [a / b for a, b in zip(full, empty)]
                print(f"until usable, {what:9}: median {1000 * statistics.median(full):6.1f} ms against "
                      f"{1000 * statistics.median(empty):6.1f} ms; ratio {statistics.median(ratios):.2f}; of the "
                      f"smallest {min(full) / min(empty):.2f}")
            full, empty = (statistics.median(row[2] for row in taken[name]) for name in ("full", "empty"))
            print(f"memory when usable: {full:.1f} MiB against {empty:.1f} MiB; {full - empty:.1f} more")
            *_rest, after, rows = run(desktop, homes["full"], options.icons)
            for what, column in (("wall", 0), ("processor", 1)):
                taken = sorted(row[column] for row in rows)
                print(f"scrolling by a row, {what:9}: median {1000 * statistics.median(taken):.2f} ms, 99 of 100 under "
                      f"{1000 * taken[len(taken) * 99 // 100]:.2f} ms, at most {1000 * taken[-1]:.2f} ms")
            print(f"memory after all {len(rows)} rows: {after - empty:.1f} MiB more than the empty one")
    finally:
        shutil.rmtree(place, ignore_errors=True)


if __name__ == "__main__":
    main()
