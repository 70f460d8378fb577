// SPDX-License-Identifier: GPL-3.0-or-later
// The icon library as it was built: that it is whole, and that its pictures serve what they are for.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QXmlStreamReader>
#include <algorithm>

#include "iconfamily/ElementTypes.h"
#include "iconfamily/IconFamily.h"
#include "support/TemporaryFolder.h"

namespace quorvane::test {
namespace {

const QDir libraryFolder(QStringLiteral(QUORVANE_BASE_ICONS_FOLDER));

QStringList listIn(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  QXmlStreamReader reader(&file);
  QStringList names;
  while (!reader.atEnd())
    if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("string"))
      names << reader.readElementText();
  EXPECT_FALSE(reader.hasError()) << path.toStdString();
  return names;
}

struct BuiltIcon {
  QString set;
  QString name;
  IconFamily family;

  [[nodiscard]] QImage picture(FourCharCode type) const {
    const auto bitmap = family.bitmapImageRepWithAlphaForIconFamilyElement(type);
    return bitmap ? bitmap->toImage() : QImage();
  }
  [[nodiscard]] std::string where() const { return (set + QLatin1Char('/') + name).toStdString(); }
};

std::vector<BuiltIcon> readAll() {
  std::vector<BuiltIcon> icons;
  for (const QString& set : listIn(libraryFolder.filePath(QStringLiteral("sets.plist"))))
    for (const QString& name : listIn(libraryFolder.filePath(set + QStringLiteral("/QVIcons.plist")))) {
      auto family =
          IconFamily::iconFamilyWithContentsOfFile(libraryFolder.filePath(set + QLatin1Char('/') + name).toStdString());
      EXPECT_TRUE(family) << name.toStdString();
      if (family) icons.push_back({set, name, *std::move(family)});
    }
  return icons;
}

const std::vector<BuiltIcon>& allIcons() {
  static const std::vector<BuiltIcon> icons = readAll();
  return icons;
}

TEST(BaseIconsTest, WhatIsListedIsThereAndNothingElse) {
  QStringList sets = listIn(libraryFolder.filePath(QStringLiteral("sets.plist")));
  EXPECT_GE(sets.size(), 8);
  QStringList found = libraryFolder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  for (const QString& set : sets) {
    const QDir folder(libraryFolder.filePath(set));
    QStringList listed = listIn(folder.filePath(QStringLiteral("QVIcons.plist")));
    EXPECT_GE(listed.size(), 10) << set.toStdString();
    listed << QStringLiteral("QVIcons.plist");
    QStringList files = folder.entryList(QDir::Files | QDir::Hidden);
    EXPECT_EQ(QSet<QString>(files.begin(), files.end()), QSet<QString>(listed.begin(), listed.end()));
    EXPECT_EQ(files.size(), listed.size()) << set.toStdString();
  }
  sets.sort();
  found.sort();
  EXPECT_EQ(found, sets);
}

TEST(BaseIconsTest, EveryFamilyIsWholeAndSmall) {
  std::size_t total = 0;
  for (const BuiltIcon& icon : allIcons()) {
    for (const WrittenElement& element : writtenElements())
      EXPECT_TRUE(icon.family.storedElement(element.type)) << icon.where() << ' ' << element.type.toString();
    for (const FourCharCode type : std::initializer_list<FourCharCode>{"ic09", "ic08", "it32", "il32", "is32"}) {
      const int side = elementType(type)->pixelsWide;
      EXPECT_EQ(icon.picture(type).size(), QSize(side, side)) << icon.where() << ' ' << type.toString();
    }
    EXPECT_LE(icon.family.bytes().size(), 130'000U) << icon.where();
    total += icon.family.bytes().size();
  }
  EXPECT_LE(total, 14'000'000U);
}

// At 16 pixels shapes end where pixels end, but for round corners and slanted edges, and no two icons of a set look
// alike.
TEST(BaseIconsTest, SmallPicturesAreDrawnForTheirSize) {
  QHash<QString, std::vector<QImage>> seen;
  for (const BuiltIcon& icon : allIcons()) {
    const QImage small = icon.picture("is32").convertToFormat(QImage::Format_ARGB32);
    EXPECT_EQ(std::ranges::count(seen[icon.set], small), 0) << icon.where();
    seen[icon.set].push_back(small);
    if (icon.name == QLatin1String("Disc.icns")) continue;  // round all over
    int soft = 0;
    for (int y = 0; y < small.height(); ++y)
      for (int x = 0; x < small.width(); ++x) {
        const int alpha = qAlpha(small.pixel(x, y));
        soft += alpha > 8 && alpha < 247 ? 1 : 0;
      }
    EXPECT_LE(soft, 12) << icon.where();
  }
}

// Where the label goes, a plain folder's front has no edge: neighbours differ by a gradient's step at most.
TEST(BaseIconsTest, FoldersHaveCalmRoomForALabel) {
  int folders = 0;
  for (const BuiltIcon& icon : allIcons()) {
    if (!icon.set.endsWith(QLatin1String("Folders")) || icon.set.contains(QLatin1String("Emblem"))) continue;
    ++folders;
    const QImage picture = icon.picture("it32").convertToFormat(QImage::Format_ARGB32);
    ASSERT_FALSE(picture.isNull()) << icon.where();
    int step = 0;
    int opaque = 255;
    const int top = icon.set.startsWith(QLatin1String("Open")) ? 54 : 42;
    for (int y = top; y < 104; ++y)
      for (int x = 16; x < 112; ++x) {
        const QRgb here = picture.pixel(x, y);
        opaque = std::min(opaque, qAlpha(here));
        for (const QRgb next : {picture.pixel(x + 1, y), picture.pixel(x, y + 1)})
          step = std::max({step, std::abs(qRed(here) - qRed(next)), std::abs(qGreen(here) - qGreen(next)),
                           std::abs(qBlue(here) - qBlue(next))});
      }
    EXPECT_LE(step, 3) << icon.where();
    EXPECT_EQ(opaque, 255) << icon.where();
  }
  EXPECT_GE(folders, 60);
}

// The tool says no, and why, instead of building a library with a hole.
TEST(BaseIconsTest, FaultsInTheSourcesAreRefused) {
  struct Row {
    const char* icons;
    const char* said;
  };
  constexpr Row rows[] = {
      {R"(["Blue"])", "exit 0"},
      {R"(["Mauve"])", "there is no colour \"Mauve\""},
      {R"(["Blue", "Blue"])", "stands there twice"},
      {R"([{"name": "../out", "colour": "Blue"}])", "no name for a file"},
      {R"([{"name": "A", "colour": "Blue", "emblm": "x"}])", "\"emblm\" is not known"},
      {R"([{"name": "A", "colour": "Blue", "drawing": "none"}])", "none.svg.in"},
      {R"([{"name": "A", "colour": "Blue", "drawing": "odd"}])", "{odd} is no mark"},
      {R"([{"name": "A", "colour": "Blue", "emblem": "star"}])", "no room for an emblem"},
  };
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder / "library/drawings");
  const std::string begin =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\"><rect width=\"8\" height=\"8\" ";
  for (const char* size : {"", "-32", "-16"}) {
    writeFile(folder / ("library/drawings/plain" + std::string(size) + ".svg.in"), begin + "fill=\"{-8}\"/></svg>");
    writeFile(folder / ("library/drawings/odd" + std::string(size) + ".svg.in"), begin + "fill=\"{odd}\"/></svg>");
  }
  for (const Row& row : rows) {
    writeFile(folder / "library/library.json", std::string(R"({"colours": {"Blue": [60, 0.1, 255]}, "sets": [)") +
                                                   R"({"name": "Set", "drawing": "plain", "icons": )" + row.icons +
                                                   "}]}");
    const QString root = QString::fromStdString(folder.path().string());
    QProcess tool;
    tool.start(QStringLiteral(QUORVANE_BASEICONS),
               {root, root + QStringLiteral("/out"), QStringLiteral("Set"), root + QStringLiteral("/notes.d")});
    ASSERT_TRUE(tool.waitForFinished(30000));
    const std::string said = tool.readAllStandardError().toStdString() + "exit " + std::to_string(tool.exitCode());
    EXPECT_NE(said.find(row.said), std::string::npos) << row.icons << ": " << said;
  }
}

}  // namespace
}  // namespace quorvane::test
