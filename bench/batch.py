#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""batch.py [--place FOLDER] [--rounds N] [--folders N] [--many N]  many folders in one call, as a whole process:

- folders a second with --jobs 2 against --jobs 1, each folder with a label of its own: rounds of both in turn, in one
  run, each on folders that are reset before; the median of the rounds' ratios
- the most memory with --many folders (10000) against 100, from a table on standard input

PLACE (the present folder) decides what the disk has to do with it; its file system is printed. Leaves nothing."""
import argparse
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
PROGRAM = os.environ.get("QUORVANE", os.path.join(ROOT, "build/release/src/cli/quorvane"))


def make_table(place, count):
    """A table of so many new folders, all with labels of their own."""
    folder = tempfile.mkdtemp(dir=place)
    table = os.path.join(folder, "table.csv")
    with open(table, "w", encoding="utf-8") as file:
        file.write("folder,label,color\n")
        for number in range(count):
            name = os.path.join(folder, f"{number:06}")
            os.mkdir(name)
            file.write(f'{name},"Invoices\n{number}",#{number * 7 % 4096:03x}\n')
    return folder, table


def run(*arguments, stdin=None):
    """Seconds that a call takes, and the most memory it had, in kB."""
    environment = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
    begun = time.perf_counter()
    program = subprocess.Popen([PROGRAM, *arguments], stdin=stdin, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL, env=environment)
    _pid, status, usage = os.wait4(program.pid, 0)
    taken = time.perf_counter() - begun
    if status != 0:
        sys.exit(f"quorvane {arguments} failed")
    return taken, usage.ru_maxrss


def speed(place, rounds, count):
    ratios, rates = [], {1: [], 2: []}
    folder, table = make_table(place, count)
    listing = os.path.join(folder, "list")
    with open(listing, "w", encoding="utf-8") as file:
        file.writelines(os.path.join(folder, f"{number:06}\n") for number in range(count))
    for number in range(rounds):
        taken = {}
        for jobs in (1, 2) if number % 2 else (2, 1):
            taken[jobs], _memory = run("apply", "--quiet", "--jobs", str(jobs), "--from", table)
            rates[jobs].append(count / taken[jobs])
            run("reset", "--quiet", "--files-from", listing)
        ratios.append(taken[1] / taken[2])
    shutil.rmtree(folder)
    print(f"folders a second, {rounds} rounds of {count}: one job {statistics.median(rates[1]):.1f}, two jobs "
          f"{statistics.median(rates[2]):.1f}; ratio {statistics.median(ratios):.2f} "
          f"({min(ratios):.2f} to {max(ratios):.2f})")


def memory(place, jobs, *counts):
    most = {}
    for count in counts:
        folder, table = make_table(place, count)
        with open(table, "rb") as file:
            _taken, most[count] = run("apply", "--quiet", "--jobs", str(jobs), "--from", "-", stdin=file)
        shutil.rmtree(folder)
    few, many = counts
    print(f"most memory with {jobs} jobs: {few} folders {most[few] / 1024:.1f} MB, {many} folders "
          f"{most[many] / 1024:.1f} MB; ratio {most[many] / most[few]:.3f}")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--place", default=".")
    parser.add_argument("--rounds", type=int, default=7)
    parser.add_argument("--folders", type=int, default=60)
    parser.add_argument("--many", type=int, default=10_000)
    chosen = parser.parse_args()
    kind = subprocess.run(["stat", "-f", "-c", "%T", chosen.place], capture_output=True, text=True, check=True)
    print(f"in {os.path.abspath(chosen.place)} ({kind.stdout.strip()}), {len(os.sched_getaffinity(0))} processors, "
          f"load {os.getloadavg()[0]:.1f}")
    if chosen.rounds > 0:
        speed(chosen.place, chosen.rounds, chosen.folders)
    if chosen.many > 0:
        memory(chosen.place, 2, 100, chosen.many)


if __name__ == "__main__":
    main()
