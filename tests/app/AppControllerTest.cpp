// SPDX-License-Identifier: GPL-3.0-or-later
// The window's rules, driven through its real widgets.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <latch>

#include "TestWindow.h"
#include "app/BusyIndicator.h"
#include "app/NoticeLabel.h"
#include "app/core/EditHistory.h"
#include "app/core/EffectPresets.h"
#include "composition/view/ImageView.h"
#include "iconfamily/CustomIcon.h"
#include "ui/HVColorWell.h"
#include "ui/LabelTextField.h"

namespace quorvane::test {
namespace {

class AppControllerTest : public ::testing::Test {
 protected:
  AppControllerTest() {
    test.launch();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&test.window));
  }
  void open() { EXPECT_TRUE(controller.applicationOpenFile(test.folder)); }
  void type(const char* text) { QTest::keyClicks(ui._labelTF, QString::fromLatin1(text)); }
  /// What comes after an apply.
  static void settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }
  /// As the user does.
  static void move(Slider& slider, double value) {
    slider.setValue(value);
    slider.sendAction();
    Q_EMIT slider.editingFinished();
  }
  [[nodiscard]] Bytes shownIcon() const {
    const auto family = readCustomIcon(test.folder, test.forks);
    return family && *family ? (*family)->data() : Bytes();
  }

  TestWindow test;
  AppController& controller = *test.controller;
  const Outlets& ui = test.ui();
};

/// One letter for each thing that is on: a, r and l for Apply, Revert and the label field, A and R for the menu's
/// items, d for the drawer, f for the focus in the label field, p for a path, t for text in the field.
std::string state(const TestWindow& test) {
  const Outlets& ui = test.ui();
  std::string on;
  const auto add = [&](char letter, bool isOn) { on += isOn ? letter : '-'; };
  add('a', ui._applyBtn->isEnabled());
  add('r', ui._revertBtn->isEnabled());
  add('l', ui._labelTF->isEnabled());
  add('A', ui._mainMenu->action(MenuCommand::Apply)->isEnabled());
  add('R', ui._mainMenu->action(MenuCommand::Revert)->isEnabled());
  add('d', ui._origIconDrawer->isOpen() && ui._origIconView->image().has_value());
  add('f', ui._labelTF->hasFocus());
  add('p', !ui._pathTF->text().isEmpty());
  add('t', !ui._labelTF->stringValue().isEmpty() && ui._folderView->label() == ui._labelTF->stringValue());
  return on;
}

TEST_F(AppControllerTest, EachStepOfAFolderLeavesTheControlsAsTheRulesSay) {
  struct Step {
    const char* name;
    std::function<void()> act;
    const char* state;
  };
  Bytes backup, branded;
  const Step steps[] = {
      {"launched", [] {}, "---------"},
      {"a plain file", [&] { EXPECT_FALSE(controller.applicationOpenFile("/etc/hostname")); }, "---------"},
      {"opened", [&] { open(); }, "-rl---fp-"},
      {"revert without backup", [&] { controller.revert(); }, "-rl---fp-"},
      {"other values alone", [&] { move(*ui._rotationSlider, 20); }, "-rl---fp-"},
      {"typed", [&] { type("Tax"); }, "arlA--fpt"},
      {"revert without backup keeps the label", [&] { controller.revert(); }, "arlA--fpt"},
      {"emptied",
       [&] {
         QTest::keyClick(ui._labelTF, Qt::Key_A, Qt::ControlModifier), QTest::keyClick(ui._labelTF, Qt::Key_Delete);
       },
       "-rl---fp-"},
      {"base icon", [&] { controller.setBaseIcon(plainImage(Qt::red)); }, "arlA--fp-"},
      {"no base icon", [&] { controller.setBaseIcon(std::nullopt); }, "-rl---fp-"},
      {"typed again", [&] { type("Tax"); }, "arlA--fpt"},
      {"applied", [&] { QTest::mouseClick(ui._applyBtn, Qt::LeftButton), settle(); }, "-rl-Rdfp-"},
      {"kept", [&] { backup = readFile(test.folder / FolderBranding::backupName), branded = shownIcon(); },
       "-rl-Rdfp-"},
      {"applied again", [&] { type("Law"), controller.apply(), settle(); }, "-rl-Rdfp-"},
      {"reverted",
       [&] {
         EXPECT_EQ(readFile(test.folder / FolderBranding::backupName), backup);
         EXPECT_NE(shownIcon(), branded);
         type("x"), controller.revert();
       },
       "-rl---fp-"},
      {"closed", [&] { type("y"), controller.closeFolder(); }, "---------"},
  };
  for (const Step& step : steps) {
    step.act();
    EXPECT_EQ(state(test), step.state) << step.name;
  }
  EXPECT_FALSE(test.hasBackup());
  EXPECT_EQ(shownIcon(), backup);
  EXPECT_TRUE(ui._folderView->showsPlaceholder());
  EXPECT_EQ(settings::value(test.defaults, settings::usageCount), 2);
  ASSERT_EQ(test.prompts.shown.size(), 1U);
  EXPECT_EQ(test.prompts.shown[0].title, QStringLiteral("Important Dock Tip"));
}

