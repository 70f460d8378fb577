// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/ImagingLibraries.h"

#include <gif_lib.h>
#include <jconfig.h>
#include <lcms2.h>
#include <libdeflate.h>
#include <libimagequant.h>
#include <openjpeg.h>
#include <png.h>
#include <tiffio.h>

#include <algorithm>
#include <exiv2/version.hpp>

namespace quorvane {

namespace {

std::string dotted(int major, int minor, int patch) {
  return std::to_string(major) + '.' + std::to_string(minor) + '.' + std::to_string(patch);
}

/// "LIBTIFF, Version 4.5.0", with the copyright on the lines that follow.
std::string tiffVersion() {
  std::string told = TIFFGetVersion();
  told.resize(std::min(told.find('\n'), told.size()));
  return told.substr(told.rfind(' ') + 1);
}

/// Two decimals each: 21200 is 2.12.0.
std::string quantVersion() {
  const int version = liq_version();
  return dotted(version / 10000, version / 100 % 100, version % 100);
}

/// Thousands and tens: 2140 is 2.14.
std::string lcmsVersion() {
  const int version = cmsGetEncodedCMMversion();
  return std::to_string(version / 1000) + '.' + std::to_string(version % 1000 / 10);
}

#define QUORVANE_TEXT_OF(value) #value
#define QUORVANE_TEXT(value) QUORVANE_TEXT_OF(value)

}  // namespace

std::vector<LibraryNotice> imagingLibraries() {
  return {{.name = "Exiv2", .version = Exiv2::versionString(), .licence = "GPL-2.0-or-later"},
          {.name = "GIFLIB", .version = dotted(GIFLIB_MAJOR, GIFLIB_MINOR, GIFLIB_RELEASE), .licence = "MIT"},
          {.name = "libdeflate", .version = LIBDEFLATE_VERSION_STRING, .licence = "MIT"},
          {.name = "libimagequant", .version = quantVersion(), .licence = "GPL-3.0-or-later"},
          {.name = "libjpeg-turbo", .version = QUORVANE_TEXT(LIBJPEG_TURBO_VERSION), .licence = "IJG AND BSD-3-Clause"},
          {.name = "libpng", .version = png_get_libpng_ver(nullptr), .licence = "libpng-2.0"},
          {.name = "LibTIFF", .version = tiffVersion(), .licence = "libtiff"},
          {.name = "Little CMS", .version = lcmsVersion(), .licence = "MIT"},
          {.name = "OpenJPEG", .version = opj_version(), .licence = "BSD-2-Clause"}};
}

}  // namespace quorvane
