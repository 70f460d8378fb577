// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/AppleDouble.h"

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
using test::written;

const Bytes start = hex("00051607 00020000");
const Bytes zeroFiller(16);
const Bytes systemFiller = letters("Mac OS X        ");
const Bytes noFinderInfo(32);

AppleDouble read(const Bytes& bytes) {
  auto companion = AppleDouble::parse(bytes);
  EXPECT_TRUE(companion.ok()) << companion.error().message();
  return companion.ok() ? *companion : AppleDouble();
}

// The Finder entry (from offset 50) with an attribute block of two attributes, their values "value" and "w" behind it.
Bytes entryWithAttributes() {
  return join({noFinderInfo, hex("0000"), letters("ATTR"), hex("00000001 000000A6 000000A0 00000006"), Bytes(12),
               hex("0000 0002"), hex("000000A0 00000005 0000"), hex("0B"), letters("user.label"), Bytes(3),
               hex("000000A5 00000001 0000 02"), letters("u"), Bytes(4), letters("valuew")});
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
      systemFile(entryWithAttributes(), blankFork()), systemFile(entryWithoutAttributes(), {}), otherOrder, strangers,
      patched(otherOrder, 4, 4, 0x00010000),          join({start, zeroFiller, hex("0000")})};
  for (const Bytes& bytes : rows) EXPECT_EQ(written(read(bytes)), bytes);
  AppleDouble changed = read(rows[0]);
  FinderInfo info = *changed.finderInfo();
  info.setFlags(FinderInfo::hasCustomIcon);
  changed.setFinderInfo(info);
  EXPECT_EQ(written(changed), patched(rows[0], 58, 2, FinderInfo::hasCustomIcon)) << "and nothing else";
  AppleDouble tooShort = read(systemFile(Bytes(16, 9), {}));
  EXPECT_EQ(tooShort.finderInfo(), std::nullopt);
  tooShort.setFinderInfo(FinderInfo());
  EXPECT_EQ(written(tooShort), systemFile(noFinderInfo, {}));
  for (const Bytes& bytes : {otherOrder, strangers}) {
    const AppleDouble companion = read(bytes);
    EXPECT_EQ(companion.finderInfo(), FinderInfo(Bytes(32, 7)));
    EXPECT_EQ(Bytes(companion.resourceFork().begin(), companion.resourceFork().end()), letters("fork"));
  }
}

TEST(AppleDouble, MovesTheOffsetsOfTheAttributeBlockAlong) {
  const Bytes before = systemFile(entryWithAttributes(), letters("fork"));
  AppleDouble companion = read(before);
  companion.setResourceFork({});
  const Bytes alone = written(companion);
  // One row less in the table: the Finder entry stands at 38, and all that counts from the file's start with it.
  Bytes expected = entryWithAttributes();
  const std::pair<std::size_t, std::uint32_t> moved[] = {{42, 0x9A}, {46, 0x94}, {70, 0x94}, {94, 0x99}};
  for (const auto& [place, value] : moved) expected = patched(expected, place, 4, value);
  EXPECT_EQ(Bytes(alone.begin() + 38, alone.end()), expected);
  EXPECT_EQ(Bytes(alone.begin() + 0x94, alone.begin() + 0x99), letters("value"));

  AppleDouble back = read(alone);
  back.setResourceFork(letters("fork"));
  EXPECT_EQ(written(back), before);

  // A block with an offset into nowhere is not understood, so it is left alone.
  std::vector<Bytes> odd;
  for (const std::size_t offset : {42, 46, 50, 70, 74, 94, 98})
    odd.push_back(patched(entryWithAttributes(), offset, 4, 0xFFFFFFF0));
  // A third attribute is announced, and cut short.
  for (std::uint32_t extra = 0; extra < 11; ++extra)
    odd.push_back(join({patched(patched(entryWithAttributes(), 42, 4, 0xA6 + extra), 68, 2, 3), Bytes(extra)}));
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

TEST(AppleDouble, IsBlankWhenNothingIsWorthKeeping) {
  for (const Bytes& blank :
       {systemFile(noFinderInfo, {}), systemFile(join({entryWithoutAttributes(), Bytes(3690)}), blankFork()),
        systemFile(Bytes(40), {})})
    EXPECT_TRUE(read(blank).isBlank());
  const Bytes stranger = join({start, zeroFiller, hex("0001 00000004 00000026 00000000")});
  for (const Bytes& kept :
       {systemFile(patched(noFinderInfo, 31, 1, 1), {}), systemFile(patched(Bytes(40), 39, 1, 1), {}),
        systemFile(entryWithAttributes(), blankFork()), systemFile(noFinderInfo, letters("no fork")), stranger})
    EXPECT_FALSE(read(kept).isBlank());
}

TEST(AppleDouble, RefusesAFileWithAFault) {
  const Bytes good = systemFile(noFinderInfo, letters("fork"));
  const auto isRead = [](ByteView bytes) { return AppleDouble::parse(bytes).ok(); };
  test::expectRefused(good,
                      {
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
                      },
                      isRead);
  test::expectRefused(join({start, zeroFiller, hex("0000")}), {}, isRead);
  EXPECT_TRUE(AppleDouble::parse(patched(systemFile(noFinderInfo, {}), 42, 4, 60)).ok()) << "no bytes, no overlap";

  const auto withEntries = [](std::uint16_t count) {
    return join({start, zeroFiller, patched(Bytes(2), 0, 2, count), Bytes(std::size_t{12} * count)});
  };
  EXPECT_EQ(AppleDouble::parse(withEntries(limits::companionEntries + 1)).error().kind(), ErrorKind::TooLarge);
  AppleDouble full = read(withEntries(limits::companionEntries));
  full.setResourceFork(letters("x"));
  EXPECT_EQ(full.serialize().error().kind(), ErrorKind::TooLarge);
  AppleDouble tooLong;
  tooLong.setResourceFork(Bytes(limits::iconFileBytes));
  EXPECT_EQ(tooLong.serialize().error().kind(), ErrorKind::TooLarge);
}

}  // namespace
}  // namespace quorvane
