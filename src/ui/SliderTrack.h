// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSlider>

namespace quorvane {

/// The bare slider of Slider: positions are whole steps. Filled from a neutral position to the knob, so that "nothing"
/// is seen as nothing in the middle of a range too.
class SliderTrack : public QSlider {
  Q_OBJECT
 public:
  explicit SliderTrack(QWidget* parent);

  /// The step that the fill begins at.
  void setNeutral(int position);
  /// What a step is worth, for assistive tools.
  void setUnit(double unit) { _unit = unit; }
  [[nodiscard]] double unit() const { return _unit; }

  [[nodiscard]] QSize sizeHint() const override { return {132, 28}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {72, 28}; }

 Q_SIGNALS:
  void doubleClicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  [[nodiscard]] double _xOfPosition(int position) const;
  [[nodiscard]] int _positionOfX(double x) const;

  int _neutral = 0;
  double _unit = 1;
  double _grabOffset = 0;
};

}  // namespace quorvane
