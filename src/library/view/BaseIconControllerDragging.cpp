// SPDX-License-Identifier: GPL-3.0-or-later
// What is dragged, dropped and pasted in the lists of icons.
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>
#include <algorithm>

#include "library/view/BaseIconController.h"
#include "library/view/DroppedIcons.h"
#include "library/view/LibraryTableView.h"
#include "library/view/RowsPasteboard.h"

namespace quorvane {

namespace {

enum class DropKind { None, Files, Picture, Rows };

DropKind kindOf(const QMimeData& dragged) {
  if (dragged.hasFormat(filenamesPboardType)) {
    const DroppedIcons icons = DroppedIcons::of(dragged);
    if (!icons.files.empty()) return DropKind::Files;
    return icons.hasPicture ? DropKind::Picture : DropKind::None;
  }
  if (dragged.hasFormat(rowsPboardType)) return rowsOf(dragged) ? DropKind::Rows : DropKind::None;
  return dragged.hasImage() ? DropKind::Picture : DropKind::None;
}

}  // namespace

bool BaseIconController::_isValidIconAtPath(const Path& /*path*/) {
  return true;
}

bool BaseIconController::_areValidIconsAtPaths(const std::vector<Path>& paths) {
  return std::ranges::all_of(paths, _isValidIconAtPath);
}

std::shared_ptr<IconSet> BaseIconController::_targetSet() const {
  const auto sets = _customIconSetArrayController.selectedObjects();
  return sets.empty() ? nullptr : sets.front();
}

bool BaseIconController::tableViewWriteRows(const LibraryTableView& table, const QList<int>& rows,
                                            QMimeData& pasteboard) {
  if (!_customIconArrayController.canRemove() || &table != _customTableView) return false;
  setRows(pasteboard, rows);
  _rowsToRemove = rows;
  // Row numbers have to mean the same until the drag is over.
  _adder.hold();
  return true;
}

Qt::DropAction BaseIconController::tableViewValidateDrop(LibraryTableView& table, const QMimeData& dragged,
                                                         TableDrop& proposed) {
  if (&table != _customTableView || !_customIconArrayController.canAdd()) return Qt::IgnoreAction;
  const DropKind kind = kindOf(dragged);
  if (kind == DropKind::None) return Qt::IgnoreAction;
  if (proposed.operation == TableDrop::Operation::On) proposed.operation = TableDrop::Operation::Above;
  if (kind == DropKind::Files)
    return _areValidIconsAtPaths(DroppedIcons::of(dragged).files) ? Qt::CopyAction : Qt::IgnoreAction;
  // Rows are put into another order, which asks nobody to remove anything.
  return Qt::CopyAction;
}

bool BaseIconController::tableViewAcceptDrop(LibraryTableView& table, const QMimeData& dragged, const TableDrop& drop) {
  if (&table != _customTableView) return false;
  switch (kindOf(dragged)) {
    case DropKind::Files:
      if (const auto set = _targetSet())
        _customIconArrayController.addFiles(DroppedIcons::of(dragged).files, set, drop.row);
      return true;
    case DropKind::Rows:
      _customIconArrayController.reorder(*rowsOf(dragged), drop.row);
      return true;
    case DropKind::Picture: {
      const auto set = _targetSet();
      QTemporaryDir folder;
      if (!set || !folder.isValid()) return false;
      const Path place = folder.path().toStdString();
      const Path file = DroppedIcons::writePicture(dragged, place, tr("Picture"));
      if (file.empty()) return false;
      folder.setAutoRemove(false);
      _customIconArrayController.addFiles({file}, set, drop.row, place);
      return true;
    }
    case DropKind::None:
      break;
  }
  return false;
}

QString BaseIconController::tableViewRefusal(const LibraryTableView& table, const QMimeData& dragged) const {
  if (dragged.hasFormat(rowsPboardType)) return {};
  const DroppedIcons icons = DroppedIcons::of(dragged);
  if (!icons.refusal.isEmpty()) return icons.refusal;
  if (&table == _builtinTableView) return tr("The built-in icons stay as they are. Add pictures to a set of My Icons.");
  if (!_customIconArrayController.canAdd()) return tr("Select one set to add icons to.");
  return {};
}

void BaseIconController::tableViewDragEndedAt(const HVTableView& table, const QPoint& /*endPoint*/,
                                              Qt::DropAction operation) {
  if (&table != _customTableView) return;
  if (operation == Qt::MoveAction)
    _customIconArrayController.removeObjectsAtArrangedObjectIndexes(IndexSet::indexSetWithArray(_rowsToRemove));
  _customIconSetArrayController.endMove();
  _adder.release();
}

bool BaseIconController::paste(const QMimeData& pasteboard) {
  const DropKind kind = kindOf(pasteboard);
  if (kind != DropKind::Files && kind != DropKind::Picture) return false;
  const QString refusal = tableViewRefusal(*_customTableView, pasteboard);
  if (refusal.isEmpty()) return tableViewAcceptDrop(*_customTableView, pasteboard, {.row = -1});
  Q_EMIT failed(refusal);
  return false;
}

QMimeData* BaseIconController::copy() const {
  auto icons = _customIconArrayController.selectedObjects();
  if (icons.empty()) icons = _builtinIconArrayController.selectedObjects();
  if (icons.empty()) return nullptr;
  QList<QUrl> files;
  for (const IconRecord& icon : icons) files.push_back(QUrl::fromLocalFile(QFile::decodeName(icon.path.c_str())));
  auto copied = std::make_unique<QMimeData>();
  copied->setUrls(files);
  constexpr int side = 512;
  if (const auto bitmap = icons.front().image.bitmapForPixels(side, side)) copied->setImageData(bitmap->toImage());
  return copied.release();
}

}  // namespace quorvane
