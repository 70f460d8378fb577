// SPDX-License-Identifier: GPL-3.0-or-later
// The Finder flags of folders in their three places.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Companions.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using test::Attributes;

constexpr std::uint16_t icon = FinderInfo::hasCustomIcon;
constexpr std::uint16_t inited = FinderInfo::hasBeenInited;
constexpr std::uint16_t shared = 0x0040;
constexpr mode_t readOnly = 0555;  // to ordinary users, whoever runs the tests

class FolderFlags : public ::testing::Test {
 protected:
  FolderFlags() { fs::create_directory(root / "f"); }

  Folder open() { return Folder::open(root / "f", Folder::Access::Write).value(); }
  void writeCompanion(const fs::path& path, std::uint16_t flags) {
    test::writeFile(path, test::companionBytes(flags, "", 77));
  }
  std::optional<std::uint16_t> flagsIn(const fs::path& path) {
    const auto companion = AppleDouble::parse(test::readFile(path));
    if (!companion.ok() || !companion->finderInfo()) return std::nullopt;
    EXPECT_TRUE(companion->finderInfo()->bytes()[20] == 77 || companion->finderInfo()->bytes()[20] == 0);
    return companion->finderInfo()->flags();
  }
  std::uint16_t attributeFlags() {
    const auto value = Folder::open(root / "f", Folder::Access::Read)->attribute(AppleDoubleForkStore::infoAttribute);
    return value.ok() && *value ? FinderInfo(**value).flags() : 0;
  }

  test::TemporaryFolder root;
  AppleDoubleForkStore store;
  AppleDoubleForkStore companionsOnly{Attributes::Ignore};
};

TEST_F(FolderFlags, StandInAnAttributeWhereThereAreAny) {
  Folder opened = open();
  if (!opened.setAttribute(AppleDoubleForkStore::infoAttribute, Bytes(40, 1)).ok())
    GTEST_SKIP() << "no attributes here";
  EXPECT_EQ(*store.changeFolderFlags(opened, icon, inited), FolderInfoPlace::Attribute);
  Bytes expected(40, 1);  // foreign bytes, also those behind the 32, stay
  expected[8] = 0x05 & ~0x01;
  EXPECT_EQ(**opened.attribute(AppleDoubleForkStore::infoAttribute), expected);
  EXPECT_EQ(test::listing(root.path()), "f/\n");

  EXPECT_TRUE(opened.removeAttribute(AppleDoubleForkStore::infoAttribute).ok());
  EXPECT_TRUE(store.changeFolderFlags(opened, icon, inited).ok());
  EXPECT_TRUE(store.changeFolderFlags(opened, 0, icon | inited).ok());
  EXPECT_FALSE(opened.attribute(AppleDoubleForkStore::infoAttribute)->has_value());  // no zeros stay behind
}

TEST_F(FolderFlags, StandInTheCompanionAboveWhereThereAreNoAttributes) {
  {
    Folder opened = open();
    EXPECT_EQ(*companionsOnly.changeFolderFlags(opened, icon, inited), FolderInfoPlace::CompanionBeside);
    EXPECT_EQ(companionsOnly.readFolderInfo(opened)->flags(), icon);
  }
  EXPECT_EQ(flagsIn(root / "._f"), icon);
  EXPECT_EQ(test::listing(root / "f"), "");
  // The flag of an archive or a volume counts as well, and goes with the others.
  writeCompanion(root / "f/._.", icon | shared);
  Folder opened = open();
  EXPECT_TRUE(companionsOnly.changeFolderFlags(opened, 0, icon | inited).ok());
  EXPECT_FALSE(fs::exists(root / "._f"));  // nothing worth keeping was left in it
  EXPECT_EQ(flagsIn(root / "f/._."), shared);
}

