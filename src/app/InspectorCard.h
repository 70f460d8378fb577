// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "ui/Slider.h"

class QFrame;
class QVBoxLayout;
class QWidget;

namespace quorvane {

/// From nothing to all of it, told in percent.
Slider::Range opacityRange();

/// A card of the inspector being filled: a caption and rows of controls. The widgets belong to the frame.
class InspectorCard {
 public:
  explicit InspectorCard(const QString& caption);

  /// The name beside a control that is told to assistive tools by it. Gives the row, which can be hidden.
  QWidget* addRow(const QString& name, QWidget* control);
  /// The name above: tracks want all the width they can get.
  Slider* addSlider(const QString& name, const Slider::Range& range);
  void addWidget(QWidget* widget);

  QFrame* frame;

 private:
  QVBoxLayout* _rows;
};

}  // namespace quorvane
