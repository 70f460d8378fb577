// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>
#include <optional>
#include <vector>

class QAbstractButton;
class QToolButton;

namespace quorvane {

class ColorPanel;
class HVColorWell;

/// Chooses the colour that the base picture is tinted in: some presets, a well for any other, and none.
class TintBar : public QWidget {
  Q_OBJECT
 public:
  /// The panel is not owned and must live as long.
  explicit TintBar(ColorPanel* panel, QWidget* parent = nullptr);

  /// Shows it; sends nothing.
  void setTint(const std::optional<QColor>& tint);
  [[nodiscard]] HVColorWell* colorWell() const { return _well; }

 Q_SIGNALS:
  /// The user chose a colour; nullopt: none.
  void tintChosen(const std::optional<QColor>& tint);

 private:
  std::vector<QAbstractButton*> _swatches;
  QToolButton* _noneButton;
  HVColorWell* _well;
};

}  // namespace quorvane
