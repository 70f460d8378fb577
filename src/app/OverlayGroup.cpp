// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OverlayGroup.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "app/InspectorCard.h"
#include "app/LayoutPieces.h"
#include "app/OverlayPixmap.h"
#include "composition/core/Emblems.h"
#include "ui/ActionIcons.h"
#include "ui/HVColorWell.h"
#include "ui/Slider.h"

namespace quorvane {

namespace {

constexpr int drawingSide = 16;

}  // namespace

OverlayGroup::OverlayGroup(ColorPanel* panel)
    : _chooseButton(new QPushButton),
      _removeButton(new QPushButton(actionIcon(QStringLiteral("remove")), QString())),
      _well(new HVColorWell(panel)),
      _autoButton(new QPushButton(tr("Automatic"))) {
  InspectorCard card({});
  _card = card.frame;
  setParent(_card);
  auto* choice = new QWidget;
  auto* choiceRow = new QHBoxLayout(choice);
  choiceRow->setContentsMargins({});
  choiceRow->setSpacing(6);
  choiceRow->addWidget(makeCaption(tr("Overlay")), 2);
  choiceRow->addWidget(_chooseButton, 5);
  choiceRow->addWidget(_removeButton);
  // Titles are of any length, the card's width is fixed.
  _chooseButton->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  _removeButton->setAccessibleName(tr("Remove Overlay"));
  _removeButton->setToolTip(tr("Remove Overlay"));
  card.addWidget(choice);

  InspectorCard details({});
  details.frame->setProperty("card", false);
  details.frame->layout()->setContentsMargins({});
  _details = details.frame;
  _sizeSlider = details.addSlider(tr("Overlay Size"), {.minimum = 8,
                                                       .maximum = 128,
                                                       .step = 1,
                                                       .defaultValue = static_cast<double>(IconOverlay::usualSize),
                                                       .decimals = 0,
                                                       .typedMinimum = 4,
                                                       .typedMaximum = 256,
                                                       .suffix = {}});
  _opacitySlider = details.addSlider(tr("Overlay Opacity"), opacityRange());
  auto* colors = new QWidget;
  auto* colorLayout = new QHBoxLayout(colors);
  colorLayout->setContentsMargins({});
  colorLayout->setSpacing(6);
  colorLayout->addWidget(_well, 1);
  colorLayout->addWidget(_autoButton, 1);
  _autoButton->setCheckable(true);
  _autoButton->setToolTip(tr("A shade of the picture’s own colour"));
  _colorRow = details.addRow(tr("Colour"), colors);
  _well->setAccessibleName(tr("Overlay colour"));
  card.addWidget(_details);

  connect(_chooseButton, &QPushButton::clicked, this, &OverlayGroup::choose);
  connect(_removeButton, &QPushButton::clicked, this, &OverlayGroup::removed);
  connect(_well, &HVColorWell::colorChanged, this, [this](const QColor& color) { Q_EMIT colorChosen(color); });
  connect(_autoButton, &QPushButton::clicked, this, [this](bool isOn) {
    _well->deactivate();
    Q_EMIT colorChosen(isOn ? std::nullopt : std::optional(_well->color()));
  });
  _card->installEventFilter(this);
  _chooseButton->setAccessibleName(tr("Overlay"));
  setOverlay(std::nullopt);
}

OverlayPopup* OverlayGroup::choose() {
  auto* popup = new OverlayPopup(_chooseButton);
  popup->setAttribute(Qt::WA_DeleteOnClose);
  connect(popup, &OverlayPopup::chosen, this, &OverlayGroup::drawingChosen);
  connect(popup, &OverlayPopup::pictureWanted, this, &OverlayGroup::pictureWanted);
  popup->adjustSize();
  const QRect room = _chooseButton->screen()->availableGeometry();
  QPoint corner = _chooseButton->mapToGlobal(QPoint(0, _chooseButton->height() + 4));
  corner.setX(qBound(room.left(), corner.x(), qMax(room.left(), room.right() - popup->width())));
  // Above the button where there is no room below.
  if (corner.y() + popup->height() > room.bottom())
    corner.setY(qMax(room.top(), _chooseButton->mapToGlobal(QPoint()).y() - popup->height() - 4));
  popup->move(corner);
  popup->show();
  return popup;
}

void OverlayGroup::setOverlay(const std::optional<IconOverlay>& overlay) {
  const bool opens = overlay && !_overlay;
  const bool isSameDrawing = overlay && _overlay && overlay->drawing == _overlay->drawing;
  _overlay = overlay;
  _details->setVisible(overlay.has_value());
  _removeButton->setVisible(overlay.has_value());
  if (!isSameDrawing) _showDrawing();
  if (!overlay) return _well->deactivate();
  _sizeSlider->setValue(static_cast<double>(overlay->size));
  _opacitySlider->setValue(static_cast<double>(overlay->opacity));
  _colorRow->setVisible(overlay->takesColor());
  if (overlay->color) _well->setColor(*overlay->color);
  _autoButton->setChecked(!overlay->color);
  if (opens) Q_EMIT opened();
}

void OverlayGroup::_showDrawing() {
  if (!_overlay) {
    _chooseButton->setIcon({});
    return _chooseButton->setText(tr("Choose…"));
  }
  QString text = tr("Picture");
  if (const auto* emblem = std::get_if<OverlayEmblem>(&_overlay->drawing)) {
    const Emblem* known = emblemNamed(emblem->name);
    text = known ? QCoreApplication::translate("Emblems", known->title.toUtf8().constData()) : emblem->name;
  } else if (std::holds_alternative<OverlayEmoji>(_overlay->drawing)) {
    text = tr("Character");
  }
  _chooseButton->setText(text);
  _chooseButton->setIcon(overlayPixmap(_overlay->drawing, drawingSide, _card->palette().color(QPalette::ButtonText),
                                       _card->devicePixelRatioF()));
}

bool OverlayGroup::eventFilter(QObject* watched, QEvent* event) {
  if (watched == _card && event->type() == QEvent::PaletteChange) _showDrawing();
  return QObject::eventFilter(watched, event);
}

}  // namespace quorvane
