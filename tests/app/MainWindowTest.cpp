// SPDX-License-Identifier: GPL-3.0-or-later
// The window as such: reached by keys and by assistive tools, translated, dropped on, remembered.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>
#include <QTextDocument>
#include <QTranslator>
#include <set>

#include "TestWindow.h"
#include "app/AboutController.h"
#include "app/LooksSheets.h"
#include "app/NoticeLabel.h"
#include "app/Translations.h"
#include "app/UpdateSheet.h"
#include "app/WindowArguments.h"
#include "iconfamily/CustomIcon.h"
#include "ui/HVColorWell.h"
#include "ui/HVTableView.h"
#include "ui/LabelTextField.h"
#include "ui/Texts.h"

namespace quorvane::test {
namespace {

/// Marks every text that was looked up.
class Marker : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char*, const char* text, const char*, int) const override {
    return QStringLiteral("\u00b6") + QString::fromUtf8(text);
  }
};

TEST(MainWindowTest, AWholeBrandingGoesByKeyboardAlone) {
  TestWindow test;
  test.launch();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&test.window));
  test.choice = test.folder;
  const auto press = [&](int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &test.window, Qt::Key(key), modifiers);
  };
  press(Qt::Key_O, Qt::ControlModifier);
  ASSERT_EQ(test.controller->path(), test.folder);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Tax"));
  press(Qt::Key_S, Qt::AltModifier);
  press(Qt::Key_Right);
  EXPECT_GT(test.ui()._shearSlider->value(), 0);
  while (QApplication::focusWidget() != test.ui()._folderView) press(Qt::Key_Backtab, Qt::ShiftModifier);
  press(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(test.ui()._folderView->canvasLabelCenter(), (Point{64, 74}));
  press(Qt::Key_Return, Qt::ControlModifier);
  QCoreApplication::processEvents();
  EXPECT_TRUE(test.hasBackup());
  press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_FALSE(test.hasBackup());
}

TEST(MainWindowTest, TabComesByEveryControlAndBack) {
  TestWindow test;
  test.launch();
  test.controller->applicationOpenFile(test.folder);
  test.controller->setLabel(QStringLiteral("Tax"));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&test.window));
  std::vector<QWidget*> met;
  while (met.size() < 60 && (met.empty() || QApplication::focusWidget() != met.front())) {
    met.push_back(QApplication::focusWidget());
    QTest::keyClick(met.back(), Qt::Key_Tab);
  }
  EXPECT_EQ(QApplication::focusWidget(), met.front());
  const Outlets& ui = test.ui();
  for (QWidget* control : std::initializer_list<QWidget*>{
           ui._openBtn, ui._folderView, ui._labelTF, ui._fontBtn, ui._fontSizeSlider->track(), ui._colorWell,
           ui._effectPopUp, ui._opacitySlider->track(), ui._resetBtn, ui._revertBtn, ui._applyBtn})
    EXPECT_NE(std::ranges::find(met, control), met.end()) << control->accessibleName().toStdString();
}

class MainWindowInLanguage : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Languages, MainWindowInLanguage, testing::Values("en", "de", "ja"));

TEST_P(MainWindowInLanguage, EveryControlHasANameAndNoKeyIsTakenTwice) {
  const Translations translations({QLatin1String(GetParam())});
  TestWindow test;
  test.launch();
  std::map<QString, QString> keys;
  const auto take = [&](const QString& key, const QString& who) {
    if (key.isEmpty()) return;
    EXPECT_TRUE(keys.emplace(key, who).second)
        << key.toStdString() << ": " << who.toStdString() << " and " << keys[key].toStdString();
  };
  for (QWidget* widget : test.window.findChildren<QWidget*>()) {
    if (const auto* button = qobject_cast<QAbstractButton*>(widget))
      take(QKeySequence::mnemonic(button->text()).toString(), button->text());
    if (const auto* label = qobject_cast<QLabel*>(widget); label && label->buddy())
      take(QKeySequence::mnemonic(label->text()).toString(), label->text());
    if (widget->focusPolicy() == Qt::NoFocus || widget->window() != &test.window || qobject_cast<QMenu*>(widget))
      continue;
    if (widget->objectName().startsWith(QLatin1String("qt_"))) continue;
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
    ASSERT_TRUE(accessible);
    EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << widget->metaObject()->className();
  }
  for (const QAction* menu : test.window.menuBar()->actions())
    take(QKeySequence::mnemonic(menu->text()).toString(), menu->text());
  for (const QMenu* menu : test.window.menuBar()->findChildren<QMenu*>()) {
    std::set<QString> letters;
    for (const QAction* action : menu->actions()) {
      const QString letter = QKeySequence::mnemonic(action->text()).toString();
      EXPECT_TRUE(letter.isEmpty() || letters.insert(letter).second) << action->text().toStdString();
    }
  }
  for (const QAction* action : test.window.findChildren<QAction*>())
    for (const QKeySequence& shortcut : action->shortcuts()) take(shortcut.toString(), action->text());
  EXPECT_TRUE(keys.contains(QStringLiteral("Ctrl+Shift+Z")));

  test.controller->showAboutWindow(nullptr);
  UpdateSheet update(
      {.version = {}, .runningVersion = {}, .news = QStringLiteral("x"), .pageHost = QStringLiteral("x")});
  SaveLookSheet save({});
  ManageLooksSheet manage(test.looks);
  for (QWidget* other :
       std::initializer_list<QWidget*>{&test.controller->preferenceController().window(),
                                       &test.controller->aboutController()->window(), &update, &save, &manage}) {
    keys.clear();
    for (const auto* button : other->findChildren<QAbstractButton*>())
      take(QKeySequence::mnemonic(button->text()).toString(), button->text());
    for (const auto* label : other->findChildren<QLabel*>())
      if (label->buddy()) take(QKeySequence::mnemonic(label->text()).toString(), label->text());
    EXPECT_GE(keys.size(), 3U);
  }
}

