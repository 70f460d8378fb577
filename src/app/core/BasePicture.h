// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "composition/core/IconOverlay.h"
#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/Image.h"

namespace quorvane {

/// Where a picture to draw on lies.
struct BaseReference {
  std::filesystem::path path;
  /// Empty: `path` is the user's own, and links are followed. Else `path` is relative to this folder and must stay in
  /// it: no "..", no link on the way.
  std::filesystem::path within;

  bool operator==(const BaseReference&) const = default;
  /// For words.
  [[nodiscard]] std::filesystem::path shown() const { return within.empty() ? path : within / path; }
};

/// A relative path that cannot leave the folder it counts from: plain names only.
Result<void> checkInnerPath(const std::filesystem::path& path);

/// The file's bytes, by the rules of the reference.
Result<Bytes> readReferenced(const BaseReference& reference);

/// The picture of any file that holds one: an icon family's largest, or a picture file's first.
Result<Image> pictureFromBytes(ByteView bytes);

/// A picture to draw on: an icns file, or any picture file fitted into a square of 128 x 128 points.
Result<Image> readBasePicture(const BaseReference& reference);

/// A picture to lay on icons, from any file that holds one.
Result<OverlayPicture> readOverlayPicture(const BaseReference& reference);

}  // namespace quorvane
