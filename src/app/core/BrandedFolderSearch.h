// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>

#include "foundation/base/Error.h"

namespace quorvane {

/// Looks for folders that have anything of a brand or of a custom icon, whole or not, in a tree: the folder itself and
/// all below, by name. Links are not followed, and nothing is opened but folders. Goes on after folders that cannot be
/// read.
struct BrandedFolderSearch {
  bool crossesFileSystems = false;
  std::function<void(const std::filesystem::path& folder)> found;
  std::function<void(const std::filesystem::path& folder, const Error& error)> unreadable;
  std::function<bool()> isStopped;  ///< asked between two folders

  void run(const std::filesystem::path& tree) const;
};

}  // namespace quorvane