TEST(MainWindowTest, EveryTextIsLookedUp) {
  Marker marker;
  QCoreApplication::installTranslator(&marker);
  TestWindow test;
  test.launch();
  QCoreApplication::removeTranslator(&marker);
  int count = 0;
  const auto check = [&](const QString& text) {
    ++count;
    EXPECT_TRUE(text.isEmpty() || text.startsWith(QChar(0xb6))) << text.toStdString();
  };
  for (const QWidget* widget : test.window.findChildren<QWidget*>()) {
    if (widget == test.ui()._fontBtn || widget == test.ui()._colorWell) continue;  // they say a font and a colour
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) check(button->text());
    if (const auto* label = qobject_cast<const QLabel*>(widget)) check(label->text());
    check(widget->toolTip());
  }
  for (const QAction* action : test.window.findChildren<QAction*>())
    if (!action->isSeparator() && !action->property("plainName").isNull()) check(action->text());
  for (int item = 0; item < test.ui()._effectPopUp->count(); ++item) check(test.ui()._effectPopUp->itemText(item));
  EXPECT_GT(count, 60);
}

TEST(MainWindowTest, FoldersAreTakenAnywhereAndPicturesInTheirColumn) {
  TestWindow test;
  test.launch();
  const std::filesystem::path picture = test.tree / "base.png";
  ASSERT_TRUE(plainImage(Qt::red).rendered(64, 64).toImage().save(QString::fromStdString(picture.string())));
  const auto drop = [](QWidget& widget, const std::filesystem::path& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path.string()))});
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &event);
    QCoreApplication::processEvents();
    return true;
  };
  EXPECT_FALSE(drop(test.window, picture));
  EXPECT_FALSE(test.controller->path());
  EXPECT_TRUE(drop(test.window, test.folder));
  EXPECT_EQ(test.controller->path(), test.folder);
  EXPECT_TRUE(drop(*test.ui()._baseColumn->pictureCard(), picture));
  EXPECT_TRUE(test.ui()._folderView->baseIcon());
  EXPECT_TRUE(test.ui()._applyBtn->isEnabled());

  QApplication::clipboard()->setText(QStringLiteral("/nowhere/at/all"));
  test.controller->pasteFolderPath();
  EXPECT_FALSE(test.ui()._noticeLabel->text().isEmpty());
  test.controller->closeFolder();
  QApplication::clipboard()->setText(QString::fromStdString(test.folder.string()) + QLatin1Char('\n'));
  test.controller->pasteFolderPath();
  EXPECT_EQ(test.controller->path(), test.folder);
}

TEST(MainWindowTest, TheFrameIsRememberedAndMended) {
  TestWindow test;
  test.launch();
  test.window.setGeometry(40, 50, 1200, 700);
  test.window.close();
  EXPECT_TRUE(test.frames.frameForName(settings::mainWindowAutosaveName));
  test.window.resize(1000, 690);
  test.controller->awakeFromNib();
  EXPECT_EQ(test.window.width(), 1200);
  test.window.move(-5000, -5000);
  test.window.show();
  EXPECT_TRUE(test.window.screen()->availableGeometry().intersects(test.window.frameGeometry()));
}

