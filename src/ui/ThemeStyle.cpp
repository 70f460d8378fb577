// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ThemeStyle.h"

#include "ui/ActionIcons.h"

namespace quorvane {

ThemeStyle::ThemeStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon ThemeStyle::standardIcon(StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const {
  // The toolkit's are files: to read one, it searches the icon theme and loads every plug-in for pictures, which is a
  // fifth of the program's start.
  switch (pixmap) {
    case SP_ToolBarHorizontalExtensionButton:
      return actionIcon(QStringLiteral("more"));
    case SP_LineEditClearButton:
      return actionIcon(QStringLiteral("close"), QPalette::PlaceholderText);
    default:
      return QProxyStyle::standardIcon(pixmap, option, widget);
  }
}

}  // namespace quorvane
