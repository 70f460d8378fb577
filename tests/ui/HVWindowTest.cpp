// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/HVWindow.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <functional>
#include <map>
#include <thread>

#include "ui/Tag.h"

namespace quorvane::test {
namespace {

class OpenWindow : public HVWindow {
 public:
  using HVWindow::_setButtonActionForSheet;
};

class HVWindowTest : public ::testing::Test {
 protected:
  HVWindowTest() : window(new OpenWindow) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    field = new QLineEdit;
    button = new QPushButton(QStringLiteral("&Apply"));
    field->setAcceptDrops(true);
    column->addWidget(field);
    column->addWidget(button);
    window->setCentralWidget(content);
    auto* menu = window->menuBar()->addMenu(QStringLiteral("&File"));
    open = menu->addAction(QStringLiteral("&Open"));
    open->setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
    QObject::connect(open, &QAction::triggered, [this] { ++reached; });
    QObject::connect(button, &QPushButton::clicked, [this] { ++reached; });
    window->resize(600, 400);
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    field->setFocus();
  }

  /// Does it once the next sheet is up.
  void whenUp(std::function<void()> act) { QTimer::singleShot(0, window.get(), std::move(act)); }
  static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    if (QWidget* focus = QApplication::focusWidget()) QTest::keyClick(focus, key, modifiers);
  }
  int prompt() {
    return window->runPromptSheetWithTitle(QStringLiteral("Title"), QStringLiteral("100% of <b>it</b>"),
                                           QStringLiteral("Yes"), QStringLiteral("No"), QStringLiteral("Later"));
  }

  std::unique_ptr<OpenWindow> window;
  QLineEdit* field = nullptr;
  QPushButton* button = nullptr;
  QAction* open = nullptr;
  int reached = 0;
};

TEST_F(HVWindowTest, AnswersWithTheButton) {
  const std::vector<std::pair<std::function<void()>, int>> answers = {
      {[] { key(Qt::Key_Return); }, 1},
      {[] { key(Qt::Key_Escape); }, 0},
      {[] {
         key(Qt::Key_L, Qt::AltModifier);
         QTest::qWait(150);
       },
       -1},
      {[] {
         key(Qt::Key_Tab);
         key(Qt::Key_Tab);
         key(Qt::Key_Space);
       },
       -1},
      {[this] { QTest::mouseClick(window->alertPanel()->findChildren<QPushButton*>().at(1), Qt::LeftButton); }, 0},
  };
  for (std::size_t row = 0; row < answers.size(); ++row) {
    whenUp(answers[row].first);
    EXPECT_EQ(prompt(), answers[row].second) << row;
    EXPECT_EQ(QApplication::focusWidget(), field) << row;
    EXPECT_EQ(window->alertPanel(), nullptr);
    EXPECT_FALSE(window->isSheetUp());
  }
  whenUp([] { key(Qt::Key_Escape); });
  window->runMessageSheetWithTitle(QStringLiteral("One button"), QStringLiteral("goes by Escape too"));
}

TEST_F(HVWindowTest, NothingBelowIsReached) {
  QStringList texts;
  bool focusStayed = true;
  whenUp([&] {
    for (auto* text : window->alertPanel()->findChildren<MessageText*>()) texts << text->toPlainText();
    for (int press = 0; press < 7; ++press) {
      key(press < 4 ? Qt::Key_Tab : Qt::Key_Backtab);
      focusStayed = focusStayed && window->alertPanel()->isAncestorOf(QApplication::focusWidget());
    }
    field->setFocus();
    focusStayed = focusStayed && window->alertPanel()->isAncestorOf(QApplication::focusWidget());
    key(Qt::Key_O, Qt::ControlModifier);
    key(Qt::Key_A, Qt::AltModifier);
    key(Qt::Key_F, Qt::AltModifier);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, button->mapTo(window.get(), QPoint(5, 5)));
    QTest::keyClick(field, Qt::Key_X);
    QMimeData data;
    data.setText(QStringLiteral("dropped"));
    QDropEvent drop(QPointF(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(field, &drop);
    EXPECT_FALSE(window->close());
    EXPECT_EQ(window->runPromptSheetWithTitle({}, {}, QStringLiteral("A")), -1);
    window->runMessageSheetWithTitle({}, {});
    key(Qt::Key_Return);
  });
  EXPECT_EQ(prompt(), 1);
  EXPECT_EQ(texts, (QStringList{QStringLiteral("Title"), QStringLiteral("100% of <b>it</b>")}));
  EXPECT_TRUE(focusStayed);
  EXPECT_EQ(reached, 0);
  EXPECT_EQ(field->text(), QString());
  key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(reached, 1) << "the window is whole again";
}

TEST_F(HVWindowTest, CustomSheetReturnsTagsByDepth) {
  QWidget sheet;
  const auto add = [](QAbstractButton* made, int value, QWidget* parent) {
    made->setParent(parent);
    setTag(*made, value);
    return made;
  };
  auto* ok = add(new QPushButton(QStringLiteral("&OK")), 7, &sheet);
  auto* check = add(new QCheckBox, 8, &sheet);
  auto* busy = add(new QPushButton, 9, &sheet);
  QObject::connect(busy, &QPushButton::clicked, [this] { ++reached; });
  auto* box = new QWidget(&sheet);
  auto* inBox = add(new QPushButton, 10, box);
  auto* inner = new QWidget(box);
  auto* deep = add(new QPushButton, 11, inner);
  const std::vector<std::pair<QAbstractButton*, int>> rows = {{ok, 7}, {deep, 11}};
  for (const auto& [pressed, code] : rows) {
    whenUp([&, pressed = pressed] {
      for (auto* other : {check, busy, inBox}) other->click();
      EXPECT_TRUE(window->isSheetUp());
      pressed->click();
    });
    EXPECT_EQ(window->runPromptSheet(sheet), code);
    EXPECT_EQ(sheet.parentWidget(), nullptr);
  }
  EXPECT_EQ(reached, 2);
  EXPECT_FALSE(check->isChecked()) << "clicked twice: its own behaviour stays";
  whenUp([&] { sheet.hide(); });
  EXPECT_EQ(window->runPromptSheet(sheet), -1);
}

TEST_F(HVWindowTest, EndsWithTheWindow) {
  QWidget sheet;
  whenUp([&] { window.reset(); });
  EXPECT_EQ(window->runPromptSheet(sheet), -1);
  EXPECT_EQ(sheet.parentWidget(), nullptr) << "given back before the window's children were deleted";
}

TEST_F(HVWindowTest, SheetsWithoutWaiting) {
  QWidget sheet;
  window->beginSheet(sheet);
  EXPECT_TRUE(sheet.isVisible());
  whenUp([] { key(Qt::Key_Escape); });
  EXPECT_EQ(prompt(), 0) << "an alert comes over a begun sheet";
  EXPECT_TRUE(window->isSheetUp());
  window->endSheet();
  EXPECT_FALSE(sheet.isVisible());
  EXPECT_EQ(window->currentSheet(), &sheet);
  whenUp([this] { window->cancelSheets(); });
  EXPECT_EQ(prompt(), -1);
}

TEST_F(HVWindowTest, TimedMessageBlocksAndPaints) {
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    ++ticks;
    key(Qt::Key_Escape);
    key(Qt::Key_Return);
  });
  timer.start(10);
  QElapsedTimer clock;
  clock.start();
  window->runMessageSheetWithTitle(QStringLiteral("Wait"), QStringLiteral("a little"), 0.2);
  EXPECT_GE(clock.elapsed(), 199);
  EXPECT_GT(ticks, 1);
}

