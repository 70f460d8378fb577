// SPDX-License-Identifier: GPL-3.0-or-later
// Folders dropped on the canvas.
#include <QDragEnterEvent>
#include <QMimeData>

#include "composition/core/LabelGeometry.h"
#include "composition/view/DroppedFolder.h"
#include "composition/view/FolderView.h"

namespace quorvane {

Qt::DropAction FolderView::draggingEntered(const QMimeData& dragged) const {
  return isEnabled() && DroppedFolder::of(dragged).path ? Qt::CopyAction : Qt::IgnoreAction;
}

bool FolderView::prepareForDragOperation(const QMimeData& /*data*/) const {
  return true;
}

bool FolderView::performDragOperation(const QMimeData& dragged) {
  if (!isEnabled()) return false;
  const auto path = firstLocalPath(dragged);
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
  const bool isTaken = draggingEntered(*event->mimeData()) == Qt::CopyAction;
  setHighlighted(isTaken);
  if (isTaken) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    return;
  }
  if (isEnabled()) _refused.begin(DroppedFolder::of(*event->mimeData()).refusal);
  event->ignore();
}

void FolderView::dragMoveEvent(QDragMoveEvent* event) {
  if (!isHighlighted()) return event->ignore();
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void FolderView::dragLeaveEvent(QDragLeaveEvent* event) {
  setHighlighted(false);
  event->accept();
}

void FolderView::dropEvent(QDropEvent* event) {
  const QMimeData& dragged = *event->mimeData();
  setHighlighted(false);
  if (!prepareForDragOperation(dragged) || !performDragOperation(dragged)) return event->ignore();
  event->setDropAction(Qt::CopyAction);
  event->accept();
  concludeDragOperation();
}

}  // namespace quorvane
