// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "iconfamily/ForkStore.h"

namespace quorvane::companion {

/// Where a folder's own companion belongs: in the folder above, or inside when the folder is the root of a file system.
struct FolderCompanion {
  std::optional<Folder> above;  ///< none for a companion inside
  std::string file;

  [[nodiscard]] FolderInfoPlace place() const {
    return above ? FolderInfoPlace::CompanionBeside : FolderInfoPlace::CompanionInside;
  }
};

/// `access` is for the folder above. Fails where that cannot be opened, or when the folder's name is too long.
Result<FolderCompanion> ofFolder(const Folder& folder, Folder::Access access);

}  // namespace quorvane::companion
