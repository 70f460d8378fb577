// SPDX-License-Identifier: GPL-3.0-or-later
// Tint and overlay in the window: their controls, undo, looks, and what an apply writes.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "TestWindow.h"
#include "app/OverlayGroup.h"
#include "app/TintBar.h"
#include "app/core/LookConversion.h"
#include "iconfamily/CustomIcon.h"
#include "ui/HVColorWell.h"

namespace quorvane::test {
namespace {

class TintOverlayTest : public ::testing::Test {
 protected:
  TintOverlayTest() {
    test.launch();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&test.window));
  }
  void open() { EXPECT_TRUE(controller.applicationOpenFile(test.folder)); }
  [[nodiscard]] const IconComposition& composition() const { return ui._folderView->composition(); }
  [[nodiscard]] QAbstractButton* tintButton(const char* name) const {
    for (auto* button : ui._tintBar->findChildren<QAbstractButton*>())
      if (button->accessibleName() == QLatin1String(name) || button->text() == QLatin1String(name)) return button;
    return nullptr;
  }
  void chooseEmblem(const char* search) {
    OverlayPopup* popup = ui._overlayGroup->choose();
    QTest::keyClicks(popup->searchField(), QString::fromLatin1(search));
    ASSERT_GT(popup->grid()->count(), 0);
    QTest::keyClick(popup->searchField(), Qt::Key_Return);
  }

  TestWindow test;
  AppController& controller = *test.controller;
  const Outlets& ui = test.ui();
};

TEST_F(TintOverlayTest, ATintIsAnEditOfItsOwn) {
  EXPECT_FALSE(ui._tintBar->isEnabled() || ui._overlayGroup->card()->isEnabled());
  open();
  EXPECT_FALSE(tintButton("No Tint")->isEnabled());
  QTest::mouseClick(tintButton("Green"), Qt::LeftButton);
  ASSERT_TRUE(composition().tint());
  EXPECT_TRUE(tintButton("Green")->isChecked() && ui._applyBtn->isEnabled());
  // The panel's colour is the tint's while that well is active, and not the label's.
  const auto labelColor = composition().color();
  ui._tintBar->colorWell()->activate(true);
  Q_EMIT test.panels.colorPanel().colorChanged(QColor(1, 2, 3));
  EXPECT_EQ(composition().tint(), QColor(1, 2, 3));
  EXPECT_EQ(composition().color(), labelColor);
  EXPECT_EQ(controller.history().undoText(), QStringLiteral("Undo Tint"));
  controller.undo();
  EXPECT_FALSE(composition().tint() || tintButton("No Tint")->isEnabled());
  controller.redo();
  EXPECT_EQ(composition().tint(), QColor(1, 2, 3));
  controller.closeFolder();
  EXPECT_FALSE(composition().tint());
}

TEST_F(TintOverlayTest, AnOverlayIsChosenChangedAndTakenAway) {
  open();
  EXPECT_FALSE(ui._overlayGroup->sizeSlider()->isVisibleTo(ui._overlayGroup->card()));
  chooseEmblem("invoice");
  ASSERT_TRUE(composition().overlay());
  EXPECT_TRUE(std::holds_alternative<OverlayEmblem>(composition().overlay()->drawing));
  EXPECT_TRUE(ui._overlayGroup->sizeSlider()->isVisibleTo(ui._overlayGroup->card()));
  EXPECT_EQ(controller.history().undoText(), QStringLiteral("Undo Overlay"));

  ui._overlayGroup->sizeSlider()->setValue(90);
  ui._overlayGroup->sizeSlider()->sendAction();
  Q_EMIT ui._overlayGroup->sizeSlider()->editingFinished();
  EXPECT_EQ(composition().overlay()->size, 90);
  EXPECT_EQ(controller.history().undoText(), QStringLiteral("Undo Overlay Size"));
  ui._overlayGroup->colorWell()->activate(true);
  Q_EMIT test.panels.colorPanel().colorChanged(QColor(Qt::yellow));
  EXPECT_EQ(composition().overlay()->color, QColor(Qt::yellow));
  EXPECT_EQ(settings::value(test.defaults, settings::lastUsedColor), QColor(Qt::black)) << "of labels";

  OverlayPopup* popup = ui._overlayGroup->choose();
  QTest::keyClicks(popup->emojiField(), QStringLiteral("Q"));
  QTest::keyClick(popup->emojiField(), Qt::Key_Return);
  EXPECT_EQ(composition().overlay()->drawing, OverlayDrawing(OverlayEmoji{QStringLiteral("Q")}));
  EXPECT_EQ(composition().overlay()->size, 90) << "another drawing in its place";

  QTest::mouseClick(ui._overlayGroup->removeButton(), Qt::LeftButton);
  EXPECT_FALSE(composition().overlay());
  for (int i = 0; i < 3; ++i) controller.undo();
  EXPECT_EQ(composition().overlay()->size, 90);
  EXPECT_FALSE(composition().overlay()->color);
}

TEST_F(TintOverlayTest, AppliesThemAndKeepsThemInLooks) {
  open();
  controller.setTint(QColor(200, 30, 30));
  chooseEmblem("star");
  const auto look = lookOf(composition());
  ASSERT_TRUE(look.ok());
  SavedLook saved;
  saved.look = *look;
  ASSERT_TRUE(test.looks.save(QStringLiteral("Red Star"), saved, std::nullopt).ok());
  const auto before = composition().overlay();
  controller.apply();
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  const auto family = readCustomIcon(test.folder, test.forks);
  ASSERT_TRUE(family && *family);
  const auto image = (*family)->imageWithAllReps();
  const QColor body = image->rendered(128, 128).toImage().pixelColor(25, 95);
  EXPECT_GT(body.red(), body.blue() + 80);
  EXPECT_FALSE(composition().tint() || composition().overlay()) << "they are part of the folder's icon now";

  controller.applyLook(QStringLiteral("Red Star"));
  EXPECT_EQ(composition().tint(), QColor(200, 30, 30));
  EXPECT_EQ(composition().overlay(), before);
}

}  // namespace
}  // namespace quorvane::test
