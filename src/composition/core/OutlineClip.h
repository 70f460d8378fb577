// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>
#include <QRectF>

namespace quorvane {

/// What fills the same pixels in `rect` as the path does, filled by winding, and has no point outside of it: contours
/// as polygons, with edges along the rectangle where they left it. The drawing library takes coordinates up to 32767;
/// past that it clips by intersecting paths, which takes seconds for a word.
QPainterPath clippedOutline(const QPainterPath& path, const QRectF& rect);

}  // namespace quorvane
