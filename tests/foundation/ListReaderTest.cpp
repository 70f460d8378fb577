// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/ListReader.h"

#include <gtest/gtest.h>

#include "foundation/base/Limits.h"
#include "support/ByteSources.h"

namespace quorvane {
namespace {

std::vector<std::string> read(const std::string& list, char separator, std::size_t piece) {
  ListReader reader(test::inPieces(list, piece), separator);
  std::vector<std::string> paths;
  for (auto path = reader.next(); path && *path; path = reader.next()) paths.push_back((*path)->string());
  return paths;
}

TEST(ListReader, GivesNamesAsTheyAre) {
  struct Row {
    std::string list;
    char separator;
    std::vector<std::string> paths;
  };
  const std::vector<Row> rows{
      {"a\n b \n-c\n", '\n', {"a", " b ", "-c"}},
      {"a\n\n\nb", '\n', {"a", "b"}},
      {"Icon\r\ncaf\xE9\n", '\n', {"Icon\r", "caf\xE9"}},
      {std::string("new\nline\0b\0", 11), '\0', {"new\nline", "b"}},
      {std::string("a\0\0b", 4), '\0', {"a", "", "b"}},
      {"", '\n', {}},
      {"\n", '\n', {}},
  };
  for (const Row& row : rows)
    for (const std::size_t piece : {1, 2, 1 << 16}) EXPECT_EQ(read(row.list, row.separator, piece), row.paths);
}

TEST(ListReader, EndsWithAReasonAtWhatIsNoList) {
  ListReader tooLong(test::inPieces("a\n" + std::string(2 * limits::listedPathBytes, 'x') + "\nb\n", 1 << 12), '\n');
  EXPECT_EQ(**tooLong.next(), "a");
  const auto failed = tooLong.next();
  ASSERT_FALSE(failed);
  EXPECT_EQ(failed.error().message(), "entry 2 is longer than any path");
  EXPECT_FALSE(*tooLong.next());

  // What was cut off is not taken for a path.
  ListReader cut(test::thenFailing("a\n/home/us"), '\n');
  EXPECT_EQ(**cut.next(), "a");
  EXPECT_FALSE(cut.next());
}

}  // namespace
}  // namespace quorvane
