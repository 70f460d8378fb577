// SPDX-License-Identifier: GPL-3.0-or-later
// Forks and Finder info of files: what every store promises, and how companions are treated.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "foundation/base/ByteWriter.h"
#include "foundation/base/Limits.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "iconfamily/IconFile.h"
#include "iconfamily/format/AppleDouble.h"
#include "support/ChildProcess.h"
#include "support/MemoryForkStore.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;
using Access = Folder::Access;

const std::string companionOfIcon = "._Icon\r";

ForkedFile iconOf(std::uint8_t value, std::size_t size = 5000) {
  ForkedFile content;
  content.fork.set({"icns", customIconResourceId, 0, "", Bytes(size, value)});
  content.info.setFlags(FinderInfo::isInvisible);
  return content;
}

std::uint8_t valueOf(const ForkedFile& content) {
  const Resource* icon = content.fork.find("icns", customIconResourceId);
  return icon != nullptr && !icon->data.empty() ? icon->data.front() : 0;
}

// A companion with an entry that we do not know and an attribute block behind the Finder info.
Bytes foreignCompanion() {
  const std::string block(
      "ATTR\0\0\0\1\0\0\0\x98\0\0\0\x94\0\0\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\1"
      "\0\0\0\x94\0\0\0\4\0\0\4x.y\0value\0\0\0\0",
      60);
  ByteWriter writer;
  writer.writeU32(0x00051607);
  writer.writeU32(0x00020000);
  for (const char letter : std::string("Mac OS X        ")) writer.writeU8(static_cast<std::uint8_t>(letter));
  writer.writeU16(2);
  const std::uint32_t finderLength = 32 + 2 + static_cast<std::uint32_t>(block.size());
  for (const std::uint32_t field : {9U, 50U, finderLength, 4U, 50U + finderLength, 7U}) writer.writeU32(field);
  Bytes info(34);
  info[0] = 'T';
  writer.writeBytes(info);
  writer.writeBytes(Bytes(block.begin(), block.end()));
  for (const char letter : std::string("comment")) writer.writeU8(static_cast<std::uint8_t>(letter));
  return std::move(writer).take();
}

template <typename Store>
class AnyForkStore : public ::testing::Test {};
using Stores = ::testing::Types<AppleDoubleForkStore, test::MemoryForkStore>;
TYPED_TEST_SUITE(AnyForkStore, Stores);

TYPED_TEST(AnyForkStore, GivesBackWhatItWasGivenAndLeavesNoTrace) {
  TemporaryFolder root;
  fs::create_directory(root / "f");
  Folder folder = Folder::open(root / "f", Access::Write).value();
  TypeParam store;
  EXPECT_EQ(store.read(folder, iconFileName).error().kind(), ErrorKind::NotFound);
  EXPECT_EQ(store.write(folder, iconFileName, iconOf(1)).error().kind(), ErrorKind::NotFound);

  EXPECT_TRUE(folder.writeFile(iconFileName, {}).ok());
  EXPECT_TRUE(store.read(folder, iconFileName)->fork.isEmpty());
  const std::string bare = test::describeTree(root.path());
  for (const std::uint8_t value : Bytes{1, 2}) EXPECT_TRUE(store.write(folder, iconFileName, iconOf(value)).ok());
  const ForkedFile content = store.read(folder, iconFileName).value();
  EXPECT_EQ(valueOf(content), 2);
  EXPECT_EQ(content.info.flags(), FinderInfo::isInvisible);
  EXPECT_EQ(fs::file_size(root / "f" / iconFileName), 0U);
  EXPECT_TRUE(store.write(folder, iconFileName, ForkedFile()).ok());
  EXPECT_EQ(test::describeTree(root.path()), bare);

  EXPECT_EQ(store.readFolderInfo(folder)->flags(), 0);
  EXPECT_FALSE(store.changeFolderFlags(folder, 0, FinderInfo::hasCustomIcon)->has_value());
  EXPECT_TRUE(store.changeFolderFlags(folder, FinderInfo::hasCustomIcon, FinderInfo::hasBeenInited)->has_value());
  EXPECT_TRUE(store.changeFolderFlags(folder, FinderInfo::hasBeenInited, 0)->has_value());
  EXPECT_EQ(store.readFolderInfo(folder)->flags(), FinderInfo::hasCustomIcon | FinderInfo::hasBeenInited);
  EXPECT_FALSE(store.changeFolderFlags(folder, 0, 0xFFFF)->has_value());
  EXPECT_EQ(store.readFolderInfo(folder)->flags(), 0);

  EXPECT_TRUE(store.write(folder, iconFileName, iconOf(1)).ok());
  for (int round = 0; round < 2; ++round) EXPECT_TRUE(store.removeFile(folder, iconFileName).ok());
  EXPECT_EQ(test::listing(root / "f"), "");
}

