// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/IconSet.h"

#include <algorithm>
#include <set>

#include "foundation/FolderNames.h"
#include "foundation/base/Log.h"
#include "library/core/ListFile.h"
#include "library/core/NewIcons.h"

namespace quorvane {

using namespace library;

namespace {

std::vector<std::string> namesOf(const IconSet::Icons& icons) {
  std::vector<std::string> names;
  for (const IconRecord& icon : icons) names.push_back(icon.name);
  std::vector<std::string> once;
  addMissing(once, names);
  return once;
}

/// Puts a set's new name into the library's list, in its place; behind the others when the old one is not there.
Result<void> renameInList(Folder& library, const std::string& from, const std::string& to) {
  ListFile list = TRY(readList(library, setListName));
  std::erase(list.names, to);
  if (const auto found = std::ranges::find(list.names, from); found != list.names.end()) {
    *found = to;
  } else {
    logMessage("library", "the set '" + from + "' was not in the list of sets");
    list.names.push_back(to);
  }
  return writeList(library, setListName, list.names);
}

/// Renames the folder and its entry, or neither.
Result<void> renameSetFolder(const std::filesystem::path& path, const std::string& name) {
  const Folder set = TRY(openSetFolder(path, Folder::Access::Write));
  Folder::Parent parent = TRY(set.openParent(Folder::Access::Write));
  const auto moved = parent.folder.renameNew(parent.name, parent.folder, name);
  // It may fail after it was done, when the disk does not say that it has it.
  if (!moved && TRY(parent.folder.statusOf(parent.name))) return moved;
  if (auto listed = renameInList(parent.folder, parent.name, name); !listed) {
    TRY_VOID(parent.folder.renameNew(name, parent.folder, parent.name));
    return listed;
  }
  return {};
}

}  // namespace

IconSet::IconSet(std::filesystem::path path, const LibraryServices& services)
    : _path(std::move(path)), _services(services) {
  if (!_path.has_filename()) _path = _path.parent_path();
}

std::shared_ptr<IconSet> IconSet::initWithPath(const std::filesystem::path& path, const LibraryServices& services) {
  const std::shared_ptr<IconSet> set(new IconSet(path, services));
  set->_icons = _iconsInDirectory(set->_path, services).value_or(Icons());
  set->_listed = namesOf(set->_icons);
  return set;
}

std::shared_ptr<IconSet> IconSet::initWithExistingPath(const std::filesystem::path& path,
                                                       const LibraryServices& services) {
  const std::shared_ptr<IconSet> set(new IconSet(path, services));
  auto icons = _load(set->_path, services);
  if (!icons && icons.error().kind() == ErrorKind::NotFound) return nullptr;
  if (!icons) logMessage("library", icons.error().message());
  set->_icons = std::move(icons).toOptional().value_or(Icons());
  set->_listed = namesOf(set->_icons);
  return set;
}

std::string IconSet::name() const {
  return _path.filename().string();
}

void IconSet::setPath(const std::filesystem::path& path) {
  _path = path.has_filename() ? path : path.parent_path();
  _tell(Change::Name);
}

void IconSet::reload() {
  auto icons = _load(_path, _services);
  if (!icons) logMessage("library", icons.error().message());
  _icons = std::move(icons).toOptional().value_or(Icons());
  _listed = namesOf(_icons);
  _tell(Change::Icons);
}

Result<void> IconSet::setName(const std::string& name) {
  if (auto good = checkSetName(name); !good) return good.error().at(_path);
  if (name == this->name()) return reload(), Result<void>();
  const std::filesystem::path next = _path.parent_path() / name;
  auto renamed = renameSetFolder(_path, name);
  if (renamed) {
    _path = next;
    reload();
    _tell(Change::Name);
    return {};
  }
  // Meant: the folder of the new name is shown in the place of this one's icons. Where there is no such folder to be
  // had, or this one's is not what it was, nothing changes.
  if (renamed.error().systemCode() != EEXIST) return renamed;
  if (auto icons = _iconsInDirectory(next, _services)) {
    _icons = *std::move(icons);
    _listed = namesOf(_icons);
    if (const auto written = _writeIconArray(_icons, _path); !written) logMessage("library", written.error().message());
    _tell(Change::Icons);
  }
  return renamed;
}

Result<void> IconSet::_writeIconArray(const Icons& icons, const std::filesystem::path& toDirectory) {
  Folder folder = TRY(openSetFolder(toDirectory, Folder::Access::Write));
  return writeList(folder, iconListName, namesOf(icons));
}

Result<void> IconSet::setIcons(Icons icons) {
  _icons = std::move(icons);
  const auto write = [&]() -> Result<void> {
    Folder folder = TRY(openSetFolder(_path, Folder::Access::Write));
    std::vector<std::string> names = namesOf(_icons);
    const std::set<std::string> known(_listed.begin(), _listed.end());
    std::vector<std::string> others;
    for (const std::string& name : TRY(readList(folder, iconListName)).names)
      if (!known.contains(name) && TRY(folder.statusOf(name))) others.push_back(name);
    _listed = names;
    addMissing(names, others);
    return writeList(folder, iconListName, names);
  };
  auto written = write();
  if (!written) logMessage("library", written.error().message());
  _tell(Change::Icons);
  return written;
}

std::optional<IconRecord> IconSet::addIconAtPath(const std::filesystem::path& path) {
  auto added = addIcon(path);
  if (!added) logMessage("library", added.error().message());
  return std::move(added).toOptional();
}

Result<IconRecord> IconSet::addIcon(const std::filesystem::path& path) {
  return addFamily(_path, baseNameOf(path), TRY(showableFamilyOf(path, _services)), _services);
}

Result<std::optional<TrashedItem>> IconSet::removeIconFileWithName(const std::string& name) {
  if (auto good = names::check(name); !good) return good.error().at(_path);
  Folder folder = TRY(openSetFolder(_path, Folder::Access::Write));
  const auto info = TRY(folder.statusOf(name));
  if (!info) return std::optional<TrashedItem>();
  const bool isKept = S_ISREG(info->st_mode) || S_ISDIR(info->st_mode);
  if (isKept && _services.trash != nullptr)
    if (auto item = _services.trash->put(folder.pathOf(name))) return item;
  if (S_ISDIR(info->st_mode)) {
    // Where a trash should have taken it, what lies in a folder beside its icon is not deleted for good.
    TRY_VOID(_services.trash != nullptr ? folder.removeEmptyChild(name) : folder.removeChild(name));
  } else {
    TRY_VOID(folder.removeFile(name, true));
  }
  return std::optional<TrashedItem>();
}

int IconSet::addListener(Listener listener) {
  _listeners.emplace(++_listenerNumbers, std::move(listener));
  return _listenerNumbers;
}

void IconSet::removeListener(int number) {
  _listeners.erase(number);
}

void IconSet::_tell(Change change) {
  // A listener may go away, or let the set go, while it is told.
  const auto self = weak_from_this().lock();
  const auto listeners = _listeners;
  for (const auto& [number, listener] : listeners)
    if (_listeners.contains(number)) listener(*this, change);
}

}  // namespace quorvane
