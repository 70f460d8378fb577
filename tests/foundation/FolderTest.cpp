// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using test::bytesOf;
using test::TemporaryFolder;
using Access = Folder::Access;

Folder openForWriting(const fs::path& path) {
  auto folder = Folder::open(path, Access::Write);
  EXPECT_TRUE(folder.ok()) << (folder.ok() ? "" : folder.error().message());
  return std::move(folder).value();
}

TEST(Folder, OpensFoldersAndLinksToThemAndNothingElse) {
  TemporaryFolder root;
  fs::create_directory(root / "real");
  fs::create_directory_symlink("real", root / "link");
  fs::create_symlink("loop", root / "loop");
  fs::create_symlink("nowhere", root / "dangling");
  test::writeFile(root / "file", "x");
  ASSERT_EQ(::mkfifo((root / "fifo").c_str(), 0600), 0);

  const auto throughLink = Folder::open(root / "link", Access::Read);
  ASSERT_TRUE(throughLink.ok());
  EXPECT_EQ(throughLink->path(), root / "real");

  for (const char* name : {"loop", "dangling", "file", "fifo", "missing"}) {
    const auto opened = Folder::open(root / name, Access::Write);
    ASSERT_FALSE(opened.ok()) << name;
    EXPECT_EQ(opened.error().where(), root / name);
    EXPECT_NE(opened.error().message().find("cannot open folder: "), std::string::npos);
  }
  EXPECT_EQ(Folder::open(root / "missing", Access::Read).error().kind(), ErrorKind::NotFound);
  EXPECT_FALSE(Folder::open(fs::path(root.path().native() + std::string(1, '\0') + "x"), Access::Read).ok());
  EXPECT_EQ(openForWriting(root / "real").openChild("../link", Access::Read).error().kind(), ErrorKind::InvalidInput);
  EXPECT_EQ(openForWriting(root.path()).openChild("link", Access::Read).error().kind(), ErrorKind::Refused);
}

TEST(Folder, KeepsWorkingWhereItWasWhenItIsMovedOrSwappedForALink) {
  TemporaryFolder root;
  fs::create_directory(root / "a");
  fs::create_directory(root / "victim");
  const std::string notUtf8 = "na\xFFme\r";
  Folder folder = openForWriting(root / "a");
  fs::rename(root / "a", root / notUtf8);
  fs::create_directory_symlink("victim", root / "a");
  EXPECT_TRUE(folder.writeFile("x", bytesOf("new")).ok());
  EXPECT_EQ(test::listing(root / notUtf8), "x=new\n");
  EXPECT_EQ(test::listing(root / "victim"), "");
  EXPECT_EQ(folder.openParent(Access::Read)->name, notUtf8);
  EXPECT_EQ(folder.openParent(Access::Read)->folder.path(), root.path());
  EXPECT_EQ(Folder::open("/", Access::Read)->openParent(Access::Read).error().kind(), ErrorKind::Unsupported);

  fs::remove_all(root / notUtf8);
  EXPECT_FALSE(folder.writeFile("x", bytesOf("new")).ok());
  EXPECT_FALSE(fs::exists(root / notUtf8));
}

TEST(Folder, RefusesWhatIsNoNameOfAnItem) {
  TemporaryFolder root;
  Folder folder = openForWriting(root.path());
  for (const std::string& name : {std::string(), std::string("."), std::string(".."), std::string("a/b"),
                                  std::string("/etc"), std::string("a\0b", 3), std::string(256, 'n')}) {
    EXPECT_EQ(folder.writeFile(name, {}).error().kind(), ErrorKind::InvalidInput) << name;
    EXPECT_EQ(folder.readFile(name, 9).error().kind(), ErrorKind::InvalidInput) << name;
    EXPECT_EQ(folder.removeChild(name).error().kind(), ErrorKind::InvalidInput) << name;
  }
  for (const std::string& name :
       {std::string(255, 'n'), std::string("\xFF\xFE\n*"), std::string("Icon\r"), std::string("-rf")}) {
    EXPECT_TRUE(folder.writeFile(name, bytesOf(name)).ok()) << name;
    EXPECT_EQ(*folder.readFile(name, 255).value(), bytesOf(name));
  }
  EXPECT_EQ(folder.names()->size(), 4U);
}

