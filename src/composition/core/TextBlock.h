// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGlyphRun>
#include <QString>
#include <QTransform>
#include <memory>
#include <vector>

#include "composition/core/LabelValues.h"

class QTextLayout;

namespace quorvane {

/// A string of one or more lines, laid out once and for every font size.
///
/// Lines are laid out unhinted at one large size, and all measures at another size are those times a factor. So text
/// has the same shape at every size and density, and neither its width nor its height ever shrinks when the font
/// grows. (The text system's own measures do not have this: it rounds kerning and joins to pixels in small sizes.)
///
/// Lines end at "\n", "\r\n", "\r", U+0085, U+2028 and U+2029, and nowhere else; a break at the end opens another,
/// empty line. Spaces at a line's end count. The block is as wide as its widest line; lines of right-to-left text stand
/// at its right, others at its left.
class TextBlock {
 public:
  /// The font's size does not matter. Of a string over limits::labelBytes or limits::labelLines only the beginning,
  /// up to the limit, is laid out.
  TextBlock(const QString& text, const LabelFont& font);
  ~TextBlock();
  TextBlock(TextBlock&&) noexcept;
  TextBlock& operator=(TextBlock&&) noexcept;

  /// Height of a line of "FooBar" (ascent and descent) in the font at its size.
  static double naturalLineHeight(const LabelFont& font);
  /// Height of a letter that says how well text can be read: of "x" when the text has any small letter, else of "H".
  static double letterHeight(const LabelFont& font, bool hasSmallLetters);

  /// Width of the widest line and height of all lines, in points. Each line is as high as its own fonts (emoji and
  /// other scripts may be higher than the font asked for), but no higher than `maximumLineHeight` if that is above 0.
  [[nodiscard]] Size size(double fontSize, double maximumLineHeight) const;

  /// Glyphs of one font. `toBlock` maps the run's own coordinates (y downwards) to points from the block's bottom-left
  /// corner (y upwards).
  struct Glyphs {
    QGlyphRun run;
    QTransform toBlock;
  };
  /// All glyphs of all lines, one run for each font: outlines come by the run, and cost most at its start. A capped
  /// line keeps its descent: lines squeezed together run into the line above.
  [[nodiscard]] std::vector<Glyphs> glyphs(double fontSize, double maximumLineHeight) const;

 private:
  struct Line;

  std::vector<Line> _lines;
};

}  // namespace quorvane
