// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <vector>

#include "foundation/base/Result.h"
#include "library/core/IconRecord.h"
#include "library/core/LibraryServices.h"

namespace quorvane {

/// Adds many sources to the folder of a set, as IconSet::addIcon() does each; the families are made by several threads.
/// The outcomes in the order of the paths; fewer when `progress` ended it (what was added stays). Any thread. The
/// set's list is not changed: hand the records to setIcons(), or leave them to the next load.
std::vector<Result<IconRecord>> addIconsAtPaths(const std::vector<std::filesystem::path>& paths,
                                                const std::filesystem::path& toDirectory,
                                                const LibraryServices& services, const LibraryProgress& progress = {});

/// Makes a set of the pictures in a folder (not of folders in it), in their natural order: "NAME", or where that is
/// taken "NAME 1" ..., in the library. All of it, or nothing. The path of the new set. Any thread.
Result<std::filesystem::path> setFromFolder(const std::filesystem::path& folder, const std::filesystem::path& library,
                                            const LibraryServices& services, const LibraryProgress& progress = {});

}  // namespace quorvane
