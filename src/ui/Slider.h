// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QDoubleSpinBox;

namespace quorvane {

class SliderTrack;

/// A slider with its number beside it, which can be typed. A double click on the slider puts the default value back.
/// The wheel acts only with the focus. Values set by code send nothing.
class Slider : public QWidget {
  Q_OBJECT
 public:
  struct Range {
    double minimum = 0;
    double maximum = 1;
    double step = 0.01;       ///< of an arrow key; ten of them for a page
    double defaultValue = 0;  ///< what a double click gives
    int decimals = 2;         ///< of the number
    double typedMinimum = 0;  ///< what may be typed and set reaches from here ...
    double typedMaximum = 1;  ///< ... to here; at least what the slider reaches
    QString suffix;           ///< behind the number: " pt", "°"
    double numberFactor = 1;  ///< the number shown is the value times this: 100 for a fraction in per cent
  };

  explicit Slider(QWidget* parent = nullptr);

  /// The value stays where the range allows it. Typed limits within the slider's are widened to it.
  void setRange(const Range& range);
  /// The name that assistive tools say, for the slider and its number.
  void setName(const QString& name);

  [[nodiscard]] double value() const { return _value; }
  [[nodiscard]] int integerValue() const;
  /// Shows the value, cut to the typed limits; sends nothing.
  void setValue(double value);
  /// Sends the action as if the user had moved the slider to where it is.
  void sendAction();
  /// Puts the default value back as the user's act.
  void resetToDefault();

  /// The part to give a label as its buddy.
  [[nodiscard]] QWidget* track() const;
  [[nodiscard]] QDoubleSpinBox* number() const { return _number; }

 Q_SIGNALS:
  /// The user changed the value (or sendAction was called); while the slider is dragged, again and again.
  void valueChanged(double value);
  /// A run of changes is over: the slider was let go, or one key, wheel step or number was given.
  void editingFinished();

 private:
  void _userSet(double value);
  void _show();

  Range _range;
  double _value = 0;
  SliderTrack* _track;
  QDoubleSpinBox* _number;
};

}  // namespace quorvane
