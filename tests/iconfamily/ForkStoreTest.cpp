// SPDX-License-Identifier: GPL-3.0-or-later
// Forks and Finder info of files: what the store promises, and how companions are treated.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "Companions.h"
#include "foundation/base/ByteWriter.h"
#include "foundation/base/Limits.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using test::iconOf;
using test::TemporaryFolder;
using Access = Folder::Access;

const std::string companionOfIcon = "._Icon\r";

std::uint8_t valueOf(const ForkedFile& content) {
  const Resource* icon = content.fork.find("icns", customIconResourceId);
  return icon != nullptr && !icon->data.empty() ? icon->data.front() : 0;
}

// A companion with an entry that we do not know behind the Finder info.
Bytes foreignCompanion() {
  ByteWriter writer;
  writer.writeBytes(test::bytesOf(std::string("\0\5\x16\7\0\2\0\0Mac OS X        \0\2", 26)));
  for (const std::uint32_t field : {9U, 50U, 32U, 4U, 82U, 7U}) writer.writeU32(field);
  writer.writeBytes(test::bytesOf("TEXT" + std::string(28, '\0') + "comment"));
  return std::move(writer).take();
}

TEST(AppleDoubleForkStore, GivesBackWhatItWasGivenAndLeavesNoTrace) {
  TemporaryFolder root;
  fs::create_directory(root / "f");
  Folder folder = Folder::open(root / "f", Access::Write).value();
  AppleDoubleForkStore store;
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

  EXPECT_TRUE(store.write(folder, iconFileName, iconOf(1)).ok());
  for (int round = 0; round < 2; ++round) EXPECT_TRUE(store.removeFile(folder, iconFileName).ok());
  EXPECT_EQ(test::listing(root / "f"), "");
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
  EXPECT_NE(text.find("Mac OS X        "), std::string::npos);
  EXPECT_NE(text.find("comment"), std::string::npos);
  EXPECT_EQ(valueOf(*store.read(folder, "picture")), 3);

  EXPECT_TRUE(store.write(folder, "picture", ForkedFile()).ok());
  EXPECT_FALSE(AppleDouble::parse(test::readFile(root / "._picture"))->isBlank());
  EXPECT_EQ(fs::status(root / "._picture").permissions(), fs::perms(0640));
  EXPECT_EQ(test::readFile(root / "picture"), test::bytesOf("data"));
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

  // A file server's record beside a companion that the server left without Finder info.
  const char* record = serverrecord::attributeName;
  test::writeFile(root / "served", "data");
  test::writeFile(root / "._served", test::companionBytes(0, "fork", 0));
  EXPECT_TRUE(folder.setAttributeOf("served", record, test::serverRecord(FinderInfo::hasCustomIcon, 5)).ok());
  content = store.read(folder, "served").value();
  EXPECT_EQ(content.info.flags(), FinderInfo::hasCustomIcon);
  EXPECT_EQ(content.info.bytes()[20], 5);
  content.info.setFlags(FinderInfo::isInvisible);
  EXPECT_TRUE(store.write(folder, "served", content).ok());
  EXPECT_EQ(**folder.attributeOf("served", record), test::serverRecord(FinderInfo::isInvisible, 5));
  EXPECT_TRUE(folder.setAttributeOf("served", record, Bytes(402)).ok());
  EXPECT_TRUE(store.write(folder, "served", ForkedFile()).ok());
  EXPECT_EQ(**folder.attributeOf("served", record), Bytes(402));
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
      {"link", ErrorKind::Refused, [&] { fs::create_symlink(root / "victim", planted); }},
      {"dangling link", ErrorKind::Refused, [&] { fs::create_symlink(root / "created", planted); }},
      {"folder", ErrorKind::Refused, [&] { fs::create_directory(planted); }},
      {"fifo", ErrorKind::Refused, [&] { ::mkfifo(planted.c_str(), 0600); }},
      {"empty", ErrorKind::InvalidInput, [&] { test::writeFile(planted, ""); }, true},
      {"over the limit", ErrorKind::TooLarge,
       [&] {
         test::writeFile(planted, foreignCompanion());
         fs::resize_file(planted, limits::iconFileBytes + 1);
       },
       true},
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

  // A name too long for a companion is refused before anything is written.
  Folder above = Folder::open(root.path(), Access::Write).value();
  const std::string longest(253, 'n'), tooLong(254, 'n');
  for (const std::string& name : {longest, tooLong}) EXPECT_TRUE(above.writeFile(name, {}).ok());
  EXPECT_TRUE(AppleDoubleForkStore().write(above, longest, iconOf(1)).ok());
  EXPECT_EQ(AppleDoubleForkStore().write(above, tooLong, iconOf(1)).error().kind(), ErrorKind::InvalidInput);
  EXPECT_EQ(above.names()->size(), 5U);

  fs::remove(icon);
  fs::create_symlink("../victim", icon);
  Folder folder = Folder::open(root / "f", Access::Write).value();
  AppleDoubleForkStore store;
  EXPECT_EQ(store.read(folder, iconFileName).error().kind(), ErrorKind::Refused);
  EXPECT_EQ(store.write(folder, iconFileName, iconOf(1)).error().kind(), ErrorKind::Refused);
  EXPECT_EQ(store.saveOriginal(folder, folder).error().kind(), ErrorKind::Refused);
}

}  // namespace
}  // namespace quorvane
