// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/ByteCount.h"
#include "imaging/Image.h"

namespace quorvane::cli {

/// The kinds of files that `render` makes.
enum class PictureKind { Png, Jpeg, Tiff, Gif, IconFamily };

/// The kind that a name asks for by its ending, upper or lower case. "-" (standard output) and a name without an ending
/// are PNG; nullopt for an ending that we do not write.
std::optional<PictureKind> pictureKindOf(const std::filesystem::path& path);

/// How a JPEG is to be made.
struct JpegWish {
  int quality = 90;      ///< 1 to 100; with a limit the first one that is tried
  Kibibytes limit = {};  ///< the file is to be shorter; 0 for any length
};

/// An icon as a file of that kind, drawn with `pixels` a side (an icon family: with the sizes that it holds).
Result<Bytes> encodePicture(const Image& icon, PictureKind kind, int pixels, const JpegWish& jpeg);

}  // namespace quorvane::cli
