// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

#include "ui/FloatingPanel.h"

class QColorDialog;

namespace quorvane {

/// The shared colour panel: a floating window whose changes act at once.
class ColorPanel : public FloatingPanel {
  Q_OBJECT
 public:
  /// Ways to choose a colour, by the numbers under which panels of that kind know them. This panel has one, which is
  /// always in sight: the field of hues and saturations.
  enum class Mode { Wheel = 6 };

  ColorPanel();

  [[nodiscard]] Mode mode() const { return _mode; }
  void setMode(Mode mode) { _mode = mode; }

  [[nodiscard]] QColor color() const { return _color; }
  /// Shows the colour; tells no one.
  void setColor(const QColor& color);

 Q_SIGNALS:
  /// The user chose a colour.
  void colorChanged(const QColor& color);

 private:
  QWidget* _makeContent() override;

  QColorDialog* _dialog = nullptr;
  QColor _color = Qt::white;
  Mode _mode = Mode::Wheel;
};

}  // namespace quorvane
