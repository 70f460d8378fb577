// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/TextBlock.h"

#include <gtest/gtest.h>

#include <QRawFont>

#include "composition/core/EmojiText.h"
#include "foundation/base/Limits.h"

namespace quorvane {
namespace {

const LabelFont dejaVu{QStringLiteral("DejaVu Sans"), {}, 1};
// Ascent and descent in the font's own file, 1901 + 483 of 2048 units an em.
constexpr double naturalHeight = 2384.0 / 2048;

TEST(TextBlock, LinesEndAtEveryKindOfBreakAndNowhereElse) {
  const std::pair<const char*, int> rows[] = {{"", 1},
                                              {"A B\tC", 1},
                                              {"A\nB", 2},
                                              {"A\r\nB", 2},
                                              {"A\rB", 2},
                                              {"A\n\rB", 3},
                                              {"A\u2028B\u2029C\u0085", 4},
                                              {"\nA\n\n", 4},
                                              {"a long line is not broken at its spaces, no picture holds it", 1}};
  for (const auto& [text, lines] : rows)
    EXPECT_NEAR(TextBlock(QString::fromUtf8(text), dejaVu).size(10, 0).height, lines * 10 * naturalHeight, 1e-3)
        << text;
}

TEST(TextBlock, ACapSqueezesLinesDownwardsAndNeverStretchesThem) {
  const TextBlock block(QStringLiteral("FooBar\nFooBar\nFooBar"), dejaVu);
  EXPECT_FLOAT_EQ(block.size(100, 50).height, 150);
  EXPECT_NEAR(block.size(100, 500).height, 3 * 100 * naturalHeight, 1e-3);
  for (const double none : {0.0, -1.0, std::nan("")}) {
    EXPECT_NEAR(block.size(100, none).height, 3 * 100 * naturalHeight, 1e-3);
  }

  // Each line keeps its descent: baselines stand a descent above 0, 50 and 100.
  const auto glyphs = block.glyphs(100, 50);
  ASSERT_EQ(glyphs.size(), 1U);
  const QList<QPointF> positions = glyphs[0].run.positions();
  ASSERT_EQ(positions.size(), 18);
  for (int line = 0; line < 3; ++line) {
    const QPointF start = glyphs[0].toBlock.map(positions[line * 6]);
    EXPECT_NEAR(start.y(), (2 - line) * 50 + 100 * 483.0 / 2048, 0.05);
    EXPECT_NEAR(start.x(), 0, 1e-6);
  }
}

TEST(TextBlock, RightToLeftLinesStandAtTheRightOfTheBlock) {
  const QString arabic = QStringLiteral("سطر");
  const TextBlock block(QStringLiteral("a wide line of text\n") + arabic, dejaVu);
  const double blockWidth = block.size(10, 0).width;
  const double lineWidth = TextBlock(arabic, dejaVu).size(10, 0).width;
  double left = blockWidth;
  for (const TextBlock::Glyphs& glyphs : block.glyphs(10, 0)) {
    for (const QPointF& position : glyphs.run.positions()) {
      const QPointF point = glyphs.toBlock.map(position);
      if (point.y() < 10 * naturalHeight) left = std::min(left, point.x());
    }
  }
  EXPECT_NEAR(left, blockWidth - lineWidth, 0.05);
}

TEST(TextBlock, IsCutAtTheLimitsNeverInsideACharacter) {
  const double lines = static_cast<double>(limits::labelLines);
  EXPECT_NEAR(TextBlock(QString(3000, u'\n'), dejaVu).size(1, 0).height, lines * naturalHeight, 0.1);

  const QString ascii(static_cast<qsizetype>(limits::labelBytes), u'i');
  EXPECT_FLOAT_EQ(TextBlock(ascii + ascii, dejaVu).size(1, 0).width, TextBlock(ascii, dejaVu).size(1, 0).width);

  // One byte and then four for each: the last pair is over the limit, and both of its halves go.
  QString clefs = QStringLiteral("i");
  for (std::size_t i = 0; i < limits::labelBytes / 4; ++i) clefs += QStringLiteral("𝄞");
  const QString within = clefs.left(clefs.size() - 2);
  EXPECT_FLOAT_EQ(TextBlock(clefs, dejaVu).size(1, 0).width, TextBlock(within, dejaVu).size(1, 0).width);
}

TEST(TextBlock, StylesAreOfTheFamily) {
  const LabelFont bold{dejaVu.family, QStringLiteral("Bold"), 1};
  const QString text = QStringLiteral("Label");
  EXPECT_GT(TextBlock(text, bold).size(10, 0).width, TextBlock(text, dejaVu).size(10, 0).width);
  // What does not exist falls back to a font for text, not to the one for emoji, which has digits too.
  for (const char* family : {"No Such Family", "Sans Serif", ""}) {
    const TextBlock block(QStringLiteral("1#a"), {QString::fromUtf8(family), {}, 1});
    for (const TextBlock::Glyphs& glyphs : block.glyphs(10, 0)) {
      EXPECT_FALSE(glyphs.run.rawFont().familyName().contains(QStringLiteral("Emoji"))) << family;
    }
    EXPECT_GT(block.size(10, 0).width, 0) << family;
  }
  EXPECT_GT(TextBlock(text, {dejaVu.family, QStringLiteral("No Such Style"), 1}).size(10, 0).width, 0);
}

TEST(EmojiText, FindsWhatIsShownInColour) {
  struct Row {
    const char* what;
    const char* text;
    std::vector<TextRange> emoji;
  };
  const Row rows[] = {
      {"text", "plain 1#©☺", {}},
      {"emoji by default", "A😀B", {{1, 2}}},
      {"joined family", "👨‍👩‍👧‍👦", {{0, 11}}},
      {"skin tone", "👍🏽!", {{0, 4}}},
      {"selected as emoji", "☺️x", {{0, 1}}},
      {"selected as text", "⌚︎x", {}},
      {"keycap", "a1️⃣", {{1, 2}}},
      {"flag", "🇩🇪🇫🇷", {{0, 8}}},
      {"joined with a character that is text by default", "🏃‍♂️", {{0, 4}}},
      {"joiner at the end", "😀‍", {{0, 3}}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    const EmojiText parts = separateEmoji(QString::fromUtf8(row.text));
    EXPECT_EQ(parts.emoji, row.emoji);
    EXPECT_FALSE(parts.text.contains(QChar(0xFE0F)) || parts.text.contains(QChar(0xFE0E)));
  }
  // Half a pair is a character like any other.
  EXPECT_EQ(separateEmoji(QString(QChar(0xD83D))).text.size(), 1);
}

}  // namespace
}  // namespace quorvane
