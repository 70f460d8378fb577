// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/TextBlock.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRawFont>
#include <QTextCharFormat>
#include <QTextLayout>
#include <algorithm>

#include "composition/core/EmojiText.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

// Pixels an em that lines are laid out at. Qt keeps advances in 26.6 fixed point: here a rounding is at most 1/65536
// em. A very long line takes the small size, or its width would not fit in Qt's 32 bits.
constexpr int fineLayoutSize = 1024;
constexpr int coarseLayoutSize = 64;
constexpr int fineLayoutLength = 2048;

constexpr double lineWidthWithoutEnd = 3e7;

QFont layoutFont(const LabelFont& font, int pixels) {
  QFont result;
  // The emoji font is not named here, only for emoji: behind a family that is not installed it would be the first
  // font of all that is installed, digits and all.
  result.setFamilies({font.family});
  if (!font.style.isEmpty()) {
    // Weight and slant also steer which faces stand in for missing characters; the style's name alone would not.
    const int weight = QFontDatabase::weight(font.family, font.style);
    if (weight > 0) result.setWeight(static_cast<QFont::Weight>(weight));
    result.setItalic(QFontDatabase::italic(font.family, font.style));
    result.setStyleName(font.style);
  }
  result.setPixelSize(pixels);
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

/// The string's beginning that is within limits::labelBytes.
QStringView withinByteLimit(const QString& text) {
  if (static_cast<std::size_t>(text.size()) * 3 <= limits::labelBytes) return text;
  std::size_t bytes = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char16_t unit = text.at(i).unicode();
    // Each half of a surrogate pair stands for two of its four bytes.
    bytes += unit < 0x80 ? 1 : unit < 0x800 || text.at(i).isSurrogate() ? 2 : 3;
    if (bytes > limits::labelBytes) {
      return QStringView(text).left(text.at(i).isLowSurrogate() ? i - 1 : i);
    }
  }
  return text;
}

bool isBreak(QChar character) {
  switch (character.unicode()) {
    case u'\n':
    case u'\r':
    case 0x0085:
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
      return true;
    default:
      return false;
  }
}

std::vector<QString> splitLines(const QString& text) {
  const QStringView all = withinByteLimit(text);
  std::vector<QString> lines;
  qsizetype start = 0;
  for (qsizetype i = 0; i < all.size() && lines.size() < limits::labelLines; ++i) {
    if (!isBreak(all[i])) continue;
    lines.push_back(all.mid(start, i - start).toString());
    if (all[i] == u'\r' && i + 1 < all.size() && all[i + 1] == u'\n') ++i;
    start = i + 1;
  }
  if (lines.size() < limits::labelLines) lines.push_back(all.mid(start).toString());
  return lines;
}

double cappedHeight(double natural, double maximum) {
  return maximum > 0 ? std::min(natural, maximum) : natural;
}

}  // namespace

struct TextBlock::Line {
  std::unique_ptr<QTextLayout> layout;
  int layoutSize = fineLayoutSize;
  // In ems.
  double width = 0;
  double ascent = 0;
  double descent = 0;
  bool isRightToLeft = false;

  Line(const QString& text, const LabelFont& font);
};

TextBlock::Line::Line(const QString& text, const LabelFont& font)
    : layoutSize(text.size() > fineLayoutLength ? coarseLayoutSize : fineLayoutSize),
      isRightToLeft(text.isRightToLeft()) {
  const QFont face = layoutFont(font, layoutSize);
  const EmojiText parts = separateEmoji(text);
  layout = std::make_unique<QTextLayout>(parts.text, face);
  QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
  option.setWrapMode(QTextOption::NoWrap);
  option.setUseDesignMetrics(true);
  option.setTabStopDistance(2.0 * layoutSize);
  // Left to itself the layout would take every line for left-to-right text with some other text in it.
  option.setTextDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
  layout->setTextOption(option);
  layout->setCacheEnabled(true);  // or glyphs() would shape the text a second time

  QList<QTextLayout::FormatRange> formats;
  for (const TextRange& run : parts.emoji) {
    QFont emojiFirst = face;
    emojiFirst.setFamilies({QStringLiteral("Noto Color Emoji"), font.family});
    QTextCharFormat format;
    format.setFont(emojiFirst);
    formats.append({run.start, run.length, format});
  }
  if (!formats.isEmpty()) layout->setFormats(formats);

  layout->beginLayout();
  QTextLine line = layout->createLine();
  line.setLineWidth(lineWidthWithoutEnd);
  layout->endLayout();
  const double em = layoutSize;
  width = line.naturalTextWidth() / em;
  ascent = line.ascent() / em;
  descent = line.descent() / em;
}

