#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# try-deb.sh DEB PROGRAM  tries a package out on a bare Debian 12, made for this by debootstrap in a folder of its own
#
# DEB is what ./package made, PROGRAM a quorvane from elsewhere (build/release/src/cli/quorvane). Run it as root, with
# debootstrap and, for a judgement of the package, lintian installed. What was downloaded is kept for the next time in
# /var/cache/quorvane-try-deb. The first run takes some minutes.
#
# It shows that the package installs with nothing but what it depends on, that an ordinary user can brand a folder with
# it, that purging it leaves no trace, and that the folder keeps its icon then. Exit code 0 when all of that holds.
set -eu

deb=$(readlink -f -- "$1")
program=$(readlink -f -- "$2")
cache=/var/cache/quorvane-try-deb
work=$(mktemp -d "${TMPDIR:-/var/tmp}/quorvane-try-XXXXXX")
bare=$work/bare

say() { printf '%s\n' "-- $*"; }
fail() { printf '%s\n' "try-deb.sh: $*" >&2; exit 1; }

leave() {
  for mounted in proc dev var/cache/apt/archives; do
    ! mountpoint -q "$bare/$mounted" || umount "$bare/$mounted" || exit 1
  done
  rm -rf --one-file-system "$work"
}
trap leave EXIT
trap 'exit 130' INT TERM

in_bare() {
  chroot "$bare" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}
as_user() { in_bare runuser -u ann -- env -i PATH=/usr/bin:/bin HOME=/home/ann LC_ALL=C.UTF-8 "$@"; }

# Everything on the system with what it is and holds, but for the records that package tools keep of their own doing.
everything() {
  find . -xdev \( -path ./proc -o -path ./dev -o -path ./home -o -path ./var/lib/dpkg -o -path ./var/lib/apt \
    -o -path ./var/log -o -path ./var/cache/apt -o -path ./run -o -path ./tmp \) -prune -o "$@"
}
snapshot() (
  cd "$bare"
  {
    everything -printf '%y %m %U %G %p %l\n'
    everything -type f -print0 | xargs -0 sha256sum
  } | LC_ALL=C sort
)

[ "$(id -u)" -eq 0 ] || fail "root is needed to make a system within a folder"

if command -v lintian >/dev/null; then
  say "lintian"
  lintian --allow-root --tag-display-limit 0 --info --fail-on error,warning "$deb" || fail "lintian has found faults"
fi

say "what is inside"
dpkg-deb -x "$deb" "$work/inside"
(cd "$work/inside" && dpkg-deb --ctrl-tarfile "$deb" | tar -xO ./md5sums | md5sum --quiet -c) || fail "md5sums are wrong"
! grep -rlF "$(cd "$(dirname "$0")/.." && pwd)" "$work/inside" || fail "the package tells where it was built"

say "a bare system"
mkdir -p "$cache/archives/partial"
if [ ! -f "$cache/base.tar" ]; then
  debootstrap --variant=minbase --make-tarball="$cache/base.tar.new" bookworm "$work/tarball" >"$work/log" 2>&1 || {
    cat "$work/log" >&2
    fail "debootstrap could not get its packages"
  }
  mv "$cache/base.tar.new" "$cache/base.tar"
fi
debootstrap --variant=minbase --unpack-tarball="$cache/base.tar" bookworm "$bare" >"$work/log" 2>&1 || {
  cat "$work/log" >&2
  fail "debootstrap could not make the system"
}
mount --bind "$cache/archives" "$bare/var/cache/apt/archives"
mount -t proc proc "$bare/proc"
mount --bind /dev "$bare/dev"
in_bare useradd -m ann
cp "$deb" "$bare/tmp/quorvane.deb"
in_bare apt-get -qq update
# What it depends on comes first, so that the difference is the package's own.
in_bare apt-get -qq -y --no-install-recommends satisfy "$(dpkg-deb -f "$deb" Depends)" >"$work/log" 2>&1 || {
  cat "$work/log" >&2
  fail "what it depends on cannot be installed"
}
snapshot >"$work/before"

say "install, use"
in_bare apt-get -y --no-install-recommends install /tmp/quorvane.deb >"$work/log" 2>&1 || {
  cat "$work/log" >&2
  fail "it cannot be installed"
}
as_user mkdir "/home/ann/Invoices"
as_user sh -c 'echo mine >/home/ann/Invoices/letter.txt'
as_user quorvane --version
as_user quorvane apply --label 'Invoices\n2026' --color '#b00020' --effect soft /home/ann/Invoices
as_user quorvane render --label 'Invoices\n2026' /home/ann/label.png
# Reading SVG takes a plug-in that is loaded at run time.
cp "$(dirname "$0")/../resources/icons/quorvane.svg" "$bare/tmp"
as_user quorvane render --base /tmp/quorvane.svg --label X /home/ann/svg.png

say "purge"
in_bare apt-get -y purge quorvane >"$work/log" 2>&1 || { cat "$work/log" >&2; fail "it cannot be removed"; }
snapshot >"$work/after"
diff "$work/before" "$work/after" || fail "the package leaves traces"
[ ! -e "$bare/usr/bin/quorvane" ] || fail "the program is still there"

say "the folder afterwards"
"$program" status "$bare/home/ann/Invoices" || fail "the folder has lost its icon"
[ "$(cat "$bare/home/ann/Invoices/letter.txt")" = mine ] || fail "the user's file is another"
"$program" reset "$bare/home/ann/Invoices"
[ "$(ls -A "$bare/home/ann/Invoices")" = letter.txt ] || fail "reset leaves something in the folder"

say "All of it holds: $(basename "$deb"), $(dpkg-deb -f "$deb" Installed-Size) KiB installed"
