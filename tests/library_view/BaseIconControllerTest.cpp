// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/BaseIconController.h"

#include <QAction>
#include <QLineEdit>
#include <QSplitter>
#include <atomic>
#include <thread>

#include "LibraryFixture.h"
#include "library/view/RowsPasteboard.h"

namespace quorvane::test {
namespace {

using BaseIconControllerTest = LibraryFixture;

TEST_F(BaseIconControllerTest, ChoosesTheBaseIconFromOneListAtATime) {
  makeSet("Blue", {"a", "b"});
  makeSet("Stock", {"x", "y"}, "BaseIcons");
  open();
  EXPECT_TRUE(chosen.empty()) << "a start chooses nothing";
  select(iconTable(), {1});
  EXPECT_EQ(chosen.back(), "b.icns");
  select(*view->builtinTableView(), {0});
  EXPECT_EQ(chosen.back(), "x.icns");
  EXPECT_TRUE(icons().selectionIndexes().isEmpty());
  select(iconTable(), {0, 1});
  EXPECT_EQ(chosen.back(), "none") << "several are none";
  EXPECT_TRUE(controller->builtinIconArrayController().selectionIndexes().isEmpty());
  const auto count = chosen.size();
  iconTable().clearSelection();
  EXPECT_EQ(chosen.size(), count) << "nothing selected says nothing";
}

TEST_F(BaseIconControllerTest, TheBaseIconStaysWholeWhateverBecomesOfItsFile) {
  makeSet("Blue", {"a", "b"});
  ASSERT_TRUE(plainImage(Qt::red, 600).writeToPNGFile(tree / "Icons/Blue/p.png").ok());
  open();
  for (const auto& [row, side] : {std::pair{0, 512}, {1, 600}}) {
    controller->choose(icons().objectAt(row));
    const Image former = base.value();
    select(iconTable(), {row});
    EXPECT_TRUE(former.isSameAs(base.value()));
    controller->removeSelectedIcons();
    const auto bitmap = former.bitmapForPixels(side, side);
    EXPECT_TRUE(bitmap && bitmap->pixelsWide() == side) << side;
  }
  EXPECT_EQ(shown(), "b");
}

TEST_F(BaseIconControllerTest, KeepsWhichSetsAreSelected) {
  for (const char* name : {"One", "Two", "Three"}) makeSet(name, {}), makeSet(name, {}, "BaseIcons");
  open();
  EXPECT_EQ(sets().selectionIndexes().array(), QList<int>{0}) << "nothing was kept";
  select(setTable(), {2, 0});
  EXPECT_TRUE(icons().arrangedObjects().empty() && !icons().canAdd());
  controller->saveIconSetSelection();
  EXPECT_EQ(saved[1], (QList<int>{0, 2}));
  saved[0] = {1, 77, -4};
  view.reset();
  open();
  EXPECT_EQ(sets().selectionIndexes().array(), (QList<int>{0, 2}));
  EXPECT_EQ(controller->builtinIconSetArrayController().selectionIndexes().array(), QList<int>{1});
}

TEST_F(BaseIconControllerTest, AFreshUserGetsOneEmptySet) {
  open();
  EXPECT_EQ(shownSets(), "New Set");
  EXPECT_TRUE(std::filesystem::is_directory(tree / "Icons/New Set"));
  EXPECT_TRUE(std::filesystem::exists(tree / "Icons" / setListName));
}

TEST_F(BaseIconControllerTest, DroppedFilesStandReversed) {
  makeSet("Blue", {"z"});
  for (const char* name : {"A", "B", "C"}) writeIcon(tree / "elsewhere" / (std::string(name) + ".icns"));
  open();
  const auto dragged = files({tree / "elsewhere/A.icns", tree / "elsewhere/B.icns", tree / "elsewhere/C.icns"});
  EXPECT_EQ(drop(iconTable(), *dragged, 0, true).action, Qt::CopyAction);
  EXPECT_EQ(shown(), "C B A z");
  EXPECT_EQ(onDisk("Blue"), "C B A z");
  EXPECT_TRUE(std::filesystem::exists(tree / "elsewhere/A.icns"));
  EXPECT_EQ(chosen, std::vector<std::string>{"C.icns"}) << "the last one inserted is selected, and no other was";
  controller->undo();
  EXPECT_EQ(shown() + "|" + onDisk("Blue"), "z|z");
  // A drop in the lower half of a row comes behind it, and a sender that only moves is refused.
  const auto one = files({tree / "elsewhere/A.icns"});
  EXPECT_EQ(drop(iconTable(), *one, 0, false).action, Qt::CopyAction);
  EXPECT_EQ(shown(), "z A");
  EXPECT_EQ(drop(iconTable(), *one, 0, true, Qt::MoveAction).action, Qt::IgnoreAction);
}

TEST_F(BaseIconControllerTest, RefusesWhatItCannotTakeWithAReason) {
  makeSet("Blue", {"a"});
  makeSet("Red", {});
  makeSet("Stock", {"x"}, "BaseIcons");
  open();
  QMimeData text;
  text.setText(QStringLiteral("words"));
  QMimeData remote;
  remote.setUrls({QUrl(QStringLiteral("https://example.org/a.png"))});
  QMimeData foreignRows;
  foreignRows.setData(rowsPboardType, R"({"list":"another process","rows":[0]})");
  for (QMimeData* data : {&text, &remote, &foreignRows}) {
    EXPECT_EQ(drop(iconTable(), *data, 0, true).action, Qt::IgnoreAction);
    EXPECT_EQ(drop(setTable(), *data, 1, false).action, Qt::IgnoreAction);
    EXPECT_EQ(controller->tableViewRefusal(iconTable(), *data).isEmpty(), data == &foreignRows);
  }
  const auto dragged = files({tree / "Icons/Blue/a.icns"});
  EXPECT_FALSE(drop(*view->builtinTableView(), *dragged, 0, true).isEntered);
  EXPECT_TRUE(controller->tableViewRefusal(*view->builtinTableView(), *dragged).contains(QStringLiteral("built-in")));
  select(setTable(), {0, 1});
  EXPECT_FALSE(drop(iconTable(), *dragged, 0, true).isEntered) << "no set to add to";
  EXPECT_EQ(shown() + onDisk("Blue") + onDisk("Red"), "a");
}

TEST_F(BaseIconControllerTest, ReordersRowsAndRemovesNothing) {
  makeSet("Blue", {"A", "B", "C", "D", "E"});
  open();
  select(iconTable(), {0, 2});
  const Dropped dropped = dragRows({2, 0}, iconTable(), 4, true);
  EXPECT_EQ(dropped.action, Qt::CopyAction) << "a move would remove the rows";
  EXPECT_EQ(shown() + "|" + onDisk("Blue"), "B D A C E|B D A C E");
  EXPECT_EQ(icons().selectionIndexes().array(), (QList<int>{2, 3}));
  controller->undo();
  EXPECT_EQ(shown() + "|" + onDisk("Blue"), "A B C D E|A B C D E");
  // Below all rows is the end.
  dragRows({0}, iconTable(), 5, true);
  EXPECT_EQ(shown(), "B C D E A");
}

TEST_F(BaseIconControllerTest, MovesRowsToAnotherSet) {
  makeSet("Blue", {"A", "B", "C"});
  makeSet("Red", {"B"});
  open();
  const struct {
    int row;
    bool above;
  } refused[] = {{0, false}, {1, true}};
  for (const auto& place : refused) {
    select(iconTable(), {0});
    EXPECT_EQ(dragRows({0}, setTable(), place.row, place.above).action, Qt::IgnoreAction);
  }
  select(iconTable(), {1, 2});
  EXPECT_EQ(dragRows({1, 2}, setTable(), 1, false).action, Qt::MoveAction);
  EXPECT_EQ(shown() + "|" + onDisk("Blue") + "|" + onDisk("Red"), "A|A|B B-1 C");
  EXPECT_EQ(sets().objectAt(1)->icons().size(), 3U);
  controller->undo();
  EXPECT_EQ(shown() + "|" + onDisk("Blue") + "|" + onDisk("Red"), "A B C|A B C|B");
  // One that cannot be had ends it, and no source goes.
  select(iconTable(), {0, 1});
  writeFile(tree / "Icons/Blue/B.icns", std::string("no icon any more"));
  EXPECT_EQ(dragRows({0, 1}, setTable(), 1, false).action, Qt::IgnoreAction);
  EXPECT_EQ(shown() + "|" + joined(sets().objectAt(1)->icons(), [](const auto& icon) { return icon.name; }), "A B C|B");
  for (const char* icon : {"Blue/A.icns", "Blue/B.icns", "Red/A.icns"})
    EXPECT_TRUE(std::filesystem::exists(tree / "Icons" / icon)) << icon;
  // The built-in list and a list without a selection start no drag.
  iconTable().clearSelection();
  EXPECT_EQ(iconTable().model()->mimeData({iconTable().model()->index(0, 0)}), nullptr);
}

TEST_F(BaseIconControllerTest, TakesPicturesAndFilesFromTheClipboard) {
  makeSet("Blue", {"a"});
  open();
  QImage picture(64, 64, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::red);
  QMimeData data;
  data.setImageData(picture);
  EXPECT_TRUE(controller->paste(data));
  data.setUrls({QUrl(QStringLiteral("https://example.org/pictures/Nice%20Cat.jpeg?size=1"))});
  EXPECT_TRUE(controller->paste(data));
  EXPECT_EQ(shown(), "a Picture Nice Cat");
  EXPECT_EQ(onDisk("Blue"), "a Picture Nice Cat");
  QMimeData words;
  words.setText(QStringLiteral("words"));
  EXPECT_FALSE(controller->paste(words));
  const std::unique_ptr<QMimeData> copied(controller->copy());
  ASSERT_TRUE(copied && copied->hasImage());
  EXPECT_EQ(copied->urls().front().fileName(), QStringLiteral("Nice Cat.icns"));
}

TEST_F(BaseIconControllerTest, ValidatesTheMenuItemByTheNumberOfSelectedIcons) {
  makeSet("Blue", {"a", "b", "c"});
  open();
  QAction item;
  QAction other;
  item.setObjectName(QStringLiteral("removeSelectedIcons"));
  const struct {
    QList<int> rows;
    const char* title;
  } cases[] = {{{}, "Remove Selected Icon"}, {{1}, "Remove Selected Icon"}, {{0, 1, 2}, "Remove Selected Icons"}};
  for (const auto& each : cases) {
    select(iconTable(), each.rows);
    EXPECT_EQ(controller->validateMenuItem(item), !each.rows.isEmpty());
    EXPECT_EQ(item.text(), QLatin1String(each.title));
    EXPECT_TRUE(controller->validateMenuItem(other));
  }
}

TEST_F(BaseIconControllerTest, TheDividerStaysWithinItsLimits) {
  for (const auto& [proposed, position] : {std::pair{50.0, 80.0}, {80.0, 80.0}, {130.5, 130.5}, {260.0, 200.0}})
    EXPECT_EQ(BaseIconController::splitViewConstrainSplitPosition(proposed), position);
  open();
  view->resize(500, 400);
  LibraryPage& page = *view->page(LibraryView::Custom);
  QWidget* divider = page.findChild<QSplitter*>()->handle(1);
  for (const auto& [wanted, width] : {std::pair{20, 80}, {150, 150}, {300, 200}}) {
    view->setSetsWidth(wanted);
    EXPECT_EQ(page.setsWidth(), width);
    view->setSetsWidth(120);
    QTest::mousePress(divider, Qt::LeftButton, {}, QPoint(1, 9));
    QTest::mouseMove(divider, QPoint(1 + wanted - 120, 9));
    QTest::mouseRelease(divider, Qt::LeftButton, {}, QPoint(1, 9));
    EXPECT_EQ(page.setsWidth(), width) << "dragged";
    EXPECT_EQ(view->page(LibraryView::Builtin)->setsWidth(), width) << "both libraries alike";
  }
}

TEST_F(BaseIconControllerTest, AddsInTheBackgroundUntilItIsCancelled) {
  makeSet("Blue", {});
  makeSet("Red", {});
  std::vector<Path> many;
  for (int number = 0; number < 60; ++number) {
    many.push_back(tree / "elsewhere" / ("P" + std::to_string(number) + ".png"));
    std::filesystem::create_directories(many.back().parent_path());
    ASSERT_TRUE(plainImage(Qt::green, 512).writeToPNGFile(many.back()).ok());
  }
  open(WorkQueue::Mode::InBackground);
  int progresses = 0;
  QObject::connect(&controller->adder(), &IconAdder::progressed, [&](const QString&, int done, int) {
    if (++progresses > 1 && done > 2) controller->adder().cancel();
  });
  EXPECT_EQ(drop(iconTable(), *files(many), 0, true).action, Qt::CopyAction);
  EXPECT_EQ(shown(), "") << "not within the drop";
  select(setTable(), {1});  // the set that it goes into is another one by then
  ASSERT_TRUE(QTest::qWaitFor([&] { return !controller->adder().isBusy(); }, 30000));
  const auto added = sets().objectAt(0)->icons().size();
  EXPECT_TRUE(added > 0 && added < many.size()) << added;
  EXPECT_EQ(onDisk("Blue"), joined(sets().objectAt(0)->icons(), [](const auto& icon) { return icon.name; }));
  EXPECT_EQ(shown(), "");
}

TEST_F(BaseIconControllerTest, WhatIsAddedWhileTheSetIsRenamedOrReadAnewIsShownOnce) {
  makeSet("Blue", {"a"});
  makeSet("Red", {});
  writeIcon(tree / "elsewhere/n.icns");
  open(WorkQueue::Mode::InBackground);
  for (const bool isRenamed : {true, false}) {
    controller->adder().hold();
    EXPECT_EQ(drop(iconTable(), *files({tree / "elsewhere/n.icns"}), 1, true).action, Qt::CopyAction);
    const std::string name = isRenamed ? "n.icns" : "n-1.icns";
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(sets().objectAt(0)->path() / name); }, 9000));
    isRenamed ? static_cast<void>(sets().setName(0, QStringLiteral("Green"))) : sets().objectAt(0)->reload();
    ASSERT_TRUE(QTest::qWaitFor([&] { return onDisk("Green").find(isRenamed ? "n" : "n-1") != std::string::npos; }));
    controller->adder().release();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !controller->adder().isBusy(); }, 9000));
    EXPECT_EQ(shown() + "|" + onDisk("Green"), isRenamed ? "a n|a n" : "a n-1 n|a n-1 n");
    for (const IconRecord& icon : icons().arrangedObjects())
      EXPECT_TRUE(icon.image.bitmapRepresentation()) << icon.name;
  }
  // What is dropped behind something that was cancelled is not cancelled with it.
  std::atomic<bool> isOver = false;
  controller->adder().run(
      {},
      [&](const LibraryProgress&) {
        while (!isOver) std::this_thread::yield();
        return Result<void>();
      },
      [](const auto&) {});
  controller->adder().cancel();
  drop(iconTable(), *files({tree / "elsewhere/n.icns"}), 0, true);
  EXPECT_FALSE(controller->canUndo()) << "at work";
  isOver = true;
  ASSERT_TRUE(QTest::qWaitFor([&] { return !controller->adder().isBusy(); }, 9000));
  EXPECT_EQ(shown(), "n-2 a n-1 n");
  EXPECT_TRUE(controller->canUndo());
}

}  // namespace
}  // namespace quorvane::test
