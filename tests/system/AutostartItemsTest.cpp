// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/linux/AutostartItems.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"
#include "system/HVUtility.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

struct AutostartItemsTest : testing::Test {
  test::TemporaryFolder root;
  fs::path folder = root / "autostart";
  std::unique_ptr<SystemServices> services = makeDesktopServices();
  SystemServices* former = HVUtility::setServices(services.get());
  AutostartItemsTest() { ::setenv("XDG_CONFIG_HOME", root.path().c_str(), 1); }
  ~AutostartItemsTest() override {
    HVUtility::setServices(former);
    ::unsetenv("XDG_CONFIG_HOME");
  }
};

TEST_F(AutostartItemsTest, AnyPathComesThroughScriptAndEntry) {
  for (const std::string name : {"quorvane", "two words", "q\"u`o$t\\e'", "100%% %f", "line\nend\ttab", "a;b#c=d",
                                 "\u00e4\u6e90", "{path:\"x\",hidden:true}"}) {
    HVUtility::addAutoLaunchPath("/opt/" + name, true);
    EXPECT_TRUE(HVUtility::appAutoLaunches(name)) << name;
    const auto items = HVUtility::getAutoLaunchedApplications();
    ASSERT_EQ(items.size(), 1U) << name;
    EXPECT_EQ(items[0].at("Path"), "/opt/" + name);
    EXPECT_EQ(items[0].at("Hide"), "1");
    HVUtility::addAutoLaunchPath("/opt/" + name, false);
    EXPECT_EQ(HVUtility::getAutoLaunchedApplications().at(0).at("Hide"), "0");
    HVUtility::removeAutoLaunchAppNamed(name);
    EXPECT_EQ(test::listing(folder), "") << name;
  }
}

TEST_F(AutostartItemsTest, TheEntryIsOneThatDesktopsRead) {
  ASSERT_TRUE(AutostartItems(folder).add("/opt/my $program.AppImage", true).ok());
  const Bytes bytes = test::readFile(folder / "my $program.desktop");
  EXPECT_EQ(std::string(bytes.begin(), bytes.end()),
            "[Desktop Entry]\nType=Application\nName=my $program\nExec=\"/opt/my \\\\$program.AppImage\"\n"
            "StartupNotify=false\nX-Quorvane-LoginItem=hidden\n");
}

TEST_F(AutostartItemsTest, EntriesOfOthersCountButAreNeverTouched) {
  fs::create_directories(folder);
  const std::string entry = "[Desktop Entry]\nType=Application\nExec=/usr/bin/theirs --flag %U\n";
  test::writeFile(folder / "theirs.desktop", entry);
  test::writeFile(folder / "off.desktop", entry + "Hidden=true\n");
  test::writeFile(folder / "off2.desktop", entry + "X-GNOME-Autostart-enabled=false\n");
  test::writeFile(folder / "no.desktop", "[Desktop");
  test::writeFile(folder / "other.txt", entry);
  fs::create_symlink("theirs.desktop", folder / "link.desktop");
  fs::create_symlink("missing.desktop", folder / "nowhere.desktop");
  const std::string before = test::describeTree(root.path(), true);
  AutostartItems items(folder);
  ASSERT_EQ(items.items().size(), 2U) << "one of them a link";
  for (const auto& item : items.items()) EXPECT_EQ(item.path, "/usr/bin/theirs");
  for (const char* name : {"theirs", "off", "link", "no", "../autostart/theirs", "..", ".", "", "a/b", ".hidden"})
    EXPECT_FALSE(items.remove(name).ok()) << name;
  for (const char* path : {"/usr/bin/theirs", "/x/link", "/x/no", "/", "/x/..", "relative", "", "/x/\xff"})
    EXPECT_FALSE(items.add(path, false).ok()) << path;
  EXPECT_TRUE(items.remove("missing").ok());
  EXPECT_EQ(test::describeTree(root.path(), true), before);
}

TEST_F(AutostartItemsTest, NoOtherScriptIsRun) {
  const std::string begin = "tell application \"System Events\"\n", end = "\nend tell";
  for (const std::string& script :
       {std::string(), begin, begin + end, begin + "delete login item \"a" + end,
        begin + "delete login item \"a\" b" + end, "x" + begin + end, begin + "delete login item \"a\\q\"" + end,
        begin + "make new login item at end with properties {path:\"/a\",hidden:maybe}" + end,
        begin + "make new login item at end with properties {path:\"/a\"}" + end})
    EXPECT_EQ(services->runScript(script).error().kind(), ErrorKind::Unsupported) << script;
}

TEST_F(AutostartItemsTest, WhatThisDesktopDoesNotKnowIsNothing) {
  EXPECT_EQ(HVUtility::systemVersion(), 0U);
  EXPECT_EQ(HVUtility::fileCreatorOfParentProcess(), std::nullopt);
  HVUtility::setHeadless(true);
  EXPECT_FALSE(HVUtility::isHeadless());
}

}  // namespace
}  // namespace quorvane
