// SPDX-License-Identifier: GPL-3.0-or-later
#include <glib.h>
//
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <thread>

#include "support/TemporaryFolder.h"
#include "system/RecentFolders.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

const recentlist::Application ours{.name = "Quorvane", .exec = "quorvane-window %u"};

/// A list as others write it.
std::string listOf(const std::string& contents) {
  return "<xbel version='1.0' xmlns:bookmark='http://www.freedesktop.org/standards/desktop-bookmarks'"
         " xmlns:mime='http://www.freedesktop.org/standards/shared-mime-info'>" +
         contents + "</xbel>";
}

const std::string foreign =
    "<bookmark href='file:///other' modified='2020-01-01T00:00:00Z'><title>ü \U0001F600"
    "</title><info><metadata owner='http://freedesktop.org'><mime:mime-type type='text/plain'/>"
    "<bookmark:applications><bookmark:application name='X' exec='x' count='3' modified='2020-01-01T00:00:00Z'/>"
    "</bookmark:applications></metadata></info></bookmark>";

std::string with(const std::string& text, const fs::path& folder) {
  const auto edited = recentlist::withFolder(text, folder, ours, "2026-01-02T03:04:05.006Z");
  return edited ? *edited : "failed: " + edited.error().message();
}

/// "ADDRESS TYPE: APPLICATION*COUNT ..." a line, as the desktop's own library reads it.
std::string asRead(const std::string& text) {
  GBookmarkFile* file = g_bookmark_file_new();
  if (g_bookmark_file_load_from_data(file, text.data(), text.size(), nullptr) == FALSE) return "unreadable: " + text;
  std::string all;
  gchar** addresses = g_bookmark_file_get_uris(file, nullptr);
  for (gchar** address = addresses; *address != nullptr; ++address) {
    gchar* type = g_bookmark_file_get_mime_type(file, *address, nullptr);
    all += std::string(*address) + " " + (type != nullptr ? type : "-") + ":";
    g_free(type);
    gchar** names = g_bookmark_file_get_applications(file, *address, nullptr, nullptr);
    for (gchar** name = names; *name != nullptr; ++name) {
      guint count = 0;
      gchar* exec = nullptr;
      g_bookmark_file_get_application_info(file, *address, *name, &exec, &count, nullptr, nullptr);
      all += " " + std::string(*name) + "*" + std::to_string(count);
      // The library puts the address in.
      EXPECT_TRUE(*name != ours.name || exec == "quorvane-window " + std::string(*address)) << exec;
      g_free(exec);
    }
    g_strfreev(names);
    all += "\n";
  }
  g_strfreev(addresses);
  g_bookmark_file_free(file);
  return all;
}

TEST(RecentList, AddsWhatIsMissingAndKeepsTheRestToTheLetter) {
  const fs::path folder = "/a \xFC";
  const std::string line = "file:///a%20%FC inode/directory:";
  EXPECT_EQ(asRead(with("", folder)), line + " Quorvane*1\n");
  EXPECT_EQ(asRead(with(with("", folder), folder)), line + " Quorvane*2\n");
  const std::string list = listOf(foreign);
  const std::string added = with(list, folder);
  EXPECT_EQ(asRead(added), "file:///other text/plain: X*3\n" + line + " Quorvane*1\n");
  EXPECT_THAT(added, HasSubstr(list.substr(0, list.size() - 7)));
  EXPECT_EQ(recentlist::withoutApplication(added, ours).toOptional(), list);
  // By hand: more than the desktop's own reader takes, but well-formed.
  const std::string odd = "<?xml version='1.0'?>\r\n<!DOCTYPE xbel>\n<!-- <a> -->\r\n" + list;
  EXPECT_EQ(recentlist::withoutApplication(with(odd, folder), ours).toOptional(), odd);
  // Whatever part of an entry is there already.
  for (const char* inside : {"/>", "></bookmark>", "><info/></bookmark>", "><info></info></bookmark>",
                             "><info><metadata owner='http://freedesktop.org'/></info></bookmark>"}) {
    const std::string entry = std::string("<bookmark href=\"FILE://localhost/a%20%fC\"") + inside;
    const std::string edited = with(listOf(entry + foreign), folder);
    EXPECT_THAT(asRead(edited), HasSubstr("Quorvane*1")) << edited;
    EXPECT_THAT(edited, HasSubstr(foreign));
    EXPECT_THAT(edited, HasSubstr("visited=\"2026-01-02T03:04:05.006Z\""));
  }
  // Where others opened it too, only our part comes and goes.
  const std::string shared = with(list, "/other");
  EXPECT_THAT(shared, HasSubstr("other' modified='2026-01-02T03:04:05.006Z'"));
  EXPECT_THAT(with(listOf("<bookmark x=' modified=\"no\"' modified = '' href='file:///other'/>"), "/other"),
              HasSubstr("<bookmark x=' modified=\"no\"' modified = '2026-01-02T03:04:05.006Z' href"));
  EXPECT_THAT(*recentlist::withoutApplication(shared, ours), HasSubstr("name='X' exec='x' count='3'"));
  EXPECT_THAT(*recentlist::withoutApplication(shared, ours), Not(HasSubstr("Quorvane")));
}