// In the place of a file we may meet anything; whatever it is, it and what it leads to stay as they are.
TEST(Folder, RefusesEverythingThatStandsInPlaceOfAFile) {
  TemporaryFolder root;
  fs::create_directory(root / "folder");
  test::writeFile(root / "victim", "precious");
  fs::create_directory(root / "elsewhere");
  fs::create_directory(root / "folder/directory");
  test::writeFile(root / "folder/directory/inside", "x");
  fs::create_symlink("../victim", root / "folder/relative");
  fs::create_symlink(root / "victim", root / "folder/absolute");
  fs::create_symlink("../created", root / "folder/dangling");
  fs::create_directory_symlink("../elsewhere", root / "folder/toFolder");
  ASSERT_EQ(::mkfifo((root / "folder/fifo").c_str(), 0600), 0);
  ASSERT_EQ(::mknod((root / "folder/socket").c_str(), S_IFSOCK | 0600, 0), 0);
  test::writeFile(root / "folder/plain", "plain");
  const std::string before = test::describeTree(root.path(), true);

  Folder folder = openForWriting(root / "folder");
  Folder other = openForWriting(root / "elsewhere");
  const timespec now{0, UTIME_NOW};
  for (const std::string name : {"directory", "relative", "absolute", "dangling", "toFolder", "fifo", "socket"}) {
    const auto isRefused = [](const auto& result) {
      return !result.ok() && result.error().kind() == ErrorKind::Refused;
    };
    EXPECT_TRUE(isRefused(folder.writeFile(name, bytesOf("evil")))) << name;
    EXPECT_TRUE(isRefused(folder.readFile(name, 100))) << name;
    EXPECT_TRUE(isRefused(folder.removeFile(name))) << name;
    EXPECT_TRUE(isRefused(folder.preserve(name, other, "kept"))) << name;
    EXPECT_TRUE(isRefused(folder.rename("plain", folder, name))) << name;
    EXPECT_TRUE(isRefused(folder.setAttributeOf(name, "user.x", bytesOf("1")))) << name;
    EXPECT_TRUE(isRefused(folder.attributeOf(name, "user.x"))) << name;
    EXPECT_TRUE(isRefused(folder.setTimesOf(name, now, now))) << name;
    if (name == "directory") continue;
    EXPECT_TRUE(isRefused(folder.makeChild(name)) && isRefused(folder.removeChild(name))) << name;
    EXPECT_FALSE(folder.rename(name, other, "moved").ok()) << name;
  }
  EXPECT_EQ(folder.removeChild("plain").error().kind(), ErrorKind::Refused);
  EXPECT_EQ(test::describeTree(root.path(), true), before);

  EXPECT_TRUE(folder.removeFile("absolute", true).ok());
  EXPECT_TRUE(folder.removeFile("toFolder", true).ok());
  EXPECT_FALSE(folder.statusOf("absolute")->has_value());
  EXPECT_EQ(test::readFile(root / "victim"), bytesOf("precious"));
  EXPECT_TRUE(fs::is_directory(root / "elsewhere"));
}

TEST(Folder, ReadsNoMoreThanTheLimit) {
  TemporaryFolder root;
  test::writeFile(root / "four", "1234");
  test::writeFile(root / "empty", "");
  test::writeFile(root / "huge", "");
  fs::resize_file(root / "huge", std::uintmax_t{1} << 30);  // a hole: costs nothing but the attempt to read it
  const auto folder = Folder::open(root.path(), Access::Read);
  EXPECT_EQ(**folder->readFile("four", 4), bytesOf("1234"));
  EXPECT_EQ(folder->readFile("four", 3).error().kind(), ErrorKind::TooLarge);
  EXPECT_EQ(folder->readFile("huge", 1 << 20).error().kind(), ErrorKind::TooLarge);
  EXPECT_TRUE((*folder->readFile("empty", 0))->empty());
  EXPECT_FALSE(folder->readFile("missing", 4)->has_value());
}

