// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/IconLibrary.h"

#include <algorithm>
#include <set>
#include <utility>

#include "foundation/BaseDirectories.h"
#include "foundation/FileManagerExtras.h"
#include "foundation/Folder.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Log.h"
#include "library/core/IconImages.h"
#include "library/core/ListFile.h"

namespace quorvane {

using namespace library;

namespace fs = std::filesystem;

namespace {

const std::string newSetName = "New Set";

void note(const Error& error) {
  logMessage("library", error.message());
}

/// The names of a library's sets in their order; `isWhole` becomes false when not all could be read.
std::vector<std::string> foundSets(const Folder& library, const std::vector<std::string>& listed, bool& isWhole) {
  std::vector<std::string> names;
  std::set<std::pair<dev_t, ino_t>> seen;
  const auto add = [&](const std::string& name) {
    if (isOurOwn(name)) return;
    const auto info = library.statusOf(name);
    if (!info) isWhole = false;
    if (!info || !*info || !S_ISDIR((*info)->st_mode)) return;
    // Once under each name, and under one name where the file system takes several for the same.
    if (seen.emplace((*info)->st_dev, (*info)->st_ino).second) names.push_back(name);
  };
  for (const std::string& name : listed) add(name);
  const auto entries = library.names();
  if (!entries) return note(entries.error()), isWhole = false, names;
  for (const std::string& name : *entries) add(name);
  return names;
}

Result<void> moveFolder(const fs::path& from, const fs::path& to) {
  Folder source = TRY(Folder::open(from.parent_path(), Folder::Access::Write));
  TRY_VOID(makePrivateDirectories(to.parent_path()));
  const Folder target = TRY(Folder::open(to.parent_path(), Folder::Access::Write));
  return source.renameNew(from.filename().string(), target, to.filename().string());
}

/// Writes the library's list of what is there now: the known sets first, in their order.
Result<void> rewriteSetList(const fs::path& library, const std::vector<std::string>& known) {
  const Folder seen = TRY(Folder::open(library, Folder::Access::Read));
  if (says(TRY(readList(seen, setListName)), known)) return {};
  TRY_VOID(seen.checkWritable());
  Folder folder = TRY(Folder::open(library, Folder::Access::Write));
  const ListFile list = TRY(readList(folder, setListName));
  // What another program has listed or made since the sets were looked for stays in the list.
  std::vector<std::string> names = known;
  addMissing(names, list.names);
  bool isWhole = true;
  names = foundSets(folder, names, isWhole);
  return isWhole ? writeList(folder, setListName, names) : Result<void>();
}

}  // namespace

std::optional<fs::path> IconLibrary::createCustomIconsFolder() const {
  const auto path = makeCustomIconsFolder();
  if (!path) return note(path.error()), std::nullopt;
  return *path;
}

Result<fs::path> IconLibrary::makeCustomIconsFolder() const {
  if (customIconsPath().empty()) return Error::refused("there is no home folder for a library");
  if (isDirectory(customIconsPath())) return customIconsPath();
  const auto done = !_places.former.empty() && isDirectory(_places.former)
                        ? moveFolder(_places.former, customIconsPath())
                        : makePrivateDirectories(customIconsPath());
  if (!done) return done.error();
  // Something else may stand there.
  if (const auto folder = Folder::open(customIconsPath(), Folder::Access::Read); !folder) return folder.error();
  return customIconsPath();
}

IconLibrary::Sets IconLibrary::builtinIconSets() const {
  const auto folder = Folder::open(baseIconsPath(), Folder::Access::Read);
  const auto list = folder ? readList(*folder, setListName) : Result<ListFile>(folder.error());
  if (!list) return note(list.error()), Sets();
  Sets sets;
  for (const std::string& name : list->names) sets.push_back(IconSet::initWithPath(baseIconsPath() / name, _services));
  return sets;
}

IconLibrary::Sets IconLibrary::customIconSets() const {
  if (customIconsPath().empty()) return {};
  Sets sets = _iconSetsInDirectory(customIconsPath());
  std::vector<std::string> names;
  for (const auto& set : sets) names.push_back(set->name());
  if (const auto written = rewriteSetList(customIconsPath(), names); !written) note(written.error());
  return sets;
}

IconLibrary::Sets IconLibrary::_iconSetsInDirectory(const fs::path& path) const {
  const auto folder = Folder::open(path, Folder::Access::Read);
  const bool isMissing = !folder && folder.error().kind() == ErrorKind::NotFound;
  if (!folder && !isMissing) return note(folder.error()), Sets();
  bool isWhole = true;
  std::vector<std::string> names;
  if (folder) {
    const auto list = readList(*folder, setListName);
    if (!list) note(list.error());
    names = foundSets(*folder, list ? list->names : std::vector<std::string>(), isWhole);
  }
  Sets sets;
  // Another program may have renamed one since.
  for (const std::string& name : names)
    if (auto set = IconSet::initWithExistingPath(path / name, _services)) sets.push_back(std::move(set));
  if (!sets.empty() || !isWhole) return sets;
  auto first = IconSet::initWithPath(path / newSetName, _services);
  if (isDirectory(first->path())) sets.push_back(std::move(first));
  return sets;
}

fs::path IconLibrary::pathToNewSet(const std::vector<std::string>& names) const {
  std::string name = newSetName;
  for (int number = 1; std::ranges::find(names, name) != names.end(); ++number)
    name = newSetName + " " + std::to_string(number);
  return customIconsPath() / name;
}

Result<std::optional<TrashedItem>> IconLibrary::removeSet(const IconSet& set) const {
  Folder folder = TRY(openSetFolder(set.path(), Folder::Access::Write));
  Folder::Parent parent = TRY(folder.openParent(Folder::Access::Write));
  bool isBare = true;
  for (const std::string& name : TRY(folder.names())) {
    if (name == iconListName) continue;
    isBare = false;
    if (!isOurOwn(name) && TRY(imageOf(folder, name, _services)))
      return Error::refused("cannot remove: the set holds icons").at(set.path());
  }
  if (!isBare) {
    auto item = _services.trash != nullptr ? _services.trash->put(set.path()) : std::nullopt;
    if (item) return item;
    return Error::refused("cannot remove: the set's folder holds other files, and there is no trash for them")
        .at(set.path());
  }
  const auto list = TRY(folder.readFile(iconListName, limits::propertyListBytes));
  TRY_VOID(folder.removeFile(iconListName));
  if (const auto removed = parent.folder.removeEmptyChild(parent.name); !removed) {
    // Something has come in between.
    if (list) TRY_VOID(folder.writeFile(iconListName, *list));
    return removed.error();
  }
  return std::optional<TrashedItem>();
}

}  // namespace quorvane
