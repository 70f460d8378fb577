// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/CustomIcon.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "iconfamily/AppleDoubleForkStore.h"
#include "iconfamily/IconFile.h"
#include "iconfamily/format/IcnsContainer.h"
#include "support/TemporaryFolder.h"
#include "system/KindIcons.h"
#include "system/Pasteboard.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using Attributes = AppleDoubleForkStore::Attributes;

class SilentNotices : public FileManagerNotices {
 public:
  Result<void> noteDirectoryModified(Folder&) override { return {}; }
};

class MemoryPasteboard : public Pasteboard {
 public:
  [[nodiscard]] std::vector<std::string> types() const override {
    std::vector<std::string> all;
    for (const auto& [type, data] : content) all.push_back(type);
    return all;
  }
  [[nodiscard]] std::optional<Bytes> dataForType(const std::string& type) const override {
    const auto found = content.find(type);
    return found == content.end() ? std::nullopt : std::optional(found->second);
  }
  void setContent(const std::map<std::string, Bytes>& dataByType) override { content = dataByType; }

  std::map<std::string, Bytes> content;
};

IconFamily familyOf(std::uint8_t level) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({32, 32});
  for (int y = 0; y < 32; ++y) std::fill_n(bitmap.mutableRow(y), 4 * 32, level);
  return *IconFamily::iconFamilyWithThumbnailsOfImage(Image::imageWithBitmapImageRep(bitmap));
}

/// "TYPE ID NAME" of each resource, in order.
std::string resourcesOf(const ResourceFork& fork) {
  std::string text;
  for (const Resource& each : fork.resources())
    text += each.type.toString() + " " + std::to_string(each.id) + " " + each.name + "\n";
  return text;
}

class CustomIconTest : public ::testing::TestWithParam<Attributes> {
 protected:
  test::TemporaryFolder tree;
  fs::path folder = tree / "f";
  AppleDoubleForkStore forks{GetParam()};
  OwnKindIcons kinds;
  SilentNotices notices;
  IconServices services{.forks = forks, .kinds = kinds, .notices = notices};

  CustomIconTest() { fs::create_directory(folder); }

  [[nodiscard]] ForkedFile forksOf(const fs::path& file) const {
    return *forks.read(*Folder::open(file.parent_path(), Folder::Access::Read), file.filename().string());
  }
  void setForks(const fs::path& file, const ForkedFile& content) {
    auto parent = Folder::open(file.parent_path(), Folder::Access::Write);
    ASSERT_TRUE(forks.write(*parent, file.filename().string(), content).ok());
  }
  [[nodiscard]] unsigned folderFlags() const {
    return forks.readFolderInfo(*Folder::open(folder, Folder::Access::Read))->flags();
  }
  void setFolderFlags(std::uint16_t set) {
    auto opened = Folder::open(folder, Folder::Access::Write);
    ASSERT_TRUE(forks.changeFolderFlags(*opened, set, 0).ok());
  }
};
INSTANTIATE_TEST_SUITE_P(, CustomIconTest, ::testing::Values(Attributes::Use, Attributes::Ignore),
                         [](const auto& row) { return row.param == Attributes::Use ? "Attributes" : "Companions"; });

