// SPDX-License-Identifier: GPL-3.0-or-later
// Start and stop, what is counted, what is asked, new versions, temporary files.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <limits>
#include <thread>

#include "TestWindow.h"
#include "app/AboutController.h"
#include "app/EndAtTheLatest.h"
#include "app/SheetPrompts.h"
#include "app/TerminationSignals.h"
#include "ui/LabelTextField.h"

namespace quorvane::test {
namespace {

using Strings = std::vector<std::string>;

/// But for the width of a frame.
bool areNear(QPoint one, QPoint other) {
  return (one - other).manhattanLength() <= 8;
}

TEST(LifecycleTest, AStartCountsMigratesAndPlacesTheWindow) {
  TestWindow test({.arrangeSettings = [](UserDefaults& defaults) {
    settings::setValue(defaults, settings::frameworkChecksAtStartup, true);
  }});
  EXPECT_FALSE(test.controller->isInitialized());
  EXPECT_EQ(AppController::init(
                {.defaults = test.defaults, .prompts = test.prompts, .panels = test.panels, .work = test.work}),
            test.controller);
  EXPECT_EQ(settings::value(test.defaults, settings::feedAddress),
            QStringLiteral("https://maker.test/product/appcast-105.xml"));
  test.window.move(1, 2);
  test.launch();
  EXPECT_TRUE(areNear(test.window.geometry().center(), test.window.screen()->availableGeometry().center()));
  EXPECT_EQ(test.storage.values.value(settings::frameworkChecksAtStartup.name), QVariant(false));
  EXPECT_TRUE(settings::value(test.defaults, settings::checkAtStartup));
  EXPECT_EQ(settings::value(test.defaults, settings::launchCount), 1);
  EXPECT_EQ(test.asked, Strings{"background"});
  EXPECT_TRUE(test.controller->isInitialized());
  EXPECT_EQ(test.controller->runCount(), 2);
  EXPECT_EQ(test.controller->runCount(), 2);
  EXPECT_EQ(settings::value(test.defaults, settings::launchCount), 2);
  struct Feed {
    std::uint32_t version;
    const char* name;
  };
  for (const Feed& feed : {Feed{0x1059, "105"}, Feed{0x1060, "106"}, Feed{0x106f, "106"}, Feed{0x1070, "107"},
                           Feed{0x1079, "107"}, Feed{0x1080, "108"}, Feed{0x9999, "108"}})
    EXPECT_TRUE(test.controller->feedAddress(feed.version).contains(QLatin1String(feed.name))) << feed.version;
}

TEST(LifecycleTest, ACountThatWasTamperedWithIsMended) {
  constexpr qint64 most = std::numeric_limits<qint64>::max();
  for (const auto& [former, count] : {std::pair<qint64, qint64>{-5, 1}, {most, most}}) {
    TestWindow test({.arrangeSettings = [kept = former](UserDefaults& defaults) {
      settings::setValue(defaults, settings::launchCount, kept);
    }});
    EXPECT_EQ(test.controller->runCount(), count);
  }
}

TEST(LifecycleTest, ALaterStartComesBackWhereTheWindowWasAndChecksNothingUnasked) {
  TestWindow test(
      {.arrangeSettings = [](UserDefaults& defaults) { settings::setValue(defaults, settings::launchCount, 7); }});
  test.window.setGeometry(30, 40, 1190, 690);
  test.frames.setFrame(test.window.saveGeometry(), settings::mainWindowAutosaveName);
  test.window.move(300, 200);
  test.launch();
  EXPECT_TRUE(areNear(test.window.geometry().topLeft(), {30, 40}));
  EXPECT_EQ(settings::value(test.defaults, settings::launchCount), 8);
  EXPECT_EQ(test.updaters, 0);
}

TEST(LifecycleTest, WhatARunLeavesTheNextOneTakesUp) {
  TestWindow test({.arrangeSettings = [](UserDefaults& defaults) {
    settings::setValue(defaults, settings::canvasMagnification, 3);
  }});
  test.panels.setFrameStore(&test.frames);
  for (const char* set : {"A", "B", "C"}) std::filesystem::create_directories(test.tree / "Icons" / set);
  test.savedSelections[1] = {1};
  test.launch();
  auto& sets = test.library.customIconSetArrayController();
  EXPECT_EQ(sets.selectionIndex(), 1);
  EXPECT_EQ(test.ui()._folderView->magnification(), 3);
  sets.setSelectionIndexes(IndexSet::indexSetWithArray({2}));
  test.ui()._mainMenu->action(MenuCommand::Magnify1)->trigger();
  test.panels.fontPanel().showPanel();
  test.panels.fontPanel().move(40, 50);
  test.panels.fontPanel().setPanelFont(QStringLiteral("DejaVu Serif"), QStringLiteral("Book"), 20);
  test.window.myChangeFont(test.panels.fontPanel());
  EXPECT_FALSE(test.storage.values.contains(settings::lastUsedFont.name)) << "while a slider may still move";
  test.controller->applicationWillTerminate();
  EXPECT_EQ(test.savedSelections[1], QList<int>{2});
  EXPECT_TRUE(test.storage.values.contains(settings::lastUsedFont.name));
  EXPECT_EQ(settings::value(test.defaults, settings::canvasMagnification), 1);
  SharedPanels next;
  next.setFrameStore(&test.frames);
  next.fontPanel().showPanel();
  EXPECT_TRUE(areNear(next.fontPanel().pos(), {40, 50}));
  next.fontPanel().setGeometry(300, 200, 5000, 4000);
  next.fontPanel().hidePanel();
  SharedPanels onSmallerScreen;
  FontPanel& panel = onSmallerScreen.fontPanel();
  onSmallerScreen.setFrameStore(&test.frames);
  panel.showPanel();
  const QSize side = panel.geometry().size();
  EXPECT_EQ(side.boundedTo(panel.screen()->availableSize()), side);
  EXPECT_TRUE(areNear(panel.pos(), panel.screen()->availableGeometry().topLeft()));
}

TEST(LifecycleTest, TheLabelStartsAsTheSettingsSay) {
  const LabelFont serif{QStringLiteral("DejaVu Serif"), QStringLiteral("Book"), 20};
  const LabelFont mono{QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Book"), 33};
  for (const auto& [isDefaultColor, isDefaultFont] :
       {std::pair{true, true}, {true, false}, {false, true}, {false, false}}) {
    TestWindow test(
        {.arrangeSettings = [&, usesColor = isDefaultColor, usesFont = isDefaultFont](UserDefaults& defaults) {
          settings::setValue(defaults, settings::useDefaultColor, usesColor);
          settings::setValue(defaults, settings::useDefaultFont, usesFont);
          settings::setValue(defaults, settings::defaultColor, Qt::red);
          settings::setValue(defaults, settings::lastUsedColor, Qt::blue);
          settings::setValue(defaults, settings::defaultFont, serif);
          settings::setValue(defaults, settings::lastUsedFont, mono);
        }});
    test.controller->awakeFromNib();
    test.controller->applicationDidFinishLaunching();
    EXPECT_EQ(test.ui()._folderView->composition().color(), QColor(isDefaultColor ? Qt::red : Qt::blue));
    EXPECT_EQ(test.panels.colorPanel().color(), QColor(isDefaultColor ? Qt::red : Qt::blue));
    EXPECT_EQ(test.ui()._folderView->font(), isDefaultFont ? serif : mono);
  }
  TestWindow fresh;
  fresh.controller->awakeFromNib();
  fresh.controller->applicationDidFinishLaunching();
  EXPECT_EQ(fresh.ui()._folderView->composition().color(), QColor(Qt::black));
  EXPECT_EQ(fresh.ui()._folderView->font(), systemFont(50));
}

TEST(LifecycleTest, PromptsComeAtTheirCountsUntilTheyAreAnswered) {
  struct Case {
    int before;
    std::deque<int> answers;
    bool isOccupied;
    Strings titles;
    Strings pages;
    bool tipStays;
    bool shareStays;
  };
  const std::string tip = "Important Dock Tip", share = "Share on Facebook";
  for (const Case& each :
       {Case{0, {1}, false, {tip}, {}, false, true}, Case{0, {0}, false, {tip}, {"quorvane/faq/"}, false, true},
        Case{1, {}, false, {}, {}, true, true}, Case{4, {0}, false, {share}, {}, true, true},
        Case{4, {1}, false, {share}, {"quorvane/fb/"}, true, false}, Case{14, {-1}, false, {share}, {}, true, false},
        Case{24, {0}, false, {share}, {}, true, true}, Case{9, {}, false, {}, {}, true, true},
        Case{4, {}, true, {}, {}, true, true}}) {
    SCOPED_TRACE(each.before);
    TestWindow test;
    test.launch();
    settings::setValue(test.defaults, settings::usageCount, each.before);
    test.prompts.answers = each.answers;
    test.prompts.isOccupied = each.isOccupied;
    test.controller->incrementUsageCount();
    Strings titles;
    for (const Prompt& prompt : test.prompts.shown) titles.push_back(prompt.title.toStdString());
    EXPECT_EQ(titles, each.titles);
    EXPECT_EQ(test.pages, each.pages);
    EXPECT_EQ(settings::value(test.defaults, settings::showDockTip), each.tipStays);
    EXPECT_EQ(settings::value(test.defaults, settings::askToShareOnFacebook), each.shareStays);
    // What has been answered for good does not come back.
    settings::setValue(test.defaults, settings::usageCount, each.before);
    test.prompts.isOccupied = false;
    test.controller->incrementUsageCount();
    const bool comesBack = each.before % 10 == 4 && each.shareStays;
    EXPECT_EQ(test.prompts.shown.size(), each.titles.size() + (comesBack ? 1 : 0));
  }
  TestWindow test;
  test.launch();
  test.controller->runRateOnAppStoreSheet();
  ASSERT_EQ(test.prompts.shown.size(), 1U);
  EXPECT_EQ(test.prompts.shown[0].defaultButton, QStringLiteral("Rate Quorvane"));
  EXPECT_TRUE(test.prompts.shown[0].message.contains(QStringLiteral("rate Quorvane on")));
  EXPECT_EQ(test.pages, Strings{"quorvane/mas/"});
  EXPECT_FALSE(settings::value(test.defaults, settings::askToRateOnAppStore));
  test.controller->runRateOnAppStoreSheet();
  EXPECT_EQ(test.prompts.shown.size(), 1U);
}

TEST(LifecycleTest, TheEndOfTheSessionIsNoAnswer) {
  struct Late : UserPrompts {
    HVWindow* window = nullptr;
    [[nodiscard]] bool hasSheet() const override { return window->isSheetUp(); }
    int run(const Prompt& prompt) override {
      return window->runPromptSheetWithTitle(prompt.title, prompt.message, prompt.defaultButton);
    }
  } prompts;
  TestWindow test({.prompts = &prompts});
  prompts.window = &test.window;
  test.launch();
  int ended = 0;
  QObject::connect(test.controller.get(), &AppController::terminateRequested, [&] { ++ended; });
  QTimer::singleShot(0, test.controller.get(), [&] {
    EXPECT_TRUE(test.window.isSheetUp());
    test.controller->terminate();
  });
  test.controller->runShareOnFacebookSheet();
  EXPECT_TRUE(settings::value(test.defaults, settings::askToShareOnFacebook));
  EXPECT_TRUE(QTest::qWaitFor([&] { return ended == 1; }));
}

TEST(LifecycleTest, TheSessionsWordIsASignal) {
  int heard = 0;
  TerminationSignals ends;
  QObject::connect(&ends, &TerminationSignals::received, [&] { ++heard; });
  HVWindow window;
  QWidget sheet;
  window.show();
  window.beginSheet(sheet);
  QEvent quit(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &quit);
  EXPECT_EQ(heard, 1) << "no sheet keeps it";
  EXPECT_TRUE(window.isVisible()) << "whoever hears it closes what is open";
}

TEST(EndAtTheLatestDeathTest, WhatHangsIsGivenUp) {
  const auto hang = [] {
    endAtTheLatest(std::chrono::milliseconds(20), 7);
    std::this_thread::sleep_for(std::chrono::seconds(60));
  };
  EXPECT_EXIT(hang(), testing::ExitedWithCode(7), "");
}

TEST(LifecycleTest, ABackgroundCheckGivesWayToSheetsAndIsTriedOnceMore) {
  {
    TestWindow test;
    test.launch();
    test.prompts.isOccupied = true;
    test.controller->checkForUpdatesInBackground();
    test.controller->checkForUpdatesInBackgroundLastAttempt();
    QTest::qWait(1500);
    EXPECT_EQ(test.updaters, 0);
    test.prompts.isOccupied = false;
    EXPECT_TRUE(QTest::qWaitFor([&] { return test.asked == Strings{"background"}; }));
    test.controller->perform(MenuCommand::CheckForUpdates);
    EXPECT_EQ(test.asked.back(), "check");
    EXPECT_EQ(test.updaters, 1);
  }
  TestWindow without(
      {.arrangeSettings = [](UserDefaults& defaults) { settings::setValue(defaults, settings::checkAtStartup, true); },
       .hasUpdater = false});
  without.launch();
  without.controller->checkForUpdates(nullptr);
  EXPECT_FALSE(without.controller->updater());
  EXPECT_THROW(static_cast<void>(without.ui()._mainMenu->action(MenuCommand::CheckForUpdates)), std::out_of_range);
}

TEST(LifecycleTest, TheScratchFolderIsOursAlone) {
  TestWindow test;
  const std::filesystem::path place = test.controller->tmpdirString().toStdString();
  EXPECT_EQ(place.filename(), "test.quorvane.Quorvane-" + std::to_string(::getpid()));
  EXPECT_TRUE(test.controller->cleanupTmpdir());
  ASSERT_EQ(test.controller->tmpdir(), test.controller->tmpdirString());
  struct stat info {};
  ASSERT_EQ(::stat(place.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, 0700U);
  std::filesystem::create_directory(place / "inner");
  std::filesystem::create_symlink(test.folder, place / "inner/link");
  EXPECT_TRUE(test.controller->cleanupTmpdir());
  EXPECT_FALSE(std::filesystem::exists(place));
  EXPECT_TRUE(std::filesystem::exists(test.folder));
  EXPECT_EQ(test.controller->tmpdir(), test.controller->tmpdirString()) << "the first answer";

  // What is planted there is not used, and not touched.
  const std::filesystem::path planted = test.tree / "planted";
  for (const bool isLink : {true, false}) {
    if (isLink)
      std::filesystem::create_symlink(test.folder, planted);
    else
      std::filesystem::create_directory(planted), ::chmod(planted.c_str(), 0777);
    ScratchFolder scratch(planted);
    EXPECT_FALSE(scratch.make());
    EXPECT_FALSE(scratch.cleanUp());
    std::filesystem::remove(planted);
    EXPECT_FALSE(scratch.make()) << "the first answer";
  }
}

TEST(AboutTest, ItNamesTheLibrariesAndLeadsToTheMaker) {
  TestWindow test;
  test.launch();
  test.controller->perform(MenuCommand::About);
  SideWindow& about = test.controller->aboutController()->window();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&about));
  QStringList texts;
  for (const QLabel* label : about.findChildren<QLabel*>()) texts << label->text();
  for (const char* name : {"Expat", "libzip", "Qt", "GLib, GIO", "libpng"})
    EXPECT_TRUE(texts.contains(QLatin1String(name)));
  for (const LibraryNotice& library : linkedLibraries()) {
    EXPECT_TRUE(texts.contains(QString::fromStdString(library.name))) << library.name;
    EXPECT_TRUE(texts.contains(QString::fromStdString(library.licence))) << library.licence;
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^[0-9]+[.][0-9]+([.][0-9]+)?$"))
                    .match(QString::fromStdString(library.version))
                    .hasMatch())
        << library.name << library.version;
  }
  EXPECT_NEAR(about.frameGeometry().center().x(), test.window.frameGeometry().center().x(), 1);
  for (const int key : {Qt::Key_H, Qt::Key_O, Qt::Key_W}) {
    QTest::keyClick(&about, Qt::Key(key), Qt::AltModifier);
    QTest::qWait(150);
  }
  EXPECT_EQ(test.pages, (Strings{"", "quorvane/comments/", "mail"}));
  QTimer::singleShot(100, &about, [&] {
    EXPECT_TRUE(about.findChild<QPlainTextEdit*>()->toPlainText().contains(
        QStringLiteral("GNU GENERAL PUBLIC LICENSE\n                       Version 3")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  });
  test.controller->aboutController()->showLicence(nullptr);
  QTest::keyClick(&about, Qt::Key_Escape);
  EXPECT_FALSE(about.isVisible());
}

}  // namespace
}  // namespace quorvane::test
