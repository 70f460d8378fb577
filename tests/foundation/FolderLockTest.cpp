// SPDX-License-Identifier: GPL-3.0-or-later
// Several writers at once, and writers that die.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <random>
#include <thread>

#include "foundation/Folder.h"
#include "foundation/FolderNames.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using test::TemporaryFolder;
using Access = Folder::Access;

// A content that shows when it is not whole: one letter, `size` times.
bool isWhole(const Bytes& bytes, std::size_t size) {
  return bytes.size() == size &&
         std::all_of(bytes.begin(), bytes.end(), [&](auto byte) { return byte == bytes.front(); });
}

TEST(FolderLock, WritersExcludeEachOtherWaitAndLeaveNoLockFile) {
  TemporaryFolder root;
  {
    Folder first = Folder::open(root.path(), Access::Write).value();
    const auto second = Folder::open(root.path(), Access::Write, 30ms);
    ASSERT_FALSE(second.ok());
    EXPECT_EQ(second.error().message(), root.path().string() + ": another program is changing this folder");
    EXPECT_TRUE(Folder::open(root.path(), Access::Read).ok());
    Folder moved = std::move(first);
    EXPECT_FALSE(Folder::open(root.path(), Access::Write, 30ms).ok());
  }
  auto held = std::make_unique<Folder>(Folder::open(root.path(), Access::Write, 30ms).value());
  std::thread release([&] {
    std::this_thread::sleep_for(60ms);
    held.reset();
  });
  EXPECT_TRUE(Folder::open(root.path(), Access::Write).ok());
  release.join();
  EXPECT_EQ(test::listing(root.path()), "");
}

TEST(FolderLock, SweepsOnlyWhatIsCertainlyALeftover) {
  EXPECT_TRUE(names::isTemporary(Folder::temporaryName()));
  TemporaryFolder root;
  fs::create_directory(root / "victim");
  test::writeFile(root / "victim/precious", "x");
  fs::create_directory(root / "f");
  test::writeFile(root / "f/.quorvane-0a1b2c3d.tmp", "half");
  fs::create_directories(root / "f/.quorvane-11111111.tmp/original");
  test::writeFile(root / "f/.quorvane-11111111.tmp/original/x", "half");
  const std::string others[] = {".quorvane-.tmp",         ".quorvane-0a1b2c3.tmp",   ".quorvane-0a1b2c3d4.tmp",
                                ".quorvane-0A1B2C3D.tmp", ".quorvane-0a1b2c3d.tmp~", "quorvane-0a1b2c3d.tmp"};
  for (const auto& name : others) test::writeFile(root / "f" / name, "theirs");
  fs::create_directory_symlink("../victim", root / "f/.quorvane-22222222.tmp");
  ASSERT_EQ(::mkfifo((root / "f/.quorvane-33333333.tmp").c_str(), 0600), 0);

  EXPECT_TRUE(Folder::open(root / "f", Access::Write).ok());
  EXPECT_EQ(Folder::open(root / "f", Access::Read)->names()->size(), std::size(others) + 2);
  EXPECT_FALSE(fs::exists(root / "f/.quorvane-0a1b2c3d.tmp"));
  EXPECT_FALSE(fs::exists(root / "f/.quorvane-11111111.tmp"));
  EXPECT_EQ(test::listing(root / "victim"), "precious=x\n");
}

