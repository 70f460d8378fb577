// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/Rows.h"

#include <gtest/gtest.h>

#include "foundation/base/Limits.h"
#include "support/ByteSources.h"

namespace quorvane {
namespace {

const std::vector<std::string> columns{"label", "base", "size", "center"};

/// What the table gives, in short: "LINE folder[name=value ...]" or "LINE! reason" for each row, "!! reason" for the
/// failure of the whole.
std::vector<std::string> read(const std::string& table, std::size_t piece) {
  RowReader reader(test::inPieces(table, piece), columns);
  std::vector<std::string> seen;
  for (;;) {
    const auto next = reader.next();
    if (!next) {
      seen.push_back("!! " + next.error().message());
      EXPECT_FALSE(reader.next().ok() && *reader.next()) << "rows behind a failure";
      return seen;
    }
    if (!*next) return seen;
    std::string words = std::to_string((*next)->line);
    if (const auto& row = (*next)->row; row) {
      words += " " + row->folder.string() + "[";
      for (const auto& [name, value] : row->values) words += (words.ends_with('[') ? "" : " ") + name + "=" + value;
      words += "]";
    } else {
      words += "! " + row.error().message();
    }
    seen.push_back(words);
  }
}

struct Table {
  std::string text;
  std::vector<std::string> rows;
};

void expectRows(const std::vector<Table>& tables) {
  for (const Table& table : tables) {
    // The pieces in which a table comes make no difference.
    for (const std::size_t piece : {1, 3, 1 << 20}) EXPECT_EQ(read(table.text, piece), table.rows) << table.text;
  }
}

TEST(Rows, AreThoseOfCsv) {
  expectRows({
      {"folder,label\na,A\nb,\n", {"2 a[label=A]", "3 b[]"}},
      {"label,folder\r\nA,a\r\nB,b", {"2 a[label=A]", "3 b[label=B]"}},
      {"\xEF\xBB\xBF\"folder\", size \na,12\n", {"2 a[size=12]"}},
      {"folder,label\n\"a,b\",\"say \"\"hi\"\"\"\n", {"2 a,b[label=say \"hi\"]"}},
      {"folder,label\n\"new\nline\",\"two\r\nlines\"\nc,C\n", {"2 new\nline[label=two\r\nlines]", "5 c[label=C]"}},
      {"folder\n trailing \n\n\r\n\"caf\xE9\"\n", {"2  trailing []", "5 caf\xE9[]"}},
      {"folder\n\"Icon\r\"\n", {"2 Icon\r[]"}},
      {"folder,label\n\"\",x\n", {"2! the row names no folder"}},
      {"folder\n", {}},
      {"", {}},
      {"\n \n", {}},
  });
}

TEST(Rows, OfCsvThatAreMalformedEndWithTheirFirstLine) {
  expectRows({
      {"folder,label\na,A,more\nb\nc,C\n",
       {"2! has 3 fields, the header line 2", "3! has 1 fields, the header line 2", "4 c[label=C]"}},
      {"folder,label\na\"b,A\nc,C\n", {"2! a double quote stands inside a field that is not quoted", "3 c[label=C]"}},
      {"folder,label\n\"a\"b,A\nc,C\n", {"2! text stands behind the closing quote of a field", "3 c[label=C]"}},
      {"folder,label\n\"a,A\nc,C\n", {"2! a quoted field is never closed", "3 c[label=C]"}},
      {"folder,label\na\rb,A\nc,C\n", {"2! a carriage return stands outside quotes", "3 c[label=C]"}},
      {std::string("folder\na\0b\nc\n", 13), {"2! the folder's path has a zero byte", "3 c[]"}},
  });
  const std::string wide(limits::rowColumns + 1, ',');
  const std::string longField(limits::rowBytes + 10, 'x');
  for (const std::string& bad : {wide, longField, "\"" + longField, "\"" + longField + "\n\",x"}) {
    const auto rows = read("folder,label\n" + bad + "\nc,C\n", 1 << 16);
    ASSERT_FALSE(rows.empty());
    EXPECT_TRUE(rows.front().starts_with("2! ")) << rows.front().substr(0, 100);
    EXPECT_EQ(rows.back().substr(rows.back().find(' ')), " c[label=C]") << rows.back().substr(0, 100);
  }
}

TEST(Rows, NeedAHeaderThatTheyCanBeReadBy) {
  expectRows({
      {"folder,lable\na,A\n", {"!! there is no column 'lable', did you mean 'label'?"}},
      {"fodler\na\n", {"!! there is no column 'fodler', did you mean 'folder'?"}},
      {"label\nA\n", {"!! the header line names no column 'folder'"}},
      {"folder,label,folder\n", {"!! the column 'folder' is there twice"}},
      {"folder;label\na;A\n", {"!! the columns of the header line are separated by semicolons; commas are expected"}},
      {"folder,\"label\nA\n", {"!! the header line: a quoted field is never closed"}},
      {std::string("\xFF\xFE") + "f", {"!! is UTF-16 text; UTF-8 is expected"}},
  });
}

TEST(Rows, AreJsonObjectsWhenTheFirstCharacterIsABrace) {
  expectRows({
      {" \n{\"folder\": \"a\", \"label\": \"A\\nB\", \"size\": 12.5, \"center\": [10, -2.5]}\n\n{\"folder\":\"b\"}",
       {"2 a[center=10,-2.5 label=A\nB size=12.5]", "4 b[]"}},
      {"{\"folder\": \"caf?\", \"folder_base64\": \"Y2Fm6Q==\", \"label\": null}\r\n", {"1 caf\xE9[]"}},
      {"{\"folder\": \"a\"\n{\"folder\": \"b\"}\n", {"1! is no JSON: unterminated string", "2 b[]"}},
      {"{\"folder\": \"a\", \"lable\": 1}\n[1]\n{\"label\": \"A\"}\n{\"folder\": \"a\", \"size\": true}\n",
       {"1! there is no column 'lable', did you mean 'label'?", "2! is no JSON object", "3! the row names no folder",
        "4! 'size' takes text or a number"}},
      {"{\"folder\": \"\\ud800\"}\n{\"folder_base64\": \"!\"}\n{\"folder\": \"a\\u0000b\"}\n",
       {"1! 'folder' is no whole text", "2! 'folder_base64' is no base64", "3! the folder's path has a zero byte"}},
  });
  const auto rows = read("{\"folder\": \"" + std::string(limits::rowBytes, 'x') + "\"}\n{\"folder\":\"b\"}\n", 1 << 16);
  EXPECT_EQ(rows, (std::vector<std::string>{"1! is longer than 1048576 bytes", "2 b[]"}));
}

TEST(Rows, EndWhereReadingFailsAndLeaveNoHalfRow) {
  const std::string table = "folder,label\na,A\nb,Bet";
  RowReader reader(test::thenFailing(table), columns);
  EXPECT_EQ((*reader.next())->row->folder, "a");
  const auto failed = reader.next();
  ASSERT_FALSE(failed);
  EXPECT_EQ(failed.error().message(), "gone");
}

}  // namespace
}  // namespace quorvane
