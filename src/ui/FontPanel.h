// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/FloatingPanel.h"

class QFont;
class QFontDialog;

namespace quorvane {

/// The shared font panel: a floating window whose changes act at once. What it calls points are our own units: a font
/// of 36 units is shown as 36 and comes back as 36, whatever the screen's density.
class FontPanel : public FloatingPanel {
  Q_OBJECT
 public:
  FontPanel();

  [[nodiscard]] const QString& family() const { return _family; }
  [[nodiscard]] const QString& style() const { return _style; }
  [[nodiscard]] double size() const { return _size; }

  /// Shows the font; tells no one. A style that the family has not got is replaced by its regular one, in what is shown
  /// only. The panel shows whole sizes; one that the user leaves as it is keeps its fraction.
  void setPanelFont(const QString& family, const QString& style, double size);

 Q_SIGNALS:
  /// The user chose a font.
  void fontChanged(const QString& family, const QString& style, double size);

 private:
  QWidget* _makeContent() override;
  void _showFont();
  void _changed(const QFont& font);

  QFontDialog* _dialog = nullptr;
  QString _family;
  QString _style;
  double _size = 0;
};

}  // namespace quorvane
