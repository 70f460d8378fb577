// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/IconSetArrayController.h"

#include <QFile>
#include <QMimeData>
#include <QPointer>
#include <QTimer>
#include <utility>

#include "foundation/FileManagerExtras.h"
#include "library/core/AddingIcons.h"
#include "library/core/LibraryUndo.h"
#include "library/core/SetArchive.h"
#include "library/view/DroppedIcons.h"
#include "library/view/IconAdder.h"
#include "library/view/IconArrayController.h"
#include "library/view/LibraryPrompts.h"
#include "library/view/LibraryTableView.h"
#include "library/view/LibraryTexts.h"
#include "library/view/RowsPasteboard.h"
#include "ui/ElidedLabel.h"
#include "ui/Reasons.h"
#include "ui/Texts.h"

namespace quorvane {

namespace {

/// What a set can be made of, judged without reading it.
bool canBecomeSet(const std::filesystem::path& path) {
  return isDirectory(path) || path.extension() == ".zip" || path.extension() == ".ZIP";
}

}  // namespace

IconSetArrayController::IconSetArrayController() = default;

IconSetArrayController::IconSetArrayController(const IconLibrary& library, LibraryUndo& undo,
                                               const LibraryPrompts& prompts, IconAdder& adder)
    : _library(&library), _undo(&undo), _prompts(&prompts), _adder(&adder) {}

IconSetArrayController::~IconSetArrayController() = default;

void IconSetArrayController::setOutlets(LibraryTableView& tableView, IconArrayController& iconArrayController) {
  _tableView = &tableView;
  _iconArrayController = &iconArrayController;
}

void IconSetArrayController::awakeFromNib() {
  _tableView->registerForDraggedTypes({rowsPboardType, filenamesPboardType});
  _tableView->setReturnKeyEndsEditing(true);
  _tableView->setDropDelegate(this);
}

QString IconSetArrayController::shownName(const IconSet& set) const {
  const QString name = visibleText(QFile::decodeName(set.name().c_str()));
  return _library ? name : builtinName(name);
}

std::filesystem::path IconSetArrayController::customIconsPath() const {
  return _library->customIconsPath();
}

std::filesystem::path IconSetArrayController::pathToNewSet() const {
  std::vector<std::string> names;
  for (const auto& set : arrangedObjects()) names.push_back(set->name());
  // Folders on the disk are not looked for, but where something else stands no set can be made.
  for (;;) {
    std::filesystem::path path = _library->pathToNewSet(names);
    std::error_code ignored;
    const auto there = std::filesystem::symlink_status(path, ignored);
    if (!std::filesystem::exists(there) || std::filesystem::is_directory(there)) return path;
    names.push_back(path.filename().string());
  }
}

void IconSetArrayController::add() {
  const auto set = IconSet::initWithPath(pathToNewSet(), _library->services());
  if (!set || !isDirectory(set->path())) return Q_EMIT failed(tr("No set can be made in the library’s folder."));
  _undo->noteAddedSet(set);
  addObject(set);
  QTimer::singleShot(0, this, &IconSetArrayController::editNewlyInsertedRow);
}

void IconSetArrayController::editNewlyInsertedRow() {
  const int row = _tableView->selectedRow();
  if (row < 0) return;
  const QModelIndex name = _tableView->model()->index(row, 0);
  _tableView->setFocus();
  _tableView->setCurrentIndex(name);
  _tableView->edit(name);  // the editor comes with its text selected
}

bool IconSetArrayController::setName(int row, const QString& name) {
  const auto set = objectAt(row);
  // A name may not be what its text says: what was not edited stays as it is.
  if (name == QFile::decodeName(set->name().c_str())) return false;
  const std::string wanted = QFile::encodeName(name.trimmed()).toStdString();
  if (wanted.empty() || wanted == set->name()) return false;
  if (const auto renamed = _undo->renameSet(set, wanted); !renamed)
    Q_EMIT failed(tr("The set cannot be called “%1”: %2").arg(visibleText(name), reasonOf(renamed.error())));
  objectChanged(set);
  return true;
}

void IconSetArrayController::remove() {
  const QPointer<IconSetArrayController> self(this);
  for (const auto& set : selectedObjects()) {
    if (!set->icons().empty()) {
      _prompts->message(filled(tr("Icon Set '%@' Not Empty"), {shownName(*set)}),
                        tr("Please move icons to another set (or delete them) before removing this icon set."));
      if (!self) return;
      continue;
    }
    if (const auto removed = _undo->removeSet(set); !removed)
      Q_EMIT failed(tr("“%1” cannot be removed: %2").arg(shownName(*set), reasonOf(removed.error())));
    removeObjectAtArrangedObjectIndex(0);
  }
}

void IconSetArrayController::importSet(const std::filesystem::path& fileOrFolder) {
  const auto made = std::make_shared<std::filesystem::path>();
  const auto work = [fileOrFolder, made, library = customIconsPath(),
                     services = _library->services()](const LibraryProgress& progress) -> Result<void> {
    *made = isDirectory(fileOrFolder) ? TRY(setFromFolder(fileOrFolder, library, services, progress))
                                      : TRY(quorvane::importSet(fileOrFolder, library, services, progress));
    return {};
  };
  const QString name = visibleText(QFile::decodeName(fileOrFolder.filename().c_str()));
  _adder->run(tr("Making a set of “%1”…").arg(name), work, [this, made, name](const Result<void>& outcome) {
    if (!outcome) return Q_EMIT failed(tr("No set can be made of “%1”: %2").arg(name, reasonOf(outcome.error())));
    Q_EMIT setsChanged(*made);
  });
}

void IconSetArrayController::exportSet(const std::shared_ptr<IconSet>& set, const std::filesystem::path& toFile) {
  const auto work = [folder = set->path(), toFile, services = set->services()](const LibraryProgress& progress) {
    return quorvane::exportSet(folder, toFile, services, progress);
  };
  const QString name = shownName(*set);
  _adder->run(tr("Exporting “%1”…").arg(name), work, [this, name](const Result<void>& outcome) {
    if (!outcome) Q_EMIT failed(tr("“%1” cannot be exported: %2").arg(name, reasonOf(outcome.error())));
  });
}

Qt::DropAction IconSetArrayController::tableViewValidateDrop(LibraryTableView& /*table*/, const QMimeData& dragged,
                                                             TableDrop& proposed) {
  if (rowsOf(dragged)) {
    const bool isOnOther = proposed.operation == TableDrop::Operation::On && proposed.row != selectionIndex();
    return isOnOther ? Qt::MoveAction : Qt::IgnoreAction;
  }
  // Rows of another process, or of none, are nothing here.
  if (dragged.hasFormat(rowsPboardType) || !tableViewRefusal(*_tableView, dragged).isEmpty()) return Qt::IgnoreAction;
  proposed = {count(), TableDrop::Operation::Above};
  return Qt::CopyAction;
}

bool IconSetArrayController::tableViewAcceptDrop(LibraryTableView& /*table*/, const QMimeData& dragged,
                                                 const TableDrop& drop) {
  const auto rows = rowsOf(dragged);
  if (!rows) {
    bool isTaken = false;
    for (const auto& path : DroppedIcons::of(dragged).files) {
      if (!canBecomeSet(path)) continue;
      importSet(path);
      isTaken = true;
    }
    return isTaken;
  }
  if (drop.row < 0 || drop.row >= count()) return false;
  const auto target = objectAt(drop.row);
  IconSet::Icons icons = target->icons();
  std::vector<std::string> names;
  // The removal at the end of the drag belongs to the same step.
  _undo->begin(LibraryAction::MoveIcons);
  _isMoving = true;
  for (const IconRecord& record : _iconArrayController->objectsAtIndexes(*rows)) {
    const auto added = target->addIcon(record.path);
    if (!added) {
      Q_EMIT failed(tr("“%1” cannot be moved: %2")
                        .arg(visibleText(QFile::decodeName(record.name.c_str())), reasonOf(added.error())));
      return false;
    }
    names.push_back(added->name);
    icons.push_back(*added);
  }
  if (const auto written = target->setIcons(std::move(icons)); !written) Q_EMIT failed(reasonOf(written.error()));
  _undo->noteAdded(target, names);
  return true;
}

void IconSetArrayController::endMove() {
  if (std::exchange(_isMoving, false)) _undo->end();
}

QString IconSetArrayController::tableViewRefusal(const LibraryTableView& /*table*/, const QMimeData& dragged) const {
  if (dragged.hasFormat(rowsPboardType)) return {};
  const auto files = DroppedIcons::of(dragged).files;
  if (std::ranges::any_of(files, canBecomeSet)) return {};
  return tr("Only folders of pictures and exported sets can be dropped on the list of sets.");
}

}  // namespace quorvane
