// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/IconLibrary.h"

#include <cstring>

#include "imaging/PngCodec.h"
#include "library/core/ZipFile.h"
#include "library_core/LibraryFixture.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;

class IconLibraryTest : public LibraryFixture {};

TEST_F(IconLibraryTest, AFreshUserGetsOneEmptySetAndAFormerLibraryIsMoved) {
  setOf("Old", {"a.icns"});
  fs::create_directories(tree / "home/Library");
  fs::rename(root, tree / "home/Library/Quorvane");
  EXPECT_EQ(library.createCustomIconsFolder(), root);
  EXPECT_FALSE(fs::exists(tree / "home/Library/Quorvane"));
  EXPECT_THAT(namesOf(library.customIconSets()), ElementsAre("Old"));
  fs::remove_all(root);
  EXPECT_EQ(library.createCustomIconsFolder(), root);
  EXPECT_THAT(namesOf(library.customIconSets()), ElementsAre("New Set"));
  EXPECT_THAT(listed(root / setListName), ElementsAre("New Set"));
  EXPECT_EQ(library.pathToNewSet({"New Set", "New Set 1"}), root / "New Set 2");
  EXPECT_EQ(library.pathToNewSet({"New Set 1"}), root / "New Set");
}

TEST_F(IconLibraryTest, SetsComeInTheListsOrderAndOnlyOutOfTheLibrary) {
  for (const char* name : {"A", "B", "C"}) setOf(name, {"a.icns"});
  setOf("../outside", {"o.icns"});
  fs::create_directory_symlink(tree / "outside", root / "Linked");
  fs::create_directory(root / Folder::temporaryName());
  writeFile(root / "file", "x");
  const std::string before = describeTree(tree / "outside");
  list(root / setListName, {"B", "gone", "../outside", (tree / "outside").string(), "Linked", "file", "A", "B", "."});
  EXPECT_THAT(namesOf(library.customIconSets()), ElementsAre("B", "A", "C"));
  EXPECT_THAT(listed(root / setListName), ElementsAre("B", "A", "C"));
  EXPECT_EQ(describeTree(tree / "outside"), before);
  // The built-in one is as it says, and only read.
  fs::rename(root, tree / "builtin");
  list(tree / "builtin" / setListName, {"C", "../outside", "A"});
  EXPECT_THAT(namesOf(library.builtinIconSets()), ElementsAre("C", "A"));
  EXPECT_THAT(listed(tree / "builtin" / setListName), ElementsAre("C", "../outside", "A"));
}

TEST_F(IconLibraryTest, OnlyASetWithoutIconsIsRemovedAndNothingElseIsLost) {
  const auto blue = setOf("Blue", {"a.icns"});
  EXPECT_FALSE(library.removeSet(*blue).ok());
  ASSERT_TRUE(blue->removeIconFileWithName("a.icns").ok());
  writeFile(root / "Blue/notes.txt", "mine");
  const auto item = library.removeSet(*blue);
  ASSERT_TRUE(item.ok() && item->has_value());
  EXPECT_FALSE(fs::exists(root / "Blue"));
  EXPECT_EQ(trash.restore(**item), root / "Blue");
  EXPECT_TRUE(fs::exists(root / "Blue/notes.txt"));
  services.trash = nullptr;
  const IconLibrary withoutTrash({.builtin = {}, .custom = root, .former = {}}, services);
  EXPECT_FALSE(withoutTrash.removeSet(*blue).ok());
  fs::remove(root / "Blue/notes.txt");
  EXPECT_TRUE(withoutTrash.removeSet(*blue).ok());
  EXPECT_FALSE(fs::exists(root / "Blue"));
  fs::create_directory(root / "Blue");
  fs::create_directories(root / "Blue/Papers/deep");
  fs::remove_all(tree / "trash");
  EXPECT_FALSE(blue->removeIconFileWithName("Papers").ok()) << "neither to the trash nor for good";
  EXPECT_TRUE(fs::exists(root / "Blue/Papers/deep"));
  fs::create_directory_symlink(tree / "source", root / "Link");
  EXPECT_FALSE(library.removeSet(*set("Link")).ok());
  EXPECT_TRUE(fs::exists(tree / "source/icon.icns"));
}

