// SPDX-License-Identifier: GPL-3.0-or-later
// Moving the label with the mouse and the keyboard.
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

#include "composition/core/LabelGeometry.h"
#include "composition/view/FolderView.h"
#include "imaging/Coordinates.h"

namespace quorvane {

namespace {

constexpr float step = 1;
constexpr float wideStep = 10;

/// What an arrow key moves by, or nothing for another key. Left is left in every language: the canvas is not mirrored.
std::optional<Point> arrowStep(const QKeyEvent& event) {
  // A number pad's arrows come with a modifier of their own.
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (modifiers != Qt::NoModifier && modifiers != Qt::ShiftModifier) return std::nullopt;
  const float length = modifiers == Qt::ShiftModifier ? wideStep : step;
  switch (event.key()) {
    case Qt::Key_Left:
      return Point{-length, 0};
    case Qt::Key_Right:
      return Point{length, 0};
    case Qt::Key_Up:
      return Point{0, length};
    case Qt::Key_Down:
      return Point{0, -length};
    default:
      return std::nullopt;
  }
}

bool isCenterKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  return (event.key() == Qt::Key_Home && modifiers == Qt::NoModifier) ||
         (event.key() == Qt::Key_Period && modifiers == Qt::ControlModifier);
}

bool isModifierKey(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta;
}

Point windowPlace(const QMouseEvent& event, const QWidget& window) {
  const QPointF place = flippedTransform(window.height()).map(event.scenePosition());
  return {static_cast<float>(place.x()), static_cast<float>(place.y())};
}

}  // namespace

void FolderView::mouseDown(Point place) {
  finishKeyMoves();
  _mouseStart = place;
  _mouseDown = true;
  _dragOrigin = canvasLabelCenter();
  resetCursorRects();
}

void FolderView::mouseDragged(Point place) {
  _mouseEnd = place;
  if (_dragOrigin) {
    _dragging = true;
    const auto perUnit = static_cast<float>(magnification());
    _composition.moveLabelCenter((_mouseEnd.x - _mouseStart.x) / perUnit, (_mouseEnd.y - _mouseStart.y) / perUnit);
  }
  _mouseStart = _mouseEnd;
}

void FolderView::mouseUp() {
  _mouseDown = false;
  _dragging = false;
  resetCursorRects();
  update();
  if (const auto origin = std::exchange(_dragOrigin, std::nullopt)) tellMove(*origin);
}

void FolderView::cancelDrag() {
  if (_overlayDrag && !std::exchange(_overlayDrag->isCancelled, true)) setOverlayCenter(_overlayDrag->center);
  _dragging = false;
  if (const auto origin = std::exchange(_dragOrigin, std::nullopt)) _composition.setCanvasLabelCenter(*origin);
}

void FolderView::tellMove(Point from) {
  if (from == canvasLabelCenter()) return;
  tellAssistiveTechnology();
  Q_EMIT labelMoved(from, canvasLabelCenter());
}

void FolderView::finishKeyMoves() {
  _keysEnd.stop();
  if (const auto overlayOrigin = std::exchange(_overlayKeysOrigin, std::nullopt)) tellOverlayMove(*overlayOrigin);
  const auto origin = std::exchange(_keysOrigin, std::nullopt);
  if (!origin) return;
  update();  // the edge is no longer drawn
  tellMove(*origin);
}

void FolderView::moveByKeys(Point to) {
  if (_overlaySelected) {
    if (!_overlayKeysOrigin) _overlayKeysOrigin = _composition.overlay()->center;
    _keysEnd.start();
    return setOverlayCenter(to);
  }
  if (!_keysOrigin) _keysOrigin = canvasLabelCenter();
  _keysEnd.start();
  _composition.setCanvasLabelCenter(to);
}

void FolderView::finishKeyMovesBeforeShortcut(QKeyEvent* event) {
  // Whatever else is pressed may undo or apply; and the keys of ours are not a window's shortcuts.
  if (arrowStep(*event) || isCenterKey(*event))
    event->accept();
  else if ((isMouseDown() || _overlaySelected) && event->key() == Qt::Key_Escape)
    event->accept();
  else if (_overlaySelected && (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace))
    event->accept();
  else if (!isModifierKey(event->key()))
    finishKeyMoves();
}

void FolderView::keyPressEvent(QKeyEvent* event) {
  if (isMouseDown()) {
    if (event->key() == Qt::Key_Escape) cancelDrag();
    return;  // a drag has the label to itself
  }
  const auto by = arrowStep(*event);
  if (hasOverlay() && event->key() == Qt::Key_Space) {
    setOverlaySelected(!_overlaySelected);
  } else if (_overlaySelected && event->key() == Qt::Key_Escape) {
    setOverlaySelected(false);
  } else if (_overlaySelected && (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)) {
    finishKeyMoves();
    _composition.setOverlay(std::nullopt);
  } else if (by || isCenterKey(*event)) {
    const Point center = _overlaySelected ? _composition.overlay()->center : canvasLabelCenter();
    moveByKeys(by ? Point{center.x + by->x, center.y + by->y} : Point{canvasSide / 2, canvasSide / 2});
  } else {
    ImageView::keyPressEvent(event);
  }
}

void FolderView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const bool isOverlay = isOverlayAt(event->position());
  setOverlaySelected(isOverlay);
  isOverlay ? overlayDown(event->position()) : mouseDown(windowPlace(*event, *window()));
}

void FolderView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  if (_overlayDrag) overlayDragged(event->position());
  if (_mouseDown) mouseDragged(windowPlace(*event, *window()));
}

void FolderView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (_overlayDrag) overlayUp();
  if (_mouseDown) mouseUp();
}

void FolderView::focusOutEvent(QFocusEvent* event) {
  finishKeyMoves();
  ImageView::focusOutEvent(event);
}

void FolderView::hideEvent(QHideEvent* event) {
  // The release of a button over a hidden view is told to nobody.
  if (_overlayDrag) overlayUp();
  if (_mouseDown) mouseUp();
  finishKeyMoves();
  ImageView::hideEvent(event);
}

}  // namespace quorvane
