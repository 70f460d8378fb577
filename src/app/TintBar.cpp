// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TintBar.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "app/LayoutPieces.h"
#include "ui/ActionIcons.h"
#include "ui/HVColorWell.h"

namespace quorvane {

namespace {

struct Preset {
  const char* name;
  QRgb color;
};

// Of about one lightness, so that labels stand on each of them alike; yellow and grey where they still are themselves.
constexpr std::array<Preset, 10> presets{{
    {QT_TRANSLATE_NOOP("TintBar", "Red"), 0xFFE5484D},
    {QT_TRANSLATE_NOOP("TintBar", "Orange"), 0xFFF0803C},
    {QT_TRANSLATE_NOOP("TintBar", "Yellow"), 0xFFF2C230},
    {QT_TRANSLATE_NOOP("TintBar", "Green"), 0xFF58B368},
    {QT_TRANSLATE_NOOP("TintBar", "Teal"), 0xFF23A59A},
    {QT_TRANSLATE_NOOP("TintBar", "Blue"), 0xFF3B8EEA},
    {QT_TRANSLATE_NOOP("TintBar", "Purple"), 0xFF7C66DC},
    {QT_TRANSLATE_NOOP("TintBar", "Pink"), 0xFFE4669B},
    {QT_TRANSLATE_NOOP("TintBar", "Brown"), 0xFF9B7563},
    {QT_TRANSLATE_NOOP("TintBar", "Graphite"), 0xFF6E747C},
}};

/// A round button of one colour, with a ring while it is chosen.
class Swatch : public QAbstractButton {
 public:
  Swatch(const QColor& color, const QString& name) : _color(color) {
    setCheckable(true);
    setAccessibleName(name);
    setToolTip(name);
    setFixedSize(19, 22);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
  }
  [[nodiscard]] QColor color() const { return _color; }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF middle = QRectF(rect()).center();
    const double radius = underMouse() && isEnabled() ? 8 : 7.5;
    painter.setOpacity(isEnabled() ? 1 : 0.35);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.22F);
    painter.setPen(QPen(line, 1));
    painter.setBrush(_color);
    const bool isRinged = isChecked() || hasFocus();
    painter.drawEllipse(middle, isRinged ? 5.5 : radius, isRinged ? 5.5 : radius);
    if (!isRinged) return;
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText), 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(middle, 8.4, 8.4);
  }

 private:
  QColor _color;
};

}  // namespace

TintBar::TintBar(ColorPanel* panel, QWidget* parent)
    : QWidget(parent), _noneButton(new QToolButton), _well(new HVColorWell(panel)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(layoutGap / 2);
  layout->addWidget(makeCaption(tr("Tint")));
  auto* swatches = new QHBoxLayout;
  swatches->setSpacing(0);
  for (const Preset& preset : presets) {
    auto* swatch = new Swatch(QColor(preset.color), QCoreApplication::translate("TintBar", preset.name));
    connect(swatch, &QAbstractButton::clicked, this, [this, color = QColor(preset.color)] {
      setTint(color);
      Q_EMIT tintChosen(color);
    });
    swatches->addWidget(swatch);
    swatches->addStretch(1);
    _swatches.push_back(swatch);
  }
  _well->setFixedWidth(44);
  swatches->addWidget(_well);
  swatches->addSpacing(layoutGap / 2);
  swatches->addWidget(_noneButton);
  layout->addLayout(swatches);
  _noneButton->setIcon(actionIcon(QStringLiteral("revert")));
  _noneButton->setToolTip(tr("No Tint"));
  _noneButton->setAccessibleName(tr("No Tint"));
  _well->setAccessibleName(tr("Other tint"));
  connect(_noneButton, &QToolButton::clicked, this, [this] {
    setTint(std::nullopt);
    Q_EMIT tintChosen(std::nullopt);
  });
  connect(_well, &HVColorWell::colorChanged, this, [this](const QColor& color) {
    setTint(color);
    Q_EMIT tintChosen(color);
  });
  setTint(std::nullopt);
}

void TintBar::setTint(const std::optional<QColor>& tint) {
  for (QAbstractButton* swatch : _swatches) swatch->setChecked(tint && static_cast<Swatch*>(swatch)->color() == *tint);
  _noneButton->setEnabled(tint.has_value());
  if (tint) _well->setColor(*tint);
}

}  // namespace quorvane