TEST(MainWindowTest, PagesAreOpenedByTheirTags) {
  TestWindow test;
  test.launch();
  for (const int tag : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8}) test.controller->help(tag);
  EXPECT_EQ(test.pages, (std::vector<std::string>{"/quorvane/help/", "forum", "blog", "", "quorvane/faq/",
                                                  "quorvane/fb/", "quorvane/mu/"}));
  EXPECT_TRUE(test.ui()._noticeLabel->text().isEmpty());
  test.hasOpener = false;
  test.controller->perform(MenuCommand::Help);
  EXPECT_TRUE(test.ui()._noticeLabel->text().contains(QStringLiteral("No program")));
}

TEST(MainWindowTest, TheClipboardsItemsFollowTheFocus) {
  TestWindow test;
  test.launch();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&test.window));
  const auto enabled = [&] {
    std::string on;
    for (const auto& [letter, command] : {std::pair{'x', MenuCommand::Cut},
                                          {'c', MenuCommand::Copy},
                                          {'v', MenuCommand::Paste},
                                          {'a', MenuCommand::SelectAll}})
      if (test.ui()._mainMenu->action(command)->isEnabled()) on += letter;
    return on;
  };
  test.ui()._openBtn->setFocus();
  EXPECT_EQ(enabled(), "");
  test.ui()._baseColumn->library()->setLibrary(LibraryView::Custom);
  test.ui()._customTableView->setFocus();
  EXPECT_EQ(enabled(), "cva");
  QApplication::clipboard()->setImage(QImage(64, 64, QImage::Format_ARGB32));
  test.controller->perform(MenuCommand::NewSet);
  test.ui()._customTableView->setFocus();
  QTest::keyClick(test.ui()._customTableView, Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return test.ui()._customTableView->model()->rowCount() == 1; }));
  test.controller->applicationOpenFile(test.folder);
  EXPECT_EQ(enabled(), "xcva");
  test.window.menuBar()->setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(enabled(), "xcva") << "going through the menus by keys";
  test.ui()._openBtn->setFocus();
  EXPECT_EQ(enabled(), "c");
}

TEST(WindowTextsTest, PlacesAreFilledInTheirOrderOnly) {
  EXPECT_EQ(filled(QStringLiteral("%@ %.0f"), {QStringLiteral("100%@ %d"), QStringLiteral("36")}),
            QStringLiteral("100%@ %d 36"));
  EXPECT_EQ(filled(QStringLiteral("%d %"), {}), QStringLiteral("%d %"));
}

TEST(WindowTextsTest, ToolTipsSayNamesAsTheyStand) {
  for (const char* name : {"plain & simple", "a<b> <img src='/dev/tty'>", "&lt;"}) {
    const QString shown = plainToolTip(QString::fromLatin1(name));
    QTextDocument document;
    Qt::mightBeRichText(shown) ? document.setHtml(shown) : document.setPlainText(shown);
    EXPECT_EQ(document.toPlainText(), QString::fromLatin1(name));
  }
}

TEST(WindowTextsTest, AccessKeysAreTakenOutWhereverTheyStand) {
  for (const auto& [text, plain] : std::initializer_list<std::pair<QString, QString>>{
           {QStringLiteral("Re&vert"), QStringLiteral("Revert")},
           {QStringLiteral("\u958b\u304f(&O)\u2026"), QStringLiteral("\u958b\u304f\u2026")},
           {QStringLiteral("R&&D (&a few)"), QStringLiteral("R&D (a few)")},
           {QStringLiteral("&"), QString()}})
    EXPECT_EQ(withoutAccessKey(text), plain);
}

TEST(WindowArgumentsTest, OptionsAndFoldersAreToldApart) {
  EXPECT_EQ(parseWindowArguments({"a", "--", "--help"}).folders, (std::vector<std::string>{"a", "--help"}));
  EXPECT_EQ(parseWindowArguments({"--help"}).exitCode, 0);
  EXPECT_EQ(parseWindowArguments({"--nonsense"}).exitCode, 2);
  const auto restored = parseWindowArguments({"-session", "10e_17", "a", "--style=fusion", "--", "-reverse"});
  EXPECT_FALSE(restored.words) << *restored.words;
  EXPECT_EQ(restored.folders, (std::vector<std::string>{"a", "-reverse"}));
  EXPECT_EQ(restored.toolkitOptions, (std::vector<std::string>{"-session", "10e_17", "--style=fusion"}));
  EXPECT_TRUE(parseWindowArguments({"--platform", "offscreen", "-nograb", "-title", "x"}).namesDisplay);
  // What Qt would not understand either.
  for (const char* wrong : {"-session", "--style", "--session=1", "-platform=xcb", "-reverse=1", "-fontengine"})
    EXPECT_EQ(parseWindowArguments({"a", wrong}).exitCode, 2) << wrong;
}

}  // namespace
}  // namespace quorvane::test
