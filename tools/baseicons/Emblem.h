// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include "Drawing.h"

class QPainter;

namespace quorvane::baseicons {

/// Where a drawing takes an emblem.
struct EmblemRoom {
  QRect box;         ///< a square, in pixels
  double depth = 0;  ///< points of lightness between the folder's colour and the emblem: small sizes need more
};

/// Presses the icon's emblem into a picture of `pixels` a side, in a shade of the icon's own colour: at large sizes
/// shallow and calm, so that a label can stand on it, at small ones flat.
Result<void> drawEmblem(QPainter& painter, Sources& sources, const IconRow& icon, const EmblemRoom& room, int pixels);

}  // namespace quorvane::baseicons