TEST_P(CustomIconTest, AFoldersIconReplacesTheFormerFileAndSetsExactlyTheFlags) {
  test::writeFile(folder / "Icon\r", std::string("odd data"));
  ForkedFile former;
  former.info.setTypeAndCreator("TEXT", "ttxt");
  former.info.setFlags(FinderInfo::hasBeenInited);
  former.fork.set({"STR ", 128, 0, "name", Bytes{1}});
  setForks(folder / "Icon\r", former);
  setFolderFlags(0x0100 | 0x0008);

  const IconFamily family = familyOf(200);
  ASSERT_TRUE(family.setAsCustomIconForDirectory(folder, services).ok());
  const ForkedFile icon = forksOf(folder / "Icon\r");
  EXPECT_TRUE(test::readFile(folder / "Icon\r").empty());
  Bytes info{'i', 'c', 'o', 'n', 'M', 'A', 'C', 'S', 0x40};
  info.resize(32);
  EXPECT_EQ(icon.info, FinderInfo(info));
  EXPECT_EQ(resourcesOf(icon.fork), "icns -16455 \n");
  EXPECT_EQ(icon.fork.find("icns", customIconResourceId)->data, family.data());
  EXPECT_EQ(folderFlags(), 0x0408U);

  ASSERT_TRUE(family.setAsCustomIconForDirectory(folder, services, true).ok());
  const ResourceFork compatible = forksOf(folder / "Icon\r").fork;
  EXPECT_EQ(resourcesOf(compatible), "icns -16455 \nicl8 -16455 \nICN# -16455 \nics8 -16455 \nics# -16455 \n");
  const auto bits = *icnsElement(family.bytes(), "ICN#");
  EXPECT_EQ(compatible.find("ICN#", customIconResourceId)->data, Bytes(bits.begin(), bits.end()));
}

TEST_P(CustomIconTest, AFoldersIconOnAFileOrOnNothingCreatesNothing) {
  test::writeFile(tree / "file", std::string("x"));
  const std::string before = test::describeTree(tree.path());
  EXPECT_FALSE(familyOf(1).setAsCustomIconForDirectory(tree / "file", services).ok());
  EXPECT_FALSE(familyOf(1).setAsCustomIconForDirectory(tree / "missing", services).ok());
  EXPECT_FALSE(IconFamily::iconFamilyWithContentsOfFile(tree / "missing").ok());
  EXPECT_EQ(test::describeTree(tree.path()), before);
}

