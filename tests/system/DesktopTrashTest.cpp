// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"
#include "system/Trash.h"

namespace quorvane::test {
namespace {

namespace fs = std::filesystem;

using ::testing::HasSubstr;

class DesktopTrashTest : public ::testing::Test {
 protected:
  DesktopTrashTest() {
    ::setenv("XDG_DATA_HOME", data.c_str(), 1);
    fs::create_directories(data);
  }
  ~DesktopTrashTest() override { ::unsetenv("XDG_DATA_HOME"); }

  /// Puts a file away and brings it back.
  void goThereAndBack(const fs::path& path, const fs::path& folder) {
    writeFile(path, "content");
    const auto item = trash->put(path);
    ASSERT_TRUE(item) << path;
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(item->trashed.parent_path(), folder / "files");
    EXPECT_EQ(readText(item->trashed), "content");
    const fs::path info = folder / "info" / (item->trashed.filename().string() + ".trashinfo");
    EXPECT_THAT(readText(info), HasSubstr("[Trash Info]\nPath="));
    EXPECT_EQ(trash->restore(*item), path);
    EXPECT_EQ(readText(path), "content");
    EXPECT_FALSE(fs::exists(info));
  }
  static std::string readText(const fs::path& path) {
    const auto bytes = readFile(path);
    return {bytes.begin(), bytes.end()};
  }

  TemporaryFolder tree;
  const fs::path data = tree / "data";
  const std::unique_ptr<Trash> trash = makeDesktopTrash();
};

TEST_F(DesktopTrashTest, TakesAnyNameAndGivesItBack) {
  for (const std::string& name : {std::string("a b%.icns"), std::string("bad\xFF.png"), std::string(250, 'x') + ".icns",
                                  std::string(253, 'x') + "ä", "." + std::string(254, 'y')})
    goThereAndBack(tree / name, data / "Trash");
  // Two of one name, both of which come back.
  writeFile(tree / "ä.icns", "1");
  const auto first = trash->put(tree / "ä.icns");
  writeFile(tree / "ä.icns", "2");
  const auto second = trash->put(tree / "ä.icns");
  ASSERT_TRUE(first && second);
  EXPECT_THAT(readText(data / "Trash/info/ä-1.icns.trashinfo"), HasSubstr("/%C3%A4.icns\nDeletionDate=2"));
  EXPECT_EQ(trash->restore(*second), tree / "ä.icns");
  EXPECT_EQ(trash->restore(*first), tree / "ä-1.icns");
  EXPECT_EQ(readText(tree / "ä-1.icns"), "1");
}

TEST_F(DesktopTrashTest, WhatItCannotTakeStaysWhereItStands) {
  EXPECT_FALSE(trash->put(tree / "none"));
  writeFile(tree / "file", "x");
  fs::create_directories(data / "Trash/files");
  writeFile(data / "Trash/info", "no folder");
  EXPECT_FALSE(trash->put(tree / "file"));
  EXPECT_TRUE(fs::exists(tree / "file") && fs::is_empty(data / "Trash/files"));
  fs::remove(data / "Trash/info");
  fs::permissions(tree.path(), fs::perms::all);
  fs::create_directory(data / "Trash/info");
  fs::permissions(data / "Trash/info", fs::perms::owner_read | fs::perms::others_read | fs::perms::others_exec);
  asOrdinaryUser([&] { EXPECT_FALSE(trash->put(tree / "file")); });
  EXPECT_TRUE(fs::exists(tree / "file"));
  fs::permissions(data / "Trash/info", fs::perms::all);
}

TEST_F(DesktopTrashTest, OnAnotherFileSystemItLiesAtTheTop) {
  fs::create_directory(tree / "other");
  if (!withMounted("tmpfs", "size=1m", tree / "other", [&] {
        fs::create_directories(tree / "other/deep");
        goThereAndBack(tree / "other/deep/a.icns", tree / "other" / (".Trash-" + std::to_string(::geteuid())));
        EXPECT_FALSE(fs::exists(data / "Trash"));
        writeFile(tree / "other/deep/b.icns", "x");
        const auto item = trash->put(tree / "other/deep/b.icns");
        ASSERT_TRUE(item);
        EXPECT_THAT(readText(item->trashed.parent_path().parent_path() / "info/b.icns.trashinfo"),
                    HasSubstr("Path=deep/b.icns\n"));
        // With no room for a word it is kept all the same.
        std::ofstream(tree / "other/filler") << std::string(2 << 20, 'x');
        const auto unsaid = trash->put(tree / "other/filler");
        ASSERT_TRUE(unsaid);
        EXPECT_EQ(trash->restore(*unsaid), tree / "other/filler");
      }))
    GTEST_SKIP() << "nothing can be mounted here";
}

}  // namespace
}  // namespace quorvane::test
