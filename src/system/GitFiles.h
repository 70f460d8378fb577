// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/base/Result.h"

/// The texts of git's own files that tell where a repository is and what it does not look at. Paths and lines are raw
/// bytes. Nothing here touches a disk.
namespace quorvane::gitfiles {

/// The path in a ".git" file ("gitdir: PATH"): relative ones count from the folder that holds the file.
Result<std::string> repositoryPath(std::string_view text);
/// The path in a "commondir" file: relative ones count from the folder that holds the file.
Result<std::string> commonPath(std::string_view text);

/// A pattern that matches one path below the top of the work tree and no other ("a/b", without "/" in front), or one
/// name wherever it stands; nullopt for what no pattern can say, as it holds a line feed or a zero byte.
std::optional<std::string> patternForPath(std::string_view path);
std::optional<std::string> patternForName(std::string_view name);

/// Those of the patterns that are not lines of the list yet.
std::vector<std::string> missingPatterns(std::string_view list, const std::vector<std::string>& patterns);
/// The list with the missing ones at its end; everything else stays to the letter.
std::string withPatterns(std::string_view list, const std::vector<std::string>& patterns);

}  // namespace quorvane::gitfiles
