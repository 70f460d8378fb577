// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/PreviewStrip.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QThread>
#include <atomic>

#include "CanvasTesting.h"

namespace quorvane {
namespace {

TEST(PreviewStrip, ShowsTheLatestOfManyFromTheFormsThatAreWritten) {
  std::atomic<int> made = 0;
  QThread* const here = QThread::currentThread();
  PreviewStrip strip([&](const Image& /*composed*/) {
    EXPECT_NE(QThread::currentThread(), here);
    // Each form has a colour of its own: which one is shown where tells where it was taken from.
    Image forms({128, 128});
    const bool isFirst = made++ == 0;
    for (const auto& [side, red] : {std::pair{512, 10}, {128, 60}, {32, 110}, {16, 160}})
      forms.addRepresentation(
          test::filledBitmap(side, side, {static_cast<std::uint8_t>(isFirst ? 255 : red), 0, 0, 255}));
    return forms;
  });
  strip.resize(strip.sizeHint());
  IconComposition composition;
  composition.setBaseIcon(bluePicture());
  QSignalSpy settled(&strip, &PreviewStrip::settled);
  for (int step = 0; step < 100; ++step) {
    composition.setCanvasLabelCenter({static_cast<float>(step), 0});
    strip.setComposition(composition);
  }
  ASSERT_TRUE(settled.wait());
  EXPECT_EQ(made, 2);
  const QImage image = drawn(strip, 1);
  const int step = strip.width() - strip.width() / 2 + 6;  // from the light ground to the dark one
  for (const int ground : {0, step}) {
    EXPECT_EQ(image.pixelColor(ground + 60, 60).red(), 60);    // 128
    EXPECT_EQ(image.pixelColor(ground + 170, 40).red(), 60);   // 64
    EXPECT_EQ(image.pixelColor(ground + 170, 110).red(), 60);  // 48
    EXPECT_EQ(image.pixelColor(ground + 250, 60).red(), 110);
    EXPECT_EQ(image.pixelColor(ground + 244, 132).red(), 160);
  }

  composition.setBaseIcon(std::nullopt);
  strip.setComposition(composition);
  EXPECT_EQ(drawn(strip, 1).pixelColor(60, 60), QColor(Qt::white));
}

TEST(PreviewStrip, SaysWhatMakesTheLabelHardToRead) {
  PreviewStrip strip(nullptr);
  QSignalSpy settled(&strip, &PreviewStrip::settled);
  IconComposition composition;
  composition.setBaseIcon(bluePicture());
  composition.setCanvasLabelCenter({64, 64});
  composition.setLabel(QStringLiteral("Word"));
  const struct {
    double size;
    QColor color;
    const char* hint;
  } rows[] = {{32, Qt::white, ""},
              {12, Qt::white, "too small to be read at 48 pixels."},
              {32, QColor(20, 60, 120), "The label hardly stands out"},
              {12, QColor(20, 60, 120), "48 pixels and hardly"}};
  for (const auto& [size, color, hint] : rows) {
    composition.setFont(LabelFont{QStringLiteral("DejaVu Sans"), {}, size});
    composition.setColor(color);
    strip.setComposition(composition);
    ASSERT_TRUE(settled.wait());
    EXPECT_EQ(strip.hint().isEmpty(), *hint == 0) << strip.hint().toStdString();
    EXPECT_TRUE(strip.hint().contains(QLatin1String(hint))) << strip.hint().toStdString();
    EXPECT_EQ(strip.accessibleDescription(), strip.hint());
  }
}

}  // namespace
}  // namespace quorvane
