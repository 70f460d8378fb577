// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace quorvane {

/// Something about the place where a folder lies that makes its icon matter to more than this desktop.
struct Surrounding {
  enum class Kind {
    GitTree,         ///< `detail` is empty
    Synchronised,    ///< `detail` names the client
    Network,         ///< `detail` is the file system's type
    OthersMayWrite,  ///< `detail` is empty
  };
  Kind kind = Kind::GitTree;
  std::filesystem::path root;  ///< the whole that the folder is part of: work tree, mount point, topmost such folder
  std::string detail;

  bool operator==(const Surrounding&) const = default;
};

/// Whether somebody else than the owner and root may add and remove things in a folder. The group that Linux systems
/// give each user of his own is nobody else.
bool othersMayWrite(const std::filesystem::path& folder);

/// Finds them. Only looks; what cannot be read is not told. Safe to use from several threads.
class Surroundings {
 public:
  [[nodiscard]] std::vector<Surrounding> of(const std::filesystem::path& folder);

 private:
  [[nodiscard]] std::optional<std::string> clientAt(const std::filesystem::path& folder);

  std::mutex _mutex;
  /// Folders that lie together have the same folders above them.
  std::map<std::filesystem::path, std::optional<std::string>> _clients;
};

}  // namespace quorvane
