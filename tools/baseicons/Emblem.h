// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include "Drawing.h"

class QPainter;

namespace quorvane::baseicons {

/// Presses the icon's emblem into a picture of `pixels` a side, in a shade of the icon's own colour: at large sizes
/// shallow and calm, so that a label can stand on it, at small ones flat and strong. `box` is in pixels.
Result<void> drawEmblem(QPainter& painter, Sources& sources, const IconRow& icon, QRect box, int pixels);

}  // namespace quorvane::baseicons
