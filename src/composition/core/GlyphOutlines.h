// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGlyphRun>
#include <QPainterPath>

namespace quorvane {

/// The outlines of a run's glyphs at their positions, in the run's own coordinates, to be filled by winding. Glyphs
/// that have no outline (spaces, colour pictures) leave nothing. QRawFont::pathForGlyph() gives the same glyph by
/// glyph, but sets the font's size up anew for each one: 30 us a glyph against 3.
QPainterPath glyphOutlines(const QGlyphRun& run);

}  // namespace quorvane
