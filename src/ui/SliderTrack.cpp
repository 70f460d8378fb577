// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/SliderTrack.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace quorvane {
namespace {

constexpr double knobRadius = 8;
constexpr double grooveHeight = 4;

/// The value in the slider's own terms; the stock interface would say the number of steps.
class SliderInterface : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit SliderInterface(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Slider) {}
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  [[nodiscard]] QVariant currentValue() const override { return _track().value() * _track().unit(); }
  void setCurrentValue(const QVariant& value) override {
    _track().setValue(static_cast<int>(std::lround(value.toDouble() / _track().unit())));
  }
  [[nodiscard]] QVariant maximumValue() const override { return _track().maximum() * _track().unit(); }
  [[nodiscard]] QVariant minimumValue() const override { return _track().minimum() * _track().unit(); }
  [[nodiscard]] QVariant minimumStepSize() const override { return _track().unit(); }

 private:
  [[nodiscard]] SliderTrack& _track() const { return *static_cast<SliderTrack*>(object()); }
};

QAccessibleInterface* sliderInterface(const QString&, QObject* object) {
  auto* track = qobject_cast<SliderTrack*>(object);
  return track ? new SliderInterface(track) : nullptr;
}

}  // namespace

SliderTrack::SliderTrack(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  [[maybe_unused]] static const bool once = [] {
    QAccessible::installFactory(sliderInterface);
    return true;
  }();
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
}

void SliderTrack::setNeutral(int position) {
  _neutral = position;
  update();
}

double SliderTrack::_xOfPosition(int position) const {
  const double span = std::max(1, maximum() - minimum());
  const double fraction = std::clamp((position - minimum()) / span, 0.0, 1.0);
  const double room = width() - 2 * knobRadius - 2;
  const double x = knobRadius + 1 + fraction * room;
  return layoutDirection() == Qt::RightToLeft ? width() - x : x;
}

int SliderTrack::_positionOfX(double x) const {
  if (layoutDirection() == Qt::RightToLeft) x = width() - x;
  const double room = std::max(1.0, width() - 2 * knobRadius - 2);
  return minimum() + static_cast<int>(std::lround((x - knobRadius - 1) / room * (maximum() - minimum())));
}

void SliderTrack::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double middle = height() / 2.0;
  const double knob = _xOfPosition(sliderPosition());
  const double neutral = _xOfPosition(std::clamp(_neutral, minimum(), maximum()));
  painter.setBrush(palette().color(QPalette::Midlight));
  painter.drawRoundedRect(QRectF(1, middle - grooveHeight / 2, width() - 2, grooveHeight), 2, 2);
  const bool atEdge = _neutral <= minimum() || _neutral >= maximum();
  const QColor accent = palette().color(isEnabled() ? QPalette::Highlight : QPalette::Mid);
  painter.setBrush(accent);
  double from = neutral;
  if (atEdge) from = neutral < width() / 2.0 ? 1 : width() - 1;
  painter.drawRoundedRect(QRectF(std::min(from, knob), middle - grooveHeight / 2, std::abs(knob - from), grooveHeight),
                          2, 2);
  if (!atEdge) painter.drawRoundedRect(QRectF(neutral - 1, middle - 5, 2, 10), 1, 1);
  if (hasFocus()) {
    QColor ring = accent;
    ring.setAlphaF(0.3F);
    painter.setBrush(ring);
    painter.drawEllipse(QPointF(knob, middle), knobRadius + 4, knobRadius + 4);
  }
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  painter.setBrush(dark ? palette().color(isEnabled() ? QPalette::WindowText : QPalette::Mid)
                        : palette().color(QPalette::Base));
  painter.setPen(
      QPen(palette().color(hasFocus() || underMouse() ? QPalette::Highlight : QPalette::Dark), hasFocus() ? 2 : 1));
  painter.drawEllipse(QPointF(knob, middle), knobRadius - 0.5, knobRadius - 0.5);
}

void SliderTrack::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  const double knob = _xOfPosition(sliderPosition());
  const double x = event->position().x();
  // The knob is dragged from where it was taken; beside it, it comes to the pointer.
  _grabOffset = std::abs(x - knob) <= knobRadius + 2 ? x - knob : 0;
  setSliderDown(true);
  if (_grabOffset == 0) setSliderPosition(_positionOfX(x));
}

void SliderTrack::mouseMoveEvent(QMouseEvent* event) {
  if (isSliderDown()) setSliderPosition(_positionOfX(event->position().x() - _grabOffset));
}

void SliderTrack::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Q_EMIT doubleClicked();
}

void SliderTrack::wheelEvent(QWheelEvent* event) {
  if (!hasFocus()) return event->ignore();
  QSlider::wheelEvent(event);
}

}  // namespace quorvane
