// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/BaseIconController.h"

#include <QAction>
#include <QFile>
#include <QPointer>
#include <algorithm>

#include "library/core/IconImages.h"
#include "library/view/LibraryTableView.h"
#include "library/view/LibraryTexts.h"
#include "library/view/RowsPasteboard.h"
#include "ui/Reasons.h"

namespace quorvane {

BaseIconController::BaseIconController(LibraryPlaces places, const LibraryServices& services, LibraryPrompts prompts,
                                       SelectionStore selections, WorkQueue::Mode mode)
    : _prompts(std::move(prompts)),
      _selections(std::move(selections)),
      _library(std::move(places), services),
      _undo(_library),
      _adder(services, mode),
      _builtinIconArrayController(_builtinIconSetArrayController),
      _customIconSetArrayController(_library, _undo, _prompts, _adder),
      _customIconArrayController(_customIconSetArrayController, &_undo, &_prompts, &_adder) {
  _baseIconsPath = _library.baseIconsPath();
  createCustomIconsFolder();
  // A list of sets always shows one of them; that of their icons need not, and what it selects is the base icon.
  _builtinIconSetArrayController.setAvoidsEmptySelection(true);
  _customIconSetArrayController.setAvoidsEmptySelection(true);
  _undo.changed = [this] { Q_EMIT historyChanged(); };
  connect(&_customIconSetArrayController, &ArrayControllerBase::contentChanged, this, [this] {
    std::erase_if(_handles, [](const auto& each) { return each.expired(); });
    for (const auto& set : _customIconSetArrayController.arrangedObjects())
      if (std::ranges::none_of(_handles, [&](const auto& each) { return each.lock() == set; })) _handles.push_back(set);
  });
  connect(&_adder, &IconAdder::failed, this, &BaseIconController::failed);
  connect(&_customIconSetArrayController, &IconSetArrayController::failed, this, &BaseIconController::failed);
  connect(&_customIconArrayController, &IconArrayController::failed, this, &BaseIconController::failed);
  connect(&_customIconSetArrayController, &IconSetArrayController::setsChanged, this, [this](const Path& made) {
    _readSets(made);
    for (const auto& set : _customIconSetArrayController.arrangedObjects()) {
      if (set->path() != made) continue;
      // Taken back in the reverse order: only an empty set can be removed.
      std::vector<std::string> names;
      for (const IconRecord& icon : set->icons()) names.push_back(icon.name);
      _undo.begin(LibraryAction::AddSet);
      _undo.noteAddedSet(set);
      _undo.noteAdded(set, names);
      _undo.end();
    }
  });
}

BaseIconController::~BaseIconController() = default;

void BaseIconController::setOutlets(LibraryTableView& builtinTableView, LibraryTableView& customTableView,
                                    LibraryTableView& customSetTableView) {
  _builtinTableView = &builtinTableView;
  _customTableView = &customTableView;
  _customIconSetArrayController.setOutlets(customSetTableView, _customIconArrayController);
  for (LibraryTableView* table : {_builtinTableView, _customTableView}) {
    table->setProposesDropsOnRows(false);
    table->setDropDelegate(this);
    connect(table, &LibraryTableView::tableViewSelectionDidChange, this,
            [this](LibraryTableView* changed) { tableViewSelectionDidChange(*changed); });
  }
  for (LibraryTableView* table : {_builtinTableView, _customTableView, &customSetTableView})
    connect(table, &LibraryTableView::dropRefused, this, &BaseIconController::failed);
  connect(_customTableView, &HVTableView::tableViewDragEndedAt, this,
          [this](HVTableView* table, const QPoint& endPoint, Qt::DropAction operation) {
            tableViewDragEndedAt(*table, endPoint, operation);
          });
}

void BaseIconController::awakeFromNib() {
  _builtinIconSetArrayController.bindContent(
      {.read = [this] { return std::optional(builtinIconSets()); }, .write = {}});
  _customIconSetArrayController.bindContent({.read = [this] { return std::optional(customIconSets()); },
                                             .write = [this](const IconSets& sets) { setCustomIconSets(sets); }});
  _customTableView->registerForDraggedTypes({filenamesPboardType, rowsPboardType, picturePboardType});
  _customIconSetArrayController.awakeFromNib();
  _builtinTableView->noteNumberOfRowsChanged();
  _customTableView->noteNumberOfRowsChanged();
}

std::optional<BaseIconController::Path> BaseIconController::createCustomIconsFolder() {
  return _library.createCustomIconsFolder();
}

BaseIconController::IconSets BaseIconController::builtinIconSets() const {
  return _library.builtinIconSets();
}

BaseIconController::IconSets BaseIconController::customIconSets() const {
  IconSets sets = _library.customIconSets();
  // Whoever holds a set, the history for one, goes on with the same one, be it shown or not.
  for (auto& set : sets) {
    for (auto each = _handles.rbegin(); each != _handles.rend(); ++each) {
      const auto known = each->lock();
      if (!known || known->path() != set->path()) continue;
      known->reload();
      set = known;
      break;
    }
  }
  return sets;
}

void BaseIconController::_readSets(const Path& selected) {
  _customIconSetArrayController.readContent();
  const auto& sets = _customIconSetArrayController.arrangedObjects();
  const auto wanted = std::ranges::find_if(sets, [&](const auto& set) { return set->path() == selected; });
  if (wanted != sets.end()) select(*wanted);
}

void BaseIconController::saveIconSetSelection() const {
  _selections.write(true, _builtinIconSetArrayController.selectionIndexes().array());
  _selections.write(false, _customIconSetArrayController.selectionIndexes().array());
}

void BaseIconController::restoreIconSetSelection() {
  const IndexSet builtin = IndexSet::indexSetWithArray(_selections.read(true));
  const IndexSet custom = IndexSet::indexSetWithArray(_selections.read(false));
  _builtinIconSetArrayController.setSelectionIndexes(builtin);
  _customIconSetArrayController.setSelectionIndexes(custom);
}

void BaseIconController::tableViewSelectionDidChange(LibraryTableView& table) {
  if (table.selectedRow() < 0) return;
  std::optional<IconRecord> chosen;
  LibraryTableView* other = nullptr;
  if (&table == _customTableView) {
    const auto selected = _customIconArrayController.selectedObjects();
    if (selected.size() == 1) chosen = selected.front();
    other = _builtinTableView;
  } else if (&table == _builtinTableView) {
    chosen = _builtinIconArrayController.selectedObjects().front();
    other = _customTableView;
  } else {
    return;
  }
  other->clearSelection();
  Q_EMIT baseIconChosen(chosen ? std::optional(_lastingImage(*chosen)) : std::nullopt, chosen ? chosen->path : Path());
}

double BaseIconController::splitViewConstrainSplitPosition(double proposed, int /*divider*/) {
  return std::clamp(proposed, 80.0, 200.0);
}

bool BaseIconController::validateMenuItem(QAction& item) const {
  if (item.objectName() != QLatin1String("removeSelectedIcons")) return true;
  const int n = _customTableView->numberOfSelectedRows();
  item.setText(n < 2 ? tr("Remove Selected Icon") : tr("Remove Selected Icons"));
  return n > 0;
}

QString BaseIconController::shownName(const Path& path) const {
  const QString name = shownIconName({.path = path, .name = path.filename().string(), .image = {}});
  return path.parent_path().parent_path() == _baseIconsPath ? builtinName(name) : name;
}

void BaseIconController::importSet() {
  const QPointer<BaseIconController> self(this);
  const auto chosen = _prompts.chooseSetToImport();
  if (chosen && self) _customIconSetArrayController.importSet(*chosen);
}

void BaseIconController::exportSelectedSet() {
  const auto set = _customIconArrayController.iconSet();
  if (!set) return;
  const QPointer<BaseIconController> self(this);
  const auto chosen = _prompts.chooseExportPlace(QFile::decodeName(set->name().c_str()));
  if (chosen && self) _customIconSetArrayController.exportSet(set, *chosen);
}

void BaseIconController::select(const std::shared_ptr<IconSet>& set, const std::string& icon) {
  for (const bool isBuiltin : {true, false}) {
    auto& sets = isBuiltin ? _builtinIconSetArrayController : _customIconSetArrayController;
    auto& icons = isBuiltin ? _builtinIconArrayController : _customIconArrayController;
    const IndexSet row = sets.indexesOf({set});
    if (row.isEmpty()) continue;
    sets.setSelectionIndexes(row);
    if (icon.empty()) return;
    for (int each = 0; each < icons.count(); ++each) {
      if (icons.objectAt(each).name == icon) icons.setSelectionIndexes(IndexSet::indexSetWithIndex(each));
    }
    return;
  }
}

void BaseIconController::choose(const IconRecord& icon) {
  _builtinTableView->clearSelection();
  _customTableView->clearSelection();
  Q_EMIT baseIconChosen(_lastingImage(icon), icon.path);
}

Image BaseIconController::_lastingImage(const IconRecord& icon) {
  if (!_lasting || !(_lasting->first == icon)) _lasting.emplace(icon, library::lastingImage(icon));
  return _lasting->second;
}

void BaseIconController::undo() {
  if (!canUndo()) return;
  const LibraryAction action = _undo.nextAction();
  if (const auto undone = _undo.undo(); !undone)
    Q_EMIT failed(tr("Not all of it could be taken back: %1").arg(placedReasonOf(undone.error())));
  if (action == LibraryAction::RemoveSet || action == LibraryAction::AddSet) _readSets();
  // Names are shown anew whatever it was.
  for (const auto& set : _customIconSetArrayController.arrangedObjects())
    _customIconSetArrayController.objectChanged(set);
}

QString BaseIconController::undoText() const {
  if (!_undo.canUndo()) return tr("Undo");
  switch (_undo.nextAction()) {
    case LibraryAction::RemoveIcons:
      return tr("Undo Remove Icons");
    case LibraryAction::AddIcons:
      return tr("Undo Add Icons");
    case LibraryAction::MoveIcons:
      return tr("Undo Move Icons");
    case LibraryAction::ReorderIcons:
      return tr("Undo Reorder Icons");
    case LibraryAction::RenameSet:
      return tr("Undo Rename Set");
    case LibraryAction::RemoveSet:
      return tr("Undo Remove Set");
    case LibraryAction::AddSet:
      return tr("Undo New Set");
  }
  return tr("Undo");
}

}  // namespace quorvane