TEST_F(FolderFlags, AreSetAndClearedInEveryPlaceThatExists) {
  Folder opened = open();
  if (!opened.setAttribute(AppleDoubleForkStore::infoAttribute, Bytes(32)).ok()) GTEST_SKIP() << "no attributes here";
  writeCompanion(root / "._f", inited | shared);
  writeCompanion(root / "f/._.", inited);
  EXPECT_EQ(store.readFolderInfo(opened)->flags() & icon, 0);
  EXPECT_EQ(*store.changeFolderFlags(opened, icon, inited), FolderInfoPlace::Attribute);
  EXPECT_EQ(attributeFlags(), icon);
  EXPECT_EQ(flagsIn(root / "._f"), icon | shared);
  EXPECT_EQ(flagsIn(root / "f/._."), icon);
  EXPECT_TRUE(store.changeFolderFlags(opened, 0, icon | inited).ok());
  EXPECT_EQ(store.readFolderInfo(opened)->flags(), shared);
  // Any one place alone says that there is an icon.
  for (const fs::path& place : {root / "._f", root / "f/._."}) {
    writeCompanion(place, icon);
    EXPECT_EQ(store.readFolderInfo(opened)->flags() & icon, icon) << place;
    EXPECT_TRUE(store.changeFolderFlags(opened, 0, icon).ok());
    EXPECT_EQ(store.readFolderInfo(opened)->flags() & icon, 0) << place;
  }
}

TEST_F(FolderFlags, AreKeptInStepInTheRecordOfAFileServer) {
  Folder opened = open();
  const char* name = serverrecord::attributeName;
  if (!opened.setAttribute(name, test::serverRecord(icon | shared)).ok()) GTEST_SKIP() << "no attributes here";
  EXPECT_EQ(store.readFolderInfo(opened)->flags(), icon | shared);
  EXPECT_TRUE(store.changeFolderFlags(opened, 0, icon | inited).ok());
  EXPECT_EQ(**opened.attribute(name), test::serverRecord(shared));
  EXPECT_TRUE(opened.setAttribute(name, test::serverRecord(inited | shared)).ok());
  EXPECT_EQ(*store.changeFolderFlags(opened, icon, inited), FolderInfoPlace::Attribute);
  EXPECT_EQ(**opened.attribute(name), test::serverRecord(icon | shared));
  EXPECT_EQ(attributeFlags(), icon);

  // Where somebody else laid it out, by its table; what cannot be read is left alone.
  const Bytes shifted = test::companionBytes(0, "", 7);
  EXPECT_TRUE(opened.setAttribute(name, shifted).ok());
  EXPECT_TRUE(store.changeFolderFlags(opened, icon, inited).ok());
  EXPECT_EQ(**opened.attribute(name), test::companionBytes(icon, "", 7));
  Bytes outside = test::serverRecord(icon), short9 = outside, none = outside;
  outside[26 + 24 + 4] = 0xFF;  // offset of the third entry
  short9[26 + 24 + 11] = 31;    // its length
  none[26 + 24 + 3] = 10;       // its ID
  for (const Bytes& bad : {Bytes{}, Bytes(402), Bytes(outside.begin(), outside.begin() + 200), outside, short9, none}) {
    EXPECT_TRUE(opened.setAttribute(name, bad).ok());
    EXPECT_EQ(*store.changeFolderFlags(opened, icon, inited), FolderInfoPlace::Attribute);
    EXPECT_TRUE(store.changeFolderFlags(opened, 0, icon | inited).ok());
    EXPECT_EQ(store.readFolderInfo(opened)->flags(), 0);
    EXPECT_EQ(**opened.attribute(name), bad);
  }
  EXPECT_TRUE(opened.removeAttribute(name).ok());
  EXPECT_TRUE(store.changeFolderFlags(opened, icon, inited).ok());
  EXPECT_FALSE(opened.attribute(name)->has_value());  // the server's to make
}