TEST_F(IconLibraryTest, IconsAreFoundByTheirNamesYoursFirst) {
  setOf("../builtin/Sky", {"blue.icns", "dark.icns"});
  setOf("Sky", {"blue.icns", "both.icns"});
  writeFile(root / "Sky/both.png", *encodePng(filledBitmap(4, 4)));
  const LibraryPlaces places{.builtin = tree / "builtin", .custom = root, .former = {}};
  EXPECT_EQ(findLibraryIcon("Sky/blue", places).value(), root / "Sky/blue.icns");
  EXPECT_EQ(findLibraryIcon("Sky/dark.icns", places).value(), tree / "builtin/Sky/dark.icns");
  EXPECT_EQ(findLibraryIcon("Sky/both.png", places).value(), root / "Sky/both.png");
  for (const char* words : {"Sky", "Sky/", "Sky/none", "Sky/both", "Sky/../../x"})
    EXPECT_FALSE(findLibraryIcon(words, places).ok()) << words;
  for (const char* words : {"none/x", "../builtin/Sky/blue", "/Sky/blue", ""})
    EXPECT_EQ(findLibraryIcon(words, places).value(), std::nullopt) << words;
}

TEST_F(IconLibraryTest, WhatWasDoneCanBeTakenBack) {
  LibraryUndo undo(library);
  const auto set = setOf("Blue", {"a.icns", "b.icns", "c.icns", "d.icns"});
  const Bytes content = readFile(root / "Blue/b.icns");
  ASSERT_TRUE(undo.removeIcons(set, {"b.icns", "d.icns"}).ok());
  EXPECT_THAT(listed(root / "Blue" / iconListName), ElementsAre("a.icns", "c.icns"));
  ASSERT_TRUE(undo.setOrder(set, {set->icons()[1], set->icons()[0]}).ok());
  ASSERT_TRUE(undo.renameSet(set, "Red").ok());
  undo.noteAdded(set, {set->addIconAtPath(tree / "source/icon.icns")->name});
  const auto empty = setOf("Empty", {});
  ASSERT_TRUE(undo.removeSet(empty).ok());
  EXPECT_FALSE(fs::exists(root / "Empty"));
  const LibraryAction actions[] = {LibraryAction::RemoveSet, LibraryAction::AddIcons, LibraryAction::RenameSet,
                                   LibraryAction::ReorderIcons, LibraryAction::RemoveIcons};
  for (const LibraryAction action : actions) {
    ASSERT_TRUE(undo.canUndo());
    EXPECT_EQ(undo.nextAction(), action);
    EXPECT_TRUE(undo.undo().ok());
  }
  EXPECT_FALSE(undo.canUndo());
  EXPECT_TRUE(fs::exists(root / "Empty"));
  EXPECT_THAT(namesOf(set->icons()), ElementsAre("a.icns", "b.icns", "c.icns", "d.icns"));
  EXPECT_EQ(listed(root / "Blue" / iconListName), namesOf(set->icons()));
  EXPECT_EQ(readFile(root / "Blue/b.icns"), content);
  EXPECT_FALSE(fs::exists(tree / "trash/b.icns"));
  // The name is taken meanwhile, and another file is gone from the trash.
  ASSERT_TRUE(undo.removeIcons(set, {"b.icns", "c.icns"}).ok());
  picture(root / "Blue/b.icns", 77);
  fs::remove(tree / "trash/c.icns");
  EXPECT_FALSE(undo.undo().ok());
  EXPECT_THAT(namesOf(set->icons()), ElementsAre("a.icns", "b-1.icns", "d.icns"));
  EXPECT_NE(readFile(root / "Blue/b.icns"), content);
  // So are the names of sets.
  writeFile(root / "Empty/notes.txt", "x");
  ASSERT_TRUE(undo.removeSet(empty).ok());
  ASSERT_TRUE(undo.renameSet(set, "Red").ok());
  setOf("Blue", {"other.icns"});
  setOf("Empty", {"other.icns"});
  EXPECT_FALSE(undo.undo().ok());
  EXPECT_TRUE(undo.undo().ok());
  EXPECT_EQ(empty->path(), root / "Empty-1");
  EXPECT_EQ(set->name() + listed(root / "Red" / iconListName).front(), "Reda.icns");
}