TextBlock::TextBlock(const QString& text, const LabelFont& font) {
  for (const QString& line : splitLines(text)) _lines.emplace_back(line, font);
}

TextBlock::~TextBlock() = default;
TextBlock::TextBlock(TextBlock&&) noexcept = default;
TextBlock& TextBlock::operator=(TextBlock&&) noexcept = default;

double TextBlock::naturalLineHeight(const LabelFont& font) {
  const Line line(QStringLiteral("FooBar"), font);
  return (line.ascent + line.descent) * font.size;
}

double TextBlock::letterHeight(const LabelFont& font, bool hasSmallLetters) {
  // Fonts often carry wrong figures for these heights, and some scripts' fonts none: the letters themselves are right.
  const QFontMetricsF metrics(layoutFont(font, fineLayoutSize));
  return metrics.tightBoundingRect(hasSmallLetters ? QStringLiteral("x") : QStringLiteral("H")).height() /
         fineLayoutSize * font.size;
}

Size TextBlock::size(double fontSize, double maximumLineHeight) const {
  double width = 0;
  double height = 0;
  for (const Line& line : _lines) {
    width = std::max(width, line.width * fontSize);
    height += cappedHeight((line.ascent + line.descent) * fontSize, maximumLineHeight);
  }
  return {static_cast<float>(width), static_cast<float>(height)};
}

std::vector<TextBlock::Glyphs> TextBlock::glyphs(double fontSize, double maximumLineHeight) const {
  struct FontGlyphs {
    QRawFont font;
    double scale = 1;
    QList<quint32> indexes;
    QList<QPointF> positions;
  };
  std::vector<FontGlyphs> fonts;
  const Size block = size(fontSize, maximumLineHeight);
  double top = 0;
  for (const Line& line : _lines) {
    const double height = cappedHeight((line.ascent + line.descent) * fontSize, maximumLineHeight);
    const double baseline = top + height - line.descent * fontSize;
    top += height;
    const double left = line.isRightToLeft ? block.width - line.width * fontSize : 0;
    const double scale = fontSize / line.layoutSize;
    // A run of the layout counts from the line's top left; the baseline lies one ascent below.
    const QPointF origin(left / scale, baseline / scale - line.ascent * line.layoutSize);
    for (const QGlyphRun& run : line.layout->glyphRuns()) {
      const QRawFont font = run.rawFont();
      auto group = std::find_if(fonts.begin(), fonts.end(), [&](const FontGlyphs& g) { return g.font == font; });
      if (group == fonts.end()) group = fonts.insert(group, {font, scale, {}, {}});
      group->indexes += run.glyphIndexes();
      for (const QPointF& position : run.positions()) group->positions += position + origin;
    }
  }

  std::vector<Glyphs> result;
  for (const FontGlyphs& group : fonts) {
    Glyphs& glyphs = result.emplace_back();
    glyphs.run.setRawFont(group.font);
    glyphs.run.setGlyphIndexes(group.indexes);
    glyphs.run.setPositions(group.positions);
    glyphs.toBlock = QTransform(group.scale, 0, 0, -group.scale, 0, block.height);
  }
  return result;
}

}  // namespace quorvane
