// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/Appcast.h"

#include <gtest/gtest.h>

#include "app/core/ReleaseNews.h"
#include "foundation/base/Limits.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(ProgramVersion, OrdersAsPeopleDo) {
  // Each greater than the one before; what stands in one row is equal.
  const std::vector<std::vector<std::string>> rising = {{"0.9"},
                                                        {"1.0dev", "1-DEV"},
                                                        {"1.0a", "1.0alpha", "v1.0.0-alpha.0"},
                                                        {"1.0a2"},
                                                        {"1.0b", "1b0"},
                                                        {"1.0b3", "1.0.beta.3"},
                                                        {"1.0b10"},
                                                        {"1.0pre"},
                                                        {"1.0rc1"},
                                                        {"1.0", "1", "1.0.0", "01.00", "v1.0", "1.0+build.7"},
                                                        {"1.0.1b1"},
                                                        {"1.0.1", "1.0-1"},
                                                        {"1.9"},
                                                        {"1.10"},
                                                        {"1.10.0.0.1"},
                                                        {"9"},
                                                        {"10"},
                                                        {"20261121"},
                                                        {std::string(80, '9')},
                                                        {"1" + std::string(80, '0')}};
  for (std::size_t i = 0; i < rising.size(); ++i)
    for (std::size_t j = 0; j < rising.size(); ++j)
      for (const auto& one : rising[i])
        for (const auto& other : rising[j])
          EXPECT_TRUE((*ProgramVersion::parse(one) <=> *ProgramVersion::parse(other)) == (i <=> j))
              << one << " and " << other;
  for (const std::string rubbish : {"", " ", "v", "beta", "1.", "1..2", ".1", "1 2", "1.0 ", "-1", "1.0-", "1.+x",
                                    "1.é", "１.0", "1.0;rm", "1,5", "0x10\n"})
    EXPECT_FALSE(ProgramVersion::parse(rubbish)) << rubbish;
  EXPECT_FALSE(ProgramVersion::parse(std::string(limits::versionCharacters + 1, '1')));
}

QByteArray feed(const QByteArray& items, const QByteArray& before = {}) {
  return before +
         R"(<rss version="2.0" xmlns:v="urn:versions"><channel><title>T</title><link>https://a.test/all</link>)" +
         items + "</channel></rss>";
}

QByteArray item(const QByteArray& version, const QByteArray& more = {}) {
  return "<item><enclosure url=\"https://a.test/x\" v:version=\"" + version + "\"/>" + more + "</item>";
}

std::string newer(const QByteArray& items, const std::string& running = "1.9", const std::string& system = {}) {
  const auto list = appcast::read(feed(items));
  if (!list) return list.error().message();
  QStringList versions;
  for (const auto& found : appcast::newerItems(*list, *ProgramVersion::parse(running), ProgramVersion::parse(system)))
    versions += found.shownVersion;
  return versions.join(u' ').toStdString();
}

TEST(Appcast, FindsWhatIsNewerAndRunsHere) {
  struct Row {
    QByteArray items;
    std::string expected;
    std::string system = {};
  };
  const QByteArray needs = "<v:minimumSystemVersion>10.8</v:minimumSystemVersion>";
  const Row rows[] = {
      {item("1.8") + item("1.10") + item("1.9.0") + item("1.9.1") + item("1.10.0"), "1.10 1.9.1"},
      {item("1.9") + item("rubbish") + item("") + item("2.0 beta") + item("2..0"), ""},
      {item("300", "<v:shortVersionString>2.0 beta</v:shortVersionString>"), "2.0 beta"},
      {"<item><v:version>2.1</v:version><enclosure/></item><item><enclosure v:shortVersionString='2.0'/></item>",
       "2.1 2.0"},
      {item("3", "<v:channel>beta</v:channel>") + item("2", "<v:os>linux</v:os>") + item("4", "<v:os>macos</v:os>"),
       "2"},
      {item("2", needs), "2"},
      {item("2", needs), "", "10.7.5"},
      {item("2", needs), "2", "10.10"},
      // Of these none is where a version stands.
      {"<version>9</version><item><x><v:version>9</v:version></x><v:deltas><enclosure "
       "v:version='9'/></v:deltas></item>",
       ""},
  };
  for (const Row& row : rows) EXPECT_EQ(newer(row.items, "1.9", row.system), row.expected) << row.items.constData();
}

