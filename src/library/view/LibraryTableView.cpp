// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/LibraryTableView.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <algorithm>

#include "library/view/ArrayControllerBase.h"

namespace quorvane {

LibraryTableView::LibraryTableView(QWidget* parent)
    : HVTableView(parent), _refused(*this, [this](const QString& reason) { Q_EMIT dropRefused(reason); }) {
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
  setDragDropMode(QAbstractItemView::DragDrop);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::NoFrame);
  setCornerButtonEnabled(false);
  // All rows have one height: none has to be measured, and the list never jumps.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  setAcceptDrops(true);
}

void LibraryTableView::bindController(ArrayControllerBase& controller, QAbstractItemModel& model) {
  _controller = &controller;
  setModel(&model);
  connect(&controller, &ArrayControllerBase::selectionChanged, this, [this] {
    _showControllersSelection();
    Q_EMIT tableViewSelectionDidChange(this);
  });
  connect(&controller, &ArrayControllerBase::contentChanged, this, [this] {
    _showControllersSelection();
    _updateEmptyState();
  });
  _showControllersSelection();
  _updateEmptyState();
}

int LibraryTableView::selectedRow() const {
  const QItemSelectionModel* selection = selectionModel();
  if (!selection || !selection->hasSelection()) return -1;
  if (selection->currentIndex().isValid() && selection->isSelected(selection->currentIndex()))
    return selection->currentIndex().row();
  int last = -1;
  for (const QModelIndex& index : selection->selectedIndexes()) last = std::max(last, index.row());
  return last;
}

int LibraryTableView::numberOfSelectedRows() const {
  return selectionModel() ? static_cast<int>(selectionModel()->selectedRows().size()) : 0;
}

void LibraryTableView::noteNumberOfRowsChanged() {
  updateGeometries();
  viewport()->update();
  _updateEmptyState();
}

void LibraryTableView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  HVTableView::selectionChanged(selected, deselected);
  // While rows come and go the controller knows better what is selected.
  if (!_controller || _controller->isChanging() || _isShowingSelection) return;
  QList<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedIndexes()) rows.push_back(index.row());
  const IndexSet wanted = IndexSet::indexSetWithArray(rows);
  if (wanted == _controller->selectionIndexes()) return;
  _controller->setSelectionIndexes(wanted);
  // One that may not be empty has stayed as it was.
  if (_controller->selectionIndexes() != wanted) _showControllersSelection();
}

void LibraryTableView::_showControllersSelection() {
  if (!model() || _controller->isChanging()) return;
  const IndexSet& wanted = _controller->selectionIndexes();
  QItemSelection selection;
  for (auto row = wanted.begin(); row != wanted.end();) {
    const int first = *row;
    int last = first;
    while (++row != wanted.end() && *row == last + 1) ++last;
    selection.append(QItemSelectionRange(model()->index(first, 0), model()->index(last, 0)));
  }
  _isShowingSelection = true;
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  const bool isElsewhere = !wanted.isEmpty() && !wanted.contains(currentIndex().row());
  if (isElsewhere) {
    selectionModel()->setCurrentIndex(model()->index(wanted.lastIndex(), 0), QItemSelectionModel::NoUpdate);
    scrollTo(currentIndex());
  }
  _isShowingSelection = false;
}

TableDrop LibraryTableView::_dropAt(const QPoint& place) const {
  const QModelIndex index = indexAt(place);
  if (!index.isValid()) return {model() ? model()->rowCount() : 0, TableDrop::Operation::Above};
  const QRect row = visualRect(index);
  const int edge = _proposesOnRows ? row.height() / 4 : row.height() / 2;
  if (place.y() < row.top() + edge) return {index.row(), TableDrop::Operation::Above};
  if (place.y() >= row.bottom() + 1 - edge) return {index.row() + 1, TableDrop::Operation::Above};
  return {index.row(), TableDrop::Operation::On};
}

bool LibraryTableView::_offersDraggedTypes(const QMimeData& dragged) const {
  return std::ranges::any_of(_draggedTypes, [&](const QString& type) {
    return dragged.hasFormat(type) || (type == QLatin1String("application/x-qt-image") && dragged.hasImage());
  });
}

Qt::DropAction LibraryTableView::_judge(const QDropEvent& event) {
  if (!_delegate || !isEnabled() || !_offersDraggedTypes(*event.mimeData())) return Qt::IgnoreAction;
  TableDrop drop = _dropAt(event.position().toPoint());
  Qt::DropAction action = _delegate->tableViewValidateDrop(*this, *event.mimeData(), drop);
  // A link is taken for a copy where no copy is offered; nothing is ever taken for a move that the delegate did not
  // ask for, as whoever sent it would remove it.
  if (action == Qt::CopyAction && !event.possibleActions().testFlag(action)) action = Qt::LinkAction;
  if (!event.possibleActions().testFlag(action)) action = Qt::IgnoreAction;
  _mark(action == Qt::IgnoreAction ? std::nullopt : std::optional(drop));
  return action;
}

