// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

namespace quorvane {

/// The frame moved as little as it takes to lie within the room; of one that is too large the upper left does.
[[nodiscard]] QRect movedInto(QRect frame, const QRect& room);

}  // namespace quorvane