TEST(Appcast, ReadsTextsAndPages) {
  const auto list = appcast::read(
      feed(item("2",
                "<title> Two </title><pubDate>Tue, 03 Mar 2026 10:00:00 +0000</pubDate><link>https://b.test/2</link>"
                "<description>a<![CDATA[<b>b</b>]]>&lt;i&gt;<em>c</em></description><v:releaseNotesLink>x</"
                "v:releaseNotesLink>") +
               item("1"),
           "\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?><!-- <x> -->"));
  ASSERT_TRUE(list.ok()) << list.error().message();
  EXPECT_EQ(list->items.at(0).title, u"Two");
  EXPECT_EQ(list->items[0].description, u"a<b>b</b><i>c");
  EXPECT_EQ(list->items[0].published.date(), QDate(2026, 3, 3));
  EXPECT_EQ(list->items[0].page, QUrl(QStringLiteral("https://b.test/2")));
  EXPECT_EQ(list->page, QUrl(QStringLiteral("https://a.test/all")));
  EXPECT_TRUE(list->items.at(1).page.isEmpty());
  for (const QByteArray page :
       {"http://b.test/", "javascript:alert(1)", "file:///etc/passwd", "https:///x", "//b.test/x",
        "https://b.test@c.test/", "data:text/html,x", "smb://b/c", "", "https://b.test:x/"})
    EXPECT_TRUE(appcast::read(feed(item("2", "<link>" + page + "</link>")))->items.at(0).page.isEmpty())
        << page.constData();
}

TEST(Appcast, RefusesWhatIsNoListOrWouldTakeForever) {
  QByteArray attributes, nested, entities = "<!DOCTYPE r [<!ENTITY a 'aaaaaaaa'>";
  for (int i = 0; i < 90'000; ++i) attributes += " a" + QByteArray::number(i, 36) + "='>'";
  for (int i = 0; i < 60'000; ++i) nested += "<a xmlns:b='u'>";
  for (int i = 0; i < 30; ++i) entities += "<!ENTITY a" + QByteArray::number(i) + " '&a;&a;'>";
  const QByteArray full = feed(item("2"));
  const QByteArray refused[] = {"",
                                " ",
                                "no list",
                                "<html></html>",
                                "<rss>",
                                full.left(full.size() - 3),
                                full + "x",
                                full + full,
                                entities + "]>" + full,
                                "<!DOCTYPE rss>" + full,
                                "<rss" + attributes + "/>",
                                "<rss>" + nested,
                                feed("<item x:y='1'/>"),
                                feed("\x01"),
                                feed("\xFF"),
                                feed(item("2", "&nbsp;")),
                                QByteArray(5, '\0') + full,
                                feed(QByteArray(limits::feedItems * 7 + 7, ' ').replace("       ", "<item/>")),
                                feed(QByteArray(limits::feedBytes, ' ')),
                                "\x1F\x8B\x08" + full};
  for (const QByteArray& bytes : refused) EXPECT_FALSE(appcast::read(bytes).ok()) << bytes.left(60).constData();
  EXPECT_TRUE(appcast::read(feed({}))->items.empty());
}

TEST(ReleaseNews, BecomesPlainText) {
  struct Row {
    QString description, shown;
  };
  const Row rows[] = {
      {u"<h2>New</h2><ul><li>One &amp; <b>two</b></li>\n<li><p>Three</p></ul>End<br>of<br/>it"_s,
       u"New\n\n• One & two\n\n• Three\n\nEnd\nof\nit"_s},
      {u"plain  text\n- a < b && c > d\r\n\n\n\nlast &lt;x&gt;"_s, u"plain text\n- a < b && c > d\n\nlast <x>"_s},
      {u"<style>p{}</style>a<script>if (a<b) '</p>'</SCRIPT>b<!-- <p> c -->d<img src='x>y' alt=\">\">e"_s, u"abd e"_s},
      {u"a<script>never closed"_s, u"a"_s},
      {u"a <b never closed"_s, u"a"_s},
      {u"&#65;&#x42;&#0;&#xD800;&#x110000;&unknown;&amp;lt;&;&"_s, u"AB\uFFFD\uFFFD\uFFFD&unknown;&lt;&;&"_s},
      {u"<p>a\u202Eb\u200F\u001B[31m</p>&#x2066;c&#7;"_s, u"a\\u{202E}b\\u{200F}\\x1B[31m\n\n\\u{2066}c\\x07"_s},
      {u"<table><tr><td>1<td>2<tr><td>3</table>"_s, u"1 2\n3"_s},
      {u" <p> </p> "_s, u""_s},
  };
  for (const Row& row : rows) EXPECT_EQ(plainNews(row.description), row.shown) << row.description.toStdString();
  const auto most = static_cast<qsizetype>(limits::newsCharacters);
  EXPECT_EQ(plainNews(QString(most + 5, u'x')), QString(most, u'x') + u'…');
  EXPECT_EQ(plainNews(QStringLiteral("x<br>").repeated(5000)).count(u'\n'), limits::newsLines);
  EXPECT_EQ(plainNews(QStringLiteral("<b>").repeated(300'000) + u'x'), u"x");
  EXPECT_EQ(plainLine(QStringLiteral(" a\n\u202Eb"), 40), u"a \\u{202E}b");
  EXPECT_EQ(plainLine(QStringLiteral("a😀b"), 2), u"a…");
}

}  // namespace
}  // namespace quorvane
