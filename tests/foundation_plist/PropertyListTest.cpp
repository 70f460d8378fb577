// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/plist/PropertyList.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "foundation/FileReading.h"
#include "foundation/base/Limits.h"
#include "support/TemporaryFolder.h"

namespace quorvane::plist {
namespace {

using namespace std::string_literals;
using Strings = std::vector<std::string>;

const std::string open = "<plist version=\"1.0\"><array>";
const std::string shut = "</array></plist>";

Result<Strings> read(const std::string& text) {
  return readStringArray(ByteView(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

/// A binary list: the objects one behind the other, the first on top.
std::string binary(const Strings& objects, char referenceSize = 1) {
  std::string bytes = "bplist00";
  std::string table;
  for (const std::string& object : objects) {
    table += {static_cast<char>(bytes.size() >> 8), static_cast<char>(bytes.size())};
    bytes += object;
  }
  const auto number = [](std::size_t n) {
    return std::string(6, '\0') + std::string{static_cast<char>(n >> 8), static_cast<char>(n)};
  };
  const std::size_t start = bytes.size();
  return bytes + table + std::string(6, '\0') + '\2' + referenceSize + number(objects.size()) + number(0) +
         number(start);
}

TEST(PropertyList, EveryFormGivesItsStringsAndNothingElse) {
  const std::string utf16 = "\xFF\xFE(\0\"\0\xE4\0\"\0,\0b\0)\0"s;
  const std::pair<std::string, Strings> table[] = {
      {open +
           "<string>a &lt;&#228;</string><dict><key>k</key><string>x</string></dict><integer>1</integer>"
           "<string/><!-- c --><string><![CDATA[<b>]]></string><array><string>in</string></array>" +
           shut,
       {"a <ä", "", "<b>"}},
      {"\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist><array><string>\xE4</string></array></plist>",
       {"ä"}},
      {" // c\n( \"b c\", a.icns , {k = (x, y); \"l\" = z; m;}, /* ) */ <0f 2a>, (n, (o)), 'q\"', )",
       {"b c", "a.icns", "q\""}},
      {R"(("\U00e4\Ud83d\Ude00\344\101\n\"\\", "\Ud83d"))", {"ä😀îA\n\"\\", "\xEF\xBF\xBD"}},
      {"()", {}},
      {utf16, {"ä", "b"}},
      {"(\xFF\xC3\xA4)", {"\xEF\xBF\xBDä"}},
      {binary({"\xA5\1\2\3\4\0"s,
               "\x51"
               "a",
               "\x62\0\xE4\xD8\3"s, "\x10\1"s,
               "\x73\xC3\xA4"
               "b"}),
       {"a", "ä\xEF\xBF\xBD", "äb"}},  // the last is the array itself
      {binary({"\xAF\x10\1\1"s, "\x5F\x11\0\3xyz"s}), {"xyz"}},
  };
  for (const auto& [text, wanted] : table) {
    const auto strings = read(text);
    ASSERT_TRUE(strings.ok()) << text << strings.error().message();
    EXPECT_EQ(*strings, wanted) << text;
  }
}

TEST(PropertyList, WhatIsDamagedOrWithoutEndIsAnError) {
  const std::string bomb =
      "<!DOCTYPE plist [<!ENTITY a \"x\"><!ENTITY b \"&a;&a;\">]><plist><array><string>&b;</string>" + shut;
  const std::string huge = "\xAF\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s;
  const Strings table[] = {
      {"", "<plist/>", "<plist><string>a</string></plist>", "{a = b;}", "\"a\"", "<0f>", "word"},
      {open, open + "<string>a", open + "</array><array/></plist>", open + "<string><b/></string>" + shut,
       "<x><array/></x>", bomb, "<!DOCTYPE p SYSTEM \"/etc/passwd\"><plist><array><string>&p;</string>" + shut},
      {"(", "(a b)", "(a", "(\"a)", "(/* )", "(<0f)", "({a b;})", "({a = b)", "(a) b", "(=)"},
      {"bplist00", "bplist00" + std::string(33, '\0'), "bplist00" + std::string(40, '\xFF'),
       binary({"\x51"
               "a"}),
       binary({"\xA1\5"}), binary({"\xA1\1", "\x5F\x14" + std::string(16, '\0')}), binary({huge}),
       binary({"\xA1\1", "\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"}),
       binary({"\xA1\1", "\x6F\x13\x80\0\0\0\0\0\0\1"s}),
       binary({"\xA1\1",
               "\x51"
               "a"},
              '\x20')},
      {repeated("(", 100'000), open + repeated("<array>", 100'000), repeated("<array>", 100'000),
       "(" + repeated("{a=", 100'000), std::string(limits::propertyListBytes + 1, ' ')}};
  for (const Strings& group : table)
    for (const std::string& text : group) EXPECT_FALSE(read(text).ok()) << text.substr(0, 80);
  // One long string that is referred to again and again.
  const std::string many = "\xAF\x11\x80\0"s + std::string(0x8000, '\1');
  const auto expanded = read(binary({many, "\x5F\x11\x10\0"s + std::string(0x1000, 'x')}));
  ASSERT_FALSE(expanded.ok());
  EXPECT_EQ(expanded.error().kind(), ErrorKind::TooLarge);
}

TEST(PropertyList, CutAnywhereItIsNeverMoreThanAnError) {
  for (const std::string& whole : {binary({"\xA2\1\2",
                                           "\x51"
                                           "a",
                                           "\x62\0\xE4\0\xE5"s}),
                                   "(a, \"\\U00e4\", {b = c;})"s, open + "<string>a</string>" + shut})
    for (std::size_t length = 0; length < whole.size(); ++length) EXPECT_FALSE(read(whole.substr(0, length)).ok());
}

TEST(PropertyList, AnotherImplementationReadsAndWritesTheSame) {
  const test::TemporaryFolder place;
  const Strings strings{"Sky Blue.icns", "a&b<c>\"'.icns", "ä\u0301 😀", "", " two\nlines\t"};
  Strings given = strings;
  for (const char* unlistable : {"bell\a", "return\r", "\xFF", "\xEF\xBF\xBE", "\xED\xA0\x80"}) {
    EXPECT_FALSE(isWritable(unlistable));
    given.insert(given.begin() + 1, unlistable);
  }
  const Bytes written = writeStringArray(given);
  std::ofstream(place / "ours") << std::string(written.begin(), written.end());
  const std::string script =
      "import plistlib,sys; d=sys.argv[1]; names=plistlib.load(open(d+'/ours','rb'))\n"
      "assert names==['Sky Blue.icns','a&b<c>\"\\'.icns','\\u00e4\\u0301 \\U0001f600','',' two\\nlines\\t'],names\n"
      "plistlib.dump(names,open(d+'/binary','wb'),fmt=plistlib.FMT_BINARY); plistlib.dump(names,open(d+'/xml','wb'))\n";
  std::ofstream(place / "script.py") << script;
  const std::string folder = std::filesystem::path(place / "").string();
  ASSERT_EQ(std::system(("python3 '" + folder + "/script.py' '" + folder + "'").c_str()), 0);
  for (const char* name : {"ours", "binary", "xml"}) {
    const auto back = readStringArray(*readPlainFile(place / name, 1 << 20));
    ASSERT_TRUE(back.ok()) << name;
    EXPECT_EQ(*back, strings) << name;
  }
}

}  // namespace
}  // namespace quorvane::plist
