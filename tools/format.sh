#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# format.sh [--check]  formats all sources in place; --check only names those that differ (exit code 1)
# Exit code 77, which CTest shows as skipped, without clang-format.
set -eu
cd "$(dirname -- "$(readlink -f -- "$0")")/.."

if ! command -v clang-format >/dev/null; then
  echo "clang-format is not installed" >&2
  exit 77
fi
sources() {
  for folder in src tests fuzz bench; do
    [ ! -d "$folder" ] || find "$folder" \( -name '*.h' -o -name '*.cpp' \) -print0
  done
}

if [ "${1-}" != --check ]; then
  sources | xargs -0 -r -P 2 -n 20 clang-format -i
else
  faults=$(sources | xargs -0 -r -n 50 clang-format --dry-run 2>&1 | sed -n 's/^\([^ ]*\): warning: .*/\1/p')
  [ -z "$faults" ] || { echo "these places are formatted otherwise; tools/format.sh mends them:" "$faults"; exit 1; } >&2
fi
