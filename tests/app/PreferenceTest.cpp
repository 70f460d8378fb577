// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences window, through its real controls.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QTest>
#include <set>

#include "TestWindow.h"
#include "app/NoticeLabel.h"
#include "ui/HVColorWell.h"

namespace quorvane::test {
namespace {

class PreferenceTest : public ::testing::Test {
 protected:
  PreferenceTest() { test.launch(); }
  /// Opens the window as the user does, acts once it is there, and returns when it has been left.
  void whileOpen(const std::function<void()>& act) {
    QTimer::singleShot(0, &preferences, [&, act] {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&preferences.window()));
      act();
      if (preferences.isModal()) preferences.cancel(nullptr);
    });
    test.controller->perform(MenuCommand::Preferences);
    EXPECT_FALSE(preferences.window().isVisible());
    EXPECT_FALSE(preferences.isModal());
  }
  /// To the control that has the focus.
  void press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : &preferences.window(), Qt::Key(key), modifiers);
    // Access keys press a button for a moment.
    if (modifiers) QTest::qWait(150);
  }
  void change() {
    press(Qt::Key_L, Qt::AltModifier);
    press(Qt::Key_S, Qt::AltModifier);
    press(Qt::Key_T, Qt::AltModifier);
    press(Qt::Key_O, Qt::AltModifier);
    ui._colorWell->setColor(Qt::red);
    preferences._setFont({QStringLiteral("DejaVu Serif"), QStringLiteral("Book"), 17.6});
  }
  [[nodiscard]] QVariantMap stored() const { return test.storage.values; }

  TestWindow test;
  PreferenceController& preferences = test.controller->preferenceController();
  const PreferenceOutlets& ui = preferences.outlets();
};

TEST_F(PreferenceTest, OkStoresAllThatWasChanged) {
  // At the first change, the window has gone and the label follows the colour panel again.
  bool isFirst = true;
  Q_EMIT test.panels.colorPanel().colorChanged(test.panels.colorPanel().color());
  const auto observation = test.defaults.observe([&](const QStringList& keys) {
    if (std::exchange(isFirst, false)) {
      EXPECT_FALSE(preferences.window().isVisible());
      EXPECT_FALSE(preferences.isModal());
      EXPECT_TRUE(preferences.defaultsController().hasUnappliedChanges());
    }
    if (keys.contains(settings::checkAtStartup.name)) {
      EXPECT_FALSE(settings::value(test.defaults, settings::useDefaultFont)) << "the bound controls come last";
    }
  });
  whileOpen([&] {
    EXPECT_EQ(ui._defaultColorRadio->checkedId(), 1);
    EXPECT_EQ(ui._defaultFontRadio->checkedId(), 1);
    EXPECT_EQ(ui._fontDescriptionTF->text(), systemFont(50).displayName() + QStringLiteral(" 50"));
    EXPECT_FALSE(ui._checkAtStartup->isChecked());
    EXPECT_TRUE(ui._askToShare->isChecked());
    change();
    EXPECT_EQ(ui._fontDescriptionTF->text(), QStringLiteral("DejaVu Serif Book 18"));
    EXPECT_TRUE(isFirst) << "nothing is written before OK";
    ui._okBtn->setFocus();
    press(Qt::Key_Return);
  });
  EXPECT_FALSE(settings::value(test.defaults, settings::useDefaultColor));
  EXPECT_FALSE(settings::value(test.defaults, settings::useDefaultFont));
  EXPECT_EQ(settings::value(test.defaults, settings::defaultColor), QColor(Qt::red));
  EXPECT_EQ(settings::value(test.defaults, settings::defaultFont),
            (LabelFont{QStringLiteral("DejaVu Serif"), QStringLiteral("Book"), 17.6}));
  EXPECT_TRUE(settings::value(test.defaults, settings::checkAtStartup));
  EXPECT_FALSE(settings::value(test.defaults, settings::askToShareOnFacebook));
  EXPECT_EQ(test.ui()._folderView->composition().color(), QColor(Qt::black)) << "the next start shows it";
}

TEST_F(PreferenceTest, CancelEscapeAndClosingStoreNothing) {
  using Leave = std::function<void()>;
  const QVariantMap before = stored();
  for (const Leave& leave :
       {Leave([&] { QTest::mouseClick(ui._cancelBtn, Qt::LeftButton); }), Leave([&] { press(Qt::Key_Escape); }),
        Leave([&] { preferences.window().close(); }), Leave([&] { test.controller->terminate(); })}) {
    whileOpen([&] {
      change();
      leave();
    });
    EXPECT_EQ(stored(), before);
    EXPECT_FALSE(preferences.defaultsController().hasUnappliedChanges());
    Q_EMIT test.panels.colorPanel().colorChanged(Qt::black);
    test.panels.colorPanel().setColor(Qt::green);
    Q_EMIT test.panels.colorPanel().colorChanged(Qt::green);
    EXPECT_EQ(test.ui()._folderView->composition().color(), QColor(Qt::green)) << "the panel is the label's again";
    test.panels.colorPanel().setColor(Qt::black);
    Q_EMIT test.panels.colorPanel().colorChanged(Qt::black);
    settings::setValue(test.defaults, settings::lastUsedColor, Qt::black);
    static_cast<void>(test.defaults.synchronize());
    test.storage.values = before;
    test.defaults.refresh();
    whileOpen([&] {
      EXPECT_EQ(ui._defaultColorRadio->checkedId(), 1);
      EXPECT_EQ(ui._colorWell->color(), QColor(Qt::black));
      EXPECT_FALSE(ui._checkAtStartup->isChecked());
    });
  }
}

