# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=sh disable=SC2154
# Shared by ./run and ./test, which set `root` (the project's folder) and source this file: installs what is missing,
# configures, builds. Plain POSIX sh. Steps are told on standard error, one line each and only when there is
# something to do; their output goes to build/log and is shown when a step fails.
#
# It never changes the current directory: the program's arguments are relative to the caller's.
#
# QUORVANE_NO_INSTALL=1  trusts that what packages.txt lists is there in some form, and installs nothing

# With an empty environment dash searches its built-in path but hands none on; dpkg insists on one.
PATH=${PATH:-/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin}
export PATH

logs=$root/build/log

say() { printf '%s\n' "$*" >&2; }

fail() {
  say "$(basename "$0"): $*"
  exit 1
}

# quoted TEXT: TEXT as a shell would need it typed
quoted() { printf "'%s'" "$(printf '%s' "$1" | sed "s/'/'\\\\''/g")"; }

# step NAME MESSAGE COMMAND...: runs a step; its output is kept in build/log/NAME.log and shown if it fails
step() {
  log=$logs/$1.log
  say "$2 (log in build/log/$1.log)"
  shift 2
  "$@" >"$log" 2>&1 </dev/null && return 0
  status=$?
  cat "$log" >&2
  fail "that failed with exit code $status; the whole log is above and in $log"
}

# begin: what has to hold before anything is done. Two builds at once would spoil each other, so later ones wait.
begin() {
  if ! { mkdir -p "$logs" && touch "$root/build/.lock"; } 2>/dev/null; then
    fail "cannot write into $root/build, where everything is built"
  fi
  # ccache stops the build if it finds no home to keep its cache in.
  if [ -z "${CCACHE_DIR-}" ] && ! [ -w "${HOME:-/nonexistent}" ]; then
    CCACHE_DIR=$root/build/ccache
    export CCACHE_DIR
  fi
  exec 9>>"$root/build/.lock"
  flock -n 9 || { say "Waiting for another build here to end ..."; flock 9; }
}

# finish: ends what begin began, so that the lock is not handed on to the program
finish() { exec 9>&-; }

# packages SECTION...: the packages that packages.txt lists under these headings
packages() {
  for section; do
    awk -v section="## $section" '/^## / { wanted = ($0 == section); next }
      wanted { sub(/#.*/, ""); if (NF) print $1 }' "$root/packages.txt"
  done
}

# install_packages SECTION...: what is missing of them. One dpkg-query (10 ms) is all the work when nothing is.
install_packages() {
  [ -z "${QUORVANE_NO_INSTALL-}" ] || return 0
  wanted=$(packages "$@")
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    fail "this is no Debian system, so nothing can be installed here. Install what $root/packages.txt lists" \
      "under your system's names, then run this again with QUORVANE_NO_INSTALL=1 in the environment."
  fi
  # shellcheck disable=SC2086  # package names, one word each
  missing=$(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' $wanted 2>/dev/null | awk -v wanted="$wanted" '
    $1 == "ii" || $1 == "hi" { present[$2] = 1 }
    END { count = split(wanted, names); for (i = 1; i <= count; ++i) if (!(names[i] in present)) print names[i] }')
  [ -n "$missing" ] || return 0
  # shellcheck disable=SC2086
  set -- $missing
  as_root=
  if [ "$(id -u)" -ne 0 ]; then
    # With a terminal, sudo's question for the password is the only one; without, it must not ask.
    as_root="sudo -n"
    if ! sudo -n true 2>/dev/null && [ -t 0 ] && [ -t 2 ] && sudo -v; then as_root=sudo; fi
    $as_root true 2>/dev/null || fail "$# packages are missing, and there is neither root nor sudo to install them." \
      "Have root run:
    apt-get update && apt-get install --no-install-recommends $*"
  fi
  step install "Installing $# packages ..." apt_install "$as_root" "$@"
}

# apt_install AS_ROOT PACKAGE...: the lists are fetched only when it does not go without (none there yet, or too old)
apt_install() {
  as_root=$1
  shift
  apt="$as_root env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 apt-get -q -o DPkg::Lock::Timeout=600"
  $apt install -y --no-install-recommends "$@" && return 0
  $apt update && $apt install -y --no-install-recommends "$@"
}

# job_count: as many compilers as there are cores, yet not more than one a GiB of free memory
job_count() {
  cores=$(nproc 2>/dev/null || echo 2)
  memory=$(awk '/^MemAvailable:/ { print int($2 / 1048576) }' /proc/meminfo 2>/dev/null || true)
  [ "${memory:-$cores}" -ge "$cores" ] || cores=$memory
  [ "$cores" -ge 1 ] || cores=1
  echo "$cores"
}

# configure PRESET [with-tests]: makes build/PRESET where it is not yet as wanted; CMake itself sees to later changes.
#
# ./run and ./test share one build folder, so that nothing is compiled twice. For a first ./run, which installs no
# test packages, the tests are left out; ./test puts them in once, and ./run never takes them out again but
# builds just the programs. So the two do not take turns in configuring anew.
configure() {
  folder=$root/build/$1
  cache=$folder/CMakeCache.txt
  if [ -f "$cache" ]; then
    origin=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache")
    # shellcheck disable=SC3013  # dash and bash both have -ef
    if ! [ "$origin" -ef "$root" ]; then  # the project was moved or copied with its build folder: CMake would refuse
      say "build/$1 was made for $origin; making it anew"
      rm -rf "$folder"
    fi
  fi
  if [ "${2-}" = with-tests ]; then
    [ -f "$folder/build.ninja" ] && grep -q '^QUORVANE_TESTS:BOOL=ON' "$cache" && return 0
    tests=ON
  else
    [ -f "$folder/build.ninja" ] && return 0
    tests=OFF
  fi
  step "configure-$1" "Configuring ..." configure_in_root "$1" "-DQUORVANE_TESTS=$tests" "-DQUORVANE_BENCH=$tests"
}

configure_in_root() (
  cd "$root" && cmake --preset "$@"
)

# build PRESET TARGET...: tells of the step only once there is something to compile or link
build() {
  preset=$1
  log=$logs/build-$1.log
  shift
  {
    status=0
    NINJA_STATUS='[%f/%t] ' ninja -C "$root/build/$preset" -j "$(job_count)" "$@" 2>&1 </dev/null || status=$?
    echo "exit code $status"
  } | awk -v log_file="$log" -v name="build/log/${log##*/}" '
    { print >log_file; last = $0 }
    /^\[/ && !/Re-checking globbed|Re-running CMake/ && !told {
      print "Building ... (log in " name ")" >"/dev/stderr"
      told = 1
    }
    END { exit last != "exit code 0" }' && return 0
  cat "$log" >&2
  fail "the build failed; its whole log is above and in $log"
}
