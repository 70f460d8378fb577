// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "app/core/FolderBranding.h"
#include "cli/Arguments.h"
#include "system/Surroundings.h"

namespace quorvane::cli {

/// What a person should know of the place where a folder lies before it is branded for the first time, said once for
/// each work tree, synchronised tree or mount; and, when asked for, git's private list of what it does not look at.
/// Lives as long as one run of apply.
class SurroundingNotes {
 public:
  SurroundingNotes(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter)
      : _arguments(arguments), _branding(branding), _reporter(reporter) {}

  void beforeApply(const std::filesystem::path& folder);
  /// For a folder that is branded now. A list that cannot be written is reported as the folder's failure.
  void afterApply(const std::filesystem::path& folder);

 private:
  [[nodiscard]] Result<void> excludeFromGit(const std::filesystem::path& folder);
  [[nodiscard]] bool isToldOfGit(const std::filesystem::path& folder) const;

  const Arguments& _arguments;
  const FolderBranding& _branding;
  Reporter& _reporter;
  Surroundings _surroundings;
};

}  // namespace quorvane::cli