TEST_F(AppControllerTest, AFailedApplyTellsTheCauseAndKeepsTheComposition) {
  open();
  type("Tax");
  controller.setBaseIcon(plainImage(Qt::red));
  std::filesystem::remove_all(test.folder);
  controller.apply();
  settle();
  ASSERT_EQ(test.prompts.shown.size(), 1U);
  const Prompt& prompt = test.prompts.shown[0];
  EXPECT_EQ(prompt.title, QStringLiteral("Unable to Set Icon"));
  EXPECT_EQ(prompt.defaultButton, QStringLiteral("OK"));
  EXPECT_TRUE(prompt.message.startsWith(QStringLiteral("The folder appears to be locked")));
  EXPECT_TRUE(prompt.details.contains(QStringLiteral("Invoices"))) << prompt.details.toStdString();
  EXPECT_TRUE(prompt.details.contains(QStringLiteral("No such file"))) << prompt.details.toStdString();
  EXPECT_EQ(state(test), "arlA--fpt");
  EXPECT_TRUE(ui._folderView->baseIcon());
}

TEST_F(AppControllerTest, WithoutAFolderTheFirstStepIsShownAndNoBaseIconTaken) {
  QTest::mouseClick(ui._labelTF->viewport(), Qt::LeftButton);
  controller.chooseBasePicture();
  ASSERT_EQ(test.prompts.shown.size(), 2U);
  for (const Prompt& prompt : test.prompts.shown) EXPECT_EQ(prompt.title, QStringLiteral("First thing first"));
  controller.setBaseIcon(plainImage(Qt::red));
  EXPECT_FALSE(ui._folderView->baseIcon());
}

TEST(AppControllerStartTest, FoldersAreOpenedOnceTheLaunchIsOver) {
  TestWindow test;
  test.controller->awakeFromNib();
  EXPECT_FALSE(test.controller->applicationOpenFile(test.folder));
  QCoreApplication::processEvents();
  EXPECT_FALSE(test.controller->path());
  EXPECT_EQ(AppController::sharedController(), test.controller);
  test.controller->applicationDidFinishLaunching();
  EXPECT_TRUE(QTest::qWaitFor([&] { return test.controller->path() == test.folder; }));
  EXPECT_EQ(settings::value(test.defaults, settings::launchCount), 1);
  EXPECT_FALSE(test.ui()._folderView->composition().shadow());
  EXPECT_EQ(test.ui()._folderView->composition().look().lineSpacingFactor, 1);
}

