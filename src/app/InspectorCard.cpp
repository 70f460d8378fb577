// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/InspectorCard.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/LayoutPieces.h"
#include "ui/Texts.h"

namespace quorvane {

InspectorCard::InspectorCard(const QString& caption) : frame(makeCard()), _rows(new QVBoxLayout(frame)) {
  // Tight enough that all cards, closed, are seen in the window at its first size.
  _rows->setContentsMargins(cardPadding, cardPadding - 6, cardPadding, cardPadding - 4);
  _rows->setSpacing(2);
  if (!caption.isEmpty()) _rows->addWidget(makeCaption(caption));
}

QWidget* InspectorCard::addRow(const QString& name, QWidget* control) {
  control->setAccessibleName(withoutAccessKey(name));
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 3, 0, 0);
  layout->setSpacing(10);
  layout->addWidget(makeControlName(name, control), 2);
  layout->addWidget(control, 5);
  _rows->addWidget(row);
  return row;
}

Slider::Range opacityRange() {
  return {.minimum = 0,
          .maximum = 1,
          .step = 0.01,
          .defaultValue = 1,
          .decimals = 0,
          .typedMinimum = 0,
          .typedMaximum = 1,
          .suffix = QStringLiteral(" %"),
          .numberFactor = 100};
}

Slider* InspectorCard::addSlider(const QString& name, const Slider::Range& range) {
  auto* slider = new Slider;
  slider->setRange(range);
  slider->setValue(range.defaultValue);
  slider->setName(withoutAccessKey(name));
  slider->setAccessibleName(withoutAccessKey(name));
  _rows->addSpacing(1);
  _rows->addWidget(makeControlName(name, slider->track()));
  _rows->addWidget(slider);
  return slider;
}

void InspectorCard::addWidget(QWidget* widget) {
  _rows->addSpacing(4);
  _rows->addWidget(widget);
}

}  // namespace quorvane
