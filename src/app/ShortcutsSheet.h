// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quorvane {

class MainMenu;

/// The list of all keyboard shortcuts, those of the menus and those of the canvas, as a sheet's content.
class ShortcutsSheet : public QWidget {
  Q_OBJECT
 public:
  explicit ShortcutsSheet(const MainMenu& menu);
};

}  // namespace quorvane
