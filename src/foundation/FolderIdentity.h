// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <optional>

namespace quorvane {

/// Which folder it is, by whatever path.
struct FolderIdentity {
  dev_t device = 0;
  ino_t inode = 0;
  bool operator==(const FolderIdentity&) const = default;

  /// nullopt when nothing can be looked at there.
  static std::optional<FolderIdentity> of(const std::filesystem::path& path) {
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) return std::nullopt;
    return FolderIdentity{info.st_dev, info.st_ino};
  }
};

}  // namespace quorvane
