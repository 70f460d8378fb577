// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/ElementStore.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "iconfamily/ElementTypes.h"
#include "iconfamily/IconFamily.h"
#include "iconfamily/format/IcnsContainer.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

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
  const fs::path corpus = fs::path(QUORVANE_SHARED) / "corpus";
  QFile file(QString::fromStdString((corpus / "icns-expected.json").string()));
  if (!file.open(QIODevice::ReadOnly)) GTEST_SKIP() << "no corpus on this machine";
  const QJsonObject files = QJsonDocument::fromJson(file.readAll()).object();
  int compared = 0;
  for (const QString& name : files.keys()) {
    const Bytes family = test::readFile(corpus / "icns" / name.toStdString());
    for (const QJsonValue& value : files[name].toObject()[QLatin1String("elements")].toArray()) {
      const QJsonObject element = value.toObject();
      const QString expected = element[QLatin1String("expected")].toObject()[QLatin1String("norm_sha256")].toString();
      if (expected.isEmpty()) continue;
      const QByteArray type = element[QLatin1String("type")].toString().toLatin1();
      SCOPED_TRACE(name.toStdString() + " " + type.toStdString());
      const FourCharCode code(static_cast<std::uint32_t>(static_cast<unsigned char>(type[0])) << 24 |
                              static_cast<std::uint32_t>(static_cast<unsigned char>(type[1])) << 16 |
                              static_cast<std::uint32_t>(static_cast<unsigned char>(type[2])) << 8 |
                              static_cast<std::uint32_t>(static_cast<unsigned char>(type[3])));
      const auto decoded = decodeIconFamilyElement(family, code);
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
  Bytes family;
  ASSERT_TRUE(setIcnsElement(family, "is32", Bytes{0x85, 1}).ok());
  ASSERT_TRUE(setIcnsElement(family, "ics8", Bytes(255)).ok());
  ASSERT_TRUE(setIcnsElement(family, "ics#", Bytes(63)).ok());
  ASSERT_TRUE(setIcnsElement(family, "ic04", Bytes{'A', 'R', 'G'}).ok());
  ASSERT_TRUE(setIcnsElement(family, "ic07", Bytes{'n', 'o', 'n', 'e'}).ok());
  ASSERT_TRUE(setIcnsElement(family, "s8mk", Bytes(256)).ok());
  for (const FourCharCode type : {FourCharCode("is32"), FourCharCode("ics8"), FourCharCode("ics#"), FourCharCode("ic04"),
                                  FourCharCode("ic07"), FourCharCode("s8mk"), FourCharCode("nope")})
    EXPECT_FALSE(decodeIconFamilyElement(family, type)) << type.toDisplayText();
}

}  // namespace
}  // namespace quorvane
