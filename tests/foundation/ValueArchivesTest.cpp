// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <limits>

#include "foundation/ValueArchives.h"

namespace quorvane {
namespace {

TEST(ValueArchives, ColoursComeBackExactlyInTheirSpace) {
  QColor small = QColor::fromRgbF(2, 0, 0, 0.3F);
  small.setRedF(0.001F);
  for (const QColor& color :
       {QColor(1, 2, 3, 4), QColor::fromRgba64(1, 32767, 65535, 12345), QColor::fromHsv(359, 12, 250, 3),
        QColor::fromHsv(-1, 0, 128), QColor::fromHsl(17, 99, 3, 200), QColor::fromCmyk(1, 2, 3, 4, 5),
        QColor::fromRgbF(1.5F, -0.25F, 0.1F, 0.7F), small, QColor(Qt::transparent)}) {
    const auto back = unarchiveColor(archiveColor(color));
    ASSERT_TRUE(back.has_value()) << color.name().toStdString();
    EXPECT_EQ(*back, color) << color.spec();
    EXPECT_EQ(back->spec(), color.spec());
  }
  // Every 16-bit component of a plain colour, and every hue.
  for (int value = 0; value <= 65535; ++value) {
    const auto part = static_cast<quint16>(value);
    const QColor color = QColor::fromRgba64(part, part, 0, part);
    ASSERT_EQ(unarchiveColor(archiveColor(color)), color) << value;
    const QColor hue = QColor::fromHsvF(static_cast<float>(value % 36000) / 36000.0F, 0.5F, 0.5F);
    ASSERT_EQ(unarchiveColor(archiveColor(hue)), hue) << value;
  }
}

TEST(ValueArchives, FontsComeBackExactly) {
  for (const FontDescription& font :
       {FontDescription{}, FontDescription{QStringLiteral("DejaVu Sans"), QStringLiteral("Bold Oblique"), 0.1 + 0.2},
        FontDescription{QString::fromUtf8("\u6e90\u30ce \U0001F600"), {}, 1e300},
        FontDescription{QString(1024, u'x'), {}, 50}})
    EXPECT_EQ(unarchiveFont(archiveFont(font)), font) << font.family.toStdString();
}

TEST(ValueArchives, WhatCannotBePackedOrUnpackedIsNothing) {
  EXPECT_TRUE(archiveColor(QColor()).isEmpty());
  EXPECT_TRUE(archiveFont({QString(1025, u'x'), {}, 1}).isEmpty());
  EXPECT_TRUE(archiveFont({QString(QChar(0xD800)), {}, 1}).isEmpty());
  EXPECT_TRUE(archiveFont({{}, {}, std::numeric_limits<double>::quiet_NaN()}).isEmpty());
  const QByteArray color = archiveColor(QColor(1, 2, 3)), font = archiveFont({QStringLiteral("A"), {}, 1});
  EXPECT_EQ(unarchiveColor(font), std::nullopt);
  EXPECT_EQ(unarchiveFont(color), std::nullopt);
  for (const QByteArray& whole : {color, font}) {
    for (qsizetype length = 0; length < whole.size(); ++length)
      EXPECT_FALSE(unarchiveColor(whole.left(length)) || unarchiveFont(whole.left(length))) << length;
    EXPECT_FALSE(unarchiveColor(whole + 'x') || unarchiveFont(whole + 'x'));
    QByteArray newer = whole;
    newer[4] = 2;
    EXPECT_FALSE(unarchiveColor(newer) || unarchiveFont(newer));
  }
  const auto changed = [&](qsizetype at, char byte) { return QByteArray(color).replace(at, 1, &byte, 1); };
  EXPECT_EQ(unarchiveColor(changed(5, 0)), std::nullopt) << "no space";
  EXPECT_EQ(unarchiveColor(changed(5, 6)), std::nullopt) << "unknown space";
  EXPECT_EQ(unarchiveColor(changed(6, 0x7f)), std::nullopt) << "out of range";
}

}  // namespace
}  // namespace quorvane
