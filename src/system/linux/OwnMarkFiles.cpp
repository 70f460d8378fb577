// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/OwnMarkFiles.h"

#include <optional>

#include "foundation/base/Limits.h"
#include "system/FolderMarks.h"
#include "system/linux/DirectoryFile.h"
#include "system/linux/HiddenFile.h"

namespace quorvane {

namespace {

std::optional<std::string> textOf(const Folder& folder, const char* name) {
  const auto bytes = folder.readFile(name, limits::folderSettingsBytes);
  if (!bytes.ok() || !*bytes) return std::nullopt;
  return std::string((*bytes)->begin(), (*bytes)->end());
}

}  // namespace

std::vector<std::string> ownMarkFiles(const Folder& folder) {
  std::vector<std::string> names;
  // Ours is what would go with the marks.
  if (const auto text = textOf(folder, directoryfile::fileName);
      text && directoryfile::namesIcon(*text, isMarkPicture) && !directoryfile::restored(*text, {}, isMarkPicture))
    names.emplace_back(directoryfile::fileName);
  if (const auto text = textOf(folder, hiddenfile::fileName);
      text && hiddenfile::hides(*text, "Icon\r") && !hiddenfile::restored(*text, {}, "Icon\r"))
    names.emplace_back(hiddenfile::fileName);
  return names;
}

}  // namespace quorvane
