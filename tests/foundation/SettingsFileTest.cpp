// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/SettingsFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>

#include "foundation/BaseDirectories.h"
#include "foundation/SettingsText.h"
#include "foundation/UserDefaults.h"
#include "foundation/base/Log.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

const QString key = QStringLiteral("key");
const QVariantMap wished{{key, 1LL}};
const SettingsChanges change{{key, SettingsChange::set(1LL)}};

std::string textOf(qlonglong value) {
  SettingsText text;
  text.apply({{key, SettingsChange::set(value)}});
  const Bytes bytes = text.text().value();
  return {bytes.begin(), bytes.end()};
}

struct SettingsFileTest : testing::Test {
  test::TemporaryFolder root;
  fs::path folder = root / "config/quorvane", file = folder / "settings.json";
  int warnings = 0;
  LogSink before = setLogSink([this](auto, auto) { ++warnings; });
  ~SettingsFileTest() override { setLogSink(before); }

  void plant(const std::string& text) {
    fs::create_directories(folder);
    test::writeFile(file, text);
  }
};

TEST_F(SettingsFileTest, LiesWhereTheDesktopKeepsSettings) {
  for (const auto& [variable, home, path] :
       {std::tuple{"/c", "/h", "/c/quorvane"}, {"c", "/h", "/h/.config/quorvane"}, {"", "/h", "/h/.config/quorvane"}}) {
    ::setenv("XDG_CONFIG_HOME", variable, 1);
    ::setenv("HOME", home, 1);
    EXPECT_EQ(SettingsFile::usualPath().value(), fs::path(path) / "settings.json");
  }
  ::unsetenv("XDG_CONFIG_HOME");
}

