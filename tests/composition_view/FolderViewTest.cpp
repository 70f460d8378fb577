// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/FolderView.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include "CanvasTesting.h"

namespace quorvane {
namespace {

constexpr Point middle{64, 64};

TEST(FolderView, ShowsThePictureElseThePlaceholder) {
  FolderView view;
  EXPECT_TRUE(view.showsPlaceholder());
  EXPECT_EQ(view.image()->size(), (Size{128, 128}));
  EXPECT_EQ(view.toolTip(), QStringLiteral("Drag a folder from the Finder and drop it here."));
  const QImage placeholder = drawn(view, 1);
  view.setPalette(QPalette(Qt::darkGray, Qt::black));
  EXPECT_GT(largestDifference(placeholder, drawn(view, 1)), 50);

  Image large = bluePicture();
  large.setSize({512, 512});
  view.setBaseIcon(large);
  EXPECT_FALSE(view.showsPlaceholder());
  EXPECT_EQ(view.image()->size(), (Size{128, 128}));
  EXPECT_EQ(view.toolTip(), QStringLiteral("Hold down mouse button and drag to reposition text."));
  view.setCanvasLabelCenter(middle);
  EXPECT_EQ(view.labelCenter(), (Point{256, 256}));
  view.reset();
  EXPECT_TRUE(view.showsPlaceholder());
}

TEST(FolderView, TheImageIsCentredInViewUnits) {
  FolderView view;
  for (const int magnification : {1, 2, 3}) {
    view.setMagnification(magnification);
    view.resize(160 * magnification, 150 * magnification);
    EXPECT_EQ(view._imageOrigin(), (Point{16, 11}));
    EXPECT_EQ(view._translatePointWrtBounds(middle), (Point{80, 75}));
  }
  view.setMagnification(9);
  EXPECT_EQ(view.magnification(), 3);
  EXPECT_EQ(FolderView::_originForCenter({10, 20}, {4, 6}), (Point{8, 17}));
}

TEST(FolderView, DrawsWhatIsAppliedAtTheScreensOwnPixels) {
  FolderView view;
  showLabel(view);
  view.setRotation(10);
  view.setShadow(LabelShadow{1, -1, 2, Qt::black});
  view.setOpacity(0.8F);
  view.setCanvasLabelCenter({61, 66});
  const QImage icon = view.iconImage()->bitmapRepresentation()->toImage();
  for (const auto& [magnification, density] : {std::pair{2, 2.0}, {1, 4.0}}) {
    view.setMagnification(magnification);
    view.resize(150 * magnification, 150 * magnification);
    const QImage canvas = drawn(view, density);
    const int left = 11 * 4;
    EXPECT_LE(largestDifference(canvas.copy(left, left, 512, 512), icon), 2) << magnification;
  }

  // Where the middle lies between pixels (33.75 of them from the edge) the picture begins at a whole one all the same.
  view.setLabel(std::nullopt);
  view.setMagnification(2);
  view.resize(310, 310);
  EXPECT_EQ(largestDifference(drawn(view, 1.25).copy(34, 34, 320, 320), bluePicture().rendered(320, 320).toImage()), 0);
}

TEST(FolderView, WhatIsCutOffIsSeenFaintly) {
  FolderView view;
  view.resize(228, 228);  // the picture is the square from 50 to 178
  showLabel(view, QStringLiteral("███"));
  const QColor ground = view.palette().color(QPalette::Base);
  view.setColor(QColor(255, 0, 0));
  const auto edgeIsDrawn = [&] {
    const QImage image = drawn(view, 1);
    int marks = 0;
    for (int x = 50; x < 178; ++x) marks += image.pixelColor(x, 178) != ground ? 1 : 0;
    return marks > 40;
  };
  EXPECT_FALSE(edgeIsDrawn());
  view.mouseDown({0, 0});
  EXPECT_FALSE(edgeIsDrawn());
  view.mouseDragged({0, 0});
  EXPECT_TRUE(edgeIsDrawn());
  view.mouseUp();
  EXPECT_FALSE(edgeIsDrawn());

  view.setCanvasLabelCenter({128, 64});
  EXPECT_TRUE(edgeIsDrawn());
  const QImage image = drawn(view, 1);
  EXPECT_EQ(image.pixelColor(172, 114), QColor(255, 0, 0));
  const QColor beyond = image.pixelColor(184, 114);
  EXPECT_LT(beyond.green(), ground.green() - 40);
  EXPECT_GT(beyond.green(), ground.green() / 2);
}

TEST(FolderView, TheMouseMovesTheLabelFromAnywhere) {
  for (const int magnification : {1, 2, 3}) {
    FolderView view;
    view.setMagnification(magnification);
    view.resize(500, 500);
    showLabel(view);
    QSignalSpy moves(&view, &FolderView::labelMoved);
    EXPECT_NE(view.cursor().shape(), Qt::ArrowCursor);
    const QPoint start(3, 3);
    QTest::mousePress(&view, Qt::LeftButton, {}, start);
    const QPoint by(10 * magnification, 5 * magnification);
    for (const QPoint place : {start + by / 2, start + by}) {
      QMouseEvent move(QEvent::MouseMove, place, view.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
      QApplication::sendEvent(&view, &move);
    }
    EXPECT_EQ(view.canvasLabelCenter(), (Point{74, 59}));
    EXPECT_TRUE(moves.isEmpty());
    QTest::mouseRelease(&view, Qt::LeftButton, {}, start + by);
    ASSERT_EQ(moves.size(), 1);
    EXPECT_EQ(moves[0][0].value<Point>(), middle);
    EXPECT_EQ(moves[0][1].value<Point>(), (Point{74, 59}));
  }
}

TEST(FolderView, EscapeEndsADragWhereItBegan) {
  FolderView view;
  showLabel(view);
  QSignalSpy moves(&view, &FolderView::labelMoved);
  view.mouseDown({0, 0});
  view.mouseDragged({500, 0});
  QTest::keyClick(&view, Qt::Key_Escape);
  EXPECT_EQ(view.canvasLabelCenter(), middle);
  view.mouseDragged({700, 0});
  view.mouseUp();
  EXPECT_EQ(view.canvasLabelCenter(), middle);
  EXPECT_TRUE(moves.isEmpty());
}

TEST(FolderView, TheCursorIsAHandWhereThereIsText) {
  FolderView view;
  view.setLabel(QStringLiteral("x"));
  EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
  view.setCurrentIcon(bluePicture());
  const QCursor open = view.cursor();
  EXPECT_NE(open.shape(), Qt::ArrowCursor);
  view.mouseDown({});
  EXPECT_NE(view.cursor(), open);
  EXPECT_NE(view.cursor().shape(), Qt::ArrowCursor);
  view.mouseUp();
  EXPECT_EQ(view.cursor(), open);
  for (const auto& label : {std::optional<QString>(), std::optional(QString())}) {
    view.setLabel(label);
    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
  }
}

TEST(FolderView, KeysMoveTheLabelInRuns) {
  FolderView view;
  showLabel(view);
  view.setLayoutDirection(Qt::RightToLeft);
  view.setMagnification(2);
  QSignalSpy moves(&view, &FolderView::labelMoved);
  QTest::keyClick(&view, Qt::Key_Left);
  QTest::keyClick(&view, Qt::Key_Up);
  QTest::keyClick(&view, Qt::Key_Up, Qt::ShiftModifier);
  QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier | Qt::KeypadModifier);
  EXPECT_EQ(view.canvasLabelCenter(), (Point{73, 75}));
  EXPECT_TRUE(moves.isEmpty());

  // Whatever else is pressed may be a shortcut that undoes.
  QTest::keyClick(&view, Qt::Key_Z, Qt::ControlModifier);
  QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
  QApplication::sendEvent(&view, &shortcut);
  ASSERT_EQ(moves.size(), 1);
  EXPECT_EQ(moves[0][0].value<Point>(), middle);
  EXPECT_EQ(moves[0][1].value<Point>(), (Point{73, 75}));

  for (const auto& [key, modifier] : {std::pair{Qt::Key_Home, Qt::NoModifier}, {Qt::Key_Period, Qt::ControlModifier}}) {
    view.setCanvasLabelCenter({1, 2});
    QTest::keyClick(&view, key, modifier);
    EXPECT_EQ(view.canvasLabelCenter(), middle);
  }
  view.finishKeyMoves();
  EXPECT_EQ(moves.size(), 3);
  EXPECT_TRUE(moves.wait(10) == false && moves.size() == 3);
}

TEST(FolderView, IsDescribedInWords) {
  FolderView view;
  showLabel(view, QStringLiteral("One\n%x"));
  view.setFolderName(QStringLiteral("Fotos %1"));
  view.setCanvasLabelCenter({7, 120.4F});
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Icon of Fotos %1"));
  EXPECT_EQ(accessible->text(QAccessible::Value),
            QString::fromUtf8("label “One %x”, 7 from the left and 120 from the bottom of 128"));
  EXPECT_TRUE(accessible->text(QAccessible::Description).contains(QStringLiteral("drag to reposition")));
}

TEST(LabelCache, ALayerServesEveryPlaceAtWholePixelsFromIt) {
  LabelLook look;
  look.font = LabelFont{QStringLiteral("DejaVu Sans"), {}, 30};
  look.shadow = LabelShadow{2, -2, 3, Qt::black};
  look.shearFactor = 0.2F;
  const QString text = QStringLiteral("Label");
  LabelCache cache;
  const auto placed = [](double x, double y) { return QTransform(3, 0, 0, -3, x, y); };
  for (const auto& [x, y] : {std::pair{10.0, 400.0}, {37.0, 395.0}, {-900.0, 20.0}, {10.25, 400.5}, {-3.75, 1.5}}) {
    look.labelCenter = {static_cast<float>(x), 1};  // no part of what is drawn, nor is the opacity
    const LabelLayer kept = cache.placedLabel(text, look, {128, 128}, placed(x, y)).layer;
    const LabelLayer fresh =
        LabelRenderer(look).layerFromString(text, {128, 128}, placed(x, y), {-2000, -2000, 4000, 4000});
    QImage both[2];
    for (int i = 0; i < 2; ++i) {
      const LabelLayer& layer = i == 0 ? kept : fresh;
      both[i] = layer.pixels.copy(QRect(fresh.topLeft - layer.topLeft, fresh.pixels.size()));
    }
    EXPECT_EQ(largestDifference(both[0], both[1]), 0) << x;
  }
  EXPECT_EQ(cache.drawnCount(), 2);
  look.rotation = 1;
  EXPECT_EQ(cache.placedLabel(text, look, {128, 128}, placed(1e9, 0)).layer.pixels.isNull(), true);
  EXPECT_FALSE(cache.placedLabel(text, look, {128, 128}, placed(10, 400)).ink.isEmpty());
  EXPECT_EQ(cache.drawnCount(), 3);
}

}  // namespace
}  // namespace quorvane