TEST(RecentList, LeavesAloneWhatIsNoList) {
  for (const std::string& text :
       {std::string("<xbel"), std::string("no list"), std::string("<xbel/>"), std::string("\xFF"), listOf("<a>"),
        listOf("&unknown;"), std::string("\0", 1), "<!DOCTYPE xbel [<!ENTITY e 'x'>]>" + listOf("")}) {
    EXPECT_FALSE(recentlist::withFolder(text, "/a", ours, "now")) << text;
    EXPECT_FALSE(recentlist::withoutApplication(text, ours)) << text;
  }
}

TEST(SharedRecentList, LosesNothingToOtherWritersAndStaysPrivate) {
  const test::TemporaryFolder tree;
  const fs::path file = tree / "data/recently-used.xbel";
  const SharedRecentList list(file, ours);
  EXPECT_TRUE(list.clear());
  EXPECT_FALSE(fs::exists(file));
  std::vector<std::thread> writers;
  for (int writer = 0; writer < 4; ++writer)
    writers.emplace_back([&, writer] {
      for (int i = 0; i < 5; ++i) EXPECT_TRUE(list.add("/" + std::to_string(writer) + "-" + std::to_string(i)));
    });
  for (auto& writer : writers) writer.join();
  const Bytes bytes = test::readFile(file);
  EXPECT_EQ(std::ranges::count(std::string(bytes.begin(), bytes.end()), '%'), 20);
  struct stat info {};
  ASSERT_EQ(::stat(file.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0600U);
  EXPECT_TRUE(list.clear());
  const Bytes cleared = test::readFile(file);
  EXPECT_THAT(std::string(cleared.begin(), cleared.end()), Not(HasSubstr("Quorvane")));

  test::writeFile(file, std::string("damaged"));
  EXPECT_FALSE(list.add("/a"));
  EXPECT_EQ(test::readFile(file), test::bytesOf("damaged"));
}

TEST(RecentFolders, KeepsTheLastTenNewestFirst) {
  const test::TemporaryFolder tree;
  MemorySettings storage;
  UserDefaults defaults(storage);
  RecentFolders folders(defaults);
  for (int i = 0; i < 12; ++i) folders.add("/" + std::to_string(i));
  folders.add("/5");
  folders.add(tree.path() / "");
  folders.add("/\xFC");
  const auto paths = RecentFolders(defaults).paths();
  ASSERT_EQ(paths.size(), RecentFolders::most);
  EXPECT_EQ(paths[0], "/\xFC");
  EXPECT_EQ(paths[2], "/5");
  EXPECT_EQ(std::ranges::count(paths, fs::path("/5")), 1);
  const auto looked = RecentFolders::lookAt(paths);
  EXPECT_TRUE(looked[0].isMissing);
  EXPECT_FALSE(looked[1].isMissing);
  folders.remove("/5");
  EXPECT_EQ(folders.paths().size(), RecentFolders::most - 1);
  defaults.setArray({5, QStringLiteral("relative"), QStringLiteral("/typed")}, QStringLiteral("RecentFolders"));
  EXPECT_THAT(folders.paths(), ElementsAre("/typed"));
  folders.clear();
  EXPECT_TRUE(folders.paths().empty());
}

}  // namespace
}  // namespace quorvane
