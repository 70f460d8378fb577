// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include "app/LayoutPieces.h"
#include "app/MainWindowLayout.h"
#include "app/Texts.h"
#include "ui/HVColorWell.h"
#include "ui/PopUpButton.h"
#include "ui/SharedPanels.h"
#include "ui/Slider.h"

namespace quorvane {

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("quorvane", text);
}

/// Scrolls upwards and downwards only, so it gets as wide as long texts and large fonts make what is in it.
class ScrollColumn : public QScrollArea {
 public:
  [[nodiscard]] QSize minimumSizeHint() const override {
    const int bar = verticalScrollBar()->isVisible() ? verticalScrollBar()->sizeHint().width() : 0;
    const int needed = widget() ? widget()->minimumSizeHint().width() + bar : 0;
    return {std::max(inspectorWidth, needed), QScrollArea::minimumSizeHint().height()};
  }
  [[nodiscard]] QSize sizeHint() const override {
    return {minimumSizeHint().width(), QScrollArea::sizeHint().height()};
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
  }
};

/// A card with a caption and rows of controls.
class Card {
 public:
  explicit Card(const QString& caption) : frame(makeCard()), _rows(new QVBoxLayout(frame)) {
    _rows->setContentsMargins(cardPadding, cardPadding - 4, cardPadding, cardPadding - 2);
    _rows->setSpacing(2);
    if (!caption.isEmpty()) _rows->addWidget(makeCaption(caption));
  }

  /// The name beside a control that is told to assistive tools by it.
  void addRow(const QString& name, QWidget* control, bool isCaption = false) {
    control->setAccessibleName(withoutAccessKey(name));
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(isCaption ? makeCaption(name, control) : makeControlName(name, control), 2);
    row->addWidget(control, 5);
    _rows->addSpacing(isCaption ? 0 : 4);
    _rows->addLayout(row);
  }

  /// The name above: tracks want all the width they can get.
  Slider* addSlider(const QString& name, const Slider::Range& range) {
    auto* slider = new Slider;
    slider->setRange(range);
    slider->setValue(range.defaultValue);
    slider->setName(withoutAccessKey(name));
    slider->setAccessibleName(withoutAccessKey(name));
    _rows->addSpacing(4);
    _rows->addWidget(makeControlName(name, slider->track()));
    _rows->addWidget(slider);
    return slider;
  }

  void addWidget(QWidget* widget) {
    _rows->addSpacing(6);
    _rows->addWidget(widget);
  }

  QFrame* frame;

 private:
  QVBoxLayout* _rows;
};

PopUpButton* makeEffects() {
  // Captions have negative tags.
  constexpr int shadows = -1;
  constexpr int glows = -2;
  auto* effects = new PopUpButton;
  effects->addItemWithTitle(tr("None"), 0);
  effects->addSeparatorItem();
  effects->addItemWithTitle(tr("Drop shadow"), shadows);
  effects->addItemWithTitle(tr("Soft shadow"), 1);
  effects->addItemWithTitle(tr("Medium shadow"), 2);
  effects->addItemWithTitle(tr("Sharp shadow"), 3);
  effects->addSeparatorItem();
  effects->addItemWithTitle(tr("Glow"), glows);
  effects->addItemWithTitle(tr("Red glow"), 6);
  effects->addItemWithTitle(tr("Green glow"), 7);
  effects->addItemWithTitle(tr("Blue glow"), 8);
  return effects;
}

}  // namespace

QWidget* makeInspector(Outlets& outlets, SharedPanels& panels) {
  Card text(tr("Text"));
  outlets._fontBtn = new QPushButton;
  outlets._fontBtn->setCheckable(true);
  text.addRow(tr("Fon&t"), outlets._fontBtn);
  // The button says the font, which may be long; the card's width is fixed.
  outlets._fontBtn->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  outlets._colorWell = new HVColorWell(&panels.colorPanel());
  text.addRow(tr("C&olour"), outlets._colorWell);
  outlets._fontSizeSlider = text.addSlider(tr("Si&ze"), {.minimum = 10,
                                                         .maximum = 96,
                                                         .step = 1,
                                                         .defaultValue = 50,
                                                         .decimals = 0,
                                                         .typedMinimum = 1,
                                                         .typedMaximum = 512,
                                                         .suffix = {}});
  outlets._lineSpacingSlider = text.addSlider(tr("Line Spacin&g"), {.minimum = 0.5,
                                                                    .maximum = 2,
                                                                    .step = 0.05,
                                                                    .defaultValue = 1,
                                                                    .decimals = 2,
                                                                    .typedMinimum = 0,
                                                                    .typedMaximum = 5,
                                                                    .suffix = {}});
  // One control: its name is the caption.
  Card effect({});
  outlets._effectPopUp = makeEffects();
  effect.addRow(tr("Effe&ct"), outlets._effectPopUp, true);

  Card transform(tr("Transform"));
  outlets._shearSlider = transform.addSlider(tr("&Shear"), {.minimum = -1,
                                                            .maximum = 1,
                                                            .step = 0.02,
                                                            .defaultValue = 0,
                                                            .decimals = 2,
                                                            .typedMinimum = -10,
                                                            .typedMaximum = 10,
                                                            .suffix = {}});
  outlets._rotationSlider = transform.addSlider(tr("&Rotation"), {.minimum = -180,
                                                                  .maximum = 180,
                                                                  .step = 1,
                                                                  .defaultValue = 0,
                                                                  .decimals = 0,
                                                                  .typedMinimum = -360,
                                                                  .typedMaximum = 360,
                                                                  .suffix = QStringLiteral("°")});
  outlets._opacitySlider = transform.addSlider(tr("O&pacity"), {.minimum = 0,
                                                                .maximum = 1,
                                                                .step = 0.01,
                                                                .defaultValue = 1,
                                                                .decimals = 0,
                                                                .typedMinimum = 0,
                                                                .typedMaximum = 1,
                                                                .suffix = QStringLiteral(" %"),
                                                                .numberFactor = 100});
  outlets._resetBtn = new QPushButton(tr("Reset Transfor&m"));
  transform.addWidget(outlets._resetBtn);

  auto* cards = new QWidget;
  auto* layout = new QVBoxLayout(cards);
  layout->setContentsMargins({});
  layout->setSpacing(layoutGap);
  for (const Card* card : {&text, &effect, &transform}) layout->addWidget(card->frame);
  layout->addStretch();

  // With large fonts the cards are higher than a small screen.
  auto* scroll = new ScrollColumn;
  scroll->setWidget(cards);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->viewport()->setAutoFillBackground(false);
  cards->setAutoFillBackground(false);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  return scroll;
}

}  // namespace quorvane
