# SPDX-License-Identifier: GPL-3.0-or-later
# Who the program is to the desktop and to packages. Everything that names it takes the name from here.

# The one reverse-domain identifier: desktop entry, metainfo, icon, D-Bus name, and the window's desktop file name.
#
# Its first letters matter. Where neither the user nor the desktop has set what opens folders, GLib takes the first in
# alphabetical order of all programs that can. So it must sort behind the file managers, or the program would open
# folders by being installed. Of the domains reserved for use without an owner this one sorts last.
set(QUORVANE_APP_ID "test.quorvane.Quorvane")

# Day of the release that project(VERSION) names.
set(QUORVANE_RELEASE_DATE "2026-11-21")

# Whoever publishes a build sets these to addresses of their own; the defaults lie in a domain reserved for that.
set(QUORVANE_HOMEPAGE "https://quorvane.test/" CACHE STRING "Address of the program's home page")
set(QUORVANE_ISSUES "https://quorvane.test/issues" CACHE STRING "Address where faults are reported")
set(QUORVANE_MAINTAINER "Quorvane developers <developers@quorvane.test>" CACHE STRING "Maintainer of packages")
