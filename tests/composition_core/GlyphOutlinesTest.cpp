// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/GlyphOutlines.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QRawFont>

#include "LabelTesting.h"
#include "composition/core/OutlineClip.h"
#include "composition/core/TextBlock.h"

namespace quorvane {
namespace {

QImage filled(const std::vector<QPainterPath>& paths, const QTransform& transform) {
  QImage image(400, 100, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(transform);
  for (const QPainterPath& path : paths) painter.fillPath(path, Qt::black);
  return image;
}

TEST(GlyphOutlines, PartsFillWhatWholeGlyphsFill) {
  // Holes, contours in any order, glyphs of several pieces, joined letters; and more than are taken at once.
  for (const char* text : {"%8øß@i:\"Ж", "سلام عليكم", "回圖鷹", "oooooooooooooooooooooooooooooooooooooooo"}) {
    SCOPED_TRACE(text);
    const TextBlock block(QString::fromUtf8(text), {QStringLiteral("DejaVu Sans"), {}, 1});
    for (const TextBlock::Glyphs& glyphs : block.glyphs(40, 0)) {
      QPainterPath whole;
      for (qsizetype i = 0; i < glyphs.run.positions().size(); ++i) {
        const QPainterPath glyph = glyphs.run.rawFont().pathForGlyph(glyphs.run.glyphIndexes()[i]);
        whole.addPath(glyph.translated(glyphs.run.positions()[i]));
      }
      whole.setFillRule(Qt::WindingFill);
      const QTransform toPixels = glyphs.toBlock * QTransform(1, 0, 0, -1, 0, 80);
      const QImage expected = filled({whole}, toPixels);
      EXPECT_LE(largestDifference(filled(glyphOutlines(glyphs.run), toPixels), expected), 2);
      EXPECT_NE(expected, filled({}, toPixels));
    }
  }
}

TEST(OutlineClip, FillsTheSameInsideAndNothingOutside) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.addEllipse(QRectF(-300, -200, 800, 400));
  path.addPath(QPainterPath(path).toReversed().translated(250, 30));  // a hole where the two overlap
  path.addRect(QRectF(100.5, -1e7, 20.25, 2e7));
  path.addRect(QRectF(1000, 1000, 5, 5));
  const QRectF rect(20, 10, 300, 80);
  const QPainterPath clipped = clippedOutline(path, rect);
  EXPECT_TRUE(rect.contains(clipped.boundingRect()));
  const QImage inside = filled({clipped}, {}).copy(rect.toRect());
  EXPECT_LE(largestDifference(inside, filled({path}, {}).copy(rect.toRect())), 4);
  EXPECT_EQ(qAlpha(inside.pixel(90, 40)), 255);
  EXPECT_TRUE(clippedOutline(path, QRectF(5000, 0, 10, 10)).isEmpty());
}

}  // namespace
}  // namespace quorvane