TEST(FolderLock, ManyWritersLeaveWholeFilesAndNothingElse) {
  TemporaryFolder root;
  std::vector<pid_t> children;
  for (std::uint8_t writer = 0; writer < 8; ++writer)
    children.push_back(test::startChild([&root, writer] {
      for (int round = 0; round < 10; ++round) {
        auto folder = Folder::open(root.path(), Access::Write);
        ASSERT_TRUE(folder.ok()) << folder.error().message();
        const auto before = folder->readFile("f", 1 << 20);
        EXPECT_TRUE(!before->has_value() || isWhole(**before, 50'000));
        // Nobody else may come between reading and writing.
        EXPECT_TRUE(folder->writeFile("f", Bytes(50'000, writer), *before).ok());
        const auto parent = folder->openParent(Access::Read);
        EXPECT_TRUE(parent.ok());
      }
    }));
  for (const pid_t child : children) EXPECT_TRUE(test::waitForChild(child));
  EXPECT_EQ(Folder::open(root.path(), Access::Read)->names().value(), std::vector<std::string>{"f"});
}

TEST(FolderLock, AKilledWriterLeavesTheOldOrTheNewFileAndTheNextOneSweeps) {
  TemporaryFolder root;
  std::mt19937 random(7);
  std::uniform_int_distribution<int> delay(0, 4000);
  void* const shared = ::mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  std::atomic<int>& begun = *new (shared) std::atomic<int>(0);
  int leftovers = 0;
  // A machine under load meets fewer writers at work: it goes on until enough of them were.
  for (int round = 0; round < 100 || (leftovers <= 10 && round < 3000); ++round) {
    begun = 0;
    const pid_t child = test::startChild([&] {
      Folder folder = Folder::open(root.path(), Access::Write).value();
      begun = 1;
      for (std::uint8_t value = 0;; ++value) {
        static_cast<void>(folder.writeFile("f", Bytes(300'000, value)));
        if (auto made = folder.makeChild(Folder::temporaryName()); made.ok())
          static_cast<void>(made->writeFile("inside", Bytes(100, value)));
      }
    });
    for (int waits = 0; begun == 0 && waits < 5000; ++waits) std::this_thread::sleep_for(1ms);
    std::this_thread::sleep_for(std::chrono::microseconds(delay(random)));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    if (Folder::open(root.path(), Access::Read)->names()->size() > 1) ++leftovers;
    Folder folder = Folder::open(root.path(), Access::Write, 1s).value();  // the lock died with its owner
    const auto content = folder.readFile("f", 1 << 20);
    EXPECT_TRUE(!content->has_value() || isWhole(**content, 300'000)) << "round " << round;
    EXPECT_LE(folder.names()->size(), 1U) << "round " << round;
  }
  ::munmap(shared, sizeof(int));
  EXPECT_GT(leftovers, 10) << "the loop must meet writers at work";
}

// Programs that know nothing of our lock change the file as well: an edit based on what they have replaced is refused.
TEST(FolderLock, EditsLoseNoChangeOfOtherPrograms) {
  TemporaryFolder root;
  test::writeFile(root / "f", "1");
  const auto number = [&] {
    return std::atoi(std::string(reinterpret_cast<char*>(test::readFile(root / "f").data()), 6).c_str());
  };
  Folder folder = Folder::open(root.path(), Access::Write).value();
  void* const shared = ::mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  std::atomic<int>& lost = *new (shared) std::atomic<int>(0);
  const pid_t other = test::startChild([&] {
    for (int last = 100'000;; ++last) {
      test::writeFile(root / "theirs", std::to_string(last));
      fs::rename(root / "theirs", root / "f");
      std::this_thread::sleep_for(last % 3 == 0 ? 30ms : 500us);  // sometimes long enough for a whole write
      if (number() >= last) continue;
      std::this_thread::sleep_for(20ms);  // it may be about to get its place back
      if (number() < last) ++lost;
    }
  });
  int written = 0, refused = 0;
  const auto end = std::chrono::steady_clock::now() + 10s;
  while ((written < 20 || refused < 20) && std::chrono::steady_clock::now() < end) {
    const auto before = folder.readFile("f", 100).value();
    Bytes edited = before.value();
    edited.resize(6);
    for (const char letter : " edit " + std::to_string(written)) edited.push_back(static_cast<std::uint8_t>(letter));
    const auto done = folder.writeFile("f", edited, before);
    ++(done.ok() ? written : refused);
  }
  ::kill(other, SIGKILL);
  ::waitpid(other, nullptr, 0);
  EXPECT_TRUE(written >= 5 && refused >= 5) << written << " written, " << refused << " refused: no race was met";
  EXPECT_EQ(lost.load(), 0);
}

// Somebody swaps the folder for a link, and the file in it for another link, while we write.
TEST(FolderLock, SwappingFoldersAndFilesForLinksNeverLeadsOut) {
  TemporaryFolder root;
  fs::create_directory(root / "real");
  fs::create_directory(root / "victim");
  test::writeFile(root / "victim/f", "precious");
  fs::create_directory_symlink("victim", root / "link");
  const std::string before = test::describeTree(root / "victim", true);
  Folder folder = Folder::open(root / "real", Access::Write).value();
  const pid_t swapper = test::startChild([&] {
    const int real = ::open((root / "real").c_str(), O_RDONLY | O_DIRECTORY);
    for (;;) {
      ::renameat2(AT_FDCWD, (root / "real").c_str(), AT_FDCWD, (root / "link").c_str(), RENAME_EXCHANGE);
      ::unlinkat(real, "f", 0);
      static_cast<void>(::symlinkat("../victim/f", real, "f"));
      std::this_thread::sleep_for(20us);
      ::unlinkat(real, "f", 0);
      std::this_thread::sleep_for(300us);
    }
  });
  int written = 0, refused = 0;
  const auto end = std::chrono::steady_clock::now() + 10s;
  for (int round = 0; (round < 3000 || written < 20 || refused < 20) && std::chrono::steady_clock::now() < end;
       ++round) {
    const auto done = folder.writeFile("f", Bytes(10, static_cast<std::uint8_t>(round)));
    if (done.ok()) ++written;
    if (!done.ok() && done.error().kind() == ErrorKind::Refused) ++refused;
    static_cast<void>(folder.readFile("f", 100));
    static_cast<void>(folder.removeFile("f"));
  }
  ::kill(swapper, SIGKILL);
  ::waitpid(swapper, nullptr, 0);
  EXPECT_TRUE(written >= 20 && refused >= 20) << written << " written, " << refused << " refused: no race was met";
  EXPECT_EQ(test::describeTree(root / "victim", true), before);
}

}  // namespace
}  // namespace quorvane
