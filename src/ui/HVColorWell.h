// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>
#include <functional>

namespace quorvane {

class ColorPanel;

/// A button that shows a colour. With a target it is a button and nothing else; without, a click opens and closes the
/// colour panel, and while the well is active the panel's colour is its own. Space and Return do what a click does.
class HVColorWell : public QWidget {
  Q_OBJECT
 public:
  /// The panel is not owned and must live as long; the well goes on working as a button without one.
  explicit HVColorWell(ColorPanel* panel, QWidget* parent = nullptr);
  ~HVColorWell() override;

  [[nodiscard]] QColor color() const { return _color; }
  /// Shows the colour, in the panel too while the well is active; sends nothing.
  void setColor(const QColor& color);

  /// Who is told of clicks instead of the panel; the action is called while the target lives. A null target takes it
  /// away again.
  void setTarget(QObject* target, std::function<void(HVColorWell&)> action);
  [[nodiscard]] bool hasTarget() const { return _hasTarget; }

  /// As when the user lets the button go over it.
  void click();

  /// An active well follows the panel. Exclusively: no other well does then.
  void activate(bool exclusive);
  void deactivate();
  [[nodiscard]] bool isActive() const { return _active; }

  [[nodiscard]] QSize sizeHint() const override { return {64, 32}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {40, 28}; }

 Q_SIGNALS:
  /// The panel gave the well another colour.
  void colorChanged(const QColor& color);

 protected:
  /// Suppressed: all happens when the button is let go.
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QPointer<ColorPanel> _panel;
  QColor _color = Qt::white;
  QPointer<QObject> _target;
  std::function<void(HVColorWell&)> _action;
  bool _hasTarget = false;
  bool _active = false;
};

}  // namespace quorvane
