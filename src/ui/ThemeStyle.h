// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace quorvane {

/// Fusion, which the style sheet is made for, with the program's own line icons where the toolkit would show its own:
/// in the menu bar's button for what has no room, and in the fields' button that clears them.
class ThemeStyle : public QProxyStyle {
 public:
  ThemeStyle();
  [[nodiscard]] QIcon standardIcon(StandardPixmap pixmap, const QStyleOption* option,
                                   const QWidget* widget) const override;
};

}  // namespace quorvane
