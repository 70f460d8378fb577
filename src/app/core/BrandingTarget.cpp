// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/BrandingTarget.h"

#include <QDir>
#include <QFile>
#include <algorithm>

#include "app/core/BrandingRecord.h"
#include "iconfamily/IconFile.h"

namespace quorvane {

Result<void> checkTarget(const std::filesystem::path& resolvedPath) {
  const auto refused = [&](const char* what) { return Error::refused(what).at(resolvedPath); };
  const std::string path = resolvedPath.string();
  if (path == "/") return refused("the root of the file system is not branded");
  for (const std::string system : {"/proc", "/sys", "/dev"})
    if ((path == system || path.starts_with(system + "/")) && !path.starts_with("/dev/shm/"))
      return refused("the system's own folders are not branded");
  // A search by name for all folders finds ours too.
  if (std::ranges::any_of(resolvedPath, [](const auto& part) { return part == BrandingRecord::folderName; }))
    return refused("what is kept of an icon's folder is not branded");
  const std::filesystem::path home(QFile::encodeName(QDir::homePath()).toStdString());
  if (path == "/home" || (home.has_relative_path() && resolvedPath == home.parent_path()))
    return refused("the folder of all homes is not branded");
  return {};
}

std::vector<std::string> brandFileNames(const ForkStore& forks, const std::string& backupName) {
  std::vector<std::string> names{backupName};
  for (const std::string& spelling : iconFileNames) {
    names.push_back(spelling);
    for (std::string& beside : forks.filesBeside(spelling)) names.push_back(std::move(beside));
  }
  return names;
}

Result<void> checkBrandFiles(const Folder& folder, const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    const auto info = TRY(folder.statusOf(name));
    if (!info || S_ISREG(info->st_mode)) continue;
    const char* kind = S_ISLNK(info->st_mode) ? "a link" : S_ISDIR(info->st_mode) ? "a folder" : "no plain file";
    return Error::refused(std::string(kind) + " stands where the icon's own file belongs").at(folder.pathOf(name));
  }
  return {};
}

Result<void> checkPlaces(const Folder& folder, const ForkStore& forks) {
  TRY_VOID(folder.checkWritable());
  constexpr unsigned wanted = FinderInfo::hasCustomIcon;
  const unsigned flags = TRY(forks.readFolderInfo(folder)).flags();
  if ((flags & (wanted | FinderInfo::hasBeenInited)) == wanted) return {};
  return forks.checkFolderFlags(folder);
}

}  // namespace quorvane
