// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of the properties of files, and what is left when writing fails.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>

#include "foundation/Folder.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using test::bytesOf;
using test::TemporaryFolder;
using Access = Folder::Access;

struct stat statusAt(const fs::path& path) {
  struct stat info {};
  EXPECT_EQ(::lstat(path.c_str(), &info), 0) << path;
  return info;
}

// An access list: owner rw, user 1234 r, group r, mask r, others nothing. Version 2; tag, permissions, ID;
// little-endian.
const Bytes accessList{2, 0,   0,   0,   1,   0,  6, 0, 255, 255, 255, 255, 2,   0,  4, 0, 210, 4,   0,   0,   4,  0, 4,
                       0, 255, 255, 255, 255, 16, 0, 4, 0,   255, 255, 255, 255, 32, 0, 0, 0,   255, 255, 255, 255};

TEST(FolderWriting, AReplacedFileKeepsWhoMayReadItAndItsAttributes) {
  TemporaryFolder root;
  test::writeFile(root / "f", "old");
  test::writeFile(root / "private", "old");
  if (::lsetxattr((root / "f").c_str(), "user.note", "kept", 4, 0) != 0) GTEST_SKIP() << "no extended attributes here";
  ASSERT_EQ(::chmod((root / "f").c_str(), 0751), 0);
  ASSERT_EQ(::chmod((root / "private").c_str(), 0400), 0);
  const bool lists =
      ::lsetxattr((root / "f").c_str(), "system.posix_acl_access", accessList.data(), accessList.size(), 0) == 0;
  if (::geteuid() == 0) {
    ASSERT_EQ(::chown((root / "f").c_str(), 1234, 5678), 0);
  }
  // The folder hands an access list of its own to everything that is made in it; replaced files must not take it.
  if (lists) ::lsetxattr(root.path().c_str(), "system.posix_acl_default", accessList.data(), accessList.size(), 0);
  const struct stat before = statusAt(root / "f");

  Folder folder = Folder::open(root.path(), Access::Write).value();
  EXPECT_EQ(*folder.writeFile("f", bytesOf("new")), WriteOutcome::Written);
  EXPECT_EQ(*folder.writeFile("private", bytesOf("new")), WriteOutcome::Written);

  const struct stat after = statusAt(root / "f");
  EXPECT_NE(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
  EXPECT_EQ(**folder.attributeOf("f", "user.note"), bytesOf("kept"));
  if (lists) {
    EXPECT_EQ(**folder.attributeOf("f", "system.posix_acl_access"), accessList);
  }
  EXPECT_FALSE(folder.attributeOf("private", "system.posix_acl_access")->has_value());
  EXPECT_EQ(statusAt(root / "private").st_mode & 07777, 0400U);
}

TEST(FolderWriting, ANewFileIsNeverMoreOpenThanItsFolder) {
  struct Row {
    mode_t folder, umask, file, child;
  };
  for (const Row& row : {Row{0755, 022, 0644, 0755}, Row{0700, 022, 0600, 0700}, Row{0777, 0, 0666, 0777},
                         Row{0750, 022, 0640, 0750}, Row{0777, 077, 0600, 0700}, Row{02775, 002, 0664, 02775}}) {
    TemporaryFolder root;
    ASSERT_EQ(::chmod(root.path().c_str(), row.folder), 0);
    const mode_t former = ::umask(row.umask);
    Folder folder = Folder::open(root.path(), Access::Write).value();
    EXPECT_TRUE(folder.writeFile("f", bytesOf("x")).ok());
    EXPECT_TRUE(folder.makeChild("d").ok());
    ::umask(former);
    EXPECT_EQ(statusAt(root / "f").st_mode & 07777, row.file) << std::oct << row.folder << " " << row.umask;
    EXPECT_EQ(statusAt(root / "d").st_mode & 07777, row.child) << std::oct << row.folder << " " << row.umask;
  }
}

TEST(FolderWriting, AsRootWhatIsNewBelongsToTheFoldersOwnerAndAGroupThatCannotBeGivenGainsNothing) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs files of somebody else";
  TemporaryFolder root;
  ASSERT_TRUE(::chown(root.path().c_str(), 1234, 5678) == 0 && ::chmod(root.path().c_str(), 0777) == 0);
  {
    Folder folder = Folder::open(root.path(), Access::Write).value();
    EXPECT_TRUE(folder.writeFile("f", bytesOf("x")).ok());
    EXPECT_TRUE(folder.makeChild("d")->writeFile("inside", bytesOf("x")).ok());
  }
  for (const char* name : {"f", "d", "d/inside"})
    EXPECT_TRUE(statusAt(root / name).st_uid == 1234 && statusAt(root / name).st_gid == 5678) << name;
  ASSERT_EQ(::chmod((root / "f").c_str(), 0664), 0);
  test::asOrdinaryUser([&] {
    ::umask(0);
    EXPECT_TRUE(Folder::open(root.path(), Access::Write)->writeFile("f", bytesOf("ours")).ok());
    EXPECT_EQ(statusAt(root / "f").st_mode & 07777, 0644U);
  });
}

