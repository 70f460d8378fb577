// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/IconSet.h"

#include <sys/stat.h>

#include "imaging/PngCodec.h"
#include "library_core/LibraryFixture.h"

namespace quorvane::test {
namespace {

using namespace std::string_literals;

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class IconSetTest : public LibraryFixture {};

TEST_F(IconSetTest, LoadingFollowsTheListDropsWhatIsGoneAndAddsWhatIsNew) {
  for (const char* name : {"a.icns", "b.icns", "c.icns", "d.ICNS", ".hidden.icns"}) picture(root / "S" / name);
  writeFile(root / "S/notes.txt", "x");
  writeFile(root / "S/broken.icns", "icns");
  writeFile(root / "S/photo.jpg", "x");
  fs::create_directories(root / "S/folder.x");
  fs::create_directories(root / "S/folder.png");
  list(root / "S" / iconListName,
       {"a.icns", "gone.icns", "b.icns", "../S/c.icns", "a.icns", "/etc/passwd", "", "..", "."});
  const auto set = this->set("S");
  ASSERT_EQ(set->icons().size(), 5U);
  EXPECT_EQ(set->icons()[0].name, "a.icns");
  EXPECT_EQ(set->icons()[1].name, "b.icns");
  EXPECT_EQ(set->icons()[1].path, root / "S/b.icns");
  EXPECT_THAT(namesOf(set->icons()), UnorderedElementsAre("a.icns", "b.icns", "c.icns", ".hidden.icns", "folder.x"));
  EXPECT_EQ(listed(root / "S" / iconListName), namesOf(set->icons()));
  const Image& image = set->icons()[0].image;
  EXPECT_TRUE(image.representations().at(0).isPending());
  EXPECT_EQ(pixelAt(image.bitmapRepresentation()->toStandard(), 3, 3), (std::vector<int>{9, 9, 9, 255}));
  for (const IconRecord& icon : set->icons()) {
    EXPECT_EQ(icon.image.size(), (Size{128, 128})) << icon.name;
    EXPECT_EQ(icon.image.scalesWhenResized(), icon.name != "folder.x");
  }
}

TEST_F(IconSetTest, AMissingFolderIsMadeWithoutAListAndAListOfAnyFormIsRead) {
  EXPECT_TRUE(set("deep/New")->icons().empty());
  EXPECT_TRUE(fs::is_empty(root / "deep/New"));
  // One that somebody else has taken away or renamed does not come back by being read.
  const auto gone = set("Gone");
  fs::remove(root / "Gone");
  gone->reload();
  EXPECT_FALSE(IconSet::initWithExistingPath(root / "Gone", services));
  EXPECT_FALSE(fs::exists(root / "Gone"));
  for (const char* name : {"a.icns", "b.icns"}) picture(root / "S" / name);
  writeFile(root / "S" / iconListName, "(b.icns, \"a.icns\")");
  EXPECT_THAT(namesOf(set("S")->icons()), ElementsAre("b.icns", "a.icns"));
  EXPECT_EQ(plist::formOf(readFile(root / "S" / iconListName)), plist::Form::Xml);
  writeFile(root / "S" / iconListName, "<plist><dict>");
  EXPECT_THAT(namesOf(set("S")->icons()), UnorderedElementsAre("a.icns", "b.icns"));
}

TEST_F(IconSetTest, LinksAreNeitherShownNorWrittenThroughNorFollowedWhenRemoved) {
  picture(tree / "outside/o.icns");
  const std::string before = describeTree(tree / "outside");
  const auto set = setOf("S", {"a.icns"});
  fs::create_symlink(tree / "outside/o.icns", root / "S/link.icns");
  fs::create_symlink(tree / "outside", root / "Linked");
  list(root / "S" / iconListName, {"link.icns", "a.icns"});
  set->reload();
  EXPECT_THAT(namesOf(set->icons()), ElementsAre("a.icns"));
  EXPECT_TRUE(set->removeIconFileWithName("link.icns").ok());
  EXPECT_FALSE(fs::is_symlink(root / "S/link.icns"));
  const auto linked = this->set("Linked");
  EXPECT_TRUE(linked->icons().empty());
  EXPECT_FALSE(linked->setIcons(set->icons()).ok());
  EXPECT_FALSE(linked->addIconAtPath(tree / "source/icon.icns"));
  EXPECT_FALSE(linked->removeIconFileWithName("o.icns").ok());
  for (const char* name : {"../S/a.icns", "/etc/passwd", "..", "", "x/y"})
    EXPECT_FALSE(set->removeIconFileWithName(name).ok()) << name;
  EXPECT_EQ(describeTree(tree / "outside"), before);
  fs::remove(root / "S" / iconListName);
  fs::create_symlink(tree / "outside/o.icns", root / "S" / iconListName);
  EXPECT_FALSE(set->setIcons(set->icons()).ok());
  EXPECT_THAT(namesOf(this->set("S")->icons()), ElementsAre("a.icns"));
  EXPECT_EQ(describeTree(tree / "outside"), before);
}

TEST_F(IconSetTest, AddingNumbersNamesConvertsPicturesAndLeavesTheSource) {
  const auto set = setOf("S", {"icon.icns", "icon-1.icns"});
  const Bytes png = *encodePng(filledBitmap(20, 10, {0, 200, 0, 255}));
  const std::string long250 = std::string(245, 'x') + "ää";  // 249 bytes
  const std::pair<std::string, std::string> table[] = {{"icon.icns", "icon-2.icns"},
                                                       {"photo.JPG", "photo.icns"},
                                                       {"a.b.png", "a.b.icns"},
                                                       {"words.jpeg", "words.icns"},
                                                       {"folder", "folder.icns"},
                                                       {"bad\xFF\x01.png", "bad__.icns"},
                                                       {long250, long250 + ".icns"},
                                                       {long250 + "c", long250 + "c.icns"},
                                                       {long250 + "def", long250 + "d.icns"},
                                                       {long250 + "d", std::string(245, 'x') + "ä-1.icns"}};
  for (const auto& [source, wanted] : table) {
    const fs::path path = tree / "source" / source;
    if (source == "folder") fs::create_directory(path);
    if (source != "folder" && source != "icon.icns") writeFile(path, png);
    const auto record = set->addIcon(path);
    ASSERT_TRUE(record.ok()) << source << record.error().message();
    EXPECT_EQ(record->name, wanted);
    EXPECT_EQ(record->path, root / "S" / wanted);
    EXPECT_TRUE(fs::exists(path));
    EXPECT_TRUE(IconFamily::iconFamilyWithContentsOfFile(record->path)->imageWithAllReps());
  }
  EXPECT_EQ(set->icons().size(), 2U);
  EXPECT_EQ(listed(root / "S" / iconListName).size(), 2U);
  const std::string before = describeTree(root);
  writeFile(tree / "source/empty.png", "");
  writeFile(tree / "source/empty.icns", "icns\0\0\0\x08");
  ASSERT_EQ(::mkfifo((tree / "source/pipe.png").c_str(), 0600), 0);
  for (const char* name : {"none.png", "empty.png", "empty.icns", "pipe.png", "none"})
    EXPECT_FALSE(set->addIconAtPath(tree / "source" / name)) << name;
  EXPECT_EQ(describeTree(root), before);
}

TEST_F(IconSetTest, RenamingMovesTheFolderAndItsEntry) {
  const auto set = setOf("Blue", {"b.icns", "a.icns"});
  list(root / setListName, {"X", "Blue", "Y"});
  std::vector<IconSet::Change> told;
  const int listener = set->addListener([&](IconSet&, IconSet::Change change) { told.push_back(change); });
  ASSERT_TRUE(set->setName("Grün").ok());
  EXPECT_THAT(told, ElementsAre(IconSet::Change::Icons, IconSet::Change::Name));
  set->removeListener(listener);
  EXPECT_EQ(set->path(), root / "Grün");
  EXPECT_THAT(listed(root / setListName), ElementsAre("X", "Grün", "Y"));
  EXPECT_THAT(namesOf(set->icons()), ElementsAre("b.icns", "a.icns"));
  list(root / setListName, {"X"});
  ASSERT_TRUE(set->setName("grün").ok());
  EXPECT_THAT(listed(root / setListName), ElementsAre("X", "grün"));
  const std::string before = describeTree(root);
  for (const std::string& name : {""s, ".."s, "a/b"s, std::string(256, 'x'), "a\0b"s, ".quorvane"s, "sets.plist"s})
    EXPECT_FALSE(set->setName(name).ok()) << name;
  EXPECT_EQ(set->name(), "grün");
  EXPECT_EQ(describeTree(root), before);
}

TEST_F(IconSetTest, ATakenNameShowsTheOtherFolderAndListsItsIconsHere) {
  const auto blue = setOf("Blue", {"b.icns"});
  setOf("Green", {"g.icns", "h.icns"});
  list(root / setListName, {"Blue", "Green"});
  EXPECT_EQ(blue->setName("Green").error().systemCode(), EEXIST);
  EXPECT_EQ(blue->path(), root / "Blue");
  EXPECT_THAT(namesOf(blue->icons()), ElementsAre("g.icns", "h.icns"));
  EXPECT_THAT(listed(root / "Blue" / iconListName), ElementsAre("g.icns", "h.icns"));
  EXPECT_THAT(listed(root / setListName), ElementsAre("Blue", "Green"));
  EXPECT_TRUE(fs::exists(root / "Blue/b.icns"));
}

TEST_F(IconSetTest, TwoProgramsLoseEachOtherNothing) {
  const auto one = setOf("S", {"a.icns", "b.icns"});
  const auto two = set("S");
  IconSet::Icons more = two->icons();
  more.insert(more.begin(), *two->addIconAtPath(tree / "source/icon.icns"));
  ASSERT_TRUE(two->setIcons(more).ok());
  ASSERT_TRUE(one->setIcons({one->icons()[1], one->icons()[0]}).ok());
  EXPECT_THAT(listed(root / "S" / iconListName), ElementsAre("b.icns", "a.icns", "icon.icns"));
  ASSERT_TRUE(two->removeIconFileWithName("a.icns").ok());
  ASSERT_TRUE(two->setIcons({two->icons()[0], two->icons()[2]}).ok());
  EXPECT_THAT(listed(root / "S" / iconListName), ElementsAre("icon.icns", "b.icns"));
  // Both add at the same time.
  std::vector<pid_t> children;
  for (int i = 0; i < 3; ++i)
    children.push_back(startChild([&] {
      const auto own = set("S");
      for (int k = 0; k < 8; ++k) {
        IconSet::Icons icons = own->icons();
        icons.push_back(own->addIconAtPath(tree / "source/icon.icns").value());
        EXPECT_TRUE(own->setIcons(std::move(icons)).ok());
      }
    }));
  for (const pid_t child : children) EXPECT_TRUE(waitForChild(child));
  EXPECT_EQ(listed(root / "S" / iconListName).size(), 26U);
  EXPECT_EQ(set("S")->icons().size(), 26U);
}

TEST_F(IconSetTest, WhatTheDiskDoesNotGiveOutStaysListed) {
  setOf("S", {"b.icns", "a.icns"});
  fs::permissions(tree.path(), fs::perms::all);
  fs::permissions(root / "S/b.icns", fs::perms::none);
  fs::permissions(root / "S", fs::perms::all);
  asOrdinaryUser([&] {
    EXPECT_THAT(namesOf(set("S")->icons()), ElementsAre("a.icns"));
    EXPECT_THAT(listed(root / "S" / iconListName), ElementsAre("b.icns", "a.icns"));
  });
  fs::permissions(root / "S/b.icns", fs::perms::owner_read);
  const std::string before = describeTree(root / "S");
  for (const auto mode : {fs::perms::none, fs::perms::owner_read | fs::perms::others_read}) {
    fs::permissions(root / "S", mode);
    asOrdinaryUser([&] {
      const auto set = this->set("S");
      EXPECT_FALSE(set->addIconAtPath(tree / "source/icon.icns"));
      EXPECT_FALSE(set->setIcons({}).ok());
    });
  }
  fs::permissions(root / "S", fs::perms::all);
  EXPECT_EQ(describeTree(root / "S"), before);
}

TEST_F(IconSetTest, OnAFullDiskTheOldStateStays) {
  const fs::path place = tree / "small";
  fs::create_directory(place);
  if (!withMounted("tmpfs", "size=64k", place, [&] {
        root = place;
        const auto set = setOf("S", {"a.icns", "b.icns"});
        list(root / setListName, {"S"});
        writeFile(tree / "source/big.png", *encodePng(filledBitmap(300, 300, {1, 99, 3, 255})));
        const std::string before = describeTree(place);
        std::string filler(64 << 10, 'x');
        {
          std::FILE* file = std::fopen((place / "filler").c_str(), "w");
          std::fwrite(filler.data(), 1, filler.size(), file);
          std::fclose(file);
        }
        EXPECT_FALSE(set->addIconAtPath(tree / "source/icon.icns"));
        EXPECT_FALSE(set->setIcons({set->icons()[1], set->icons()[0]}).ok());
        EXPECT_FALSE(set->setName("T").ok());
        EXPECT_EQ(set->name(), "S");
        fs::remove(place / "filler");
        EXPECT_EQ(describeTree(place), before);
      }))
    GTEST_SKIP() << "nothing can be mounted here";
}

}  // namespace
}  // namespace quorvane::test
