// SPDX-License-Identifier: GPL-3.0-or-later
// Editing the lists of sets and icons.
#include <QLineEdit>
#include <QTextDocument>
#include <QTranslator>

#include "LibraryFixture.h"
#include "library/view/EmptyState.h"
#include "library/view/LibraryPanels.h"
#include "library/view/LibrarySearch.h"
#include "library/view/SegmentedControl.h"
#include "library/view/Thumbnails.h"

namespace quorvane::test {
namespace {

using SetListTest = LibraryFixture;
using IconListTest = LibraryFixture;
using LibraryViewTest = LibraryFixture;

TEST_F(SetListTest, NamesNewSetsAndLetsTheNameBeEdited) {
  const struct {
    std::vector<std::string> sets;
    const char* name;
  } cases[] = {{{"New Set", "New Set 1"}, "New Set 2"}, {{"New Set 1"}, "New Set"}, {{"Blue"}, "New Set"}};
  for (const auto& each : cases) {
    std::filesystem::remove_all(tree / "Icons");
    for (const std::string& name : each.sets) std::filesystem::create_directories(tree / "Icons" / name);
    open();
    EXPECT_EQ(sets().pathToNewSet().filename(), each.name);
  }
  writeFile(tree / "Icons/New Set", std::string("no set"));
  EXPECT_EQ(sets().pathToNewSet().filename(), "New Set 1");
  std::filesystem::remove(tree / "Icons/New Set");
  view->activateWindow();
  view->perform(LibraryCommand::NewSet);
  EXPECT_TRUE(std::filesystem::is_directory(tree / "Icons/New Set"));
  QCoreApplication::processEvents();
  auto* editor = setTable().findChild<QLineEdit*>();
  ASSERT_TRUE(editor);
  EXPECT_EQ(editor->selectedText(), QStringLiteral("New Set"));
  QTest::keyClicks(editor, QStringLiteral("Gruen"));
  QTest::keyClick(editor, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_TRUE(std::filesystem::is_directory(tree / "Icons/Gruen"));
  EXPECT_EQ(sets().selectedObjects().front()->name(), "Gruen");
  controller->undo();
  EXPECT_EQ(shownSets(), "Blue New Set");
  controller->undo();
  EXPECT_EQ(shownSets(), "Blue");
}

TEST_F(SetListTest, RemovesEmptySetsAndTheFirstRow) {
  makeSet("Blue", {"a"});
  for (const char* name : {"Red", "Green"}) makeSet(name, {});
  open();
  select(setTable(), {0});
  view->perform(LibraryCommand::RemoveSet);
  EXPECT_EQ(said.value(0), QStringLiteral("Icon Set 'Blue' Not Empty"));
  EXPECT_EQ(shownSets(), "Blue Red Green");
  select(setTable(), {0, 2});
  QTest::keyClick(&setTable(), Qt::Key_Delete);
  EXPECT_EQ(said.size(), 4);
  EXPECT_EQ(shownSets(), "Red Green") << "the first row goes, whichever set it was";
  EXPECT_FALSE(std::filesystem::exists(tree / "Icons/Green"));
  EXPECT_TRUE(std::filesystem::exists(tree / "Icons/Blue/a.icns"));
  controller->undo();
  EXPECT_TRUE(std::filesystem::exists(tree / "Icons/Green"));
  EXPECT_EQ(shownSets(), "Blue Red Green") << "the list is right when it is read";
}

TEST_F(SetListTest, ARemovedSetComesBackWithWhatIsTakenBackInItBefore) {
  makeSet("Blue", {"a"});
  makeSet("Red", {});
  open();
  select(iconTable(), {0});
  controller->removeSelectedIcons();
  view->perform(LibraryCommand::RemoveSet);
  EXPECT_EQ(shownSets(), "Red");
  controller->undo();
  controller->undo();
  select(setTable(), {0});
  EXPECT_EQ(shownSets() + "|" + shown() + "|" + onDisk("Blue"), "Blue Red|a|a");
}

TEST_F(SetListTest, ANameThatIsTakenOrNotEditedRemovesNothingElse) {
  makeSet("Blue", {"a", "b"});
  makeSet("Green", {"a", "c"});
  makeSet("\xFF", {});
  open();
  EXPECT_FALSE(sets().setName(2, setTable().model()->index(2, 0).data(Qt::EditRole).toString()));
  EXPECT_TRUE(std::filesystem::exists(tree / "Icons/\xFF"));
  sets().setName(0, QStringLiteral("Green"));
  EXPECT_EQ(shown(), "a c") << "the other one's are shown";
  select(iconTable(), {0});
  controller->removeSelectedIcons();
  EXPECT_EQ(onDisk("Green"), "c") << "what was seen is removed";
  sets().removeObjectAtArrangedObjectIndex(1);
  select(iconTable(), {0});
  controller->removeSelectedIcons();
  EXPECT_EQ(onDisk("Green"), "") << "also when that set has left the list";
  EXPECT_TRUE(std::filesystem::exists(tree / "Icons/Blue/a.icns"));
}

TEST_F(SetListTest, FoldersAndZipFilesBecomeSets) {
  makeSet("Blue", {"a", "b"});
  std::filesystem::create_directory(tree / "Animals");
  for (const char* name : {"cat.png", "dog.png"})
    ASSERT_TRUE(plainImage(Qt::red, 128).writeToPNGFile(tree / "Animals" / name).ok());
  writeFile(tree / "Animals/notes.txt", std::string("no picture"));
  open();
  EXPECT_EQ(drop(setTable(), *files({tree / "Animals"}), 0, false).action, Qt::CopyAction);
  EXPECT_EQ(shownSets() + "|" + shown(), "Blue Animals|cat dog") << "the new one is selected";
  select(setTable(), {0});
  choice = tree / "Blue.zip";
  view->perform(LibraryCommand::ExportSet);
  view->perform(LibraryCommand::ImportSet);
  EXPECT_EQ(sets().count(), 3);
  EXPECT_EQ(shown(), "a b");
  EXPECT_EQ(drop(setTable(), *files({tree / "Animals/cat.png"}), 0, false).isEntered, false);
  EXPECT_FALSE(sets().tableViewRefusal(setTable(), *files({tree / "Animals/cat.png"})).isEmpty());
  controller->undo();
  EXPECT_EQ(sets().count(), 2);
}

TEST_F(IconListTest, AddsWhatIsChosen) {
  makeSet("Blue", {"a"});
  ASSERT_TRUE(plainImage(Qt::red, 128).writeToPNGFile(tree / "photo.PNG").ok() ||
              std::filesystem::exists(tree / "photo.PNG"));
  open();
  view->perform(LibraryCommand::AddIcon);
  EXPECT_EQ(shown(), "a") << "nothing was chosen";
  choice = tree / "photo.PNG";
  view->perform(LibraryCommand::AddIcon);
  EXPECT_EQ(shown() + "|" + onDisk("Blue"), "a photo|a photo");
  EXPECT_TRUE(std::filesystem::exists(tree / "photo.PNG"));
  writeFile(tree / "broken.png", std::string("no picture"));
  choice = tree / "broken.png";
  view->perform(LibraryCommand::AddIcon);
  EXPECT_EQ(shown(), "a photo");
  EXPECT_TRUE(failures.value(0).contains(QStringLiteral("broken.png"))) << "and why is said";
}

TEST_F(IconListTest, AsksBeforeItRemoves) {
  makeSet("Blue", {"a", "b", "c", "d"});
  open();
  select(iconTable(), {0, 1, 3});
  answer = 0;
  QTest::keyClick(&iconTable(), Qt::Key_Delete);
  EXPECT_EQ(said, (QStringList{QStringLiteral("Are you sure you want to delete the 3 selected icons?"),
                               QStringLiteral("You cannot undo this action."), QStringLiteral("Delete"),
                               QStringLiteral("Cancel")}));
  EXPECT_EQ(shown() + "|" + onDisk("Blue"), "a b c d|a b c d");
  answer = 1;
  controller->removeSelectedIcons();
  EXPECT_EQ(shown() + "|" + onDisk("Blue"), "c|c");
  controller->undo();
  EXPECT_EQ(shown() + "|" + onDisk("Blue"), "a b c d|a b c d") << "in their places";
  select(iconTable(), {1});
  meanwhile = [&] { select(iconTable(), {2}); };
  controller->removeSelectedIcons();
  EXPECT_EQ(shown() + "|" + onDisk("Blue"), "a c d|a c d") << "the one that was asked about";
  meanwhile = {};
  controller->undo();
  said.clear();
  select(iconTable(), {2});
  std::filesystem::remove(tree / "Icons/Blue/c.icns");
  controller->removeSelectedIcons();
  EXPECT_EQ(said.value(0), QStringLiteral("Are you sure you want to delete the selected icon?"));
  EXPECT_EQ(shown(), "a b d") << "a file that is gone already does no harm";
}

TEST_F(LibraryViewTest, FindsIconsOfBothLibraries) {
  makeSet("Blue", {"Cat", "Dog"});
  makeSet("Cats and more", {"Lion"}, "BaseIcons");
  open();
  LibrarySearch& found = *view->searchResults();
  view->searchField()->setText(QStringLiteral("cat"));
  ASSERT_EQ(found.model()->rowCount(), 2) << "by its own name and by its set's";
  EXPECT_TRUE(found.isVisible() && !iconTable().isVisible());
  found.selectRow(1);
  EXPECT_EQ(chosen.back(), "Lion.icns");
  Q_EMIT found.activated(found.model()->index(1, 0));
  EXPECT_EQ(view->library(), LibraryView::Builtin);
  EXPECT_EQ(controller->builtinIconArrayController().selectionIndexes().array(), QList<int>{0});
  view->searchField()->setText(QStringLiteral("zebra"));
  EXPECT_TRUE(found.emptyState()->isVisible());
  view->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
  view->perform(LibraryCommand::Find);
  QTest::keyClick(view->searchField(), Qt::Key_Escape);
  EXPECT_FALSE(found.isVisible());
}

TEST_F(LibraryViewTest, BuiltinNamesAreShownInTheUsersLanguageAndFoundInBoth) {
  class Language : public QTranslator {
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* text, const char*, int) const override {
      if (context != std::string_view("BuiltinLibrary")) return {};
      return text == std::string_view("Cat")      ? QStringLiteral("Katze")
             : text == std::string_view("Beasts") ? QStringLiteral("Tiere")
                                                  : QString();
    }
  } language;
  QCoreApplication::installTranslator(&language);
  makeSet("Beasts", {"Cat"});
  makeSet("Beasts", {"Cat", "Lion"}, "BaseIcons");
  open();
  LibrarySearch& found = *view->searchResults();
  const auto finds = [&](const char* words) {
    view->searchField()->setText(QLatin1String(words));
    QStringList names;
    for (int row = 0; row < found.model()->rowCount(); ++row)
      names << found.model()->index(row, 0).data(Qt::AccessibleTextRole).toString();
    return names.join(QStringLiteral("; ")).toStdString();
  };
  EXPECT_EQ(finds("cat"), "Cat, in Beasts; Katze, built-in, in Tiere");
  EXPECT_EQ(finds("tiere lion"), "Lion, built-in, in Tiere");
  EXPECT_EQ(controller->shownName(tree / "BaseIcons/Beasts/Cat.icns"), QStringLiteral("Katze"));
  EXPECT_EQ(controller->shownName(tree / "Icons/Beasts/Cat.icns"), QStringLiteral("Cat"));
  QCoreApplication::removeTranslator(&language);
}

TEST_F(LibraryViewTest, NamesAreNoMarkup) {
  makeSet("<h1>A&B", {"<b>c"});
  open();
  view->searchField()->setText(QStringLiteral("c"));
  const std::pair<QAbstractItemModel*, const char*> tips[] = {{setTable().model(), "<h1>A&B, 1 icon"},
                                                              {iconTable().model(), "<b>c.icns"},
                                                              {view->searchResults()->model(), "<b>c, in <h1>A&B"}};
  for (const auto& [model, wanted] : tips) {
    QTextDocument shown;
    shown.setHtml(model->index(0, 0).data(Qt::ToolTipRole).toString());
    EXPECT_EQ(shown.toPlainText(), QLatin1String(wanted));
  }
}

TEST_F(LibraryViewTest, SaysWhyAListIsEmpty) {
  makeSet("Blue", {});
  makeSet("Red", {});
  open();
  EmptyState& state = *view->page(LibraryView::Custom)->emptyState();
  EXPECT_TRUE(state.isVisible());
  EXPECT_EQ(state.heading(), QStringLiteral("No icons in this set"));
  select(setTable(), {0, 1});
  EXPECT_TRUE(state.heading().contains(QStringLiteral("selected")));
  view->setLibrary(LibraryView::Builtin);
  EmptyState& builtin = *view->page(LibraryView::Builtin)->emptyState();
  EXPECT_TRUE(builtin.isVisible());
  Q_EMIT builtin.stepTaken();
  EXPECT_EQ(view->library(), LibraryView::Custom);
}

TEST_F(LibraryViewTest, ADragThatWaitsOverALibraryOpensIt) {
  open();
  QMimeData data;
  QWidget* segment = view->libraries()->segment(LibraryView::Builtin);
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(segment, &enter);
  EXPECT_EQ(view->library(), LibraryView::Custom);
  EXPECT_TRUE(QTest::qWaitFor([&] { return view->library() == LibraryView::Builtin; }, 3000));
}

TEST_F(LibraryViewTest, ThumbnailsComeLaterAndStayWithinTheirBound) {
  makeSet("Blue", {"a", "b", "c"});
  open();
  constexpr std::size_t most = 3 * 64 * 64 * 4 / 2;
  Thumbnails thumbnails(libraryServices, most);
  const auto& all = icons().arrangedObjects();
  for (const IconRecord& icon : all) EXPECT_FALSE(thumbnails.picture(icon, 64));
  for (const IconRecord& icon : all)
    ASSERT_TRUE(QTest::qWaitFor([&] { return thumbnails.picture(icon, 64).has_value(); }, 5000));
  EXPECT_EQ(thumbnails.picture(all.back(), 64)->pixelColor(32, 32), QColor(Qt::blue));
  EXPECT_LE(thumbnails.bytes(), most);
  for (const ImageRep& rep : all.front().image.representations()) EXPECT_TRUE(rep.isPending());
  writeFile(tree / "Icons/Blue/b.icns", std::string("broken"));
  IconRecord broken = all[1];
  broken.image = Image({64, 64});
  ASSERT_TRUE(QTest::qWaitFor([&] { return thumbnails.picture(broken, 64).has_value(); }, 5000));
  EXPECT_TRUE(thumbnails.picture(broken, 64)->isNull());
}

TEST_F(IconListTest, ThePanelChoosesFilesAndFolders) {
  makeSet("Blue", {"a"});
  open();
  OpenPanel panel(QStringLiteral("Add Icon"), QStringLiteral("Add Icon"), {pictureNameFilter()});
  panel.setDirectory(QFile::decodeName((tree / "Icons").c_str()));
  IconPreview preview(iconPreviewReader(libraryServices), WorkQueue::Mode::AtOnce);
  panel.setAccessoryView(&preview);
  panel.show();
  panel.selectFile(QStringLiteral("Blue"));
  QCoreApplication::processEvents();
  panel.setFocus();
  panel.accept();
  EXPECT_EQ(panel.result(), QDialog::Accepted);
  EXPECT_EQ(panel.path(), tree / "Icons/Blue");
  preview.setPath(tree / "Icons/Blue/a.icns");
  EXPECT_TRUE(preview.text().contains(QStringLiteral("512"))) << preview.text().toStdString();
  writeFile(tree / "broken.icns", std::string("no family"));
  preview.setPath(tree / "broken.icns");
  EXPECT_TRUE(preview.text().contains(QStringLiteral("No picture")));
  preview.setParent(nullptr);
}

}  // namespace
}  // namespace quorvane::test