TEST_F(IconLibraryTest, ASetGoesOutAsOneFileAndComesInAgain) {
  const auto set = setOf("Grün", {"b.icns", "a.icns"});
  writeFile(root / "Grün/p.png", *encodePng(filledBitmap(4, 4)));
  writeFile(root / "Grün/notes.txt", "x");
  ASSERT_TRUE(exportSet(set->path(), tree / "set.zip", services).ok());
  const auto path = importSet(tree / "set.zip", root, services);
  ASSERT_TRUE(path.ok()) << path.error().message();
  EXPECT_EQ(*path, root / "Grün 1");
  EXPECT_THAT(namesOf(IconSet::initWithPath(*path, services)->icons()), ElementsAre("b.icns", "a.icns", "p.png"));
  EXPECT_EQ(readFile(root / "Grün 1/a.icns"), readFile(root / "Grün/a.icns"));
  EXPECT_FALSE(fs::exists(root / "Grün 1/notes.txt"));
  // Python's own reader and writer agree, and Mac-like and picture entries come in.
  const std::string script =
      "import zipfile,sys; d=sys.argv[1]; z=zipfile.ZipFile(d+'/set.zip'); assert z.testzip() is None\n"
      "assert z.namelist()==['Grün/b.icns','Grün/a.icns','Grün/p.png','Grün/QVIcons.plist'],z.namelist()\n"
      "o=zipfile.ZipFile(d+'/theirs.zip','w',zipfile.ZIP_DEFLATED)\n"
      "for n,s in (('x/','') ,('x/B.PNG','Grün/p.png'),('x/._B.PNG',''),('__MACOSX/x/c.png',''),('x/deep/d.png',''),"
      "('x/a.icns','Grün/a.icns'),('x/read.txt','')): o.writestr(n, z.read(s) if s else '')\n"
      "o.close()\n";
  writeFile(tree / "zip.py", script);
  ASSERT_EQ(std::system(("python3 '" + (tree / "zip.py").string() + "' '" + tree.path().string() + "'").c_str()), 0);
  const auto theirs = importSet(tree / "theirs.zip", root, services);
  ASSERT_TRUE(theirs.ok()) << theirs.error().message();
  EXPECT_THAT(namesOf(IconSet::initWithPath(*theirs, services)->icons()), ElementsAre("B.icns", "a.icns"));
}

TEST_F(IconLibraryTest, WhateverTheyAreCalledSetsComeInVisibleAndWhole) {
  const Bytes icon = readFile(tree / "source/icon.icns");
  const std::pair<const char*, const char*> table[] = {{"sets.plist/a.icns", "sets.plist 1"},
                                                       {".quorvane/a.icns", ".quorvane 1"},
                                                       {".quorvane-abcdefgh.tmp/a.icns", ".quorvane-abcdefgh.tmp 1"},
                                                       {"a.icns", "New Set"}};
  for (const auto& [entry, wanted] : table) {
    library::ZipWriter zip;
    ASSERT_TRUE(zip.add(entry, icon, true).ok());
    writeFile(tree / "...zip", *std::move(zip).finish());
    const auto path = importSet(tree / "...zip", root, services);
    ASSERT_TRUE(path.ok()) << entry << path.error().message();
    EXPECT_EQ(path->filename(), wanted);
  }
  EXPECT_EQ(namesOf(library.customIconSets()).size(), std::size(table));
  EXPECT_EQ(listed(root / setListName).size(), std::size(table));
  // Names that an archive cannot carry, and one that shows nothing.
  const auto odd = setOf("back\\slash", {".hidden.icns", "a\\b.icns", "_hidden.icns"});
  const Bytes png = *encodePng(filledBitmap(4, 4));
  writeFile(odd->path() / "cut.png", Bytes(png.begin(), png.begin() + 40));
  ASSERT_TRUE(exportSet(odd->path(), tree / "odd.zip", services).ok());
  const auto path = importSet(tree / "odd.zip", root, services);
  ASSERT_TRUE(path.ok()) << path.error().message();
  EXPECT_THAT(namesOf(IconSet::initWithPath(*path, services)->icons()),
              ElementsAre("_hidden.icns", "a_b.icns", "_hidden-1.icns"));
}

