// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "imaging/Image.h"

namespace quorvane {

/// One icon of a set: the unit in which icons travel between the library, its lists and the canvas. A value; copies are
/// cheap and may be used by several threads.
struct IconRecord {
  std::filesystem::path path;  ///< full path of the icon's file (or of the folder whose icon it is)
  std::string name;            ///< last component of the path, ending included; raw bytes
  Image image;                 ///< its pictures are read from the file when they are first needed, one by one

  bool operator==(const IconRecord& other) const { return path == other.path && image.isSameAs(other.image); }
};

}  // namespace quorvane
