// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/HVWindow.h"

class QScrollArea;

namespace quorvane {

/// A smaller window beside the main one. What its controls leave of Return and Escape, it tells.
class SideWindow : public HVWindow {
  Q_OBJECT
 public:
  SideWindow();
  /// Fills it: the content, which scrolls where the screen is too small for it, and a row of buttons below.
  void setContent(QWidget* content, QLayout* buttons);
  /// At which nothing is cut off or scrolls.
  [[nodiscard]] QSize wantedSize() const;
  /// Shows it in the middle of the other window, in front of it. Without one, in the middle of the screen.
  void showOver(QWidget* window);
  /// Grows until a sheet with the content has room, as far as the screen allows; giveBackRoom() undoes that.
  void makeRoomFor(const QWidget& content);
  void giveBackRoom();

 Q_SIGNALS:
  void returnPressed();
  void escapePressed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QScrollArea* _scroll = nullptr;
  QLayout* _buttons = nullptr;
  QSize _sizeWithoutSheet;
};

}  // namespace quorvane