TEST_F(IconLibraryTest, AZipFileThatLeadsElsewhereOrIsDamagedLeavesNothing) {
  const Bytes icon = readFile(tree / "source/icon.icns");
  const std::string before = describeTree(root);
  const std::vector<Names> hostile{
      {"../a.icns"}, {"/a.icns"},          {"x/../a.icns"},          {"x\\a.icns"}, {"./a.icns"},
      {"x//a.icns"}, {"a.icns", "A.icns"}, {"x/a.icns", "y/a.icns"}, {"notes.txt"}, {}};
  for (const Names& names : hostile) {
    library::ZipWriter zip;
    for (const std::string& name : names) ASSERT_TRUE(zip.add(name, icon, true).ok());
    const auto made = std::move(zip).finish();
    writeFile(tree / "bad.zip", made ? *made : Bytes());
    EXPECT_FALSE(importSet(tree / "bad.zip", root, services).ok()) << ::testing::PrintToString(names);
  }
  library::ZipWriter bomb;
  ASSERT_TRUE(bomb.add("a.icns", Bytes(64 << 20), true).ok());
  const Bytes packed = *std::move(bomb).finish();
  ASSERT_LT(packed.size(), 100'000U);
  writeFile(tree / "bad.zip", packed);
  EXPECT_EQ(importSet(tree / "bad.zip", root, services).error().kind(), ErrorKind::TooLarge);
  // In a long file as well: one that says so of its entries is enough.
  library::ZipWriter padded;
  ASSERT_TRUE(padded.add("notes.txt", Bytes(20 << 20), false).ok());
  for (const char* name : {"a.icns", "b.icns", "c.icns"}) ASSERT_TRUE(padded.add(name, icon, true).ok());
  Bytes claims = *std::move(padded).finish();
  for (std::size_t at = 20 << 20; at + 46 < claims.size(); ++at)
    if (std::memcmp(&claims[at], "PK\1\2", 4) == 0 && claims[at + 46] != 'n') claims[at + 27] = 0x1F;
  writeFile(tree / "bad.zip", claims);
  EXPECT_EQ(importSet(tree / "bad.zip", root, services).error().kind(), ErrorKind::TooLarge);
  library::ZipWriter good;
  ASSERT_TRUE(good.add("a.icns", icon, true).ok());
  Bytes whole = *std::move(good).finish();
  for (std::size_t length = 0; length < whole.size(); length += 7) {
    writeFile(tree / "bad.zip", Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
    EXPECT_FALSE(importSet(tree / "bad.zip", root, services).ok()) << length;
  }
  whole[60] ^= 0xFF;
  writeFile(tree / "bad.zip", whole);
  EXPECT_FALSE(importSet(tree / "bad.zip", root, services).ok());
  const std::string link =
      "import zipfile,sys; o=zipfile.ZipFile(sys.argv[1],'w'); i=zipfile.ZipInfo('a.icns'); i.create_system=3\n"
      "i.external_attr=0o120777<<16; o.writestr(i,'/etc/passwd'); o.close()\n";
  writeFile(tree / "zip.py", link);
  ASSERT_EQ(std::system(("python3 '" + (tree / "zip.py").string() + "' '" + (tree / "bad.zip").string() + "'").c_str()),
            0);
  EXPECT_EQ(importSet(tree / "bad.zip", root, services).error().kind(), ErrorKind::Refused);
  EXPECT_EQ(describeTree(root), before);
}

TEST_F(IconLibraryTest, AFolderOfPicturesBecomesASetAllOrNothing) {
  for (const char* name : {"10.png", "2.PNG", "b.tif"})
    fs::create_directories(tree / "Pics"), writeFile(tree / "Pics" / name, *encodePng(filledBitmap(4, 4)));
  writeFile(tree / "Pics/broken.png", "x");
  writeFile(tree / "Pics/notes.txt", "x");
  const std::string before = describeTree(root);
  EXPECT_FALSE(
      setFromFolder(tree / "Pics", root, services, [](std::size_t done, std::size_t) { return done < 2; }).ok());
  int asked = 0;
  EXPECT_FALSE(setFromFolder(tree / "Pics", root, services, [&](auto, auto) { return ++asked < 6; }).ok())
      << "while the files are written";
  EXPECT_EQ(describeTree(root), before);
  const auto path = setFromFolder(tree / "Pics", root, services);
  ASSERT_TRUE(path.ok()) << path.error().message();
  EXPECT_THAT(namesOf(set("Pics")->icons()), ElementsAre("2.icns", "10.icns", "b.icns"));
  EXPECT_EQ(readFile(root / "Pics/b.icns"), readFile(root / "Pics/2.icns")) << "the picture, not its kind's";
  std::size_t calls = 0;
  const std::vector<fs::path> sources(5, tree / "source/icon.icns");
  const auto added = addIconsAtPaths(sources, *path, services, [&](std::size_t, std::size_t) { return ++calls < 3; });
  EXPECT_EQ(added.size(), 3U);
  EXPECT_EQ(added[2]->name, "icon-2.icns");
}

}  // namespace
}  // namespace quorvane::test
