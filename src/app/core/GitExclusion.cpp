// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/GitExclusion.h"

#include "app/core/BrandingRecord.h"
#include "app/core/BrandingTarget.h"
#include "app/core/FolderBranding.h"
#include "iconfamily/FolderCompanion.h"
#include "system/GitFiles.h"
#include "system/OwnMarkFiles.h"

namespace quorvane {

namespace {

/// The folder's own companion, where its file system leaves no other place for the flags: as a path in the work tree.
std::optional<std::filesystem::path> companionIn(const Folder& folder, const GitTree& tree) {
  if (folder.takesAttributes()) return std::nullopt;
  const auto companion = companion::ofFolder(folder, Folder::Access::Read);
  if (!companion.ok()) return std::nullopt;
  const bool isInside = companion->place() == FolderInfoPlace::CompanionInside;
  if (!isInside && tree.inside == ".") return std::nullopt;  // beside the work tree
  const auto there = (isInside ? folder : *companion->above).statusOf(companion->file);
  if (!there.ok() || !*there) return std::nullopt;
  return (isInside ? tree.inside : tree.inside.parent_path()) / companion->file;
}

}  // namespace

std::vector<std::string> iconExcludes(const ForkStore& forks) {
  std::vector<std::string> patterns;
  for (const std::string& name : brandFileNames(forks, FolderBranding::backupName))
    if (const auto pattern = gitfiles::patternForName(name)) patterns.push_back(*pattern);
  patterns.push_back(std::string(BrandingRecord::folderName) + "/");
  return patterns;
}

std::vector<std::string> folderExcludes(const Folder& folder, const GitTree& tree, const ForkStore& forks) {
  std::vector<std::string> patterns = iconExcludes(forks);
  const auto add = [&](const std::filesystem::path& path) {
    if (const auto pattern = gitfiles::patternForPath(path.lexically_normal().string())) patterns.push_back(*pattern);
  };
  for (const std::string& name : ownMarkFiles(folder)) add(tree.inside / name);
  if (const auto companion = companionIn(folder, tree)) add(*companion);
  return patterns;
}

}  // namespace quorvane