TEST_F(SettingsFileTest, TheFirstChangeMakesAPrivateFolderAndAReadableText) {
  SettingsFile settings(file);
  EXPECT_TRUE(settings.read()->isEmpty());
  EXPECT_TRUE(settings.update({{key, SettingsChange::remove()}}).ok());
  EXPECT_FALSE(fs::exists(file));
  EXPECT_EQ(settings.update(change).value(), wished);
  EXPECT_EQ(fs::status(root / "config").permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(test::listing(folder), "settings.json=" + textOf(1) + "\n");
  EXPECT_NE(textOf(1).find("\"key\": 1\n"), std::string::npos);
}

TEST_F(SettingsFileTest, WhatWeDoNotUnderstandStays) {
  plant(R"({"quorvane-settings": 1, "more": [null], "values": {"odd": {"kind": null}, "key": 0}})");
  SettingsFile settings(file);
  EXPECT_EQ(settings.update(change).value(), wished);
  const Bytes bytes = test::readFile(file);
  const std::string text(bytes.begin(), bytes.end());
  EXPECT_NE(text.find("\"kind\": null"), std::string::npos) << text;
  EXPECT_NE(text.find("\"more\""), std::string::npos) << text;
}

TEST_F(SettingsFileTest, WhatIsNoSettingsFileIsKeptAsideOnce) {
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"empty", [&] { plant(""); }},
      {"cut", [&] { plant(textOf(7).substr(0, 20)); }},
      {"other", [&] { plant("[1]"); }},
      {"newer", [&] { plant(R"({"quorvane-settings": 2, "values": {"key": 7}})"); }},
      {"too long", [&] { plant(textOf(7) + std::string(5 << 20, ' ')); }},
      {"nested", [&] { plant(std::string(100'000, '[')); }},
      {"folder", [&] { fs::create_directories(file / "inside"); }},
      {"fifo", [&] { fs::create_directories(folder), ::mkfifo(file.c_str(), 0600); }},
      {"link to nothing", [&] { fs::create_directories(folder), fs::create_symlink("gone", file); }},
      {"link to itself", [&] { fs::create_directories(folder), fs::create_symlink("settings.json", file); }},
      {"link to a folder", [&] { fs::create_directories(folder), fs::create_symlink("/", file); }},
      {"link to a device", [&] { fs::create_directories(folder), fs::create_symlink("/dev/zero", file); }}};
  for (const auto& [name, make] : cases) {
    fs::remove_all(root / "config");
    make();
    test::writeFile(file.native() + ".kept-1", "an earlier one");
    struct stat planted {
    }, kept{};
    ASSERT_EQ(::lstat(file.c_str(), &planted), 0);
    warnings = 0;
    SettingsFile settings(file);
    EXPECT_TRUE(settings.read()->isEmpty()) << name;
    EXPECT_TRUE(settings.read()->isEmpty());
    EXPECT_EQ(warnings, 1) << name;
    EXPECT_EQ(settings.update(change).value(), wished) << name;
    EXPECT_EQ(SettingsFile(file).read().value(), wished) << name;
    EXPECT_TRUE(::lstat((file.native() + ".kept-2").c_str(), &kept) == 0 && kept.st_ino == planted.st_ino) << name;
    EXPECT_EQ(test::readFile(file.native() + ".kept-1"), test::bytesOf("an earlier one")) << name;
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 3) << name;
  }
}

TEST_F(SettingsFileTest, ALinkToASettingsFileStaysAndLeadsToTheNewOne) {
  fs::create_directories(root / "dotfiles");
  fs::create_directories(folder);
  for (const fs::path& target : {root / "dotfiles/q.json", folder / "other.json"}) {
    test::writeFile(target, textOf(0));
    fs::remove(file);
    fs::create_symlink(fs::relative(target, folder), file);
    SettingsFile settings(file);
    EXPECT_EQ(settings.update(change).value(), wished) << target;
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(test::readFile(target), test::bytesOf(textOf(1)));
    EXPECT_FALSE(settings.hasChanged());
    test::writeFile(target, textOf(22));
    EXPECT_TRUE(settings.hasChanged());
  }
}

TEST_F(SettingsFileTest, WhatMayNotBeChangedIsReadAndTheReasonTold) {
  plant(textOf(7));
  fs::permissions(file, fs::perms::owner_read);
  SettingsFile settings(file);
  UserDefaults defaults(settings);
  defaults.setInteger(8, key);
  EXPECT_EQ(defaults.integerForKey(key), 8);
  EXPECT_EQ(defaults.synchronize().error().message(), file.string() + ": cannot keep settings: the file is read-only");
  EXPECT_EQ(test::readFile(file), test::bytesOf(textOf(7)));
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_TRUE(defaults.synchronize().ok());
  EXPECT_EQ(test::readFile(file), test::bytesOf(textOf(8)));
  if (::geteuid() != 0) return;
  // Somebody else's file behind our link, their link in our folder, a folder that is theirs, a file we may not read.
  ASSERT_EQ(::chmod(root.path().c_str(), 0755), 0);
  ASSERT_EQ(::chmod((root / "config").c_str(), 0755), 0);
  ASSERT_EQ(::chmod(folder.c_str(), 0777), 0);
  test::writeFile(root / "theirs", textOf(7));
  ASSERT_EQ(::chmod((root / "theirs").c_str(), 0644), 0);
  test::asOrdinaryUser([&] {
    EXPECT_EQ(SettingsFile(root / "theirs").read()->value(key), QVariant(7LL));
    EXPECT_FALSE(SettingsFile(root / "theirs").update(change).ok());
    fs::create_symlink(root / "theirs", folder / "link");
    EXPECT_EQ(SettingsFile(folder / "link").read()->value(key), QVariant(7LL));
    EXPECT_FALSE(SettingsFile(folder / "link").update(change).ok());
    test::writeFile(folder / "secret", textOf(7));
    fs::permissions(folder / "secret", fs::perms::none);
    EXPECT_EQ(SettingsFile(folder / "secret").update(change).value(), wished);
    EXPECT_TRUE(fs::exists(folder / "secret.kept-1"));
  });
  EXPECT_FALSE(SettingsFile(folder / "link").read().ok());
  EXPECT_FALSE(SettingsFile(folder / "link").update(change).ok());
  EXPECT_EQ(test::readFile(root / "theirs"), test::bytesOf(textOf(7)));
}

TEST_F(SettingsFileTest, AFullDiskLosesNothing) {
  fs::create_directories(folder);
  const bool mounted = test::withMounted("tmpfs", "size=64k", folder.string(), [&] {
    SettingsFile settings(file);
    UserDefaults defaults(settings);
    defaults.setInteger(7, key);
    {
      std::ofstream filler(folder / "filler", std::ios::binary);
      while (filler << std::string(512, 'x') << std::flush) {
      }
    }
    const QString large = QStringLiteral("large");
    defaults.setData(QByteArray(3000, 'x'), large);
    EXPECT_EQ(defaults.synchronize().error().systemCode(), ENOSPC);
    EXPECT_EQ(defaults.dataForKey(large)->size(), 3000);
    EXPECT_EQ(test::readFile(file), test::bytesOf(textOf(7)));
    fs::remove(folder / "filler");
    EXPECT_TRUE(defaults.synchronize().ok());
    EXPECT_EQ(SettingsFile(file).read()->size(), 2);
  });
  if (!mounted) GTEST_SKIP() << "nothing can be mounted here";
}

TEST_F(SettingsFileTest, AStuckLockIsWaitedForOnceOnly) {
  plant(textOf(7));
  const auto held = Folder::open(folder, Folder::Access::Write);
  SettingsFile settings(file, 300ms);
  const auto start = std::chrono::steady_clock::now();
  for (int count = 0; count < 20; ++count) EXPECT_FALSE(settings.update(change).ok());
  EXPECT_LT(std::chrono::steady_clock::now() - start, 20 * 300ms);
  EXPECT_EQ(settings.read()->value(key), QVariant(7LL));
}

TEST_F(SettingsFileTest, ProcessesAtOnceLoseNeitherKeysNorCounts) {
  // In memory where that can be: it is not the disk that is tried.
  const test::TemporaryFolder fast(::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "");
  const fs::path shared = fast / "settings.json";
  std::vector<pid_t> children;
  constexpr int rounds = 1000;
  for (const QString& name : {QStringLiteral("a"), QStringLiteral("b")})
    children.push_back(test::startChild([&, name] {
      SettingsFile settings(shared, 20s);
      UserDefaults defaults(settings);
      for (int round = 0; round < rounds; ++round) {
        defaults.setInteger(round, name + QString::number(round));
        defaults.incrementIntegerForKey(QStringLiteral("count"));
        ASSERT_TRUE(defaults.synchronize().ok()) << defaults.synchronize().error().message();
      }
    }));
  for (const pid_t child : children) EXPECT_TRUE(test::waitForChild(child));
  const QVariantMap all = SettingsFile(shared).read().value();
  EXPECT_EQ(all.size(), 2 * rounds + 1);
  EXPECT_EQ(all[QStringLiteral("count")], QVariant(2LL * rounds));
  EXPECT_EQ(std::distance(fs::directory_iterator(fast.path()), {}), 1);
}

}  // namespace
}  // namespace quorvane