TYPED_TEST(AnyForkStore, BringsBackTheOriginal) {
  for (const bool hadIcon : {false, true}) {
    TemporaryFolder root;
    fs::create_directories(root / "f/kept");
    Folder folder = Folder::open(root / "f", Access::Write).value();
    Folder kept = folder.openChild("kept", Access::Write).value();
    TypeParam store;
    if (hadIcon) {
      EXPECT_TRUE(folder.writeFile(iconFileName, {}).ok());
      EXPECT_TRUE(store.write(folder, iconFileName, iconOf(7)).ok());
      EXPECT_TRUE(store.changeFolderFlags(folder, FinderInfo::hasCustomIcon, 0).ok());
    }
    EXPECT_TRUE(store.saveOriginal(folder, kept).ok());
    EXPECT_TRUE(folder.writeFile(iconFileName, {}).ok());
    EXPECT_TRUE(store.write(folder, iconFileName, iconOf(8)).ok());
    EXPECT_TRUE(store.changeFolderFlags(folder, FinderInfo::hasCustomIcon, 0).ok());
    for (int round = 0; round < 2; ++round) {
      EXPECT_TRUE(store.restoreOriginal(folder, kept).ok());
      EXPECT_EQ(store.readFolderInfo(folder)->flags(), hadIcon ? FinderInfo::hasCustomIcon : 0);
      EXPECT_EQ(folder.statusOf(iconFileName)->has_value(), hadIcon);
      EXPECT_EQ(hadIcon ? valueOf(*store.read(folder, iconFileName)) : 7, 7);
    }
  }
}

TEST(IconFile, IsFoundInBothSpellingsTheOneThatWeWriteFirst) {
  TemporaryFolder root;
  const Folder folder = Folder::open(root.path(), Access::Read).value();
  EXPECT_FALSE(findIconFile(folder)->has_value());
  for (const char* other : {"Icon", "Icon\n", "icon\r", "Icon_"}) test::writeFile(root / other, "x");
  EXPECT_FALSE(findIconFile(folder)->has_value());
  test::writeFile(root / "Icon\xEF\x80\x8D", "");
  EXPECT_EQ(**findIconFile(folder), "Icon\xEF\x80\x8D");
  test::writeFile(root / "Icon\r", "");
  EXPECT_EQ(**findIconFile(folder), "Icon\r");
}

TEST(AppleDoubleForkStore, WritesTheFormThatOtherProgramsRead) {
  TemporaryFolder root;
  Folder folder = Folder::open(root.path(), Access::Write).value();
  AppleDoubleForkStore store;
  EXPECT_TRUE(folder.writeFile(iconFileName, {}).ok());
  EXPECT_TRUE(store.write(folder, iconFileName, iconOf(9, 100)).ok());
  EXPECT_EQ(store.filesBeside(iconFileName), std::vector<std::string>{companionOfIcon});
  const Bytes bytes = test::readFile(root / companionOfIcon);
  // Header and table of two entries, Finder info at 50, the fork of one resource at 82.
  ASSERT_EQ(bytes.size(), 82U + 310U + 100U);
  EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 8), (Bytes{0, 5, 0x16, 7, 0, 2, 0, 0}));
  EXPECT_EQ(Bytes(bytes.begin() + 24, bytes.begin() + 50),
            (Bytes{0, 2, 0, 0, 0, 9, 0, 0, 0, 50, 0, 0, 0, 32, 0, 0, 0, 2, 0, 0, 0, 82, 0, 0, 1, 154}));
  EXPECT_EQ(Bytes(bytes.begin() + 50, bytes.begin() + 60), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0x40, 0}));
}