TEST(Folder, OpenedForLookingChangesNothingAndTimesCanBePutBack) {
  TemporaryFolder root;
  test::writeFile(root / "f", "x");
  test::writeFile(root / ".quorvane-abcd1234.tmp", "somebody may be writing this");
  const std::string before = test::describeTree(root.path(), true);
  auto folder = Folder::open(root.path(), Access::Read);
  const timespec now{0, UTIME_NOW};
  EXPECT_EQ(folder->writeFile("g", {}).error().kind(), ErrorKind::Broken);
  EXPECT_EQ(folder->removeFile("f").error().kind(), ErrorKind::Broken);
  EXPECT_EQ(folder->makeChild("d").error().kind(), ErrorKind::Broken);
  EXPECT_EQ(folder->rename("f", *folder, "g").error().kind(), ErrorKind::Broken);
  EXPECT_EQ(folder->setAttribute("user.x", {}).error().kind(), ErrorKind::Broken);
  EXPECT_EQ(folder->setTimes(now, now).error().kind(), ErrorKind::Broken);
  EXPECT_EQ(test::describeTree(root.path(), true), before);

  // And who changed a folder can put its times back.
  Folder writable = openForWriting(root.path());
  const timespec old{1'000'000'000, 123456789}, omit{0, UTIME_OMIT};
  EXPECT_TRUE(writable.setTimesOf("f", omit, old).ok() && writable.setTimes(omit, old).ok());
  EXPECT_EQ((*writable.statusOf("f"))->st_mtim.tv_nsec, old.tv_nsec);
  EXPECT_EQ(writable.status()->st_mtim.tv_sec, old.tv_sec);
  EXPECT_GT(writable.status()->st_atim.tv_sec, old.tv_sec);
}

TEST(Folder, RemovesAFolderWithLinksInsideAndLeavesTheirTargets) {
  TemporaryFolder root;
  fs::create_directories(root / "f/own/deep/deeper");
  fs::create_directory(root / "victim");
  test::writeFile(root / "victim/precious", "x");
  fs::create_directory_symlink(root / "victim", root / "f/own/deep/link");
  test::writeFile(root / "f/own/deep/file", "x");
  Folder folder = openForWriting(root / "f");
  EXPECT_TRUE(folder.removeChild("own").ok());
  EXPECT_TRUE(folder.removeChild("own").ok());  // nothing there: nothing to do
  EXPECT_EQ(test::listing(root / "f"), "");
  EXPECT_EQ(test::listing(root / "victim"), "precious=x\n");
}

TEST(Folder, RenamesFilesOverFilesAndFoldersOverEmptyFolders) {
  TemporaryFolder root;
  Folder folder = openForWriting(root.path());
  Folder staging = folder.makeChild(Folder::temporaryName()).value();
  EXPECT_TRUE(staging.writeFile("a", bytesOf("1")).ok());
  fs::create_directory(root / "own");
  EXPECT_TRUE(folder.rename(staging.path().filename().string(), folder, "own").ok());
  EXPECT_EQ(test::listing(root / "own"), "a=1\n");
  fs::create_directory(root / "second");
  EXPECT_FALSE(folder.rename("second", folder, "own").ok());  // not empty any more
  EXPECT_TRUE(folder.writeFile("a", bytesOf("2")).ok());
  EXPECT_TRUE(folder.rename("a", staging, "a").ok());
  EXPECT_EQ(folder.rename("a", staging, "a").error().kind(), ErrorKind::NotFound);
  // Two names of one file: the system's own call would leave both.
  fs::create_hard_link(root / "own/a", root / "twin");
  EXPECT_TRUE(folder.rename("twin", staging, "a").ok() && staging.rename("a", staging, "a").ok());
  EXPECT_FALSE(fs::exists(root / "twin"));
  EXPECT_EQ(test::listing(root / "own"), "a=2\n");
}

TEST(Folder, KeepsAttributesOfFoldersAndFiles) {
  TemporaryFolder root;
  test::writeFile(root / "f", "x");
  Folder folder = openForWriting(root.path());
  if (!folder.setAttribute("user.test", {}).ok()) GTEST_SKIP() << "no extended attributes here";
  EXPECT_TRUE((*folder.attribute("user.test"))->empty());  // empty is not absent
  const Bytes longValue(3000, 7);
  EXPECT_TRUE(folder.setAttributeOf("f", "user.test", longValue).ok());
  EXPECT_EQ(**folder.attributeOf("f", "user.test"), longValue);
  for (int round = 0; round < 2; ++round) {
    EXPECT_TRUE(folder.removeAttribute("user.test").ok() && folder.removeAttributeOf("f", "user.test").ok());
    EXPECT_FALSE(folder.attribute("user.test")->has_value() || folder.attributeOf("f", "user.test")->has_value());
  }
  EXPECT_FALSE(folder.attributeOf("missing", "user.test")->has_value());
}

TEST(Folder, OnAFileSystemWithoutAttributesTheyAreAbsentAndUnsupported) {
  TemporaryFolder root;
  const bool mounted = test::withMounted("ramfs", "", root.path(), [&] {
    Folder folder = openForWriting(root.path());
    EXPECT_FALSE(folder.attribute("user.test")->has_value());
    EXPECT_EQ(folder.setAttribute("user.test", bytesOf("v")).error().kind(), ErrorKind::Unsupported);
    EXPECT_TRUE(folder.removeAttribute("user.test").ok());
    EXPECT_TRUE(folder.writeFile("f", bytesOf("1")).ok());
    EXPECT_TRUE(folder.writeFile("f", bytesOf("2")).ok());  // no attributes to take over
  });
  if (!mounted) GTEST_SKIP() << "may not mount";
}

}  // namespace
}  // namespace quorvane
