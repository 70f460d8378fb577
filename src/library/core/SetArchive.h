// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "foundation/base/Result.h"
#include "library/core/LibraryServices.h"

/// Sets as zip files, to hand on and to keep.
namespace quorvane {

/// Writes a set's icons and its list into one zip file, in a folder of the set's name; replaces a file of that name.
/// Icons that are folders are written as icns files. Any thread.
Result<void> exportSet(const std::filesystem::path& set, const std::filesystem::path& toFile,
                       const LibraryServices& services, const LibraryProgress& progress = {});

/// Makes a set of a zip file: its icns and picture files, in the order of its list file, if there is one. They may lie
/// in one folder, whose name the set then gets (else the zip file's, numbered where it is taken); what lies deeper, and
/// what is no picture or none that can be read, is left out. Refused as a whole: names that lead elsewhere ("..",
/// absolute, with a backslash), links, two names that differ only in case, encrypted entries, and what is over the
/// limits. All of it, or nothing. The path of the new set. Any thread.
Result<std::filesystem::path> importSet(const std::filesystem::path& file, const std::filesystem::path& library,
                                        const LibraryServices& services, const LibraryProgress& progress = {});

}  // namespace quorvane