TEST_F(AppControllerTest, ControlsSetTheCanvas) {
  const IconComposition& values = ui._folderView->composition();
  for (int item = 0; item < ui._effectPopUp->count(); ++item) {
    const int tag = ui._effectPopUp->tagAt(item);
    if (ui._effectPopUp->itemText(item).isEmpty()) continue;  // a line between items
    EXPECT_EQ(ui._effectPopUp->isItemEnabled(item), tag >= 0) << tag;
    if (tag < 0) continue;
    controller._setEffect(tag);
    EXPECT_EQ(values.shadow(), shadowForEffectTag(tag)) << tag;
    EXPECT_EQ(ui._effectPopUp->selectedTag(), tag);
  }
  controller._setEffect(4);
  EXPECT_EQ(values.shadow(), LabelShadow());

  struct Case {
    Slider* slider;
    double value;
    std::function<double()> stored;
  };
  for (const Case& each : {Case{ui._fontSizeSlider, 36, [&] { return values.font().size; }},
                           Case{ui._lineSpacingSlider, 0.75, [&] { return values.look().lineSpacingFactor; }},
                           Case{ui._shearSlider, 0.5, [&] { return values.look().shearFactor; }},
                           Case{ui._rotationSlider, -30, [&] { return values.look().rotation; }},
                           Case{ui._opacitySlider, 0.25, [&] { return values.look().opacity; }}}) {
    each.slider->setValue(each.value);
    EXPECT_NE(each.stored(), each.value);
    each.slider->sendAction();
    EXPECT_EQ(each.stored(), each.value);
  }
  EXPECT_EQ(ui._fontBtn->toolTip(), QStringLiteral("DejaVu Sans Bold 36"));
  QTest::mouseClick(ui._resetBtn, Qt::LeftButton);
  EXPECT_EQ(ui._shearSlider->value(), 0);
  EXPECT_EQ(values.look().shearFactor, 0);
  EXPECT_EQ(values.look().rotation, 0);
  EXPECT_EQ(values.look().opacity, 0.25F);
}

TEST_F(AppControllerTest, PanelsChangeTheCanvasAndTheSettings) {
  ColorPanel& colors = test.panels.colorPanel();
  Q_EMIT colors.colorChanged(colors.color());
  controller.setIgnoreChangeColor(true);
  colors.setColor(Qt::green);
  Q_EMIT colors.colorChanged(Qt::green);
  EXPECT_EQ(ui._folderView->composition().color(), QColor(Qt::black));
  EXPECT_EQ(settings::value(test.defaults, settings::lastUsedColor), QColor(Qt::green));
  controller.setIgnoreChangeColor(false);
  Q_EMIT colors.colorChanged(Qt::green);
  EXPECT_EQ(ui._folderView->composition().color(), QColor(Qt::green));
  EXPECT_EQ(ui._colorWell->color(), QColor(Qt::green));

  FontPanel& fonts = test.panels.fontPanel();
  fonts.setPanelFont(QStringLiteral("DejaVu Serif"), QStringLiteral("Book"), 40);
  Q_EMIT fonts.fontChanged(fonts.family(), fonts.style(), fonts.size());
  EXPECT_EQ(ui._folderView->font(), settings::value(test.defaults, settings::lastUsedFont));
  EXPECT_EQ(ui._fontSizeSlider->value(), 40);
  ui._fontSizeSlider->setValue(20);
  ui._fontSizeSlider->sendAction();
  EXPECT_EQ(fonts.size(), 20);
  ui._fontBtn->click();
  EXPECT_TRUE(fonts.isVisible());
  fonts.close();
  EXPECT_FALSE(ui._fontBtn->isChecked());
}

TEST_F(AppControllerTest, ReturnBreaksTheLineOnTheCanvasAtOnce) {
  open();
  type("AB");
  ui._labelTF->setSelectedRange({1, 0});
  QTest::keyClick(ui._labelTF, Qt::Key_Return);
  EXPECT_EQ(ui._folderView->label(), QStringLiteral("A\nB"));
  EXPECT_EQ(ui._labelTF->selectedRange(), (TextRange{2, 0}));
}

