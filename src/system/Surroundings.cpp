// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/Surroundings.h"

#include "system/GitTree.h"
#include "system/Mounts.h"
#include "system/SynchronisedTree.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

/// The folder and all above it.
std::vector<fs::path> upwards(const fs::path& folder) {
  std::vector<fs::path> all{folder};
  while (all.back() != all.back().root_path()) all.push_back(all.back().parent_path());
  return all;
}

}  // namespace

std::optional<std::string> Surroundings::clientAt(const fs::path& folder) {
  constexpr std::size_t mostRemembered = 256;
  const std::scoped_lock lock(_mutex);
  if (const auto known = _clients.find(folder); known != _clients.end()) return known->second;
  if (_clients.size() >= mostRemembered) _clients.clear();
  return _clients[folder] = synchronisingClientAt(folder);
}

std::vector<Surrounding> Surroundings::of(const fs::path& folder) {
  std::vector<Surrounding> found;
  std::error_code error;
  const fs::path path = fs::canonical(folder, error);
  if (error) return found;

  if (const auto tree = gitTreeOf(path); tree.ok() && *tree)
    found.push_back({.kind = Surrounding::Kind::GitTree, .root = (*tree)->root, .detail = {}});
  const auto all = upwards(path);
  for (const fs::path& each : all)
    if (const auto client = clientAt(each)) {
      found.push_back({.kind = Surrounding::Kind::Synchronised, .root = each, .detail = *client});
      break;
    }
  if (const auto mount = mountOf(path); mount && isNetworkType(mount->type))
    found.push_back({.kind = Surrounding::Kind::Network, .root = mount->point, .detail = mount->type});
  std::size_t shared = 0;
  while (shared < all.size() && othersMayWrite(all[shared])) ++shared;
  if (shared > 0) found.push_back({.kind = Surrounding::Kind::OthersMayWrite, .root = all[shared - 1], .detail = {}});
  return found;
}

}  // namespace quorvane