void LibraryTableView::dragEnterEvent(QDragEnterEvent* event) {
  _refused.end();
  const Qt::DropAction action = _judge(*event);
  if (action != Qt::IgnoreAction) {
    event->setDropAction(action);
    return event->accept();
  }
  const QString refusal = _delegate ? _delegate->tableViewRefusal(*this, *event->mimeData()) : QString();
  // What is refused for its kind is told when it is let go. What is only in the wrong place goes on being asked about.
  if (!refusal.isEmpty()) {
    _refused.begin(refusal);
    event->ignore();
  } else if (_delegate && _offersDraggedTypes(*event->mimeData())) {
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
  } else {
    event->ignore();
  }
}

void LibraryTableView::dragMoveEvent(QDragMoveEvent* event) {
  const Qt::DropAction action = _judge(*event);
  if (action == Qt::IgnoreAction) return event->ignore();
  event->setDropAction(action);
  event->accept();
  const int y = event->position().toPoint().y();
  if (y < autoScrollMargin() || y > viewport()->height() - autoScrollMargin()) startAutoScroll();
}

void LibraryTableView::dragLeaveEvent(QDragLeaveEvent* event) {
  stopAutoScroll();
  _mark(std::nullopt);
  event->accept();
}

void LibraryTableView::dropEvent(QDropEvent* event) {
  stopAutoScroll();
  const Qt::DropAction action = _judge(*event);
  const std::optional<TableDrop> drop = _marked;
  _mark(std::nullopt);
  if (action == Qt::IgnoreAction || !_delegate->tableViewAcceptDrop(*this, *event->mimeData(), *drop)) {
    event->setDropAction(Qt::IgnoreAction);
    return event->ignore();
  }
  event->setDropAction(action);
  event->accept();
  setFocus();
}

void LibraryTableView::_mark(const std::optional<TableDrop>& drop) {
  if (drop == _marked) return;
  _marked = drop;
  viewport()->update();
}

void LibraryTableView::paintEvent(QPaintEvent* event) {
  HVTableView::paintEvent(event);
  if (!_marked) return;
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  QColor accent = QGuiApplication::palette().color(QPalette::Highlight);
  const int rows = model() ? model()->rowCount() : 0;
  const QRectF all = QRectF(viewport()->rect()).adjusted(2, 2, -2, -2);
  if (_marked->operation == TableDrop::Operation::On || rows == 0) {
    const QRectF place = rows == 0 ? all : QRectF(visualRect(model()->index(_marked->row, 0))).adjusted(2, 1, -2, -1);
    painter.setPen(QPen(accent, 2));
    accent.setAlphaF(0.10F);
    painter.setBrush(accent);
    painter.drawRoundedRect(place, 8, 8);
    return;
  }
  const int row = _marked->row < 0 ? rows : _marked->row;
  const qreal line =
      row < rows ? visualRect(model()->index(row, 0)).top() : visualRect(model()->index(rows - 1, 0)).bottom() + 1;
  const qreal y = std::clamp(line, qreal(4), qreal(viewport()->height() - 4));
  painter.setPen(QPen(accent, 2, Qt::SolidLine, Qt::RoundCap));
  painter.setBrush(palette().color(QPalette::Base));
  constexpr qreal dot = 3;
  const bool isMirrored = isRightToLeft();
  const QPointF begin(isMirrored ? viewport()->width() - 6 : 6, y);
  painter.drawLine(begin, QPointF(isMirrored ? 6 : viewport()->width() - 6, y));
  painter.drawEllipse(begin, dot, dot);
}

void LibraryTableView::keyPressEvent(QKeyEvent* event) {
  if (state() != EditingState && event->matches(QKeySequence::Delete)) return Q_EMIT deletePressed();
  if (state() != EditingState && event->key() == Qt::Key_Backspace) return Q_EMIT deletePressed();
  HVTableView::keyPressEvent(event);
}

void LibraryTableView::setEmptyState(QWidget* state) {
  _emptyState = state;
  state->setParent(viewport());
  _updateEmptyState();
}

void LibraryTableView::_updateEmptyState() {
  if (!_emptyState) return;
  _emptyState->setGeometry(viewport()->rect());
  _emptyState->setVisible(!model() || model()->rowCount() == 0);
}

void LibraryTableView::resizeEvent(QResizeEvent* event) {
  HVTableView::resizeEvent(event);
  _updateEmptyState();
}

}  // namespace quorvane
