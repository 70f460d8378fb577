// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/HVTableView.h"

#include <QCursor>
#include <QDrag>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QPointer>

namespace quorvane {
namespace {

TextMovement movementOf(QAbstractItemDelegate::EndEditHint hint) {
  switch (hint) {
    case QAbstractItemDelegate::SubmitModelCache:
      return TextMovement::Return;
    case QAbstractItemDelegate::EditNextItem:
      return TextMovement::Tab;
    case QAbstractItemDelegate::EditPreviousItem:
      return TextMovement::Backtab;
    case QAbstractItemDelegate::RevertModelCache:
      return TextMovement::Cancel;
    case QAbstractItemDelegate::NoHint:
      break;
  }
  return TextMovement::None;
}

}  // namespace

HVTableView::HVTableView(QWidget* parent) : QTableView(parent) {
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setShowGrid(false);
  setWordWrap(false);
  verticalHeader()->hide();
  horizontalHeader()->hide();
  horizontalHeader()->setStretchLastSection(true);
  // Tab walks through the cells only while one is edited.
  setTabKeyNavigation(false);
}

void HVTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  textDidEndEditing({editor, movementOf(hint)});
}

void HVTableView::textDidEndEditing(const TextDidEndEditing& notification) {
  if (!_returnKeyEndsEditing || notification.movement != TextMovement::Return) return _endEditing(notification);
  TextDidEndEditing changed = notification;
  changed.movement = TextMovement::None;
  _endEditing(changed);
  setFocus();
}

void HVTableView::_endEditing(const TextDidEndEditing& notification) {
  using Delegate = QAbstractItemDelegate;
  switch (notification.movement) {
    case TextMovement::Tab:
      return QTableView::closeEditor(notification.editor, Delegate::EditNextItem);
    case TextMovement::Backtab:
      return QTableView::closeEditor(notification.editor, Delegate::EditPreviousItem);
    case TextMovement::Cancel:
      return QTableView::closeEditor(notification.editor, Delegate::RevertModelCache);
    case TextMovement::None:
      return QTableView::closeEditor(notification.editor, Delegate::NoHint);
    case TextMovement::Return:
      break;
  }
  const QPersistentModelIndex edited(currentIndex());
  QTableView::closeEditor(notification.editor, Delegate::SubmitModelCache);
  if (!edited.isValid()) return;
  const QModelIndex next = edited.sibling(edited.row() + 1, edited.column());
  if (!next.isValid() || !(next.flags() & Qt::ItemIsEditable)) return;
  setCurrentIndex(next);
  edit(next);
}

QPixmap HVTableView::_imageOfRows(const QModelIndexList& indexes, QPoint& hotSpot) const {
  QRegion region;
  for (const QModelIndex& index : indexes) region |= visualRect(index);
  const QRect bounds = region.boundingRect() & viewport()->rect();
  if (bounds.isEmpty()) return {};
  const double ratio = devicePixelRatioF();
  QPixmap image(bounds.size() * ratio);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setOpacity(0.8);
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.state |= QStyle::State_Enabled;
  for (const QModelIndex& index : indexes) {
    option.rect = visualRect(index).translated(-bounds.topLeft());
    itemDelegateForIndex(index)->paint(&painter, option, index);
  }
  hotSpot = viewport()->mapFromGlobal(QCursor::pos()) - bounds.topLeft();
  return image;
}

void HVTableView::startDrag(Qt::DropActions supportedActions) {
  QModelIndexList indexes;
  for (const QModelIndex& index : selectedIndexes()) {
    if (index.flags() & Qt::ItemIsDragEnabled) indexes.push_back(index);
  }
  QMimeData* content = indexes.isEmpty() ? nullptr : model()->mimeData(indexes);
  if (!content) return;
  // The drag is run here and not by the base class, which would take moved rows out of the model by itself.
  const QPointer<HVTableView> self(this);
  auto* drag = new QDrag(this);
  QPoint hotSpot;
  const QPixmap image = _imageOfRows(indexes, hotSpot);
  drag->setPixmap(image);
  drag->setHotSpot(hotSpot);
  drag->setMimeData(content);
  const bool takesPreferred = defaultDropAction() != Qt::IgnoreAction && (supportedActions & defaultDropAction());
  const Qt::DropAction preferred = takesPreferred ? defaultDropAction() : Qt::CopyAction;
  Qt::DropAction operation = drag->exec(supportedActions, preferred);
  // A move makes the rows be removed: only one that a part of this program has taken counts as such.
  if (operation == Qt::MoveAction && !drag->target()) operation = Qt::IgnoreAction;
  if (!self) return;
  setState(QAbstractItemView::NoState);
  viewport()->update();
  draggedImageEndedAtOperation(image, QCursor::pos(), operation);
}

void HVTableView::draggedImageEndedAtOperation(const QPixmap&, const QPoint& endPoint, Qt::DropAction operation) {
  Q_EMIT tableViewDragEndedAt(this, endPoint, operation);
}

}  // namespace quorvane
