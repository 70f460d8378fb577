// SPDX-License-Identifier: GPL-3.0-or-later
// Moving the overlay with the mouse and the keyboard, beside the label.
#include <gtest/gtest.h>

#include <QTest>

#include "CanvasTesting.h"

namespace quorvane {
namespace {

class OverlayMovingTest : public ::testing::Test {
 protected:
  OverlayMovingTest() {
    view.setMagnification(2);
    view.resize(400, 400);
    showLabel(view, QStringLiteral("I"));
    view.setCanvasLabelCenter({40, 64});
    IconOverlay overlay;
    overlay.drawing =
        *OverlayPicture::fromImage(Image::imageWithBitmapImageRep(test::filledBitmap(32, 32, {250, 0, 0, 255})));
    overlay.center = {64, 64};
    overlay.size = 64;
    view.composition().setOverlay(overlay);
    view.show();
    view.setFocus();
    QObject::connect(&view, &FolderView::overlayMoved, [this](Point, Point to) { moves.push_back(to); });
    drawn(view, 1);
  }
  /// A point of the canvas in the view's pixels.
  [[nodiscard]] static QPoint at(int x, int y) { return {72 + 2 * x, 72 + 2 * (128 - y)}; }
  [[nodiscard]] Point center() const { return view.composition().overlay()->center; }
  void drag(QPoint from, QPoint to) {
    QTest::mousePress(&view, Qt::LeftButton, {}, from);
    QTest::mouseMove(&view, to);
    QMouseEvent move(QEvent::MouseMove, to, view.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &move);
    EXPECT_TRUE(view.isMouseDown());
    QTest::mouseRelease(&view, Qt::LeftButton, {}, to);
  }

  FolderView view;
  std::vector<Point> moves;
};

TEST_F(OverlayMovingTest, TheMouseTakesWhatIsUnderIt) {
  drag(at(64, 64), at(74, 59));
  EXPECT_EQ(center(), (Point{74, 59}));
  EXPECT_EQ(view.canvasLabelCenter(), (Point{40, 64}));
  EXPECT_TRUE(view.isOverlaySelected());
  EXPECT_EQ(moves, (std::vector<Point>{{74, 59}})) << "one for the whole drag";

  drawn(view, 1);
  drag(at(40, 64), at(45, 64));  // on the label, which lies over the overlay
  EXPECT_EQ(view.canvasLabelCenter(), (Point{45, 64}));
  EXPECT_FALSE(view.isOverlaySelected());
  drag(at(10, 120), at(12, 120));  // on neither: the label is what is moved
  EXPECT_EQ(view.canvasLabelCenter(), (Point{47, 64}));
  EXPECT_EQ(center(), (Point{74, 59}));
}

TEST_F(OverlayMovingTest, KeysMoveWhatIsSelected) {
  QTest::keyClick(&view, Qt::Key_Left);
  EXPECT_EQ(view.canvasLabelCenter(), (Point{39, 64}));
  EXPECT_EQ(center(), (Point{64, 64}));
  QTest::keyClick(&view, Qt::Key_Space);
  ASSERT_TRUE(view.isOverlaySelected());
  EXPECT_NE(view.labelDescription().indexOf(QStringLiteral("selected")), -1);
  QTest::keyClick(&view, Qt::Key_Left);
  QTest::keyClick(&view, Qt::Key_Up, Qt::ShiftModifier);
  view.finishKeyMoves();
  EXPECT_EQ(center(), (Point{63, 74}));
  EXPECT_EQ(moves, (std::vector<Point>{{63, 74}}));
  QTest::keyClick(&view, Qt::Key_Escape);
  EXPECT_FALSE(view.isOverlaySelected());
  QTest::keyClick(&view, Qt::Key_Delete);
  EXPECT_TRUE(view.composition().overlay()) << "the label is selected";
  QTest::keyClick(&view, Qt::Key_Space);
  QTest::keyClick(&view, Qt::Key_Delete);
  EXPECT_FALSE(view.composition().overlay() || view.isOverlaySelected());
}

TEST_F(OverlayMovingTest, EscapePutsADraggedOneBack) {
  QTest::mousePress(&view, Qt::LeftButton, {}, at(70, 70));
  QMouseEvent move(QEvent::MouseMove, at(90, 90), view.mapToGlobal(at(90, 90)), Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&view, &move);
  EXPECT_EQ(center(), (Point{84, 84}));
  QTest::keyClick(&view, Qt::Key_Escape);
  EXPECT_EQ(center(), (Point{64, 64}));
  QTest::mouseRelease(&view, Qt::LeftButton, {}, at(90, 90));
  EXPECT_TRUE(moves.empty());
}

}  // namespace
}  // namespace quorvane