TEST_F(HVWindowTest, OtherThreadsWaitForTheLock) {
  int code = 5;
  std::thread other;
  whenUp([&] {
    other = std::thread([&] { code = prompt(); });
    QTest::qWait(50);
    EXPECT_EQ(code, 5);
    whenUp([] { key(Qt::Key_Return); });
  });
  EXPECT_EQ(prompt(), 1);
  // The other's sheet runs within the waiting below.
  QTimer escape;
  QObject::connect(&escape, &QTimer::timeout, [this] {
    if (window->isSheetUp()) key(Qt::Key_Escape);
  });
  escape.start(5);
  for (int round = 0; round < 200 && code == 5; ++round) QTest::qWait(5);
  other.join();
  EXPECT_EQ(code, 0);
}

TEST_F(HVWindowTest, Titles) {
  const QString suffix = QStringLiteral("(2)");
  window->setTitleSuffix(suffix);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("null (2)"));
  window->setTitle(QStringLiteral("a%@"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("a%@ (2)"));
  window->setTitleSuffix({});
  window->setTitle({});
  EXPECT_EQ(window->windowTitle(), QStringLiteral("null"));
}

class MemoryFrames : public FrameStore {
 public:
  std::optional<QByteArray> frameForName(const QString& name) const override {
    const auto found = frames.find(name);
    return found == frames.end() ? std::nullopt : std::optional(found->second);
  }
  void setFrame(const QByteArray& frame, const QString& name) override { frames[name] = frame; }
  std::map<QString, QByteArray> frames;
};

TEST_F(HVWindowTest, RebuildsAndRemembersFrames) {
  MemoryFrames store;
  window->setFrameStore(&store);
  window->setFrameAutosaveName(QStringLiteral("Main"));
  window->setTitle(QStringLiteral("T"));
  window->setMinimumSize(300, 200);
  QWidget* content = window->centralWidget();
  {
    HVWindow rebuilt(*window, true);
    EXPECT_EQ(rebuilt.frameAutosaveName(), QStringLiteral("HVMain"));
    EXPECT_TRUE(rebuilt.styleMask() & HVWindow::texturedBackgroundWindowMask);
    EXPECT_FALSE(window->styleMask() & HVWindow::texturedBackgroundWindowMask);
    EXPECT_EQ(rebuilt.centralWidget(), content);
    EXPECT_EQ(rebuilt.minimumSize(), QSize(300, 200));
    EXPECT_EQ(rebuilt.windowTitle(), QStringLiteral("T"));
    rebuilt.resize(444, 333);
    rebuilt.show();
    EXPECT_TRUE(rebuilt.close());
  }
  HVWindow later;
  later.setFrameStore(&store);
  EXPECT_TRUE(later.setFrameAutosaveName(QStringLiteral("HVMain")));
  EXPECT_EQ(later.size(), QSize(444, 333));
  EXPECT_FALSE(later.setFrameAutosaveName(QStringLiteral("unknown")));
}

TEST_F(HVWindowTest, ZoomsWithoutTheToolbarAndBack) {
  QToolBar* toolbar = window->addToolBar(QStringLiteral("Tools"));
  toolbar->show();
  window->zoom();
  EXPECT_TRUE(window->isMaximized());
  EXPECT_TRUE(toolbar->isVisible());
  window->zoom();
  EXPECT_FALSE(window->isMaximized());
}

}  // namespace
}  // namespace quorvane::test