TEST(FolderWriting, WhatStandsThereAlreadyIsNotTouched) {
  TemporaryFolder root;
  const Bytes large(100'000, 3);
  Folder folder = Folder::open(root.path(), Access::Write).value();
  EXPECT_EQ(*folder.writeFile("large", large), WriteOutcome::Written);
  EXPECT_EQ(*folder.writeFile("empty", {}), WriteOutcome::Written);
  const std::string before = test::describeTree(root.path(), true);
  EXPECT_EQ(*folder.writeFile("large", large), WriteOutcome::Unchanged);
  EXPECT_EQ(*folder.writeFile("empty", {}), WriteOutcome::Unchanged);
  EXPECT_EQ(test::describeTree(root.path(), true), before);
  for (Bytes other : {Bytes(99'999, 3), Bytes(100'001, 3), Bytes(100'000, 3)}) {
    if (other.size() == large.size()) other.back() = 4;
    EXPECT_EQ(*folder.writeFile("large", other), WriteOutcome::Written);
    EXPECT_EQ(test::readFile(root / "large"), other);
  }
  // A hard link's other name keeps the old content.
  fs::create_hard_link(root / "large", root / "victim");
  EXPECT_TRUE(folder.writeFile("large", bytesOf("new")).ok());
  EXPECT_EQ(fs::file_size(root / "victim"), large.size());
}

TEST(FolderWriting, AnEditLosesNobodysChange) {
  TemporaryFolder root;
  Folder folder = Folder::open(root.path(), Access::Write).value();
  EXPECT_TRUE(folder.writeFile("f", bytesOf("1"), std::nullopt).ok());
  EXPECT_EQ(folder.writeFile("f", bytesOf("2"), std::nullopt).error().kind(), ErrorKind::Refused);
  test::writeFile(root / "f", "theirs");
  EXPECT_EQ(folder.writeFile("f", bytesOf("2"), bytesOf("1")).error().kind(), ErrorKind::Refused);
  EXPECT_EQ(test::listing(root.path()), "f=theirs\n");
  EXPECT_TRUE(folder.writeFile("f", bytesOf("2"), bytesOf("theirs")).ok());
  fs::remove(root / "f");
  EXPECT_EQ(folder.writeFile("f", bytesOf("3"), bytesOf("2")).error().kind(), ErrorKind::Refused);
  EXPECT_EQ(test::listing(root.path()), "");
}

TEST(FolderWriting, ForbiddenWritingNamesThePathAndTheReason) {
  TemporaryFolder root;
  ASSERT_EQ(::chmod(root.path().c_str(), 0755), 0);
  fs::create_directory(root / "locked");
  test::writeFile(root / "locked/f", "old");
  test::writeFile(root / "locked/.quorvane-abcd1234.tmp", "leftover");
  fs::create_directory(root / "open");
  test::writeFile(root / "open/secret", "theirs");
  ASSERT_EQ(::chmod((root / "open").c_str(), 0777), 0);
  ASSERT_EQ(::chmod((root / "open/secret").c_str(), ::geteuid() == 0 ? 0600 : 0), 0);
  ASSERT_EQ(::chmod((root / "locked").c_str(), 0555), 0);
  const std::string before = test::describeTree(root.path(), true);
  test::asOrdinaryUser([&] {
    auto locked = Folder::open(root / "locked", Access::Write);
    ASSERT_TRUE(locked.ok()) << locked.error().message();
    EXPECT_EQ(locked->writeFile("f", bytesOf("new")).error().message(),
              (root / "locked/f").string() + ": cannot write: Permission denied");
    EXPECT_EQ(locked->writeFile("g", bytesOf("new")).error().systemCode(), EACCES);
    EXPECT_EQ(locked->removeFile("f").error().message(),
              (root / "locked/f").string() + ": cannot remove: Permission denied");
    EXPECT_EQ(locked->makeChild("d").error().systemCode(), EACCES);
    EXPECT_EQ(*locked->writeFile("f", bytesOf("old")), WriteOutcome::Unchanged);
    // Replacing what we may not even read would lose its properties.
    auto open = Folder::open(root / "open", Access::Write);
    EXPECT_EQ(open->writeFile("secret", bytesOf("new")).error().systemCode(), EACCES);
  });
  ASSERT_EQ(::chmod((root / "open/secret").c_str(), 0600), 0);
  if (::geteuid() == 0) {
    EXPECT_EQ(test::describeTree(root.path(), true), before);
  }
}

// The old file must survive, no stray file may stay, and success must not be reported.
void expectFailingWritesLeaveAllAsItWas(const fs::path& root, int code) {
  Folder folder = Folder::open(root, Access::Write).value();
  ASSERT_TRUE(folder.writeFile("f", bytesOf("old")).ok());
  for (const std::size_t size : {40'000U, 70'000U}) {
    EXPECT_EQ(folder.writeFile("f", Bytes(size, 1)).error().systemCode(), code) << size;
    EXPECT_EQ(folder.writeFile("new", Bytes(size, 1)).error().systemCode(), code) << size;
    EXPECT_EQ(test::listing(root), "f=old\n");
  }
  EXPECT_TRUE(folder.writeFile("f", bytesOf("new")).ok());
}

TEST(FolderWriting, OnAFullDiskTheOldFileStays) {
  TemporaryFolder root;
  if (!test::withMounted("tmpfs", "size=32k", root.path(),
                         [&] { expectFailingWritesLeaveAllAsItWas(root.path(), ENOSPC); }))
    GTEST_SKIP() << "may not mount";
}

TEST(FolderWriting, OverTheFileSizeLimitTheOldFileStays) {
  TemporaryFolder root;
  test::inChild([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{10'000, 10'000};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    expectFailingWritesLeaveAllAsItWas(root.path(), EFBIG);
  });
}

// All about the file "f" of a folder.
std::string describeFile(const fs::path& folder) {
  const std::string all = std::string("\n").append(test::describeTree(folder, true));
  const std::size_t start = all.find("\nf ");
  return start == std::string::npos ? "" : all.substr(start, all.find('\n', start + 1) - start);
}

TEST(FolderWriting, WhatIsPreservedSurvivesTheReplacementOnEveryFileSystem) {
  if (::access("/dev/shm", W_OK) != 0) GTEST_SKIP() << "needs a second file system";
  TemporaryFolder root;
  TemporaryFolder elsewhere("/dev/shm");  // another file system: must be a copy
  fs::create_directory(root / "kept");
  test::writeFile(root / "f", "original");
  ::lsetxattr((root / "f").c_str(), "user.note", "kept", 4, 0);
  ASSERT_EQ(::chmod((root / "f").c_str(), 0640), 0);
  const timespec times[2] = {{900'000'000, 5}, {1'000'000'000, 7}};
  ASSERT_EQ(::utimensat(AT_FDCWD, (root / "f").c_str(), times, 0), 0);
  const std::string before = describeFile(root.path());

  Folder folder = Folder::open(root.path(), Access::Write).value();
  for (const fs::path& place : {root / "kept", elsewhere.path()}) {
    Folder in = Folder::open(place, Access::Write).value();
    EXPECT_TRUE(folder.preserve("f", in, "f").ok());
    EXPECT_FALSE(folder.preserve("f", in, "f").ok());  // never over something that is kept
    EXPECT_EQ(folder.preserve("missing", in, "m").error().kind(), ErrorKind::NotFound);
  }
  EXPECT_EQ(statusAt(root / "kept/f").st_ino, statusAt(root / "f").st_ino);
  EXPECT_TRUE(folder.writeFile("f", bytesOf("new")).ok());
  EXPECT_NE(describeFile(root.path()), before);
  EXPECT_EQ(describeFile(root / "kept"), before);
  EXPECT_EQ(describeFile(elsewhere.path()), before);
}

}  // namespace
}  // namespace quorvane
