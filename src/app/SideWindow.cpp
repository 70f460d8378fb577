// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SideWindow.h"

#include <QKeyEvent>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace quorvane {

namespace {

/// Round a sheet, and its frame.
constexpr QSize roomRoundSheet(56, 40);

}  // namespace

SideWindow::SideWindow() : HVWindow(nullptr, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
  setAttribute(Qt::WA_QuitOnClose, false);
}

void SideWindow::showOver(QWidget* window) {
  // Only a window that the system knows can be told which other one it belongs to.
  winId();
  adjustSize();
  if (window && window->windowHandle()) {
    windowHandle()->setTransientParent(window->windowHandle());
    QRect frame = frameGeometry();
    frame.moveCenter(window->frameGeometry().center());
    const QRect room = window->screen()->availableGeometry();
    frame.moveLeft(std::clamp(frame.left(), room.left(), std::max(room.left(), room.right() - frame.width())));
    frame.moveTop(std::clamp(frame.top(), room.top(), std::max(room.top(), room.bottom() - frame.height())));
    move(frame.topLeft());
  } else {
    center();
  }
  show();
  raise();
  activateWindow();
}

void SideWindow::makeRoomFor(const QWidget& content) {
  if (_sizeWithoutSheet.isEmpty()) _sizeWithoutSheet = size();
  const QSize wanted = content.sizeHint().expandedTo(content.minimumSizeHint()) + roomRoundSheet;
  resize(size().expandedTo(wanted).boundedTo(screen()->availableSize()));
}

void SideWindow::giveBackRoom() {
  if (!_sizeWithoutSheet.isEmpty()) resize(_sizeWithoutSheet);
  _sizeWithoutSheet = {};
}

void SideWindow::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && !event->isAutoRepeat();
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isPlain && isReturn) {
    Q_EMIT returnPressed();
  } else if (isPlain && event->key() == Qt::Key_Escape) {
    Q_EMIT escapePressed();
  } else {
    HVWindow::keyPressEvent(event);
  }
}

}  // namespace quorvane
