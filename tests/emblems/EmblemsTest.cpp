// SPDX-License-Identifier: GPL-3.0-or-later
// What the program counts on in its emblems: the list and the drawings belong together, and every drawing keeps to the
// family's rules.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>

static void registerEmblems() {
  Q_INIT_RESOURCE(emblems);
}

namespace quorvane::test {
namespace {

QByteArray content(const QString& name) {
  registerEmblems();
  QFile file(QStringLiteral(":/emblems/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage rendered(const QString& name, int pixels) {
  QSvgRenderer renderer(content(name));
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  return image;
}

struct Ink {
  QRect bounds;
  int covered = 0;  // pixels that are more than half black
  int between = 0;  // pixels of an edge: neither black nor clear
};

Ink inkOf(const QImage& image) {
  Ink ink;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const int alpha = qAlpha(image.pixel(x, y));
      if (alpha > 24) ink.bounds |= QRect(x, y, 1, 1);
      ink.covered += alpha > 127 ? 1 : 0;
      ink.between += alpha > 40 && alpha < 215 ? 1 : 0;
    }
  return ink;
}

QStringList drawings() {
  return QDir(QStringLiteral(QUORVANE_EMBLEMS)).entryList({QStringLiteral("*.svg")});
}

TEST(EmblemsTest, TheListNamesEveryDrawingOnce) {
  const QJsonArray list = QJsonDocument::fromJson(content(QStringLiteral("emblems.json"))).array();
  ASSERT_GE(list.size(), 60);
  static const QRegularExpression plain(QStringLiteral("^[a-z]+(-[a-z]+)*$"));
  QSet<QString> names;
  QSet<QString> titles;
  for (const QJsonValue& entry : list) {
    const QString name = entry[QLatin1String("name")].toString();
    EXPECT_TRUE(plain.match(name).hasMatch()) << qPrintable(name);
    EXPECT_FALSE(content(name + QStringLiteral(".svg")).isEmpty()) << qPrintable(name);
    EXPECT_FALSE(entry[QLatin1String("keywords")].toArray().isEmpty()) << qPrintable(name);
    names.insert(name);
    titles.insert(entry[QLatin1String("title")].toString());
  }
  EXPECT_EQ(names.size(), list.size());
  EXPECT_EQ(titles.size(), list.size());
  for (QString file : drawings()) {
    EXPECT_FALSE(content(file).isEmpty()) << qPrintable(file) << " is not embedded";
    EXPECT_TRUE(names.contains(file.remove(QRegularExpression(QStringLiteral("(-16)?\\.svg$"))))) << qPrintable(file);
  }
}

TEST(EmblemsTest, DrawingsAreOneShapeOfOneWeightWithinTheMargin) {
  for (const QString& file : drawings()) {
    SCOPED_TRACE(qPrintable(file));
    const bool small = file.endsWith(QStringLiteral("-16.svg"));
    const int units = small ? 16 : 24;
    const QByteArray text = content(file);
    EXPECT_EQ(text.count("<path fill=\"#000000\""), 1);
    EXPECT_EQ(text.count('<'), 5) << "nothing but the path belongs into it";
    EXPECT_TRUE(text.contains(QStringLiteral("viewBox=\"0 0 %1 %1\"").arg(units).toLatin1()));
    const Ink ink = inkOf(rendered(file, units * 10));
    const QRect room = QRect(0, 0, units * 10, units * 10);
    // Round and pointed ends may stand out a little, so that they look as large as straight ones.
    const int margin = small ? 4 : 15;
    EXPECT_TRUE(room.adjusted(margin, margin, -margin, -margin).contains(ink.bounds));
    EXPECT_GE(std::max(ink.bounds.width(), ink.bounds.height()), units * 7);
    const double share = ink.covered / double(room.width() * room.height());
    EXPECT_GE(share, 0.15);
    EXPECT_LE(share, 0.6);
  }
}

TEST(EmblemsTest, SmallDrawingsAreSharperThanTheLargeOnesShrunk) {
  for (const QString& file : drawings().filter(QStringLiteral("-16.svg"))) {
    QString large = file;
    large.remove(QStringLiteral("-16"));
    EXPECT_LE(inkOf(rendered(file, 16)).between, inkOf(rendered(large, 16)).between) << qPrintable(file);
  }
}

}  // namespace
}  // namespace quorvane::test
