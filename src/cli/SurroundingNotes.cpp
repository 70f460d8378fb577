// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/SurroundingNotes.h"

#include "app/core/BrandingRecord.h"
#include "app/core/GitExclusion.h"
#include "cli/Terminal.h"
#include "system/GitTree.h"

namespace quorvane::cli {

namespace {

std::string wordsFor(const Surrounding& surrounding) {
  const std::string root = printable(surrounding.root) + ": ";
  switch (surrounding.kind) {
    case Surrounding::Kind::GitTree:
      return root + "a git work tree, and 'git status' will show the icon's files; --git-exclude keeps them out of it";
    case Surrounding::Kind::Synchronised:
      return root + "kept in step with other machines by " + printable(surrounding.detail) +
             ", which see the icon too; a client that cannot take a name with a carriage return may stop there";
    case Surrounding::Kind::Network:
      return root + "a network file system (" + printable(surrounding.detail) + "); its other users see the icon too";
    case Surrounding::Kind::OthersMayWrite:
      return root + "others may write in there; they see the icon too and can change it";
  }
  return root;
}

}  // namespace

bool SurroundingNotes::isToldOfGit(const std::filesystem::path& folder) const {
  if (_arguments.gitExclude) return false;
  const auto tree = gitTreeOf(folder);
  if (!tree.ok() || !*tree) return false;
  const auto missing = missingExcludes(**tree, iconExcludes(_branding.services().forks));
  return !missing.ok() || !missing->empty();
}

void SurroundingNotes::beforeApply(const std::filesystem::path& folder) {
  std::error_code error;
  if (std::filesystem::exists(std::filesystem::symlink_status(folder / BrandingRecord::folderName, error))) return;
  for (const Surrounding& each : _surroundings.of(folder))
    if (each.kind != Surrounding::Kind::GitTree || isToldOfGit(folder)) _reporter.noteOnce(wordsFor(each));
}

void SurroundingNotes::afterApply(const std::filesystem::path& folder) {
  if (!_arguments.gitExclude) return;
  if (const auto done = excludeFromGit(folder); !done.ok()) _reporter.failed(folder, done.error());
}

Result<void> SurroundingNotes::excludeFromGit(const std::filesystem::path& path) {
  const auto tree = TRY(gitTreeOf(path));
  if (!tree) {
    _reporter.noteOnce("--git-exclude does nothing for folders outside of git work trees");
    return {};
  }
  const Folder folder = TRY(Folder::open(path, Folder::Access::Read));
  const auto patterns = folderExcludes(folder, *tree, _branding.services().forks);
  if (TRY(missingExcludes(*tree, patterns)).empty()) return {};
  if (!_arguments.isDryRun) TRY(addExcludes(*tree, patterns));
  _reporter.noteOnce(printable(tree->excludeFile()) +
                     (_arguments.isDryRun ? ": the icon's files would be added" : ": the icon's files are added"));
  return {};
}

}  // namespace quorvane::cli
