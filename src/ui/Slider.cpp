// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Slider.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "ui/SliderTrack.h"

namespace quorvane {
namespace {

/// The number: no arrows, and the wheel only with the focus.
class NumberField : public QDoubleSpinBox {
 public:
  using QDoubleSpinBox::QDoubleSpinBox;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (!hasFocus()) return event->ignore();
    QDoubleSpinBox::wheelEvent(event);
  }
};

}  // namespace

Slider::Slider(QWidget* parent) : QWidget(parent), _track(new SliderTrack(this)), _number(new NumberField(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(10);
  row->addWidget(_track, 1);
  row->addWidget(_number);
  // The style sheet gives this one the look of a field; spin boxes with arrows keep theirs.
  _number->setProperty("number", true);
  _number->setButtonSymbols(QAbstractSpinBox::NoButtons);
  _number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  _number->setFocusPolicy(Qt::StrongFocus);
  // A half-typed number is no wish yet.
  _number->setKeyboardTracking(false);
  setFocusProxy(_track);

  connect(_track, &QSlider::valueChanged, this, [this](int position) {
    _userSet(position * _range.step);
    if (!_track->isSliderDown()) Q_EMIT editingFinished();
  });
  connect(_track, &QSlider::sliderReleased, this, &Slider::editingFinished);
  connect(_track, &SliderTrack::doubleClicked, this, &Slider::resetToDefault);
  connect(_number, &QDoubleSpinBox::valueChanged, this, [this](double shown) {
    _userSet(shown / _range.numberFactor);
    Q_EMIT editingFinished();
  });
  setRange(_range);
}

void Slider::setRange(const Range& range) {
  _range = range;
  _range.typedMinimum = std::min(range.minimum, range.typedMinimum);
  _range.typedMaximum = std::max(range.maximum, range.typedMaximum);
  const QSignalBlocker quietTrack(_track);
  const QSignalBlocker quietNumber(_number);
  const auto steps = [&](double value) { return static_cast<int>(std::lround(value / range.step)); };
  _track->setRange(steps(range.minimum), steps(range.maximum));
  _track->setPageStep(10);
  _track->setUnit(range.step);
  // Filled from nothing, where nothing lies within the range; else from the beginning.
  _track->setNeutral(steps(range.minimum < 0 && range.maximum > 0 ? 0 : range.minimum));
  _number->setDecimals(range.decimals);
  _number->setRange(_range.typedMinimum * range.numberFactor, _range.typedMaximum * range.numberFactor);
  _number->setSingleStep(range.step * range.numberFactor);
  _number->setSuffix(range.suffix);
  // Sliders below each other get numbers of one width.
  _number->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-180.00")) + 26);
  _number->setToolTip(tr("Type a number; a double click on the slider puts the usual value back"));
  setValue(_value);
}

void Slider::setName(const QString& name) {
  _track->setAccessibleName(name);
  _number->setAccessibleName(name);
}

int Slider::integerValue() const {
  return static_cast<int>(_value);
}

void Slider::setValue(double value) {
  if (std::isnan(value)) return;
  _value = std::clamp(value, _range.typedMinimum, _range.typedMaximum);
  _show();
}

void Slider::_show() {
  // Rounding to steps and decimals must not come back as a value of the user's.
  const QSignalBlocker quietTrack(_track);
  const QSignalBlocker quietNumber(_number);
  _track->setValue(static_cast<int>(std::lround(_value / _range.step)));
  _number->setValue(_value * _range.numberFactor);
  _track->update();
}

void Slider::_userSet(double value) {
  // Steps are no exact fractions: 3 * 0.1 would come out as 0.30000000000000004.
  const double scale = std::pow(10.0, 9);
  _value = std::clamp(std::round(value * scale) / scale, _range.typedMinimum, _range.typedMaximum);
  _show();
  Q_EMIT valueChanged(_value);
}

void Slider::sendAction() {
  Q_EMIT valueChanged(_value);
}

void Slider::resetToDefault() {
  _userSet(_range.defaultValue);
  Q_EMIT editingFinished();
}

QWidget* Slider::track() const {
  return _track;
}

}  // namespace quorvane
