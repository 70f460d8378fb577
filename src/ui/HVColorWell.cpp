// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/HVColorWell.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <vector>

#include "ui/ColorPanel.h"
#include "ui/ColorText.h"

namespace quorvane {
namespace {

constexpr int checkSide = 5;
constexpr double cornerRadius = 6;

std::vector<HVColorWell*>& activeWells() {
  static std::vector<HVColorWell*> wells;
  return wells;
}

class ColorWellInterface : public QAccessibleWidget {
 public:
  explicit ColorWellInterface(QWidget* widget) : QAccessibleWidget(widget, QAccessible::ColorChooser) {}
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const auto* well = qobject_cast<const HVColorWell*>(object());
    return kind == QAccessible::Value && well ? colorText(well->color()) : QAccessibleWidget::text(kind);
  }
  [[nodiscard]] QStringList actionNames() const override {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    auto* well = qobject_cast<HVColorWell*>(object());
    // Not within the call: a press may bring up what waits for an answer.
    if (well && well->isEnabled()) QTimer::singleShot(0, well, &HVColorWell::click);
  }
};

QAccessibleInterface* colorWellInterface(const QString&, QObject* object) {
  auto* well = qobject_cast<HVColorWell*>(object);
  return well ? new ColorWellInterface(well) : nullptr;
}

}  // namespace

HVColorWell::HVColorWell(ColorPanel* panel, QWidget* parent) : QWidget(parent), _panel(panel) {
  [[maybe_unused]] static const bool once = [] {
    QAccessible::installFactory(colorWellInterface);
    return true;
  }();
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  if (!panel) return;
  connect(panel, &ColorPanel::colorChanged, this, [this](const QColor& color) {
    if (!_active) return;
    setColor(color);
    Q_EMIT colorChanged(color);
  });
  connect(panel, &ColorPanel::panelClosed, this, &HVColorWell::deactivate);
}

HVColorWell::~HVColorWell() {
  std::erase(activeWells(), this);
}

void HVColorWell::setColor(const QColor& color) {
  if (!color.isValid()) return;
  _color = color;
  setToolTip(colorText(color));
  if (_active && _panel && _panel->color() != color) _panel->setColor(color);
  QAccessibleValueChangeEvent event(this, colorText(color));
  QAccessible::updateAccessibility(&event);
  update();
}

void HVColorWell::setTarget(QObject* target, std::function<void(HVColorWell&)> action) {
  _hasTarget = target != nullptr;
  _target = target;
  _action = std::move(action);
}

void HVColorWell::activate(bool exclusive) {
  const std::vector<HVColorWell*> others = activeWells();
  for (HVColorWell* well : others) {
    if (exclusive && well != this) well->deactivate();
  }
  if (_active) return;
  _active = true;
  activeWells().push_back(this);
  if (_panel) _panel->setColor(_color);
  update();
}

void HVColorWell::deactivate() {
  if (!_active) return;
  _active = false;
  std::erase(activeWells(), this);
  update();
}

void HVColorWell::click() {
  if (_hasTarget) {
    if (_target && _action) _action(*this);
  } else if (_active) {
    deactivate();
    if (_panel) _panel->hidePanel();
  } else {
    if (_panel) _panel->showPanel();
    activate(true);
  }
}

void HVColorWell::mousePressEvent(QMouseEvent* event) {
  event->accept();
}

void HVColorWell::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) click();
}

void HVColorWell::keyPressEvent(QKeyEvent* event) {
  const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!presses || event->isAutoRepeat() || event->modifiers() & ~Qt::KeypadModifier)
    return QWidget::keyPressEvent(event);
  click();
}

void HVColorWell::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool lit = hasFocus() || _active;
  const QRectF box = QRectF(rect()).adjusted(1, 1, -1, -1);
  painter.setPen(QPen(palette().color(lit ? QPalette::Highlight : QPalette::Mid), lit ? 2 : 1));
  painter.setBrush(palette().color(underMouse() && isEnabled() ? QPalette::AlternateBase : QPalette::Button));
  painter.drawRoundedRect(box, cornerRadius + 1, cornerRadius + 1);

  const QRectF swatch = box.adjusted(5, 5, -5, -5);
  QPainterPath shape;
  shape.addRoundedRect(swatch, cornerRadius - 3, cornerRadius - 3);
  painter.save();
  painter.setClipPath(shape);
  if (_color.alpha() < 255) {
    painter.fillRect(swatch, Qt::white);
    for (int row = 0; row * checkSide < swatch.height(); ++row) {
      for (int column = row % 2; column * checkSide < swatch.width(); column += 2) {
        painter.fillRect(QRectF(swatch.x() + column * checkSide, swatch.y() + row * checkSide, checkSide, checkSide),
                         QColor(0xc4, 0xc6, 0xca));
      }
    }
  }
  if (!isEnabled()) painter.setOpacity(0.4);
  painter.fillRect(swatch, _color);
  painter.restore();
  // Without a line round it white would not be seen on white.
  QColor line = palette().color(QPalette::WindowText);
  line.setAlphaF(isEnabled() ? 0.45F : 0.2F);
  painter.setPen(QPen(line, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(shape);
}

void HVColorWell::enterEvent(QEnterEvent*) {
  update();
}

void HVColorWell::leaveEvent(QEvent*) {
  update();
}

void HVColorWell::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  update();
}

}  // namespace quorvane