TEST_F(PreferenceTest, SheetsCarryTheSharedPanelsAndLeaveTheLabelAlone) {
  test.controller->applicationOpenFile(test.folder);
  const EditedValues before = EditedValues::of(test.ui()._folderView->composition());
  ColorPanel& colors = test.panels.colorPanel();
  FontPanel& fonts = test.panels.fontPanel();
  colors.showPanel();
  whileOpen([&] {
    SideWindow& window = preferences.window();
    EXPECT_FALSE(colors.isVisible());
    const QSize size = window.size();
    QTest::mouseClick(ui._colorWell, Qt::LeftButton);
    EXPECT_TRUE(window.isSheetUp());
    EXPECT_TRUE(colors.isContentLent());
    EXPECT_EQ(colors.mode(), ColorPanel::Mode::Wheel);
    EXPECT_EQ(colors.color(), ui._colorWell->color());
    EXPECT_TRUE(window.rect().contains(QRect(ui._colorDoneBtn->mapTo(&window, QPoint()), ui._colorDoneBtn->size())));
    colors.setColor(Qt::blue);
    Q_EMIT colors.colorChanged(Qt::blue);
    test.controller->showPreference(nullptr);
    EXPECT_EQ(colors.color(), QColor(Qt::blue)) << "chosen once more, they stay as they are";
    EXPECT_EQ(ui._colorWell->color(), QColor(Qt::black)) << "not before the sheet is closed";
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isSheetUp());
    EXPECT_FALSE(colors.isContentLent());
    EXPECT_EQ(ui._colorWell->color(), QColor(Qt::blue));
    EXPECT_EQ(window.size(), size);

    press(Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(fonts.isContentLent());
    EXPECT_EQ(fonts.family(), preferences.font().family);
    EXPECT_TRUE(window.rect().contains(QRect(ui._fontDoneBtn->mapTo(&window, QPoint()), ui._fontDoneBtn->size())));
    fonts.setPanelFont(QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Bold"), 12);
    Q_EMIT fonts.fontChanged(fonts.family(), fonts.style(), fonts.size());
    EXPECT_EQ(ui._fontDescriptionTF->text(), QStringLiteral("DejaVu Sans Mono Bold 12"));
    QTest::mouseClick(ui._fontDoneBtn, Qt::LeftButton);
    EXPECT_FALSE(fonts.isContentLent());
    EXPECT_EQ(preferences.font().size, 12);
    press(Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(window.isSheetUp());
    preferences.cancelForTermination();
  });
  EXPECT_FALSE(fonts.isContentLent());
  EXPECT_FALSE(editBetween(EditedValues::of(test.ui()._folderView->composition()), before));
  EXPECT_EQ(settings::value(test.defaults, settings::lastUsedColor), QColor(Qt::blue));
  EXPECT_EQ(settings::value(test.defaults, settings::lastUsedFont), systemFont(50));
  EXPECT_EQ(fonts.family(), test.ui()._folderView->font().family) << "the label's again";
  EXPECT_EQ(colors.color(), test.ui()._colorWell->color());
}

TEST_F(PreferenceTest, WhatCannotBeStoredIsSaid) {
  whileOpen([&] {
    change();
    test.storage.failure = Error::refused("the file is read-only");
    press(Qt::Key_Return);
  });
  EXPECT_TRUE(test.ui()._noticeLabel->text().contains(QStringLiteral("read-only")));
  EXPECT_EQ(settings::value(test.defaults, settings::defaultColor), QColor(Qt::red)) << "but it holds for this run";
}

TEST_F(PreferenceTest, TheCheckComesOnceTheSettingsAreStoredAndTheWindowIsLeft) {
  whileOpen([&] {
    press(Qt::Key_L, Qt::AltModifier);
    press(Qt::Key_N, Qt::AltModifier);
    EXPECT_FALSE(settings::value(test.defaults, settings::useDefaultColor));
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return test.asked == std::vector<std::string>{"check"}; }));
}

TEST_F(PreferenceTest, EveryControlHasANameAndAnAccessKeyOfItsOwn) {
  std::set<QString> keys;
  for (QWidget* widget : preferences.window().findChildren<QWidget*>()) {
    if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
      const QString key = QKeySequence::mnemonic(button->text()).toString();
      const bool endsTheWindow = button == ui._okBtn || button == ui._cancelBtn;
      EXPECT_EQ(key.isEmpty(), endsTheWindow) << button->text().toStdString();
      EXPECT_TRUE(key.isEmpty() || keys.insert(key).second) << key.toStdString();
    }
    if (widget->focusPolicy() == Qt::NoFocus || qobject_cast<QAbstractButton*>(widget)) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
  }
  EXPECT_GE(keys.size(), 8U);
}

TEST(PreferenceWithoutUpdaterTest, TheSwitchIsLeftOut) {
  TestWindow test({.hasUpdater = false});
  test.launch();
  PreferenceController& preferences = test.controller->preferenceController();
  preferences.window();
  EXPECT_FALSE(preferences.outlets()._checkAtStartup);
  EXPECT_EQ(preferences.window().findChildren<QCheckBox*>().size(), 1);
}

}  // namespace
}  // namespace quorvane::test