TEST(AppleDoubleForkStore, KeepsWhatItDoesNotKnowOfACompanion) {
  TemporaryFolder root;
  test::writeFile(root / "picture", "data");
  test::writeFile(root / "._picture", foreignCompanion());
  ASSERT_EQ(::chmod((root / "._picture").c_str(), 0640), 0);
  Folder folder = Folder::open(root.path(), Access::Write).value();
  AppleDoubleForkStore store;
  ForkedFile content = store.read(folder, "picture").value();
  EXPECT_EQ(content.info.bytes()[0], 'T');
  content.info.setFlags(FinderInfo::hasCustomIcon);
  content.fork = iconOf(3).fork;
  EXPECT_TRUE(store.write(folder, "picture", content).ok());
  const Bytes written = test::readFile(root / "._picture");
  const std::string text(written.begin(), written.end());
  for (const char* part : {"Mac OS X        ", "ATTR", "x.y", "valu", "comment"})
    EXPECT_NE(text.find(part), std::string::npos) << part;
  EXPECT_EQ(valueOf(*store.read(folder, "picture")), 3);

  EXPECT_TRUE(store.write(folder, "picture", ForkedFile()).ok());
  const auto left = AppleDouble::parse(test::readFile(root / "._picture"));
  ASSERT_TRUE(left.ok());
  EXPECT_FALSE(left->isBlank());
  struct stat info {};
  EXPECT_EQ(::stat((root / "._picture").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, 0640U);
  EXPECT_EQ(test::readFile(root / "picture"), (Bytes{'d', 'a', 't', 'a'}));
}

TEST(AppleDoubleForkStore, AFilesAttributeIsReadAndKeptInStep) {
  TemporaryFolder root;
  test::writeFile(root / "picture", "data");
  Bytes attribute(32);
  attribute[3] = 'f';
  attribute[8] = 4;  // custom icon
  const std::string path = (root / "picture").string();
  if (::lsetxattr(path.c_str(), AppleDoubleForkStore::infoAttribute, attribute.data(), attribute.size(), 0) != 0)
    GTEST_SKIP() << "no extended attributes here";
  Folder folder = Folder::open(root.path(), Access::Write).value();
  AppleDoubleForkStore store;
  ForkedFile content = store.read(folder, "picture").value();
  EXPECT_EQ(content.info.flags(), FinderInfo::hasCustomIcon);
  content.info.setFlags(FinderInfo::isInvisible);
  EXPECT_TRUE(store.write(folder, "picture", content).ok());
  attribute[8] = 0x40;
  EXPECT_EQ(**folder.attributeOf("picture", AppleDoubleForkStore::infoAttribute), attribute);
  EXPECT_EQ(AppleDouble::parse(test::readFile(root / "._picture"))->finderInfo()->flags(), FinderInfo::isInvisible);

  // Without the attribute none is made.
  test::writeFile(root / "other", "data");
  EXPECT_TRUE(store.write(folder, "other", content).ok());
  EXPECT_FALSE(folder.attributeOf("other", AppleDoubleForkStore::infoAttribute)->has_value());
}

// Whatever is planted in the place of a companion, or of the file, is neither followed nor overwritten.
TEST(AppleDoubleForkStore, RefusesPlantedCompanions) {
  TemporaryFolder root;
  test::writeFile(root / "victim", foreignCompanion());
  fs::create_directory(root / "f");
  const fs::path icon = root / "f" / iconFileName;
  const fs::path planted = root / "f" / companionOfIcon;
  struct Row {
    const char* what;
    ErrorKind kind;
    std::function<void()> plant;
    bool isPlain = false;
  };
  Bytes overlapping = foreignCompanion();
  overlapping[45] = 60;  // the second entry now begins inside the first
  const std::vector<Row> rows{
      {"relative link", ErrorKind::Refused, [&] { fs::create_symlink("../victim", planted); }},
      {"absolute link", ErrorKind::Refused, [&] { fs::create_symlink(root / "victim", planted); }},
      {"dangling link", ErrorKind::Refused, [&] { fs::create_symlink(root / "created", planted); }},
      {"folder", ErrorKind::Refused, [&] { fs::create_directory(planted); }},
      {"fifo", ErrorKind::Refused, [&] { ::mkfifo(planted.c_str(), 0600); }},
      {"empty", ErrorKind::InvalidInput, [&] { test::writeFile(planted, ""); }, true},
      {"text", ErrorKind::InvalidInput, [&] { test::writeFile(planted, "my own notes, not a companion"); }, true},
      {"overlap", ErrorKind::InvalidInput, [&] { test::writeFile(planted, overlapping); }, true},
  };
  for (const Row& row : rows) {
    test::writeFile(icon, "");
    row.plant();
    const std::string before = test::describeTree(root.path(), true);
    Folder folder = Folder::open(root / "f", Access::Write).value();
    AppleDoubleForkStore store;
    const auto read = store.read(folder, iconFileName);
    ASSERT_FALSE(read.ok()) << row.what;
    EXPECT_EQ(read.error().kind(), row.kind) << row.what << ": " << read.error().message();
    EXPECT_EQ(read.error().where(), planted) << row.what;
    EXPECT_EQ(store.write(folder, iconFileName, iconOf(1)).error().kind(), row.kind) << row.what;
    if (!row.isPlain) {
      EXPECT_EQ(store.removeFile(folder, iconFileName).error().kind(), row.kind) << row.what;
    }
    EXPECT_EQ(test::describeTree(root.path(), true), before) << row.what;
    EXPECT_EQ(store.removeFile(folder, iconFileName).ok(), row.isPlain) << row.what;
    fs::remove_all(planted);
  }
  EXPECT_FALSE(fs::exists(root / "created"));

  fs::remove(icon);
  fs::create_symlink("../victim", icon);
  Folder folder = Folder::open(root / "f", Access::Write).value();
  AppleDoubleForkStore store;
  EXPECT_EQ(store.read(folder, iconFileName).error().kind(), ErrorKind::Refused);
  EXPECT_EQ(store.write(folder, iconFileName, iconOf(1)).error().kind(), ErrorKind::Refused);
  EXPECT_EQ(store.saveOriginal(folder, folder).error().kind(), ErrorKind::Refused);
}

TEST(AppleDoubleForkStore, RefusesACompanionOverTheLimitUnread) {
  TemporaryFolder root;
  test::writeFile(root / "Icon\r", "");
  test::writeFile(root / companionOfIcon, foreignCompanion());
  fs::resize_file(root / companionOfIcon, limits::iconFileBytes + 1);
  Folder folder = Folder::open(root.path(), Access::Write).value();
  AppleDoubleForkStore store;
  EXPECT_EQ(store.read(folder, iconFileName).error().kind(), ErrorKind::TooLarge);
  EXPECT_EQ(store.write(folder, iconFileName, iconOf(1)).error().kind(), ErrorKind::TooLarge);
  EXPECT_EQ(fs::file_size(root / companionOfIcon), limits::iconFileBytes + 1);
}

TEST(AppleDoubleForkStore, ANameTooLongForACompanionIsRefusedBeforeAnythingIsWritten) {
  TemporaryFolder root;
  const std::string longest(253, 'n'), tooLong(254, 'n');
  Folder folder = Folder::open(root.path(), Access::Write).value();
  AppleDoubleForkStore store;
  for (const std::string& name : {longest, tooLong}) EXPECT_TRUE(folder.writeFile(name, {}).ok());
  EXPECT_TRUE(store.write(folder, longest, iconOf(1)).ok());
  EXPECT_EQ(store.write(folder, tooLong, iconOf(1)).error().kind(), ErrorKind::InvalidInput);
  EXPECT_EQ(folder.names()->size(), 3U);
}

}  // namespace
}  // namespace quorvane
