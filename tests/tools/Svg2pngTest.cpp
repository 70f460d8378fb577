// SPDX-License-Identifier: GPL-3.0-or-later
// The renderer of our own pictures, run as the build runs it, and what the rest of the program counts on in them.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include "support/TemporaryFolder.h"

namespace quorvane::test {
namespace {

int run(const QStringList& arguments) {
  QProcess process;
  process.start(QStringLiteral(QUORVANE_SVG2PNG), arguments);
  if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit) return -1;
  return process.exitCode();
}

class Svg2pngTest : public ::testing::Test {
 protected:
  [[nodiscard]] QString file(const char* name) const { return QString::fromStdString((_folder / name).string()); }

  int render(const QString& svg, int side) {
    const QString pixels = QString::number(side);
    return run({svg, pixels, pixels, file("out.png")});
  }

  int renderText(const std::string& content, int side) {
    writeFile(_folder / "in.svg",
              "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\">" + content + "</svg>");
    return render(file("in.svg"), side);
  }

  [[nodiscard]] QImage output() const { return QImage(file("out.png")).convertToFormat(QImage::Format_ARGB32); }
  [[nodiscard]] bool wroteOutput() const { return QFile::exists(file("out.png")); }

  TemporaryFolder _folder;
};

TEST_F(Svg2pngTest, EdgesBlendByTheirCoverageAndJointsStayClosed) {
  // The left shape ends in the middle of pixel column 1; from column 4 on, two shapes meet in the middle of column 5.
  ASSERT_EQ(renderText("<rect width='1.5' height='8' fill='#f00'/><rect x='4' width='1.5' height='8' fill='#0a0'/>"
                       "<rect x='5.5' width='2.5' height='8' fill='#0a0'/>",
                       8),
            0);
  const QImage image = output();
  ASSERT_EQ(image.size(), QSize(8, 8));
  EXPECT_EQ(image.pixel(0, 3), qRgba(255, 0, 0, 255));
  EXPECT_EQ(image.pixel(1, 3), qRgba(255, 0, 0, 128));
  EXPECT_EQ(qAlpha(image.pixel(2, 3)), 0);
  EXPECT_EQ(image.pixel(5, 3), qRgba(0, 0xaa, 0, 255));
}

TEST_F(Svg2pngTest, ManyFaintLayersKeepTheirColour) {
  std::string layers;
  for (int i = 0; i < 12; ++i) layers += "<rect width='8' height='8' fill='#406080' fill-opacity='0.02'/>";
  ASSERT_EQ(renderText(layers, 8), 0);
  const QRgb pixel = output().pixel(4, 4);
  EXPECT_NEAR(qAlpha(pixel), 255 * (1 - std::pow(0.98, 12)), 2);
  EXPECT_NEAR(qRed(pixel), 0x40, 4);
  EXPECT_NEAR(qGreen(pixel), 0x60, 4);
  EXPECT_NEAR(qBlue(pixel), 0x80, 4);
}

TEST_F(Svg2pngTest, WhatWouldBeLeftOutIsRefused) {
  for (const char* content :
       {"<filter id='f'/><rect width='8' height='8'/>", "<clipPath id='c'><rect width='2' height='2'/></clipPath>",
        "<mask id='m'/>", "<text x='1' y='5'>a</text>", "<style>rect{fill:red}</style>",
        "<rect width='8' height='8' fill='url(#nowhere)'/>", "<rect width='8' height='8'>"}) {
    EXPECT_EQ(renderText(content, 8), 1) << content;
    EXPECT_FALSE(wroteOutput()) << content;
  }
  EXPECT_EQ(render(file("absent.svg"), 8), 1);
}

TEST_F(Svg2pngTest, WrongCallsAreToldApart) {
  ASSERT_EQ(renderText("<rect width='8' height='8'/>", 8), 0);
  const QString in = file("in.svg");
  for (const char* side : {"0", "-1", "1025", "16px", "", "99999999999999999999"})
    EXPECT_EQ(run({in, QString::fromLatin1(side), QStringLiteral("8"), file("out.png")}), 2) << side;
  EXPECT_EQ(run({in, QStringLiteral("8"), QStringLiteral("8")}), 2);
  EXPECT_EQ(run({in, QStringLiteral("8"), QStringLiteral("8"), file("no/such/folder.png")}), 1);
}

TEST_F(Svg2pngTest, EveryPictureRendersAndItsShadowStaysInside) {
  const QDir pictures(QStringLiteral(QUORVANE_PICTURES));
  const QStringList names = pictures.entryList({QStringLiteral("*.svg")});
  ASSERT_FALSE(names.isEmpty());
  for (const QString& name : names) {
    SCOPED_TRACE(name.toStdString());
    const auto small = QRegularExpression(QStringLiteral("-(16|32)\\.svg$")).match(name);
    const int side = small.hasMatch() ? small.captured(1).toInt() : 512;
    const std::string text = [&] {
      const Bytes bytes = readFile(pictures.filePath(name).toStdString());
      return std::string(bytes.begin(), bytes.end());
    }();
    const std::string canvas = std::to_string(side);
    EXPECT_NE(text.find("viewBox=\"0 0 " + canvas + " " + canvas + "\""), std::string::npos);
    EXPECT_NE(text.find("<!-- SPDX-License-Identifier: CC0-1.0 -->"), std::string::npos);
    ASSERT_EQ(render(pictures.filePath(name), side), 0);
    const QImage image = output();
    EXPECT_EQ(qAlpha(image.pixel(side / 2, side / 2)), 255);
    if (small.hasMatch()) continue;
    int highest = 0;
    for (int i = 0; i < side; ++i)
      for (const QPoint at : {QPoint(i, 0), QPoint(i, side - 1), QPoint(0, i), QPoint(side - 1, i)})
        highest = std::max(highest, qAlpha(image.pixel(at)));
    EXPECT_EQ(highest, 0) << "something is cut off at the edge of the canvas";
  }
}

TEST_F(Svg2pngTest, TheFoldersLabelRoomIsCalm) {
  const QString folder = QStringLiteral(QUORVANE_PICTURES "/folder.svg");
  const Bytes bytes = readFile(folder.toStdString());
  const auto stated =
      QRegularExpression(QStringLiteral("x=(\\d+) y=(\\d+) w=(\\d+) h=(\\d+)"))
          .match(QString::fromUtf8(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())));
  ASSERT_TRUE(stated.hasMatch()) << "the picture states its label room in a comment";
  const QRect room(stated.captured(1).toInt(), stated.captured(2).toInt(), stated.captured(3).toInt(),
                   stated.captured(4).toInt());
  EXPECT_TRUE(room.contains(QPoint(256, 256)));
  ASSERT_EQ(render(folder, 512), 0);
  const QImage image = output();
  int steepest = 0;
  for (int y = room.top(); y < room.bottom(); ++y) {
    for (int x = room.left(); x < room.right(); ++x) {
      const QRgb here = image.pixel(x, y);
      ASSERT_EQ(qAlpha(here), 255) << x << ',' << y;
      for (const QRgb next : {image.pixel(x + 1, y), image.pixel(x, y + 1)})
        steepest = std::max({steepest, std::abs(qRed(here) - qRed(next)), std::abs(qGreen(here) - qGreen(next)),
                             std::abs(qBlue(here) - qBlue(next))});
    }
  }
  EXPECT_LE(steepest, 2);
}

}  // namespace
}  // namespace quorvane::test