TEST_F(AppControllerTest, UndoAndRedoGoThroughAllKindsOfEdits) {
  open();
  const EditedValues before = EditedValues::of(ui._folderView->composition());
  type("Tax");
  move(*ui._rotationSlider, 20);
  controller._setEffect(6);
  ui._folderView->setFocus();
  QTest::keyClick(ui._folderView, Qt::Key_Right, Qt::ShiftModifier);
  const EditedValues after = EditedValues::of(ui._folderView->composition());
  EXPECT_EQ(ui._mainMenu->action(MenuCommand::Undo)->text(), QStringLiteral("Undo Move Label"));
  ui._labelTF->setFocus();
  for (int i = 0; i < 4; ++i) QTest::keyClick(ui._labelTF, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(editBetween(EditedValues::of(ui._folderView->composition()), before));
  EXPECT_EQ(ui._labelTF->stringValue(), QString());
  EXPECT_EQ(ui._rotationSlider->value(), 0);
  EXPECT_FALSE(ui._applyBtn->isEnabled());
  for (int i = 0; i < 4; ++i) controller.redo();
  EXPECT_FALSE(editBetween(EditedValues::of(ui._folderView->composition()), after));
  EXPECT_EQ(ui._labelTF->stringValue(), QStringLiteral("Tax"));
  EXPECT_EQ(ui._effectPopUp->selectedTag(), 6);
  open();
  EXPECT_FALSE(controller.history().canUndo());
}

TEST_F(AppControllerTest, ALookIsKeptAndShownAgainWithoutItsLabel) {
  open();
  type("Tax");
  controller._setEffect(7);
  QTimer::singleShot(0, [&] {
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Green"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  controller.saveLook();
  controller._setEffect(0);
  controller.setLabel(QStringLiteral("Law"));
  controller.applyLook(QStringLiteral("Green"));
  EXPECT_EQ(ui._effectPopUp->selectedTag(), 7);
  EXPECT_EQ(ui._folderView->label(), QStringLiteral("Law"));
}

TEST(AppControllerBusyTest, ASlowDiskLeavesTheWindowAliveAndItsControlsDisabled) {
  struct SlowNotices : FileManagerNotices {
    std::latch go{1};
    Result<void> noteDirectoryModified(Folder&) override {
      go.wait();
      return {};
    }
  } slow;
  TestWindow test({.mode = WorkQueue::Mode::InBackground, .prompts = nullptr, .notices = &slow});
  test.launch();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&test.window));
  test.controller->applicationOpenFile(test.folder);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !test.controller->isBusy(); }));
  QTest::keyClicks(test.ui()._labelTF, QStringLiteral("Tax"));
  test.controller->apply();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !test.ui()._labelTF->isEnabled(); }));
  EXPECT_TRUE(test.controller->isBusy());
  EXPECT_EQ(test.ui()._folderView->label(), QStringLiteral("Tax"));
  EXPECT_FALSE(test.ui()._mainMenu->action(MenuCommand::Apply)->isEnabled());
  slow.go.count_down();
  EXPECT_TRUE(QTest::qWaitFor([&] { return state(test) == "-rl-Rdfp-"; })) << state(test);
}

TEST_F(AppControllerTest, AMissingRecentFolderLeavesTheListWhenTheUserWants) {
  QMenu& menu = *ui._mainMenu->recentMenu();
  // The alternate button is that of Escape, the other answer that of nobody.
  for (const int answer : {UserPrompts::defaultReturn, UserPrompts::alternateReturn, UserPrompts::otherReturn}) {
    test.recent = {{test.tree / "gone", true}, {test.folder, false}};
    test.prompts.answers = {answer};
    Q_EMIT menu.aboutToShow();
    menu.actions().front()->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(test.prompts.shown.back().title, QStringLiteral("“gone” Is Missing"));
    EXPECT_EQ(test.prompts.shown.back().defaultButton, QStringLiteral("Remove from List"));
    EXPECT_EQ(test.recent.size(), answer == UserPrompts::defaultReturn ? 1U : 2U);
  }
}

/// Answers for "stuck" when it is let go, for all else at once.
struct SlowKinds : OwnKindIcons {
  std::latch go{1};
  [[nodiscard]] std::optional<Image> iconForKindOfFile(const std::filesystem::path& path) const override {
    if (path.filename() == "stuck") go.wait();
    return OwnKindIcons::iconForKindOfFile(path);
  }
};

