// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ScreenPlacement.h"

#include <algorithm>

namespace quorvane {

QRect movedInto(QRect frame, const QRect& room) {
  frame.moveLeft(std::max(room.left(), std::min(frame.left(), room.left() + room.width() - frame.width())));
  frame.moveTop(std::max(room.top(), std::min(frame.top(), room.top() + room.height() - frame.height())));
  return frame;
}

}  // namespace quorvane
