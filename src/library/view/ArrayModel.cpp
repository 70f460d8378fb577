// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/ArrayModel.h"

#include <QMimeData>
#include <memory>

#include "library/view/ArrayControllerBase.h"

namespace quorvane {

ArrayModel::ArrayModel(ArrayControllerBase& controller, Column column, QObject* parent)
    : QAbstractTableModel(parent), _controller(controller), _column(std::move(column)) {
  using C = ArrayControllerBase;
  connect(&controller, &C::rowsWillBeInserted, this, [this](int first, int last) { beginInsertRows({}, first, last); });
  connect(&controller, &C::rowsInserted, this, [this] { endInsertRows(); });
  connect(&controller, &C::rowsWillBeRemoved, this, [this](int first, int last) { beginRemoveRows({}, first, last); });
  connect(&controller, &C::rowsRemoved, this, [this] { endRemoveRows(); });
  connect(&controller, &C::rowWillMove, this, [this](int from, int to) { beginMoveRows({}, from, from, {}, to); });
  connect(&controller, &C::rowMoved, this, [this] { endMoveRows(); });
  connect(&controller, &C::willReset, this, [this] { beginResetModel(); });
  connect(&controller, &C::didReset, this, [this] { endResetModel(); });
  connect(&controller, &C::rowChanged, this, [this](int row) { Q_EMIT dataChanged(index(row, 0), index(row, 0)); });
}

int ArrayModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : _controller.count();
}

int ArrayModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 1;
}

QVariant ArrayModel::data(const QModelIndex& index, int role) const {
  return index.isValid() && index.row() < rowCount() ? _column.value(index.row(), role) : QVariant();
}

bool ArrayModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  return role == Qt::EditRole && _column.setValue && index.isValid() && index.row() < rowCount() &&
         _column.setValue(index.row(), value.toString());
}

Qt::ItemFlags ArrayModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  flags.setFlag(Qt::ItemIsEditable, _column.setValue != nullptr);
  flags.setFlag(Qt::ItemIsDragEnabled, _column.writeRows != nullptr);
  return flags;
}

Qt::DropActions ArrayModel::supportedDragActions() const {
  return Qt::CopyAction | Qt::MoveAction;
}

QMimeData* ArrayModel::mimeData(const QModelIndexList& indexes) const {
  if (!_column.writeRows) return nullptr;
  QList<int> rows;
  for (const QModelIndex& index : indexes) rows.push_back(index.row());
  auto pasteboard = std::make_unique<QMimeData>();
  return _column.writeRows(IndexSet::indexSetWithArray(rows).array(), *pasteboard) ? pasteboard.release() : nullptr;
}

}  // namespace quorvane
