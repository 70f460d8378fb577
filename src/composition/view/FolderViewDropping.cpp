// SPDX-License-Identifier: GPL-3.0-or-later
// Folders dropped on the canvas.
#include <QDragEnterEvent>
#include <QMimeData>

#include "composition/core/LabelGeometry.h"
#include "composition/view/DroppedFolder.h"
#include "composition/view/FolderView.h"

namespace quorvane {

namespace {

/// What a taken folder is answered with. Never a move: whoever sent the folder would then remove it.
Qt::DropAction harmlessAction(Qt::DropActions possible) {
  if (possible.testFlag(Qt::CopyAction)) return Qt::CopyAction;
  return possible.testFlag(Qt::LinkAction) ? Qt::LinkAction : Qt::IgnoreAction;
}

}  // namespace

Qt::DropAction FolderView::draggingEntered(const QMimeData& dragged) const {
  return isEnabled() && DroppedFolder::of(dragged).path ? Qt::CopyAction : Qt::IgnoreAction;
}

bool FolderView::prepareForDragOperation(const QMimeData& /*data*/) const {
  return true;
}

bool FolderView::performDragOperation(const QMimeData& dragged) {
  if (!isEnabled()) return false;
  const auto path = firstLocalPath(dragged);
  finishKeyMoves();  // they are the former folder's
  if (path) Q_EMIT setPath(*path);
  return path.has_value();
}

void FolderView::concludeDragOperation() {
  finishKeyMoves();
  _composition.setCanvasLabelCenter({canvasSide / 2, canvasSide / 2});
  Q_EMIT activationRequested();
}

void FolderView::dragEnterEvent(QDragEnterEvent* event) {
  _refused.end();
  const Qt::DropAction action = harmlessAction(event->possibleActions());
  const bool isTaken = action != Qt::IgnoreAction && draggingEntered(*event->mimeData()) == Qt::CopyAction;
  setHighlighted(isTaken);
  if (isTaken) {
    event->setDropAction(action);
    event->accept();
    return;
  }
  event->ignore();
  if (!isEnabled()) return;
  const QString refusal = DroppedFolder::of(*event->mimeData()).refusal;
  _refused.begin(refusal.isEmpty() ? tr("This folder can only be moved from where it is, not opened.") : refusal);
}

void FolderView::dragMoveEvent(QDragMoveEvent* event) {
  if (!isHighlighted()) return event->ignore();
  event->setDropAction(harmlessAction(event->possibleActions()));
  event->accept();
}

void FolderView::dragLeaveEvent(QDragLeaveEvent* event) {
  setHighlighted(false);
  event->accept();
}

void FolderView::dropEvent(QDropEvent* event) {
  const QMimeData& dragged = *event->mimeData();
  setHighlighted(false);
  const Qt::DropAction action = harmlessAction(event->possibleActions());
  if (action == Qt::IgnoreAction || !prepareForDragOperation(dragged) || !performDragOperation(dragged))
    return event->ignore();
  event->setDropAction(action);
  event->accept();
  concludeDragOperation();
}

}  // namespace quorvane
