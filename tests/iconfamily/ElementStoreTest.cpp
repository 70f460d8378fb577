// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/ElementStore.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>

#include "iconfamily/ElementTypes.h"
#include "iconfamily/IconFamily.h"
#include "iconfamily/format/IcnsContainer.h"
#include "support/Corpus.h"

namespace quorvane {
namespace {

/// Hash of the RGBA bytes with the colour of wholly transparent pixels taken out.
QString hashOf(const BitmapImageRep& bitmap) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  for (int y = 0; y < bitmap.pixelsHigh(); ++y) {
    Bytes row(bitmap.row(y), bitmap.row(y) + 4 * bitmap.pixelsWide());
    for (std::size_t i = 0; i < row.size(); i += 4)
      if (row[i + 3] == 0) std::fill_n(row.begin() + static_cast<std::ptrdiff_t>(i), 3, 0);
    hash.addData(QByteArrayView(row));
  }
  return QString::fromLatin1(hash.result().toHex());
}

TEST(Corpus, EveryElementWithAnExpectedValueDecodesToIt) {
  const QJsonObject files = test::expectedOfIcns();
  if (files.isEmpty()) GTEST_SKIP() << "no corpus on this machine";
  int compared = 0;
  for (const QString& name : files.keys()) {
    const Bytes family = test::readFile(test::sharedFolder() / "corpus/icns" / name.toStdString());
    for (const QJsonValue& value : files[name].toObject()[QLatin1String("elements")].toArray()) {
      const QJsonObject element = value.toObject();
      const QString expected = element[QLatin1String("expected")].toObject()[QLatin1String("norm_sha256")].toString();
      if (expected.isEmpty()) continue;
      const QString type = element[QLatin1String("type")].toString();
      SCOPED_TRACE(name.toStdString() + " " + type.toStdString());
      const auto decoded = decodeIconFamilyElement(family, test::codeOf(type));
      ASSERT_TRUE(decoded) << decoded.error().message();
      EXPECT_EQ(hashOf(*decoded), expected);
      ++compared;
    }
  }
  EXPECT_GT(compared, 200);
}

TEST(ElementStore, ColourGoesInAndOutWithAlphaZeroAndPicturesKeepTheirs) {
  Bytes family;
  Bytes argb;
  for (int i = 0; i < 256; ++i) argb.insert(argb.end(), {128, static_cast<std::uint8_t>(i), 5, 5});
  ASSERT_TRUE(setIconFamilyData(family, "is32", argb).ok());
  const auto color = getIconFamilyData(family, "is32");
  ASSERT_TRUE(color);
  EXPECT_EQ(Bytes(color->begin() + 4, color->begin() + 8), (Bytes{0, 1, 5, 5}));

  Bytes large(512 * 512 * 4, 40);
  ASSERT_TRUE(setIconFamilyData(family, "ic09", large).ok());
  EXPECT_EQ(*getIconFamilyData(family, "ic09"), large);
  EXPECT_FALSE(setIconFamilyData(family, "ic08", large).ok()) << "512 pixels do not fit 'ic08'";
  EXPECT_FALSE(getIconFamilyData(family, "ic08").ok());

  Bytes wide(128 * 128 * 4, 7);
  ASSERT_TRUE(setIconFamilyData(family, "it32", wide).ok());
  const auto stored = *icnsElement(family, "it32");
  EXPECT_EQ(Bytes(stored.begin(), stored.begin() + 4), (Bytes{0, 0, 0, 0}));
}

TEST(ElementStore, DamagedElementsAreRefused) {
  const std::pair<FourCharCode, Bytes> rows[] = {
      {"is32", {0x85, 1}},       {"ics8", Bytes(255)},           {"ics#", Bytes(63)},
      {"ic04", {'A', 'R', 'G'}}, {"ic07", {'n', 'o', 'n', 'e'}}, {"s8mk", Bytes(256)}};
  for (const auto& [type, data] : rows) {
    Bytes family;
    ASSERT_TRUE(setIcnsElement(family, type, data).ok());
    EXPECT_FALSE(decodeIconFamilyElement(family, type)) << type.toString();
  }
}

}  // namespace
}  // namespace quorvane
