// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "iconfamily/FamilyCache.h"
#include "iconfamily/ForkStore.h"
#include "iconfamily/IconFamily.h"
#include "system/FileManagerNotices.h"
#include "system/FolderMarks.h"
#include "system/KindIcons.h"

namespace quorvane {

/// What icons and custom icons need of the platform, chosen once by the main function or a test. Owns nothing. Several
/// threads may share it and all that it refers to, as long as they work on different folders or hold them (Folder).
struct IconServices {
  ForkStore& forks;
  const KindIcons& kinds;
  FileManagerNotices& notices;
  FamilyCache* families = nullptr;  ///< remembers the families of the kinds' icons; none: they are made each time
  FolderMarks* marks = nullptr;     ///< none: branded folders get nothing but the custom icon

  /// IconFamily::iconFamilyWithThumbnailsOfImage(), remembered.
  [[nodiscard]] Result<IconFamily> familyOfImage(const Image& image) const {
    return families != nullptr ? families->familyOfImage(image) : IconFamily::iconFamilyWithThumbnailsOfImage(image);
  }
};

}  // namespace quorvane
