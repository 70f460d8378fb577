// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/FloatingPanel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "ui/ScreenPlacement.h"
#include "ui/WindowDelegate.h"

namespace quorvane {

/// Where the content is while it is lent. A box deletes what is in it; this comes before and saves the content.
class FloatingPanel::Place : public QWidget {
 public:
  explicit Place(FloatingPanel& panel) : _panel(panel) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
  }
  ~Place() override { _panel._takeContent(); }

 private:
  FloatingPanel& _panel;
};

FloatingPanel::FloatingPanel(const QString& title)
    : QWidget(nullptr, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
  setWindowTitle(title);
  setAttribute(Qt::WA_QuitOnClose, false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
}

FloatingPanel::~FloatingPanel() {
  // A lent content is the box's child by now, but still ours.
  moveContentBack();
}

void FloatingPanel::_needContent() {
  if (_content) return;
  _content = _makeContent();
  _takeContent();
}

void FloatingPanel::_placeBeside(const QWidget& window) {
  const QRect frame = window.frameGeometry();
  const QRect screen = window.screen()->availableGeometry();
  const QSize size = sizeHint().expandedTo(minimumSizeHint());
  int left = frame.right() + 9;
  if (left + size.width() > screen.right()) left = frame.left() - size.width() - 8;
  // With no room at either side it covers the side that has the controls, not the picture.
  if (left < screen.left()) left = std::min(frame.right(), screen.right()) - size.width();
  move(movedInto(QRect(QPoint(left, frame.top()), size), screen).topLeft());
}

void FloatingPanel::_keepOnScreen() {
  const QRect room = screen()->availableGeometry();
  resize(size().boundedTo(room.size()));
  move(movedInto(QRect(pos(), size()), room).topLeft());
}

void FloatingPanel::setFrameStore(FrameStore* store, const QString& name) {
  _frameStore = store;
  _frameName = name;
}

void FloatingPanel::showPanel() {
  if (_place) return;
  _needContent();
  const QWidget* over = QApplication::activeWindow();
  // Only then window managers keep it in front of that window.
  winId();
  if (over && over != this && over->windowHandle()) windowHandle()->setTransientParent(over->windowHandle());
  // Only the first time: later it comes back where the user has put it.
  if (const auto frame = !_isPlaced && _frameStore ? _frameStore->frameForName(_frameName) : std::nullopt) {
    _isPlaced = restoreGeometry(*frame);
    if (_isPlaced) _keepOnScreen();
  }
  if (over && over != this && !std::exchange(_isPlaced, true)) _placeBeside(*over->window());
  show();
  raise();
  activateWindow();
}

void FloatingPanel::hidePanel() {
  hide();
}

void FloatingPanel::moveContentInto(QWidget& box) {
  moveContentBack();
  _needContent();
  hide();
  if (!box.layout()) new QVBoxLayout(&box);
  _place = new Place(*this);
  box.layout()->addWidget(_place);
  _content->setParent(_place, Qt::Widget);
  _place->layout()->addWidget(_content);
  _content->show();
}

void FloatingPanel::moveContentBack() {
  delete _place;
}

void FloatingPanel::_takeContent() {
  // A dialog made as a window keeps the flags of one unless told.
  _content->setParent(this, Qt::Widget);
  layout()->addWidget(_content);
  _content->show();
}

void FloatingPanel::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (event->spontaneous()) return;
  if (_frameStore) _frameStore->setFrame(saveGeometry(), _frameName);
  Q_EMIT panelClosed();
}

void FloatingPanel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return hide();
  QWidget::keyPressEvent(event);
}

}  // namespace quorvane
