// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// The git work tree that a folder lies in. Found without git, and by its rules: upwards to the nearest ".git", a
/// folder or the file that linked work trees and submodules have, not past the file system's border.
struct GitTree {
  std::filesystem::path root;        ///< the top of the work tree
  std::filesystem::path repository;  ///< what all work trees of the repository share; holds "info/exclude"
  std::filesystem::path inside;      ///< the folder's path below the root; "." for the root itself
  bool isOurs = false;  ///< tree and repository belong to one user, and that is us or we are root: we may write there

  /// The repository's private list of what git does not look at, which is never shared.
  [[nodiscard]] std::filesystem::path excludeFile() const { return repository / "info" / "exclude"; }
};

/// nullopt outside of work trees, and inside of a repository's own files. Fails on a ".git" that leads nowhere.
Result<std::optional<GitTree>> gitTreeOf(const std::filesystem::path& folder);

/// The patterns that the private list lacks.
Result<std::vector<std::string>> missingExcludes(const GitTree& tree, const std::vector<std::string>& patterns);
/// Adds what it lacks. Refuses a repository of somebody else, and a list that is no plain file.
Result<WriteOutcome> addExcludes(const GitTree& tree, const std::vector<std::string>& patterns);

}  // namespace quorvane
