// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/FloatingPanel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWindow>

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

void FloatingPanel::_setContent(QWidget* content) {
  _content = content;
  // A dialog made as a window keeps the flags of one unless told.
  content->setParent(this, Qt::Widget);
  layout()->addWidget(content);
  content->show();
}

void FloatingPanel::showPanel() {
  if (_place) return;
  const QWidget* over = QApplication::activeWindow();
  // Only then window managers keep it in front of that window.
  winId();
  if (over && over != this && over->windowHandle()) windowHandle()->setTransientParent(over->windowHandle());
  show();
  raise();
  activateWindow();
}

void FloatingPanel::hidePanel() {
  hide();
}

void FloatingPanel::moveContentInto(QWidget& box) {
  moveContentBack();
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
  _content->setParent(this, Qt::Widget);
  layout()->addWidget(_content);
  _content->show();
}

void FloatingPanel::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous()) Q_EMIT panelClosed();
}

void FloatingPanel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return hide();
  QWidget::keyPressEvent(event);
}

}  // namespace quorvane
