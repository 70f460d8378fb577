// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "library/core/IconRecord.h"
#include "library/core/LibraryServices.h"

namespace quorvane::library {

/// What is shown for an item of an open folder; nullopt when nothing is. Fails when the disk does not give it out.
Result<std::optional<Image>> imageOf(const Folder& folder, const std::string& name, const LibraryServices& services);

/// The icon's image with all in memory that its pictures are made of: whole whatever becomes of the file. Its own where
/// that cannot be read.
Image lastingImage(const IconRecord& icon);

/// The family that a picture's bytes give: of an icns file its own, else one made from the picture. Any thread.
Result<IconFamily> familyOfBytes(ByteView bytes, bool isFamily);
/// Refuses a family of which nothing could be shown.
Result<void> checkShowable(const IconFamily& family);

}  // namespace quorvane::library
