// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/ResourceFork.h"

#include <gtest/gtest.h>

#include "format/Fixtures.h"
#include "foundation/base/ByteWriter.h"
#include "foundation/base/Limits.h"

namespace quorvane {
namespace {

using test::blankFork;
using test::hex;
using test::join;
using test::letters;
using test::patched;

Resource icon(const Bytes& data) {
  return {"icns", customIconResourceId, 0, "", data};
}

Bytes written(const ResourceFork& fork) {
  auto bytes = fork.serialize();
  EXPECT_TRUE(bytes.ok());
  return bytes.ok() ? *bytes : Bytes();
}

std::string describe(const ResourceFork& fork) {
  std::string text;
  for (const Resource& each : fork.resources())
    text += each.type.toDisplayText() + " " + std::to_string(each.id) + " '" + each.name + "' " +
            std::to_string(each.attributes) + " " + std::string(each.data.begin(), each.data.end()) + "\n";
  return text;
}

// Two types, three resources, one name. The map begins at 256 + 23 = 279, its type list at 307, its references at 325
// and its names at 361.
ResourceFork mixedFork() {
  ResourceFork fork;
  fork.set(icon(letters("largest")));
  fork.set({"ICN#", -1, 0x20, "tiny", letters("b")});
  fork.set({"icns", 128, 0, "", letters("abc")});
  return fork;
}

TEST(ResourceFork, WritesOneIconTheWayTheSystemDoes) {
  ResourceFork fork;
  fork.set(icon(letters("icns\x01\x02\x03")));
  const Bytes header = hex("00000100 0000010B 0000000B 00000032");
  EXPECT_EQ(written(fork), join({header, Bytes(240), hex("00000007"), letters("icns\x01\x02\x03"), header,
                                 hex("00000000 0000 0000 001C 0032"), hex("0000 69636E73 0000 000A"),
                                 hex("BFB9 FFFF 00 000000 00000000")}));
  EXPECT_EQ(written(fork).size(), 310U + 7U);
}

TEST(ResourceFork, WritesTypesInOrderAndTheLargestDataLast) {
  const Bytes bytes = written(mixedFork());
  const Bytes data(bytes.begin() + 256, bytes.begin() + 279);
  EXPECT_EQ(data, join({hex("00000003"), letters("abc"), hex("00000001"), letters("b"), hex("00000007"),
                        letters("largest")}));
  const Bytes lists(bytes.begin() + 307, bytes.end());
  EXPECT_EQ(lists, join({hex("0001  69636E73 0001 0012  49434E23 0000 002A"),
                         hex("BFB9 FFFF 00 00000C 00000000  0080 FFFF 00 000000 00000000"),
                         hex("FFFF 0000 20 000007 00000000"), hex("04"), letters("tiny")}));
  const auto read = ResourceFork::parse(bytes);
  ASSERT_TRUE(read.ok());
  EXPECT_EQ(describe(*read), "icns -16455 '' 0 largest\nicns 128 '' 0 abc\nICN# -1 'tiny' 32 b\n");
  EXPECT_EQ(written(*read), bytes);
}

TEST(ResourceFork, ReadsForksLaidOutOtherwise) {
  const Bytes good = written(mixedFork());
  const std::string same = describe(*ResourceFork::parse(good));
  const Bytes data(good.begin() + 256, good.begin() + 279);
  const Bytes map(good.begin() + 279, good.end());
  const auto header = [&](std::size_t dataOffset, std::size_t mapOffset) {
    ByteWriter writer;
    for (const std::size_t value : {dataOffset, mapOffset, data.size(), map.size()})
      writer.writeU32(static_cast<std::uint32_t>(value));
    return std::move(writer).take();
  };
  const std::pair<const char*, Bytes> rows[] = {
      {"map before data", join({header(16 + map.size(), 16), map, data})},
      {"data right behind the header", join({header(16, 16 + data.size()), data, map})},
      {"gaps and a tail", join({header(20, 30 + data.size()), Bytes(4, 1), data, Bytes(10, 1), map, Bytes(5, 1)})},
      {"header copy zero", join({header(256, 279), Bytes(240), data, Bytes(16), Bytes(map.begin() + 16, map.end())})},
      {"header copy different, handles rubbish", patched(patched(good, 279, 4, 0xDEADBEEF), 333, 4, 0xDEADBEEF)},
  };
  for (const auto& [what, bytes] : rows) {
    const auto fork = ResourceFork::parse(bytes);
    ASSERT_TRUE(fork.ok()) << what;
    EXPECT_EQ(describe(*fork), same) << what;
  }
  const auto unnamed = ResourceFork::parse(patched(good, 361, 1, 0));
  ASSERT_TRUE(unnamed.ok());
  EXPECT_EQ(unnamed->resources()[2].name, "");
}

TEST(ResourceFork, KeepsTheForksOwnAttributesAndReservedBytes) {
  const Bytes bytes = patched(patched(written(mixedFork()), 279 + 22, 2, 0x80), 100, 4, 0xCAFED00D);
  EXPECT_EQ(written(*ResourceFork::parse(bytes)), bytes);
}

TEST(ResourceFork, ABlankForkIsEmpty) {
  ASSERT_EQ(blankFork().size(), 286U);
  for (const Bytes& bytes : {Bytes(), blankFork()}) {
    auto fork = ResourceFork::parse(bytes);
    ASSERT_TRUE(fork.ok());
    EXPECT_TRUE(fork->isEmpty());
    EXPECT_EQ(written(*fork), Bytes());
    fork->set(icon(letters("x")));
    const Bytes filled = written(*fork);
    ASSERT_GT(filled.size(), 256U);
    EXPECT_EQ(Bytes(filled.begin() + 16, filled.begin() + 256), Bytes(240)) << "the remark stayed";
  }
}

TEST(ResourceFork, FirstOfTwinsCountsAndChangingItDropsTheOthers) {
  ResourceFork fork = mixedFork();
  // The second 'icns' gets the ID of the first.
  const auto twins = ResourceFork::parse(patched(written(fork), 337, 2, 0xBFB9));
  ASSERT_TRUE(twins.ok());
  ASSERT_EQ(twins->resources().size(), 3U);
  EXPECT_EQ(twins->find("icns", customIconResourceId)->data, letters("largest"));
  fork = *twins;
  fork.set(icon(letters("new")));
  EXPECT_EQ(describe(fork), "icns -16455 '' 0 new\nICN# -1 'tiny' 32 b\n");
  fork = *twins;
  EXPECT_TRUE(fork.remove("icns", customIconResourceId));
  EXPECT_FALSE(fork.remove("icns", customIconResourceId));
  EXPECT_EQ(describe(fork), "ICN# -1 'tiny' 32 b\n");
}

TEST(ResourceFork, RefusesAForkWithAFault) {
  const Bytes good = written(mixedFork());
  struct Row {
    const char* what;
    std::size_t offset, width;
    std::uint32_t value;
  };
  const Row rows[] = {
      {"data offset past the end", 0, 4, 0xFFFFFFFF},
      {"data on the header", 0, 4, 0},
      {"data runs past the end", 8, 4, 0xFFFFFF00},
      {"data overlaps the map", 8, 4, 24},
      {"map on the header", 4, 4, 8},
      {"map offset one too large", 4, 4, 280},
      {"map too short", 12, 4, 27},
      {"type list on the map's header", 303, 2, 27},
      {"type list outside", 303, 2, 0x7FFF},
      {"name list outside", 305, 2, 0x7FFF},
      {"too many types for the map", 307, 2, 0xFFFE},
      {"type without resources", 313, 2, 0xFFFF},
      {"too many references for the map", 313, 2, 6},
      {"more references than the limit", 313, 2, 0xFFFE},
      {"references inside the type list", 315, 2, 17},
      {"references outside the map", 315, 2, 0xFFFF},
      {"name outside the map", 351, 2, 6},
      {"name longer than the map", 361, 1, 5},
      {"data offset outside", 330, 3, 20},
      {"resource longer than the data", 268, 4, 8},
      {"resource length near 2^32", 268, 4, 0xFFFFFFFF},
      {"resources overlap", 256, 4, 4},
      {"two references to one resource", 342, 3, 12},
  };
  for (const Row& row : rows) {
    const Bytes bad = patched(good, row.offset, row.width, row.value);
    EXPECT_NE(bad, good) << row.what;
    EXPECT_FALSE(ResourceFork::parse(bad).ok()) << row.what;
  }
  for (std::size_t length = 1; length < good.size(); ++length)
    EXPECT_FALSE(ResourceFork::parse(ByteView(good).first(length)).ok()) << length;
}

TEST(ResourceFork, RefusesToWriteWhatOffsetsCannotReach) {
  ResourceFork fork;
  const Bytes huge(limits::writtenFamilyBytes + 8192);
  fork.set(icon(huge));
  fork.set({"ICN#", 1, 0, "", letters("x")});
  EXPECT_TRUE(fork.serialize().ok()) << "only what follows it would be out of reach, so it goes last";
  fork.set({"il32", 1, 0, "", huge});
  EXPECT_EQ(fork.serialize().error().kind(), ErrorKind::TooLarge);

  ResourceFork named;
  named.set({"STR ", 1, 0, std::string(255, 'n'), {}});
  EXPECT_EQ(ResourceFork::parse(written(named))->resources()[0].name.size(), 255U);
  named.set({"STR ", 2, 0, std::string(256, 'n'), {}});
  EXPECT_FALSE(named.serialize().ok());

  ResourceFork many;
  for (std::int16_t id = 0; id < 5458; ++id) many.set({"STR ", id, 0, "", {}});
  EXPECT_EQ(ResourceFork::parse(written(many))->resources().size(), 5458U);
  many.set({"STR ", 5458, 0, "", {}});
  EXPECT_FALSE(many.serialize().ok());
}

}  // namespace
}  // namespace quorvane
