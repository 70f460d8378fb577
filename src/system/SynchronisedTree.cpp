// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/SynchronisedTree.h"

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <string_view>

#include "foundation/base/Limits.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

bool hasKind(const fs::path& path, mode_t kind) {
  struct stat info {};
  return ::lstat(path.c_str(), &info) == 0 && (info.st_mode & S_IFMT) == kind;
}

/// ownCloud's and Nextcloud's clients keep a journal at the top of each tree, under a name with a random part:
/// ".sync_0123456789ab.db", in former versions "._sync_...".
bool hasJournal(const fs::path& folder) {
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.c_str()), ::closedir);
  if (!entries) return false;
  for (std::size_t count = 0; count < limits::markerEntries; ++count) {
    const dirent* entry = ::readdir(entries.get());
    if (entry == nullptr) return false;
    const std::string_view name = entry->d_name;
    if ((name.starts_with(".sync_") || name.starts_with("._sync_")) && name.ends_with(".db")) return true;
  }
  return false;
}

}  // namespace

std::optional<std::string> synchronisingClientAt(const fs::path& folder) {
  if (hasKind(folder / ".stfolder", S_IFDIR) || hasKind(folder / ".stfolder", S_IFREG)) return "Syncthing";
  // A folder ".dropbox" is where the client keeps its settings, in the home; at the top of a tree it is a file.
  if (hasKind(folder / ".dropbox.cache", S_IFDIR) || hasKind(folder / ".dropbox", S_IFREG)) return "Dropbox";
  if (hasKind(folder / ".nextcloudsync.log", S_IFREG)) return "Nextcloud";
  if (hasKind(folder / ".owncloudsync.log", S_IFREG)) return "ownCloud";
  if (hasKind(folder / ".sync" / "IgnoreList", S_IFREG)) return "Resilio Sync";
  if (hasJournal(folder)) return "Nextcloud or ownCloud";
  return std::nullopt;
}

}  // namespace quorvane
