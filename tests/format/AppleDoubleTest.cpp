// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/AppleDouble.h"

#include <gtest/gtest.h>

#include "format/Fixtures.h"
#include "foundation/base/ByteReader.h"
#include "foundation/base/ByteWriter.h"
#include "foundation/base/Limits.h"
#include "iconfamily/format/ResourceFork.h"

namespace quorvane {
namespace {

using test::blankFork;
using test::hex;
using test::join;
using test::letters;
using test::patched;

const Bytes start = hex("00051607 00020000");
const Bytes zeroFiller(16);
const Bytes systemFiller = letters("Mac OS X        ");
const Bytes noFinderInfo(32);

Bytes written(const AppleDouble& companion) {
  auto bytes = companion.serialize();
  EXPECT_TRUE(bytes.ok());
  return bytes.ok() ? *bytes : Bytes();
}

AppleDouble read(const Bytes& bytes) {
  auto companion = AppleDouble::parse(bytes);
  EXPECT_TRUE(companion.ok()) << companion.error().message();
  return companion.ok() ? *companion : AppleDouble();
}

// The Finder entry (from offset 50) with an attribute block of one attribute, its value "value" behind it.
Bytes entryWithAttribute() {
  Bytes entry = noFinderInfo;
  entry = join({entry, hex("0000"), letters("ATTR"), hex("00000001 00000095 00000090 00000005"), Bytes(12),
                hex("0000 0001"), hex("00000090 00000005 0000"), hex("0B"), letters("user.label"), Bytes(3),
                letters("value")});
  return entry;
}

Bytes entryWithoutAttributes() {
  return join({noFinderInfo, hex("0000"), letters("ATTR"), hex("00000001 00000078 00000078 00000000"), Bytes(12),
               hex("0000 0000")});
}

// A file of two entries, in the layout of the system: Finder entry at 50, fork behind.
Bytes systemFile(const Bytes& finderEntry, const Bytes& fork) {
  ByteWriter writer;
  writer.writeBytes(join({start, systemFiller, hex("0002 00000009 00000032")}));
  writer.writeU32(static_cast<std::uint32_t>(finderEntry.size()));
  writer.writeU32(2);
  writer.writeU32(static_cast<std::uint32_t>(50 + finderEntry.size()));
  writer.writeU32(static_cast<std::uint32_t>(fork.size()));
  writer.writeBytes(finderEntry);
  writer.writeBytes(fork);
  return std::move(writer).take();
}

TEST(AppleDouble, WritesAMinimalFile) {
  AppleDouble companion;
  companion.setResourceFork(letters("fork"));
  FinderInfo info;
  info.setFlags(FinderInfo::isInvisible);
  companion.setFinderInfo(info);
  EXPECT_EQ(written(companion),
            join({start, zeroFiller, hex("0002"), hex("00000009 00000032 00000020"), hex("00000002 00000052 00000004"),
                  hex("00000000 00000000 4000"), Bytes(22), letters("fork")}));
}

TEST(AppleDouble, WritesBackWhatItReadByteForByte) {
  const Bytes otherOrder = join({start, letters("Netatalk        "), hex("0002"), hex("00000002 00000052 00000004"),
                                 hex("00000009 00000032 00000020"), Bytes(32, 7), letters("fork")});
  const Bytes strangers =
      join({start, zeroFiller, hex("0005"), hex("80000000 00000076 00000003"), hex("00000009 00000056 00000020"),
            hex("0000000F 00000079 00000000"), hex("0000000F 00000079 00000001"), hex("00000002 0000007A 00000004"),
            Bytes(32, 7), letters("xyzd"), letters("fork")});
  const Bytes rows[] = {
      systemFile(entryWithAttribute(), blankFork()), systemFile(entryWithoutAttributes(), {}), otherOrder, strangers,
      patched(otherOrder, 4, 4, 0x00010000),         join({start, zeroFiller, hex("0000")})};
  for (const Bytes& bytes : rows) EXPECT_EQ(written(read(bytes)), bytes);
  for (const Bytes& bytes : {otherOrder, strangers}) {
    const AppleDouble companion = read(bytes);
    EXPECT_EQ(companion.finderInfo(), FinderInfo(Bytes(32, 7)));
    EXPECT_EQ(Bytes(companion.resourceFork().begin(), companion.resourceFork().end()), letters("fork"));
  }
}

TEST(AppleDouble, ChangesTheFinderInfoAndNothingElse) {
  const Bytes before = systemFile(entryWithAttribute(), blankFork());
  AppleDouble companion = read(before);
  FinderInfo info = *companion.finderInfo();
  info.setFlags(FinderInfo::hasCustomIcon);
  companion.setFinderInfo(info);
  EXPECT_EQ(written(companion), patched(before, 58, 2, FinderInfo::hasCustomIcon));
}

TEST(AppleDouble, MovesTheOffsetsOfTheAttributeBlockAlong) {
  const Bytes before = systemFile(entryWithAttribute(), letters("fork"));
  AppleDouble companion = read(before);
  companion.setResourceFork({});
  const Bytes alone = written(companion);
  // One row less in the table: the Finder entry stands at 38, and all that counts from the file's start with it.
  EXPECT_EQ(alone.size(), 38 + entryWithAttribute().size());
  ByteReader reader(alone);
  const std::size_t attribute = 38 + 70;
  ASSERT_TRUE(reader.seek(attribute));
  const auto place = reader.readU32();
  EXPECT_EQ(*place, 0x90U - 12);
  EXPECT_EQ(letters("value"), Bytes(reader.slice(*place, 5)->begin(), reader.slice(*place, 5)->end()));
  ASSERT_TRUE(reader.seek(38 + 42));
  EXPECT_EQ(reader.readU32(), alone.size());
  EXPECT_EQ(reader.readU32(), *place);

  AppleDouble back = read(alone);
  back.setResourceFork(letters("fork"));
  EXPECT_EQ(written(back), before);

  // A block with an offset into nowhere is not understood, so it is left alone.
  std::vector<Bytes> odd;
  for (const std::size_t offset : {42, 46, 50, 70, 74})
    odd.push_back(patched(entryWithAttribute(), offset, 4, 0xFFFFFFF0));
  // A second attribute is announced, and cut short.
  for (std::uint32_t extra = 0; extra < 11; ++extra)
    odd.push_back(join({patched(patched(entryWithAttribute(), 42, 4, 0x95 + extra), 68, 2, 2), Bytes(extra)}));
  for (const Bytes& lying : odd) {
    AppleDouble untouched = read(systemFile(lying, letters("fork")));
    untouched.setResourceFork({});
    const Bytes bytes = written(untouched);
    EXPECT_EQ(Bytes(bytes.begin() + 38, bytes.end()), lying);
  }
}

TEST(AppleDouble, FirstOfTwinsCountsAndChangingItDropsTheOthers) {
  const Bytes twins = join({start, zeroFiller, hex("0004"), hex("00000009 0000004A 00000020"),
                            hex("00000002 0000008A 00000001"), hex("00000009 0000006A 00000020"),
                            hex("00000002 0000008B 00000001"), Bytes(32, 1), Bytes(32, 2), letters("ab")});
  AppleDouble companion = read(twins);
  EXPECT_EQ(companion.finderInfo(), FinderInfo(Bytes(32, 1)));
  EXPECT_EQ(companion.resourceFork()[0], 'a');
  companion.setFinderInfo(FinderInfo(Bytes(32, 3)));
  companion.setResourceFork(letters("c"));
  EXPECT_EQ(written(companion), join({start, zeroFiller, hex("0002"), hex("00000009 00000032 00000020"),
                                      hex("00000002 00000052 00000001"), Bytes(32, 3), letters("c")}));
}

TEST(AppleDouble, AShortFinderEntryIsNoneUntilItIsSet) {
  AppleDouble companion = read(systemFile(Bytes(16, 9), {}));
  EXPECT_EQ(companion.finderInfo(), std::nullopt);
  companion.setFinderInfo(FinderInfo());
  EXPECT_EQ(written(companion), systemFile(noFinderInfo, {}));
}

TEST(AppleDouble, IsBlankWhenNothingIsWorthKeeping) {
  ResourceFork fork;
  fork.set({"icns", customIconResourceId, 0, "", letters("x")});
  const Bytes stranger = join({start, zeroFiller, hex("0001 00000004 00000026 00000000")});
  EXPECT_TRUE(AppleDouble().isBlank());
  EXPECT_TRUE(read(systemFile(noFinderInfo, {})).isBlank());
  EXPECT_TRUE(read(systemFile(join({entryWithoutAttributes(), Bytes(3690)}), blankFork())).isBlank());
  EXPECT_TRUE(read(systemFile(Bytes(40), {})).isBlank());
  EXPECT_FALSE(read(systemFile(patched(noFinderInfo, 31, 1, 1), {})).isBlank());
  EXPECT_FALSE(read(systemFile(patched(Bytes(40), 39, 1, 1), {})).isBlank());
  EXPECT_FALSE(read(systemFile(entryWithAttribute(), blankFork())).isBlank());
  EXPECT_FALSE(read(systemFile(noFinderInfo, *fork.serialize())).isBlank());
  EXPECT_FALSE(read(systemFile(noFinderInfo, letters("no fork"))).isBlank());
  EXPECT_FALSE(read(stranger).isBlank());
}

TEST(AppleDouble, RefusesAFileWithAFault) {
  const Bytes good = systemFile(noFinderInfo, letters("fork"));
  struct Row {
    const char* what;
    std::size_t offset, width;
    std::uint32_t value;
  };
  const Row rows[] = {
      {"the magic of a single file", 0, 4, 0x00051600},
      {"magic reversed", 0, 4, 0x07160500},
      {"version 3", 4, 4, 0x00030000},
      {"more entries than the table has room for", 24, 2, 100},
      {"more entries than the limit", 24, 2, 0xFFFF},
      {"one entry more, on the data", 24, 2, 3},
      {"entry on the header", 30, 4, 0},
      {"entry on the table", 30, 4, 49},
      {"entries overlap", 34, 4, 33},
      {"entry outside", 42, 4, 83},
      {"entry longer than the file", 46, 4, 5},
      {"length near 2^32", 46, 4, 0xFFFFFFFF},
      {"offset near 2^32", 42, 4, 0xFFFFFFFF},
  };
  for (const Row& row : rows) {
    const Bytes bad = patched(good, row.offset, row.width, row.value);
    EXPECT_NE(bad, good) << row.what;
    EXPECT_FALSE(AppleDouble::parse(bad).ok()) << row.what;
  }
  for (std::size_t length = 0; length < good.size(); ++length)
    EXPECT_FALSE(AppleDouble::parse(ByteView(good).first(length)).ok()) << length;

  AppleDouble tooLong;
  tooLong.setResourceFork(Bytes(limits::iconFileBytes));
  EXPECT_EQ(tooLong.serialize().error().kind(), ErrorKind::TooLarge);
}

}  // namespace
}  // namespace quorvane
