// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "iconfamily/ForkStore.h"

namespace quorvane {

/// Refuses folders that no one means to brand: the root of the file system, the system's own, the folder of all homes.
Result<void> checkTarget(const std::filesystem::path& resolvedPath);

/// The names of all plain files that a brand may consist of, directly inside the folder.
std::vector<std::string> brandFileNames(const ForkStore& forks, const std::string& backupName);

/// Refuses a folder in which something else than a plain file (a link, a folder, a fifo) stands under one of these
/// names: everything is looked at before anything is changed.
Result<void> checkBrandFiles(const Folder& folder, const std::vector<std::string>& names);

/// Fails when the folder, or the place where its flags are kept, cannot be written, with the system's reason: said
/// before anything is tried.
Result<void> checkPlaces(const Folder& folder, const ForkStore& forks);

}  // namespace quorvane
