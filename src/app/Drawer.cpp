// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Drawer.h"

#include <QEvent>

#include "ui/Motion.h"

namespace quorvane {

namespace {

constexpr int milliseconds = 160;
bool isAnimated = true;

}  // namespace

void Drawer::setAnimated(bool animated) {
  isAnimated = animated;
}

Drawer::Drawer(QWidget* content, QWidget* parent) : QWidget(parent), _content(content) {
  _content->setParent(this);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  hide();
  _slide.setDuration(milliseconds);
  _slide.setEasingCurve(QEasingCurve::OutCubic);
  connect(&_slide, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
    _shown = value.toDouble();
    updateGeometry();
    _place();
  });
  // What is shut cannot be reached by the keyboard either.
  connect(&_slide, &QVariantAnimation::finished, this, [this] { setVisible(_open); });
}

QSize Drawer::sizeHint() const {
  const QSize whole = _content->sizeHint();
  return {static_cast<int>(whole.width() * _shown), whole.height()};
}

QSize Drawer::minimumSizeHint() const {
  // Text in it that is wrapped is higher than the least height says.
  const QSize whole = _content->sizeHint();
  return {sizeHint().width(), std::max(_content->minimumSizeHint().height(), _content->heightForWidth(whole.width()))};
}

void Drawer::_setOpen(bool open) {
  if (open == _open) return;
  _open = open;
  _slide.stop();
  if (open) show();
  if (isAnimated && isVisible() && wantsMotion(*this)) {
    _slide.setStartValue(_shown);
    _slide.setEndValue(open ? 1.0 : 0.0);
    _slide.start();
  } else {
    _shown = open ? 1 : 0;
    setVisible(open);
    updateGeometry();
    _place();
  }
  Q_EMIT openChanged(open);
}

void Drawer::_place() {
  const int width = _content->sizeHint().width();
  // The content comes out from under the canvas: its far edge moves with the drawer's.
  _content->setGeometry(isLeftToRight() ? this->width() - width : 0, 0, width, height());
}

void Drawer::resizeEvent(QResizeEvent* /*event*/) {
  _place();
}

bool Drawer::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::LayoutDirectionChange) {
    updateGeometry();
    _place();
  }
  return QWidget::event(event);
}

}  // namespace quorvane
