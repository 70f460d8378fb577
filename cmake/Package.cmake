# SPDX-License-Identifier: GPL-3.0-or-later
# What CPack makes the Debian package of (./package). The libraries that the program is linked with are found by
# dpkg-shlibdeps; here stand those that it loads while it runs, and a font, without which there is no label.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorvane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${QUORVANE_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "give folders icons of their own, with a label")
set(CPACK_PACKAGE_DESCRIPTION
"Quorvane gives a folder an icon of its own: a folder picture with a label drawn
on it, in any font, colour and script. The icon lies in the folder itself, in
the form in which a Mac keeps it, so it travels with the folder over file
servers, sticks and archives. Many folders can be done at once.
.
The folder's own files are never touched, and one command gives the folder back
exactly as it was.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${QUORVANE_HOMEPAGE})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# libqt6svg6 draws the SVG icons of themes and users, the other plug-ins read TIFF and WebP.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "fonts-dejavu-core | fonts-noto-core | fonts-liberation, libqt6svg6, qt6-image-formats-plugins")
# Labels in scripts that the font above has not, and in pictures; a window in Japanese; the buttons of Qt's dialogs in
# the user's language.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "fonts-noto-core, fonts-noto-color-emoji, fonts-noto-cjk | fonts-japanese-gothic, qt6-translations-l10n")
if(QUORVANE_UPDATER)
  # Who a server is when it is asked for newer versions.
  string(APPEND CPACK_DEBIAN_PACKAGE_RECOMMENDS ", ca-certificates")
endif()
# Keeps the settings from which GNOME's, Cinnamon's and MATE's file managers take a folder's icon.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS gvfs)
include(CPack)
