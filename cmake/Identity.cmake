# SPDX-License-Identifier: GPL-3.0-or-later
# Who the program is to the desktop and to packages. Everything that names it takes the name from here.

# The one reverse-domain identifier: desktop entry, metainfo, icon, D-Bus name, and the window's desktop file name.
#
# Its first letters matter. Where neither the user nor the desktop has set what opens folders, GLib takes the first in
# alphabetical order of all programs that can. So it must sort behind the file managers, or the program would open
# folders by being installed. Of the domains reserved for use without an owner this one sorts last.
set(QUORVANE_APP_ID "test.quorvane.Quorvane")
# The same without the program's own name: who makes it.
string(REGEX REPLACE "\\.[^.]*$" "" QUORVANE_DEVELOPER_ID ${QUORVANE_APP_ID})

# Day of the release that project(VERSION) names.
set(QUORVANE_RELEASE_DATE "2026-11-21")

# Whoever publishes a build sets these to addresses of their own; the defaults lie in a domain reserved for that.
set(QUORVANE_HOMEPAGE "https://quorvane.test/" CACHE STRING "Address of the program's home page")
# Pages are addressed by appending to the home page, which therefore ends in "/".
set(QUORVANE_PRODUCT_FOLDER "${QUORVANE_HOMEPAGE}quorvane/" CACHE STRING "Address of the folder of update feeds; ends in /")
set(QUORVANE_COMMENTS_PAGE "quorvane/comments/" CACHE STRING "Page for comments, below the home page")
set(QUORVANE_MAIL "developers@quorvane.test" CACHE STRING "Mail address of the makers")
set(QUORVANE_ISSUES "https://quorvane.test/issues" CACHE STRING "Address where faults are reported")
set(QUORVANE_MAINTAINER "Quorvane developers <developers@quorvane.test>" CACHE STRING "Maintainer of packages")
