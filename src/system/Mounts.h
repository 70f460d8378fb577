// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// A file system where it is mounted.
struct Mount {
  std::filesystem::path point;
  std::string type;  ///< as the kernel names it: "ext4", "nfs4", "fuse.sshfs"
};

/// The mount with this number in a table of the form of /proc/self/mountinfo; nullopt when it is not there.
std::optional<Mount> mountInTable(std::string_view table, std::uint64_t number);
/// The mount that a folder is on; nullopt where the system does not tell.
std::optional<Mount> mountOf(const std::filesystem::path& folder);
/// Whether other machines see what is on file systems of this type.
bool isNetworkType(std::string_view type);

}  // namespace quorvane