TEST(AppControllerBusyTest, AFolderThatHangsCanBeGivenUp) {
  SlowKinds slow;
  TestWindow test({.mode = WorkQueue::Mode::InBackground, .kinds = &slow});
  test.launch();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&test.window));
  std::filesystem::create_directory(test.tree / "stuck");
  test.controller->applicationOpenFile(test.tree / "stuck");
  QToolButton* cancel = test.ui()._busyIndicator->cancelButton();
  ASSERT_TRUE(QTest::qWaitFor([&] { return cancel->isVisible() && cancel->hasFocus(); }));
  QTest::keyClick(cancel, Qt::Key_Space);
  EXPECT_TRUE(!cancel->isVisible() && !test.controller->isBusy() && test.ui()._openBtn->isEnabled());
  EXPECT_EQ(state(test), "---------");
  // Another disk answers, though that one still does not.
  test.controller->applicationOpenFile(test.folder);
  EXPECT_TRUE(QTest::qWaitFor([&] { return state(test) == "-rl---fp-"; })) << state(test);
  slow.go.count_down();
}

TEST(AppControllerBusyTest, ASheetKeepsTheFocusWhileAFolderHangs) {
  SlowKinds slow;
  TestWindow test({.mode = WorkQueue::Mode::InBackground, .kinds = &slow});
  test.launch();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&test.window));
  std::filesystem::create_directory(test.tree / "stuck");
  QWidget sheet;
  QLineEdit field(&sheet);
  test.window.beginSheet(sheet);
  field.setFocus();
  test.controller->applicationOpenFile(test.tree / "stuck");
  EXPECT_TRUE(QTest::qWaitFor([&] { return test.ui()._busyIndicator->isShown(); }));
  EXPECT_TRUE(field.hasFocus());
  slow.go.count_down();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !test.controller->isBusy(); }));
  EXPECT_TRUE(field.hasFocus());
  test.window.endSheet();
  EXPECT_TRUE(test.ui()._labelTF->hasFocus()) << "as without the sheet";
}

TEST(AppControllerBusyTest, OfWhatADiskStillOwesTheLastChoiceIsShown) {
  SlowKinds slow;
  std::latch picturesGo{1};
  TestWindow test({.mode = WorkQueue::Mode::InBackground,
                   .kinds = &slow,
                   .readPicture = [&](const BaseReference& wanted) -> Result<Image> {
                     picturesGo.wait();
                     if (wanted.path == "none") return Error::invalidInput("the file holds no picture");
                     return plainImage(wanted.path == "last" ? Qt::red : Qt::green);
                   }});
  test.launch();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&test.window));
  AppController& controller = *test.controller;
  const Outlets& ui = test.ui();
  const auto isShown = [&](const char* wanted) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return state(test) == wanted; })) << wanted << " is " << state(test);
  };

  // A folder hangs; the next one takes its place.
  std::filesystem::create_directory(test.tree / "stuck");
  controller.applicationOpenFile(test.tree / "stuck");
  isShown("-------p-");
  int refused = 0;
  EXPECT_FALSE(controller.applicationOpenFile(test.tree / "nowhere", [&] { ++refused; }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return refused == 1; }));
  EXPECT_TRUE(ui._busyIndicator->isShown());
  EXPECT_EQ(controller.path(), test.tree / "stuck");
  controller.applicationOpenFile(test.folder, [&] { ++refused; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return controller.path() == test.folder && !controller.isBusy(); }));
  isShown("-rl---fp-");
  EXPECT_EQ(refused, 1);
  slow.go.count_down();

  // Pictures hang: the label can be typed on, and nothing is written.
  QTest::keyClicks(ui._labelTF, QStringLiteral("Tax"));
  for (const char* name : {"first", "none", "last"}) controller.setBasePicture(name);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ui._busyIndicator->isShown(); }));
  QTest::keyClicks(ui._labelTF, QStringLiteral("es"));
  isShown("--l---fpt");
  EXPECT_FALSE(ui._folderView->baseIcon());
  picturesGo.count_down();
  isShown("arlA--fpt");
  ASSERT_TRUE(ui._folderView->baseIcon());
  EXPECT_EQ(ui._folderView->baseIcon()->rendered(8, 8).toImage().pixelColor(4, 4), QColor(Qt::red));
  EXPECT_TRUE(ui._noticeLabel->text().isEmpty());
}

}  // namespace
}  // namespace quorvane::test
