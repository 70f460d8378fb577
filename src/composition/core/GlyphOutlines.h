// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGlyphRun>
#include <QPainterPath>
#include <vector>

namespace quorvane {

/// The outlines of a run's glyphs at their positions, in the run's own coordinates, to be filled by winding. Glyphs
/// that have no outline (spaces, colour pictures) leave nothing. QRawFont::pathForGlyph() gives the same glyph by
/// glyph, but sets the font's size up anew for each one: 30 us a glyph against 3.
///
/// They come in parts that lie apart, most of them a glyph or a piece of one, because the time to fill a path grows
/// faster than its length: in parts a label of three lines takes a third of the time.
std::vector<QPainterPath> glyphOutlines(const QGlyphRun& run);

}  // namespace quorvane
