// SPDX-License-Identifier: GPL-3.0-or-later
// The way back to what stood in a folder before its first icon of ours, bit for bit.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>
#include <random>
#include <thread>

#include "Companions.h"
#include "iconfamily/OriginalState.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;
using Access = Folder::Access;
using test::Attributes;
using test::companionBytes;

const std::string mapped = "Icon\xEF\x80\x8D";

void setServerRecord(const fs::path& path, const Bytes& record) {
  ASSERT_EQ(::lsetxattr(path.c_str(), serverrecord::attributeName, record.data(), record.size(), 0), 0);
}

void setInfoAttribute(const fs::path& path, std::uint8_t highFlags, std::size_t size = 32) {
  Bytes value(size);
  value[8] = highFlags;
  value[1] = 7;
  ASSERT_EQ(::lsetxattr(path.c_str(), AppleDoubleForkStore::infoAttribute, value.data(), value.size(), 0), 0);
}

// Everything of a tree but the times of folders, which whoever changes a folder puts back, and what is kept in it.
std::string describe(const fs::path& root) {
  const timespec fixed[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
  ::utimensat(AT_FDCWD, root.c_str(), fixed, 0);
  for (const auto& entry : fs::recursive_directory_iterator(root))
    if (entry.is_directory()) ::utimensat(AT_FDCWD, entry.path().c_str(), fixed, 0);
  std::string text, line;
  std::istringstream lines(test::describeTree(root, true));
  while (std::getline(lines, line))
    if (line.find(".quorvane") == std::string::npos) text.append(line).append("\n");
  return text;
}

struct Start {
  const char* name;
  std::function<void(const fs::path& above)> make;  ///< fills `above`/f
};

const std::vector<Start>& starts() {
  static const std::vector<Start> all{
      {"nothing", [](const fs::path&) {}},
      {"an icon made on a Mac",
       [](const fs::path& above) {
         test::writeFile(above / "f/Icon\r", "");
         test::writeFile(above / "f/._Icon\r", companionBytes(FinderInfo::isInvisible, "theirs", 3));
         ::chmod((above / "f/Icon\r").c_str(), 0604);
         ::chmod((above / "f/._Icon\r").c_str(), 0440);
         ::lsetxattr((above / "f/._Icon\r").c_str(), "user.note", "kept", 4, 0);
         const timespec old[2] = {{900'000'000, 1}, {900'000'000, 12345}};
         ::utimensat(AT_FDCWD, (above / "f/Icon\r").c_str(), old, 0);
         ::utimensat(AT_FDCWD, (above / "f/._Icon\r").c_str(), old, 0);
         test::writeFile(above / "._f", companionBytes(FinderInfo::hasCustomIcon, "", 9));
         ::utimensat(AT_FDCWD, (above / "._f").c_str(), old, 0);
       }},
      {"an icon that went through a file server",
       [](const fs::path& above) {
         test::writeFile(above / "f" / mapped, "odd data");
         test::writeFile(above / "f/._Icon\xEF\x80\x8D", companionBytes(FinderInfo::isInvisible, "theirs", 0));
         test::writeFile(above / "f/._.", companionBytes(FinderInfo::hasCustomIcon, "", 4));
       }},
      {"attributes",
       [](const fs::path& above) {
         test::writeFile(above / "f/Icon\r", "");
         setInfoAttribute(above / "f/Icon\r", 0x40);
         setInfoAttribute(above / "f", 0x05, 36);
       }},
      {"an icon on a file server",
       [](const fs::path& above) {
         test::writeFile(above / "f/Icon\r", "");
         test::writeFile(above / "f/._Icon\r", companionBytes(0, "theirs", 0));
         setServerRecord(above / "f/Icon\r", test::serverRecord(FinderInfo::isInvisible));
         setServerRecord(above / "f", test::serverRecord(FinderInfo::hasCustomIcon | FinderInfo::hasBeenInited));
       }},
      {"a file server's broken records",
       [](const fs::path& above) {
         test::writeFile(above / "f/Icon\r", "");
         setServerRecord(above / "f/Icon\r", Bytes(402, 1));
         setServerRecord(above / "f", Bytes(26));
       }},
      {"a flag without an icon, and no companion of ours",
       [](const fs::path& above) {
         setInfoAttribute(above / "f", 0x04);
         test::writeFile(above / "f/._Icon\r", companionBytes(0, "orphan", 1));
         test::writeFile(above / "._f", "no companion at all");
       }},
  };
  return all;
}

// As the folder flow does it: both spellings go, ours is written with a fork, the folder gets the flag.
Result<void> brand(Folder& folder, AppleDoubleForkStore& store, std::uint8_t value) {
  TRY_VOID(store.removeFile(folder, mapped));
  TRY_VOID(folder.writeFile(iconFileName, {}));
  TRY_VOID(store.write(folder, iconFileName, test::iconOf(value)));
  TRY_VOID(store.changeFolderFlags(folder, FinderInfo::hasCustomIcon, FinderInfo::hasBeenInited));
  return {};
}

Result<void> save(Folder& folder, const AppleDoubleForkStore& store) {
  const std::string name = Folder::temporaryName();
  Folder staging = TRY(folder.makeChild(name));
  TRY_VOID(store.saveOriginal(folder, staging));
  return folder.rename(name, folder, ".quorvane");
}

Result<void> restore(Folder& folder, AppleDoubleForkStore& store) {
  const Folder kept = TRY(folder.openChild(".quorvane", Access::Read));
  return store.restoreOriginal(folder, kept);
}

void expectOk(const Result<void>& result, const std::string& what) {
  EXPECT_TRUE(result.ok()) << what << ": " << (result.ok() ? "" : result.error().message());
}

class OriginalIcon : public ::testing::TestWithParam<Attributes> {};

TEST_P(OriginalIcon, ComesBackBitForBit) {
  for (const Start& start : starts()) {
    TemporaryFolder root;
    fs::create_directory(root / "f");
    start.make(root.path());
    if (::testing::Test::HasFatalFailure()) return;
    const bool isBlocked =
        GetParam() == Attributes::Ignore && std::string(start.name).find("no companion of ours") != std::string::npos;
    const std::string before = describe(root.path());
    AppleDoubleForkStore store(GetParam());
    Folder folder = Folder::open(root / "f", Access::Write).value();
    expectOk(save(folder, store), start.name);
    EXPECT_EQ(describe(root.path()), before) << start.name;  // saving changes nothing
    for (const std::uint8_t value : Bytes{1, 2, 3})
      EXPECT_EQ(brand(folder, store, value).ok(), !isBlocked) << start.name;
    EXPECT_NE(describe(root.path()), before) << start.name;
    if (!isBlocked) {
      EXPECT_NE(store.readFolderInfo(folder)->flags() & FinderInfo::hasCustomIcon, 0) << start.name;
    }
    for (int round = 0; round < 2; ++round) {
      expectOk(restore(folder, store), start.name);
      EXPECT_EQ(describe(root.path()), before) << start.name;
    }
  }
}

TEST_P(OriginalIcon, ComesBackAfterInterruptionsAtAnyMoment) {
  std::mt19937 random(11);
  std::uniform_int_distribution<int> delay(0, 40'000);
  for (const Start& start : {starts()[1], starts()[2]}) {
    TemporaryFolder root;
    fs::create_directory(root / "f");
    start.make(root.path());
    const std::string before = describe(root.path());
    AppleDoubleForkStore store(GetParam());
    {
      Folder folder = Folder::open(root / "f", Access::Write).value();
      expectOk(save(folder, store), start.name);
    }
    for (int round = 0; round < 15; ++round) {
      const pid_t child = test::startChild([&] {
        Folder folder = Folder::open(root / "f", Access::Write).value();
        for (std::uint8_t value = 0;; ++value) {
          expectOk(brand(folder, store, value), "brand");
          expectOk(restore(folder, store), "restore");
        }
      });
      std::this_thread::sleep_for(std::chrono::microseconds(delay(random)));
      ::kill(child, SIGKILL);
      ::waitpid(child, nullptr, 0);
      Folder folder = Folder::open(root / "f", Access::Write).value();
      static_cast<void>(folder.openParent(Access::Write));  // sweeps
      expectOk(restore(folder, store), start.name);
      EXPECT_EQ(describe(root.path()), before) << start.name << ", round " << round;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Stores, OriginalIcon, ::testing::Values(Attributes::Use, Attributes::Ignore));

TEST(OriginalIconKept, LeavesWhatOthersWroteIntoTheFoldersInfo) {
  for (const bool hadInfo : {false, true}) {
    TemporaryFolder root;
    fs::create_directory(root / "f");
    if (hadInfo) test::writeFile(root / "._f", companionBytes(FinderInfo::hasBeenInited, "", 9));
    AppleDoubleForkStore store(Attributes::Ignore);
    Folder folder = Folder::open(root / "f", Access::Write).value();
    expectOk(save(folder, store), "save");
    expectOk(brand(folder, store, 1), "brand");
    test::writeFile(root / "._f", companionBytes(FinderInfo::hasCustomIcon | FinderInfo::isInvisible, "", 200));
    expectOk(restore(folder, store), "restore");
    const auto companion = AppleDouble::parse(test::readFile(root / "._f"));
    ASSERT_TRUE(companion.ok());
    EXPECT_EQ(companion->finderInfo()->bytes()[20], 200);
    EXPECT_EQ(companion->finderInfo()->flags(), FinderInfo::isInvisible | (hadInfo ? FinderInfo::hasBeenInited : 0));
  }
}

TEST(OriginalIconKept, LeavesWhatAFileServerWroteIntoItsRecord) {
  constexpr std::uint16_t icon = FinderInfo::hasCustomIcon, inited = FinderInfo::hasBeenInited;
  const Bytes broken(402, 1);
  struct Row {
    std::optional<Bytes> before, meanwhile, after;
  };
  for (const auto& [before, meanwhile, after] :
       std::vector<Row>{{test::serverRecord(inited, 5), test::serverRecord(icon, 6), test::serverRecord(inited, 6)},
                        {std::nullopt, test::serverRecord(icon, 6), test::serverRecord(0, 6)},
                        {broken, test::serverRecord(icon, 6), test::serverRecord(0, 6)},
                        {test::serverRecord(inited, 5), broken, broken},
                        {test::serverRecord(inited, 5), std::nullopt, std::nullopt}}) {
    TemporaryFolder root;
    fs::create_directory(root / "f");
    if (before) setServerRecord(root / "f", *before);
    AppleDoubleForkStore store;
    Folder folder = Folder::open(root / "f", Access::Write).value();
    expectOk(save(folder, store), "save");
    expectOk(brand(folder, store, 1), "brand");
    expectOk(meanwhile ? folder.setAttribute(serverrecord::attributeName, *meanwhile)
                       : folder.removeAttribute(serverrecord::attributeName),
             "meanwhile");
    expectOk(restore(folder, store), "restore");
    EXPECT_EQ(*folder.attribute(serverrecord::attributeName), after);
  }
}

TEST(OriginalIconKept, ADamagedRecordChangesNothing) {
  TemporaryFolder root;
  fs::create_directory(root / "f");
  starts()[1].make(root.path());
  AppleDoubleForkStore store;
  Folder folder = Folder::open(root / "f", Access::Write).value();
  expectOk(save(folder, store), "save");
  expectOk(brand(folder, store, 1), "brand");
  const fs::path state = root / "f/.quorvane" / OriginalState::fileName;
  const Bytes whole = test::readFile(state);
  const std::string before = describe(root.path());
  for (std::size_t length = 0; length + 1 < whole.size(); ++length) {
    test::writeFile(state, ByteView(whole).first(length));
    const auto restored = restore(folder, store);
    ASSERT_FALSE(restored.ok()) << length;
    EXPECT_EQ(restored.error().kind(), ErrorKind::InvalidInput) << length;
    EXPECT_EQ(restored.error().where(), state);
  }
  const std::string text(whole.begin(), whole.end());
  for (const auto& [from, to] :
       std::vector<std::pair<std::string, std::string>>{{"original 1", "original 2"},
                                                        {"icon kept", "icon perhaps"},
                                                        {"icon kept\n", ""},
                                                        {"icon-attribute absent", "icon-attribute hex:0"},
                                                        {"icon-attribute absent", "icon-attribute hex:0g"}}) {
    const std::size_t at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    test::writeFile(state, std::string(text).replace(at, from.size(), to));
    EXPECT_EQ(restore(folder, store).error().kind(), ErrorKind::InvalidInput) << to;
  }
  test::writeFile(state, whole);
  fs::rename(root / "f/.quorvane/icon-companion", root / "aside");
  EXPECT_EQ(restore(folder, store).error().kind(), ErrorKind::InvalidInput);
  fs::create_symlink(root / "aside", root / "f/.quorvane/icon-companion");
  EXPECT_EQ(restore(folder, store).error().kind(), ErrorKind::InvalidInput);
  fs::rename(root / "aside", root / "f/.quorvane/icon-companion");
  EXPECT_EQ(describe(root.path()), before);
  fs::remove(state);
  EXPECT_EQ(restore(folder, store).error().kind(), ErrorKind::NotFound);
}

}  // namespace
}  // namespace quorvane
