// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>
#include <initializer_list>

#include "app/InspectorCard.h"
#include "app/LayoutPieces.h"
#include "app/MainWindowLayout.h"
#include "app/OverlayGroup.h"
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

/// Shortens a long name in the middle, so that family and style are told; the tool tip has all of it.
class FontButton : public QPushButton {
 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QStyleOptionButton option;
    initStyleOption(&option);
    const int room = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this).width();
    option.text = fontMetrics().elidedText(option.text, Qt::ElideMiddle, room, Qt::TextShowMnemonic);
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
  }
};

}  // namespace

QWidget* makeInspector(Outlets& outlets, SharedPanels& panels) {
  InspectorCard text(tr("Text"));
  outlets._fontBtn = new FontButton;
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
  outlets._effectPopUp = makeEffects();
  text.addRow(tr("Effe&ct"), outlets._effectPopUp);

  InspectorCard transform(tr("Transform"));
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
  outlets._opacitySlider = transform.addSlider(tr("O&pacity"), opacityRange());
  outlets._resetBtn = new QPushButton(tr("Reset Transfor&m"));
  transform.addWidget(outlets._resetBtn);

  auto* cards = new QWidget;
  auto* layout = new QVBoxLayout(cards);
  layout->setContentsMargins({});
  layout->setSpacing(layoutGap);
  outlets._overlayGroup = new OverlayGroup(&panels.colorPanel());
  for (QWidget* card : std::initializer_list<QWidget*>{text.frame, transform.frame, outlets._overlayGroup->card()})
    layout->addWidget(card);
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
  // What opens in the last card would be out of sight.
  QObject::connect(
      outlets._overlayGroup, &OverlayGroup::opened, scroll,
      [scroll] {
        QScrollBar* bar = scroll->verticalScrollBar();
        bar->setValue(bar->maximum());
      },
      Qt::QueuedConnection);
  return scroll;
}

}  // namespace quorvane
