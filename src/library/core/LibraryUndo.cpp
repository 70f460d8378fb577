// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/LibraryUndo.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include "library/core/ListFile.h"

namespace quorvane {

namespace {

using Names = std::vector<std::string>;

Names namesOf(const IconSet::Icons& icons) {
  Names names;
  for (const IconRecord& icon : icons) names.push_back(icon.name);
  return names;
}

/// The icons in the order of `names`; those that it does not have keep their places behind the one before them.
IconSet::Icons inOrder(const IconSet::Icons& icons, const Names& names) {
  IconSet::Icons sorted;
  for (const std::string& name : names) {
    const auto found = std::ranges::find(icons, name, &IconRecord::name);
    if (found != icons.end()) sorted.push_back(*found);
  }
  for (std::size_t i = 0; i < icons.size(); ++i) {
    if (std::ranges::find(names, icons[i].name) != names.end()) continue;
    const auto before = i == 0 ? sorted.end() : std::ranges::find(sorted, icons[i - 1].name, &IconRecord::name);
    sorted.insert(before == sorted.end() ? (i == 0 ? sorted.begin() : sorted.end()) : before + 1, icons[i]);
  }
  return sorted;
}

IconSet::Icons without(const IconSet::Icons& icons, const Names& names) {
  IconSet::Icons rest;
  for (const IconRecord& icon : icons)
    if (std::ranges::find(names, icon.name) == names.end()) rest.push_back(icon);
  return rest;
}

/// Puts removed icons back where they stood among the others.
Result<void> restore(const std::shared_ptr<IconSet>& set, const std::vector<TrashedItem>& items, Names order) {
  Trash* trash = set->services().trash;
  IconSet::Icons icons = set->icons();
  std::size_t missing = 0;
  for (TrashedItem item : items) {
    const std::string name = item.original.filename().string();
    // The set may have been renamed since.
    item.original = set->path() / name;
    const auto path = trash->restore(item);
    auto record = path ? IconSet::_iconForPath(*path, set->services()) : std::nullopt;
    if (!record) {
      ++missing;
      continue;
    }
    std::ranges::replace(order, name, record->name);
    std::erase_if(icons, [&](const IconRecord& icon) { return icon.name == record->name; });
    icons.push_back(*std::move(record));
  }
  TRY_VOID(set->setIcons(inOrder(icons, order)));
  if (missing > 0)
    return Error(ErrorKind::NotFound, std::to_string(missing) + " of the icons cannot be brought back from the trash")
        .at(set->path());
  return {};
}

}  // namespace

void LibraryUndo::begin(LibraryAction action) {
  _steps.push_back({action, {}});
  _isOpen = true;
}

void LibraryUndo::end() {
  _isOpen = false;
  if (!_steps.empty() && _steps.back().reversals.empty()) _steps.pop_back();
  if (changed) changed();
}

void LibraryUndo::_remember(LibraryAction action, Reversal reversal) {
  if (!_isOpen) _steps.push_back({action, {}});
  _steps.back().reversals.push_back(std::move(reversal));
  if (!_isOpen && changed) changed();
}

Result<void> LibraryUndo::removeIcons(const std::shared_ptr<IconSet>& set, const Names& names, bool alsoFromList) {
  const Names order = namesOf(set->icons());
  std::vector<TrashedItem> items;
  Names gone;
  std::optional<Error> failure;
  for (const std::string& name : names) {
    auto removed = set->removeIconFileWithName(name);
    if (!removed) {
      if (!failure) failure = removed.error();
      continue;
    }
    gone.push_back(name);
    if (*removed) items.push_back(**std::move(removed));
  }
  if (!items.empty()) _remember(LibraryAction::RemoveIcons, [set, items, order] { return restore(set, items, order); });
  if (alsoFromList && !gone.empty()) {
    auto written = set->setIcons(without(set->icons(), gone));
    if (!written && !failure) failure = written.error();
  }
  return failure ? Result<void>(*std::move(failure)) : Result<void>();
}

Result<void> LibraryUndo::renameSet(const std::shared_ptr<IconSet>& set, const std::string& name) {
  const std::string former = set->name();
  TRY_VOID(set->setName(name));
  if (former == name) return {};
  _remember(LibraryAction::RenameSet, [set, former]() -> Result<void> {
    // Nobody asks here to see what has the name meanwhile.
    std::error_code error;
    const std::filesystem::path back = set->path().parent_path() / former;
    if (std::filesystem::exists(std::filesystem::symlink_status(back, error)) &&
        !std::filesystem::equivalent(back, set->path(), error))
      return Error::system(EEXIST, "cannot rename").at(back);
    return set->setName(former);
  });
  return {};
}

Result<void> LibraryUndo::removeSet(const std::shared_ptr<IconSet>& set) {
  const auto item = TRY(_library.removeSet(*set));
  _remember(LibraryAction::RemoveSet, [set, item]() -> Result<void> {
    const auto path = item ? set->services().trash->restore(*item) : std::nullopt;
    if (item && !path)
      return Error(ErrorKind::NotFound, "the set cannot be brought back from the trash").at(set->path());
    // Numbered, where its name is taken meanwhile.
    if (path) set->setPath(*path);
    if (!item) TRY_VOID(library::makeSetFolder(set->path()));
    set->reload();
    return {};
  });
  return {};
}

Result<void> LibraryUndo::setOrder(const std::shared_ptr<IconSet>& set, IconSet::Icons icons) {
  const IconSet::Icons before = set->icons();
  TRY_VOID(set->setIcons(std::move(icons)));
  noteOrder(set, before);
  return {};
}

void LibraryUndo::noteOrder(const std::shared_ptr<IconSet>& set, const IconSet::Icons& before) {
  _remember(LibraryAction::ReorderIcons,
            [set, order = namesOf(before)] { return set->setIcons(inOrder(set->icons(), order)); });
}

void LibraryUndo::noteAdded(const std::shared_ptr<IconSet>& set, const Names& names) {
  if (names.empty()) return;
  _remember(LibraryAction::AddIcons, [set, names]() -> Result<void> {
    std::optional<Error> failure;
    Names gone;
    for (const std::string& name : names) {
      const auto removed = set->removeIconFileWithName(name);
      if (removed) gone.push_back(name);
      if (!removed && !failure) failure = removed.error();
    }
    TRY_VOID(set->setIcons(without(set->icons(), gone)));
    return failure ? Result<void>(*failure) : Result<void>();
  });
}

void LibraryUndo::noteAddedSet(const std::shared_ptr<IconSet>& set) {
  _remember(LibraryAction::AddSet, [this, set]() -> Result<void> {
    TRY_VOID(_library.removeSet(*set));
    return {};
  });
}

Result<void> LibraryUndo::undo() {
  if (_steps.empty()) return {};
  const Step step = std::move(_steps.back());
  _steps.pop_back();
  _isOpen = false;
  std::optional<Error> failure;
  for (auto reversal = step.reversals.rbegin(); reversal != step.reversals.rend(); ++reversal)
    if (const auto done = (*reversal)(); !done && !failure) failure = done.error();
  if (changed) changed();
  return failure ? Result<void>(*std::move(failure)) : Result<void>();
}

}  // namespace quorvane
