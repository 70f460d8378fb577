// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SideWindow.h"

#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "app/LayoutPieces.h"
#include "ui/ScreenPlacement.h"

namespace quorvane {

namespace {

/// Round a sheet, and its frame.
constexpr QSize roomRoundSheet(56, 40);

}  // namespace

SideWindow::SideWindow() : HVWindow(nullptr, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
  setAttribute(Qt::WA_QuitOnClose, false);
}

void SideWindow::setContent(QWidget* content, QLayout* buttons) {
  _buttons = buttons;
  _scroll = new QScrollArea;
  _scroll->setWidget(content);
  _scroll->setWidgetResizable(true);
  _scroll->setFrameShape(QFrame::NoFrame);
  _scroll->setFocusPolicy(Qt::NoFocus);
  _scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  _scroll->viewport()->setAutoFillBackground(false);
  content->setAutoFillBackground(false);
  auto* inside = new QWidget;
  auto* rows = new QVBoxLayout(inside);
  rows->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
  rows->setSpacing(windowMargin);
  rows->addWidget(_scroll, 1);
  rows->addLayout(buttons);
  setCentralWidget(inside);
}

QSize SideWindow::wantedSize() const {
  const QWidget* content = _scroll->widget();
  const int width = std::max({content->minimumWidth(), content->sizeHint().width(), _buttons->sizeHint().width()});
  const int height = content->hasHeightForWidth() ? content->heightForWidth(width) : content->sizeHint().height();
  return {width + 2 * windowMargin, height + _buttons->sizeHint().height() + 3 * windowMargin};
}

void SideWindow::showOver(QWidget* window) {
  // Only a window that the system knows can be told which other one it belongs to.
  winId();
  const QScreen* place = window ? window->screen() : screen();
  resize(wantedSize().boundedTo(place->availableSize()));
  if (window && window->windowHandle()) {
    windowHandle()->setTransientParent(window->windowHandle());
    QRect frame = frameGeometry();
    frame.moveCenter(window->frameGeometry().center());
    move(movedInto(frame, place->availableGeometry()).topLeft());
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
