// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/BrandedFolderSearch.h"

#include <sys/stat.h>
#include <sys/xattr.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

#include "app/core/BrandingRecord.h"
#include "app/core/FolderBranding.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "iconfamily/IconFile.h"

namespace quorvane {

namespace {

namespace fs = std::filesystem;

bool isOfBrand(const std::string& name) {
  return name == BrandingRecord::folderName || name == FolderBranding::backupName ||
         std::ranges::any_of(iconFileNames,
                             [&](const std::string& icon) { return name == icon || name == "._" + icon; });
}

/// A folder that claims an icon and holds nothing of one. The attribute alone is looked at: asking for companions of
/// every folder in a tree would cost more than it finds.
bool hasIconFlag(const fs::path& folder) {
  std::array<std::uint8_t, 32> info{};
  const auto size = ::lgetxattr(folder.c_str(), AppleDoubleForkStore::infoAttribute, info.data(), info.size());
  return size > 0 &&
         (FinderInfo(ByteView(info.data(), static_cast<std::size_t>(size))).flags() & FinderInfo::hasCustomIcon) != 0;
}

struct Seen {
  std::vector<fs::path> folders;
  bool hasBrand = false;
};

Seen lookInto(const fs::path& folder, std::error_code& error) {
  Seen seen;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    seen.hasBrand = seen.hasBrand || isOfBrand(name);
    std::error_code ignored;
    // What lies in our own folder belongs to the brand of this one.
    // What the listing said of the kind will do: a look at each entry costs more, and fails where paths get too long.
    if (name != BrandingRecord::folderName && !entry->is_symlink(ignored) && entry->is_directory(ignored))
      seen.folders.push_back(entry->path());
  }
  return seen;
}

}  // namespace

void BrandedFolderSearch::run(const fs::path& tree) const {
  struct stat root {};
  if (::stat(tree.c_str(), &root) != 0) return unreadable(tree, Error::system(errno, "cannot search").at(tree));
  if (!S_ISDIR(root.st_mode)) return unreadable(tree, Error::refused("is no folder").at(tree));
  std::vector<fs::path> waiting{tree};
  while (!waiting.empty() && !(isStopped && isStopped())) {
    const fs::path folder = std::move(waiting.back());
    waiting.pop_back();
    struct stat info {};
    const bool isRoot = folder == tree;
    if (!isRoot && ::lstat(folder.c_str(), &info) != 0) {
      // Gone meanwhile; or its path is too long for the system.
      if (errno != ENOENT && errno != ENOTDIR) unreadable(folder, Error::system(errno, "cannot search").at(folder));
      continue;
    }
    if (!isRoot && !S_ISDIR(info.st_mode)) continue;
    if (!isRoot && !crossesFileSystems && info.st_dev != root.st_dev) continue;
    std::error_code error;
    Seen seen = lookInto(folder, error);
    if (error) unreadable(folder, Error::system(error.value(), "cannot search").at(folder));
    if (seen.hasBrand || hasIconFlag(folder)) found(folder);
    // Taken from the end: in the order of their names.
    std::ranges::sort(seen.folders, std::greater<>());
    std::ranges::move(seen.folders, std::back_inserter(waiting));
  }
}

}  // namespace quorvane
