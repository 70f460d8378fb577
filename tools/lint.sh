#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# lint.sh [FILE-PATTERN...]  clang-tidy (.clang-tidy has the checks) over src, or the files whose path has a pattern;
#                            cppcheck as well where it is installed. Needs a configured build/release.
# The summary, one line a finding, goes to build/log/lint.txt. Exit code 1 if there is any.
set -eu
cd "$(dirname -- "$(readlink -f -- "$0")")/.."

[ -f build/release/compile_commands.json ] || { echo "lint.sh: configure first: cmake --preset release" >&2; exit 2; }
[ $# -gt 0 ] || set -- "$PWD/src/.*\\.cpp\$"
mkdir -p build/log
# GCC's own warning options are unknown to clang; colours would hide the findings from the summary.
run-clang-tidy -quiet -p build/release -j "$(nproc)" -extra-arg=-Wno-unknown-warning-option "$@" 2>&1 |
  sed 's/\x1b\[[0-9;]*m//g' >build/log/clang-tidy.log
{
  grep -E '^/.*: (warning|error): ' build/log/clang-tidy.log || true
  if command -v cppcheck >/dev/null; then
    cppcheck --quiet --std=c++20 --language=c++ --enable=warning --inline-suppr \
      --suppress=missingIncludeSystem --template='{file}:{line}:{column}: warning: {message} [{id}]' -I src src 2>&1 ||
      true
  fi
} | sort -u >build/log/lint.txt
cat build/log/lint.txt
echo "$(wc -l <build/log/lint.txt) findings (build/log/lint.txt; with their context: build/log/clang-tidy.log)"
! [ -s build/log/lint.txt ]
