// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/ResourceFork.h"

#include <gtest/gtest.h>

#include <algorithm>

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
using test::written;

Resource icon(const Bytes& data) {
  return {"icns", customIconResourceId, 0, "", data};
}

std::string describe(const ResourceFork& fork) {
  std::string text;
  for (const Resource& each : fork.resources())
    text += each.type.toDisplayText() + " " + std::to_string(each.id) + " '" + each.name + "' " +
            std::to_string(each.attributes) + " " + std::string(each.data.begin(), each.data.end()) + "\n";
  return text;
}

// A fork of ready parts; the map's first 16 bytes are left to the reader to ignore.
Bytes laidOut(std::size_t dataOffset, const Bytes& data, std::size_t mapOffset, const Bytes& map) {
  ByteWriter header;
  for (const std::size_t value : {dataOffset, mapOffset, data.size(), map.size()})
    header.writeU32(static_cast<std::uint32_t>(value));
  Bytes fork = header.bytes();
  fork.resize(std::max(dataOffset + data.size(), mapOffset + map.size()));
  std::copy(data.begin(), data.end(), fork.begin() + static_cast<std::ptrdiff_t>(dataOffset));
  std::copy(map.begin() + 16, map.end(), fork.begin() + static_cast<std::ptrdiff_t>(mapOffset + 16));
  return fork;
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
  // The fork's own attributes and reserved bytes stay.
  const Bytes marked = patched(patched(bytes, 279 + 22, 2, 0x80), 100, 4, 0xCAFED00D);
  EXPECT_EQ(written(*ResourceFork::parse(marked)), marked);
}

TEST(ResourceFork, ReadsForksLaidOutOtherwise) {
  const Bytes good = written(mixedFork());
  const std::string same = describe(*ResourceFork::parse(good));
  const Bytes data(good.begin() + 256, good.begin() + 279);
  const Bytes map(good.begin() + 279, good.end());
  const std::pair<const char*, Bytes> rows[] = {
      {"map before data", laidOut(16 + map.size(), data, 16, map)},
      {"map in the reserved bytes", laidOut(256, data, 20, map)},
      {"data right behind the header", laidOut(16, data, 300, map)},
      {"gaps, a tail, header copy zero", join({laidOut(260, data, 300, map), Bytes(5, 1)})},
      {"header copy different, handles rubbish", patched(patched(good, 279, 4, 0xDEADBEEF), 333, 4, 0xDEADBEEF)},
  };
  for (const auto& [what, bytes] : rows) {
    const auto fork = ResourceFork::parse(bytes);
    ASSERT_TRUE(fork.ok()) << what;
    EXPECT_EQ(describe(*fork), same) << what;
    EXPECT_EQ(written(*fork), good) << what;
  }
  const auto unnamed = ResourceFork::parse(patched(good, 361, 1, 0));
  ASSERT_TRUE(unnamed.ok());
  EXPECT_EQ(unnamed->resources()[2].name, "");
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
  // The second 'icns' gets the ID of the first.
  const auto twins = ResourceFork::parse(patched(written(mixedFork()), 337, 2, 0xBFB9));
  ASSERT_TRUE(twins.ok());
  EXPECT_EQ(twins->find("icns", customIconResourceId)->data, letters("largest"));
  ResourceFork fork = *twins;
  fork.set(icon(letters("new")));
  EXPECT_EQ(describe(fork), "icns -16455 '' 0 new\nICN# -1 'tiny' 32 b\n");
  fork = *twins;
  EXPECT_TRUE(fork.remove("icns", customIconResourceId));
  EXPECT_FALSE(fork.remove("icns", customIconResourceId));
  EXPECT_EQ(describe(fork), "ICN# -1 'tiny' 32 b\n");
}

TEST(ResourceFork, RefusesAForkWithAFault) {
  const Bytes good = written(mixedFork());
  test::expectRefused(
      good,
      {
          {"data offset past the end", 0, 4, 0xFFFFFFFF},
          {"data runs past the end", 8, 4, 0xFFFFFF00},
          {"data overlaps the map", 8, 4, 24},
          {"map offset one too large", 4, 4, 280},
          {"map too short", 12, 4, 27},
          {"type list outside", 303, 2, 0x7FFF},
          {"name list outside", 305, 2, 0x7FFF},
          {"too many types for the map", 307, 2, 0xFFFE},
          {"too many references for the map", 313, 2, 6},
          {"references inside the type list", 315, 2, 17},
          {"references outside the map", 315, 2, 0xFFFF},
          {"name outside the map", 351, 2, 6},
          {"name longer than the map", 361, 1, 5},
          {"data offset outside", 330, 3, 20},
          {"resource longer than the data", 268, 4, 8},
          {"resource length near 2^32", 268, 4, 0xFFFFFFFF},
          {"resources overlap", 256, 4, 4},
          {"two references to one resource", 342, 3, 12},
      },
      [](ByteView bytes) { return ResourceFork::parse(bytes).ok(); }, 1);
}

TEST(ResourceFork, RefusesPartsOnTopOfOthersThoughTheyReadWell) {
  ResourceFork one;
  one.set(icon(Bytes(50, 'x')));
  const Bytes good = written(one);
  const Bytes map(good.begin() + 310, good.end());
  const Bytes data(good.begin() + 256, good.begin() + 310);
  EXPECT_TRUE(ResourceFork::parse(laidOut(70, data, 20, map)).ok());
  // The map's length, 50, serves as the resource's.
  EXPECT_FALSE(ResourceFork::parse(laidOut(12, data, 66, map)).ok());
  // The header serves as its own copy.
  EXPECT_FALSE(ResourceFork::parse(laidOut(50, data, 0, map)).ok());
  // The fork's attributes serve as the count of types; the references lie where they may.
  EXPECT_FALSE(ResourceFork::parse(laidOut(70, data, 20, patched(patched(map, 24, 2, 22), 28, 4, 16))).ok());
  // The type's row serves as the reference too: no name, no attributes, data at 2.
  const Bytes row = patched(patched(map, 30, 4, 0x6963FFFF), 34, 4, 2);
  EXPECT_FALSE(ResourceFork::parse(laidOut(70, patched(patched(data, 0, 2, 0), 2, 4, 48), 20, row)).ok());
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
  named.set({"STR ", 2, 0, std::string(256, 'n'), {}});
  EXPECT_FALSE(named.serialize().ok());
  named.set({"STR ", 1, 0, std::string(255, 'n'), {}});
  for (std::int16_t id = 2; id <= 256; ++id) named.set({"STR ", id, 0, std::string(255, 'n'), {}});
  EXPECT_TRUE(named.serialize().ok());
  named.set({"STR ", 257, 0, "n", {}});
  EXPECT_EQ(named.serialize().error().kind(), ErrorKind::TooLarge);

  ResourceFork many;
  for (std::int16_t id = 0; id < 5458; ++id) many.set({"STR ", id, 0, "", {}});
  EXPECT_EQ(ResourceFork::parse(written(many))->resources().size(), 5458U);
  many.set({"STR ", 5458, 0, "", {}});
  EXPECT_FALSE(many.serialize().ok());
}

}  // namespace
}  // namespace quorvane
