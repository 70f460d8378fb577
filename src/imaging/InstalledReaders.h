// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// Which of several pictures in one file.
enum class PictureChoice {
  First,  ///< the one at index 0
  Best,   ///< of an icon file the largest, then the deepest; else the first
};

/// Reads with Qt's plug-ins, within our limits, into a standard bitmap in sRGB. Orientation is applied for JPEG and
/// TIFF.
Result<BitmapImageRep> readWithInstalledReaders(ByteView bytes, PictureChoice choice);

/// Extensions (lower case, no dot) of what these read here and now, without what is refused.
std::vector<std::string> installedFileTypes();

}  // namespace quorvane
