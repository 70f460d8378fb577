// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/IconArrayController.h"

#include <QPointer>
#include <algorithm>
#include <map>

#include "library/core/LibraryUndo.h"
#include "library/view/IconAdder.h"
#include "library/view/IconSetArrayController.h"
#include "library/view/LibraryPrompts.h"
#include "library/view/LibraryTexts.h"
#include "ui/Reasons.h"
#include "ui/Texts.h"

namespace quorvane {

IconArrayController::IconArrayController(IconSetArrayController& iconSetArrayController, LibraryUndo* undo,
                                         const LibraryPrompts* prompts, IconAdder* adder)
    : _iconSetArrayController(iconSetArrayController), _undo(undo), _prompts(prompts), _adder(adder) {
  _bind();
  const auto read = [this] {
    _watch();
    readContent();
  };
  connect(&iconSetArrayController, &ArrayControllerBase::selectionChanged, this, read);
  connect(&iconSetArrayController, &ArrayControllerBase::contentChanged, this, [this, read] {
    if (iconSet() != _watched) read();
  });
}

IconArrayController::~IconArrayController() {
  if (_watched) _watched->removeListener(_listener);
}

void IconArrayController::_bind() {
  bindContent({.read = [this]() -> std::optional<Objects> {
                 const auto set = iconSet();
                 return set ? std::optional(set->icons()) : std::nullopt;
               },
               .write =
                   [this](const Objects& icons) {
                     const auto set = iconSet();
                     if (!set || !_undo) return;
                     _isWriting = true;
                     const auto written = set->setIcons(icons);
                     _isWriting = false;
                     if (!written)
                       Q_EMIT failed(tr("The order of the icons cannot be kept: %1").arg(reasonOf(written.error())));
                   }});
}

void IconArrayController::_watch() {
  const auto set = iconSet();
  if (set == _watched) return;
  if (_watched) _watched->removeListener(_listener);
  _watched = set;
  if (!set) return;
  _listener = set->addListener([this](IconSet&, IconSet::Change change) {
    if (change == IconSet::Change::Icons && !_isWriting) readContent();
  });
}

std::shared_ptr<IconSet> IconArrayController::iconSet() const {
  const auto selected = _iconSetArrayController.selectedObjects();
  return selected.size() == 1 ? selected.front() : nullptr;
}

QString IconArrayController::shownName(const IconRecord& icon) const {
  const QString name = shownIconName(icon);
  return _undo ? name : builtinName(name);
}

void IconArrayController::add() {
  if (!canAdd()) return;
  const QPointer<IconArrayController> self(this);
  const auto chosen = _prompts->chooseIcon();
  if (!chosen || !self) return;
  const auto sets = _iconSetArrayController.selectedObjects();
  if (!sets.empty()) addFiles({*chosen}, sets.front(), -1);
}

void IconArrayController::addFiles(const std::vector<std::filesystem::path>& files, const std::shared_ptr<IconSet>& set,
                                   int row, const std::filesystem::path& temporary) {
  _adder->addIcons(
      files, set, [this, set, row](std::vector<IconRecord> records) { _insert(std::move(records), set, row); },
      temporary);
}

void IconArrayController::_insert(std::vector<IconRecord> records, const std::shared_ptr<IconSet>& set, int row) {
  // The set may have been renamed meanwhile, or read anew, and have found some of them by itself.
  Objects here;
  std::vector<std::string> names;
  for (const IconRecord& record : records) {
    auto found = record.path.parent_path() == set->path()
                     ? std::optional(record)
                     : IconSet::_iconForPath(set->path() / record.name, set->services());
    if (!found) continue;
    names.push_back(record.name);
    here.push_back(*std::move(found));
  }
  records = std::move(here);
  if (records.empty()) return;
  const auto isNew = [&](const IconRecord& icon) { return std::ranges::find(names, icon.name) != names.end(); };
  IconSet::Icons others = set->icons();
  if (row >= 0)
    row -= static_cast<int>(
        std::count_if(others.begin(), others.begin() + std::min(row, static_cast<int>(others.size())), isNew));
  if (std::erase_if(others, isNew) > 0) static_cast<void>(set->setIcons(std::move(others)).ok());
  // Inserted one after the other at one row they stand reversed; that is meant.
  if (row >= 0) std::ranges::reverse(records);
  if (set == iconSet()) {
    insertObjectsAtArrangedObjectIndex(records, row >= 0 ? row : count());
  } else {
    // Another set has been chosen meanwhile.
    IconSet::Icons icons = set->icons();
    const auto place = row >= 0 ? std::min<std::size_t>(static_cast<std::size_t>(row), icons.size()) : icons.size();
    icons.insert(icons.begin() + static_cast<std::ptrdiff_t>(place), records.begin(), records.end());
    if (const auto written = set->setIcons(std::move(icons)); !written) Q_EMIT failed(reasonOf(written.error()));
  }
  _undo->noteAdded(set, names);
}

void IconArrayController::remove() {
  const int n = selectionIndexes().count();
  if (n == 0) return;
  const QString title =
      n == 1 ? tr("Are you sure you want to delete the selected icon?")
             : filled(tr("Are you sure you want to delete the %d selected icons?"), {QString::number(n)});
  const QPointer<IconArrayController> self(this);
  // What has been added when the answer comes is selected then, and was not asked about.
  const Objects meant = selectedObjects();
  if (_prompts->prompt(title, tr("You cannot undo this action."), tr("Delete"), tr("Cancel")) != 1 || !self) return;
  removeObjectsAtArrangedObjectIndexes(indexesOf(meant));
}

void IconArrayController::removeObjectsAtArrangedObjectIndexes(const IndexSet& indexes) {
  std::vector<std::filesystem::path> paths;
  for (const IconRecord& record : objectsAtIndexes(indexes)) paths.push_back(record.path);
  _removeFilesAtPaths(paths);
  ArrayController::removeObjectsAtArrangedObjectIndexes(indexes);
}

void IconArrayController::_removeFilesAtPaths(const std::vector<std::filesystem::path>& paths) {
  const auto set = iconSet();
  if (!set || paths.empty()) return;
  // After a renaming that failed a set shows the icons of another one.
  std::map<std::filesystem::path, std::vector<std::string>> names;
  for (const auto& path : paths) names[path.parent_path()].push_back(path.filename().string());
  for (const auto& [folder, icons] : names) {
    auto owner = set->path() == folder ? set : nullptr;
    for (const auto& each : _iconSetArrayController.arrangedObjects())
      if (!owner && each->path() == folder) owner = each;
    // Or that of a folder whose set has left the list.
    if (!owner) owner = IconSet::initWithExistingPath(folder, set->services());
    // Nothing is said about failures, as a file that is gone already is one.
    if (owner) static_cast<void>(_undo->removeIcons(owner, icons, owner != set).ok());
  }
}

void IconArrayController::reorder(const IndexSet& indexes, int toIndex) {
  const auto set = iconSet();
  if (!set) return;
  const IconSet::Icons before = set->icons();
  moveObjectsInArrangedObjectsFromIndexes(indexes, toIndex);
  if (before == set->icons()) return;
  _undo->noteOrder(set, before);
}

}  // namespace quorvane