TEST_P(CustomIconTest, AFilesIconLeavesItsDateAndItsOtherResources) {
  const fs::path file = folder / "letter";
  test::writeFile(file, std::string("Dear all"));
  ForkedFile former;
  former.info.setFlags(0x0100 | 0x0008);
  former.fork.set({"STR ", 128, 0, "name", Bytes{1}});
  setForks(file, former);
  const timespec times[2] = {{.tv_sec = 5, .tv_nsec = 0}, {.tv_sec = 1'000'000'001, .tv_nsec = 7}};
  ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);

  ASSERT_TRUE(familyOf(10).setAsCustomIconForFile(file, services).ok());
  ASSERT_TRUE(familyOf(200).setAsCustomIconForFile(file, services, true).ok());
  struct stat info {};
  ASSERT_EQ(::stat(file.c_str(), &info), 0);
  EXPECT_EQ(info.st_mtim.tv_sec, 1'000'000'001);
  EXPECT_EQ(info.st_mtim.tv_nsec, 7);
  EXPECT_EQ(test::readFile(file).size(), 8U);
  EXPECT_EQ(forksOf(file).info.flags(), 0x0408U);
  EXPECT_EQ(forksOf(file).fork.find("icns", customIconResourceId)->data, familyOf(200).data());
  EXPECT_EQ(IconFamily::iconFamilyWithIconOfFile(file, services)->data(), familyOf(200).data());

  // The icon goes; what is there for very old systems stays.
  ASSERT_TRUE(IconFamily::removeCustomIconFromFile(file, services).ok());
  EXPECT_EQ(forksOf(file).info.flags(), 0x0008U);
  EXPECT_EQ(resourcesOf(forksOf(file).fork), "STR  128 name\nicl8 -16455 \nICN# -16455 \nics8 -16455 \nics# -16455 \n");
}

TEST_P(CustomIconTest, AMissingFileIsMadeForItsIconButNotForItsRemoval) {
  ASSERT_TRUE(familyOf(10).setAsCustomIconForFile(folder / "new", services).ok());
  EXPECT_TRUE(test::readFile(folder / "new").empty());
  EXPECT_EQ(forksOf(folder / "new").info.flags(), 0x0400U);
  EXPECT_FALSE(IconFamily::removeCustomIconFromFile(folder / "missing", services).ok());
  EXPECT_FALSE(fs::exists(folder / "missing"));
  test::writeFile(folder / "plain", std::string("no fork"));
  EXPECT_FALSE(IconFamily::removeCustomIconFromFile(folder / "plain", services).ok());
  EXPECT_FALSE(familyOf(10).setAsCustomIconForFile(tree / "missing/new", services).ok());
}

TEST_P(CustomIconTest, RemovingAFoldersIconClearsTheFlagsEvenWithoutAnIconFile) {
  setFolderFlags(0x0400 | 0x0100 | 0x0008);
  EXPECT_FALSE(IconFamily::removeCustomIconFromDirectory(folder, services).ok());
  EXPECT_EQ(folderFlags(), 0x0008U);
  ASSERT_TRUE(familyOf(10).setAsCustomIconForDirectory(folder, services).ok());
  ASSERT_TRUE(IconFamily::removeCustomIconFromDirectory(folder, services).ok());
  EXPECT_EQ(folderFlags(), 0x0008U);
  EXPECT_TRUE(fs::is_empty(folder));
}

TEST_P(CustomIconTest, WhateverIsThereHasAnIconThatCanBeShown) {
  const IconFamily ofDocuments = *IconFamily::iconFamilyWithThumbnailsOfImage(*kinds.systemIcon("docu"));
  const IconFamily ofFolders = *IconFamily::iconFamilyWithThumbnailsOfImage(*kinds.systemIcon("fldr"));
  const auto shown = [&](const fs::path& path) { return IconFamily::iconFamilyWithIconOfFile(path, services); };
  EXPECT_EQ(*shown(folder), ofFolders);
  test::writeFile(folder / "file", std::string("x"));
  EXPECT_EQ(*shown(folder / "file"), ofDocuments);
  ASSERT_TRUE(familyOf(10).setAsCustomIconForFile(folder / "file", services).ok());
  fs::create_symlink("file", folder / "link");
  EXPECT_EQ(*shown(folder / "link"), familyOf(10));
  ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
  EXPECT_EQ(*shown(folder / "fifo"), ofDocuments);
  fs::create_symlink("nowhere", folder / "dangling");
  EXPECT_FALSE(shown(folder / "dangling").ok());
  EXPECT_FALSE(shown(folder / "missing").ok());

  // A resource that is no family is no icon.
  ASSERT_TRUE(familyOf(10).setAsCustomIconForDirectory(folder, services).ok());
  ForkedFile broken = forksOf(folder / "Icon\r");
  broken.fork.set({"icns", customIconResourceId, 0, "", Bytes{'i', 'c', 'n', 's', 0, 0, 0, 8}});
  setForks(folder / "Icon\r", broken);
  EXPECT_EQ(*shown(folder), ofFolders);
}

TEST(IconFamilyScrap, GoesUnderBothTypesAndPrefersThePublishedOne) {
  const std::string older = "'icns' (CorePasteboardFlavorType 0x69636E73)";
  MemoryPasteboard pasteboard;
  pasteboard.content["text/plain"] = {1};
  EXPECT_FALSE(IconFamily::canInitWithScrap(pasteboard));
  EXPECT_FALSE(IconFamily::iconFamilyWithScrap(pasteboard));
  EXPECT_TRUE(familyOf(10).putOnScrap(pasteboard));
  EXPECT_EQ(pasteboard.types(), (std::vector<std::string>{older, "com.apple.icns"}));
  pasteboard.content[older] = {7};
  EXPECT_EQ(IconFamily::iconFamilyWithScrap(pasteboard), familyOf(10));
  pasteboard.content.erase("com.apple.icns");
  EXPECT_TRUE(IconFamily::canInitWithScrap(pasteboard));
  // Unchecked, as it comes.
  EXPECT_EQ(IconFamily::iconFamilyWithScrap(pasteboard)->data(), Bytes{7});
}

}  // namespace
}  // namespace quorvane