TEST_F(FolderFlags, StandInsideAtTheRootOfAFileSystem) {
  const bool mounted = test::withMounted("ramfs", "", (root / "f").string(), [&] {
    Folder opened = open();
    EXPECT_EQ(*store.changeFolderFlags(opened, icon, inited), FolderInfoPlace::CompanionInside);
    EXPECT_EQ(store.readFolderInfo(opened)->flags(), icon);
    EXPECT_TRUE(fs::exists(root / "f/._."));
    fs::create_directory(root / "f/sub");
    Folder sub = opened.openChild("sub", Folder::Access::Write).value();
    // The folder above is one that we hold ourselves: not a lasting lock.
    { Folder released = std::move(opened); }
    EXPECT_EQ(*store.changeFolderFlags(sub, icon, inited), FolderInfoPlace::CompanionBeside);
    EXPECT_EQ(flagsIn(root / "f/._sub"), icon);
  });
  if (!mounted) GTEST_SKIP() << "may not mount";
  EXPECT_EQ(test::listing(root.path()), "f/\n");
}

TEST_F(FolderFlags, WherePlantedThingsStandAboveTheAttributeServesOrItIsRefused) {
  test::writeFile(root / "victim", "precious");
  const std::vector<std::function<void()>> plants{
      [&] { fs::create_symlink("victim", root / "._f"); }, [&] { fs::create_directory(root / "._f"); },
      [&] { ::mkfifo((root / "._f").c_str(), 0600); }, [&] { test::writeFile(root / "._f", "no companion"); }};
  for (const auto& plant : plants) {
    plant();
    const std::string before = test::describeTree(root.path());
    Folder opened = open();
    EXPECT_EQ(store.readFolderInfo(opened)->flags(), 0);
    EXPECT_FALSE(companionsOnly.changeFolderFlags(opened, icon, 0).ok());
    EXPECT_TRUE(companionsOnly.changeFolderFlags(opened, 0, icon).ok());
    EXPECT_EQ(test::describeTree(root.path()), before);
    EXPECT_EQ(*store.changeFolderFlags(opened, icon, 0), FolderInfoPlace::Attribute);
    EXPECT_TRUE(store.changeFolderFlags(opened, 0, icon).ok());
    EXPECT_EQ(test::describeTree(root.path()), before);
    fs::remove_all(root / "._f");
  }
}

TEST_F(FolderFlags, WhenNeitherPlaceCanHoldThemTheReasonIsTold) {
  ASSERT_EQ(::chmod(root.path().c_str(), readOnly), 0);
  ASSERT_EQ(::chmod((root / "f").c_str(), 0777), 0);
  test::asOrdinaryUser([&] {
    Folder opened = open();
    const auto changed = companionsOnly.changeFolderFlags(opened, icon, inited);
    ASSERT_FALSE(changed.ok());
    EXPECT_EQ(changed.error().message(), (root / "._f").string() + ": cannot write: Permission denied");
  });
  ASSERT_EQ(::chmod((root / "f").c_str(), 0555), 0);
  test::asOrdinaryUser([&] {
    Folder opened = open();
    const auto changed = store.changeFolderFlags(opened, icon, inited);
    ASSERT_FALSE(changed.ok());
    EXPECT_EQ(changed.error().where(), root / "f");
    EXPECT_NE(changed.error().why().find("as attribute: "), std::string::npos) << changed.error().why();
    EXPECT_NE(changed.error().why().find("._f: cannot write: Permission denied"), std::string::npos);
  });
  EXPECT_EQ(test::listing(root.path()), "f/\n");
}

TEST_F(FolderFlags, AFlagThatCannotBeClearedIsAnError) {
  ASSERT_EQ(::chmod((root / "f").c_str(), 0777), 0);
  writeCompanion(root / "._f", icon);
  ASSERT_EQ(::chmod(root.path().c_str(), readOnly), 0);
  test::asOrdinaryUser([&] {
    Folder opened = open();
    EXPECT_FALSE(store.changeFolderFlags(opened, 0, icon).ok());
    EXPECT_EQ(store.readFolderInfo(opened)->flags(), icon);
    EXPECT_EQ(*store.changeFolderFlags(opened, icon, inited), FolderInfoPlace::Attribute);
  });
}

}  // namespace
}  // namespace quorvane
