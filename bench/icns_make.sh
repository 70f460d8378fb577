#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# icns_make.sh [RUNS]  times `quorvane icns make` of a 512 x 512 PNG, as a whole process, against png2icns (package
# icnsutils) packing the five ready-made sizes, in turn and in one run, and compares the files' sizes.
set -eu
root=$(dirname -- "$(readlink -f -- "$0")")/..
program=$root/build/release/src/cli/quorvane
runs=${1-31}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$program" render --quiet --label 'Invoices\n2026' --font 'DejaVu Sans' --effect soft --pixels 512 "$scratch/512.png"
"$program" icns make --quiet "$scratch/512.png" "$scratch/sizes.icns"
"$program" icns extract --quiet "$scratch/sizes.icns" "$scratch/sizes"
exec /usr/bin/python3 - "$program" "$scratch" "$runs" <<'PYTHON'
import os, statistics, subprocess, sys, time
program, scratch, runs = sys.argv[1], sys.argv[2], int(sys.argv[3])
sizes = [scratch + "/sizes/" + name + ".png" for name in ("ic09", "ic08", "it32", "il32", "is32")]
ours = [program, "icns", "make", "--quiet", scratch + "/512.png", scratch + "/ours.icns"]
theirs = ["png2icns", scratch + "/theirs.icns", *sizes]
times = {"ours": [], "theirs": []}
for _ in range(runs):
    for name, command in (("theirs", theirs), ("ours", ours)):
        start = time.perf_counter()
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        times[name].append(time.perf_counter() - start)
middle = {name: statistics.median(values) * 1000 for name, values in times.items()}
size = {name: os.path.getsize(f"{scratch}/{name}.icns") for name in times}
print(f"icns make {middle['ours']:.1f} ms, png2icns {middle['theirs']:.1f} ms: "
      f"time ratio {middle['ours'] / middle['theirs']:.2f}, "
      f"bytes {size['ours']} against {size['theirs']}: ratio {size['ours'] / size['theirs']:.2f}")
PYTHON
