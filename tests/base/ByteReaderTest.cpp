// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/base/ByteReader.h"

#include <gtest/gtest.h>

#include <limits>

#include "foundation/base/ByteWriter.h"
#include "foundation/base/Result.h"

namespace quorvane {
namespace {

TEST(ByteReader, TakesAllThatIsAskedForOrNothing) {
  const Bytes bytes{0x69, 0x74, 0x33, 0x32, 0xFF, 0x01, 0x02};
  ByteReader reader(bytes);
  EXPECT_EQ(reader.readCode(), FourCharCode("it32"));
  EXPECT_FALSE(reader.readU32());
  EXPECT_EQ(reader.position(), 4U);
  EXPECT_EQ(reader.readU24(), 0xFF0102U);
  EXPECT_TRUE(reader.atEnd());
  EXPECT_FALSE(reader.readU8());
  EXPECT_EQ(reader.readBytes(0)->size(), 0U);
}

TEST(ByteReader, HugeOffsetsAndLengthsDoNotWrapAround) {
  const Bytes bytes(16);
  ByteReader reader(bytes);
  constexpr auto huge = std::numeric_limits<std::size_t>::max();
  EXPECT_FALSE(reader.slice(8, huge));
  EXPECT_FALSE(reader.slice(huge, 8));
  EXPECT_FALSE(reader.skip(huge));
  EXPECT_FALSE(reader.seek(17));
  EXPECT_TRUE(reader.seek(16));
  EXPECT_TRUE(reader.slice(16, 0));
}

TEST(ByteWriter, WritesBigEndianAndPatchesLengths) {
  ByteWriter writer;
  writer.writeCode("icns");
  writer.writeU32(0);
  writer.writeU24(0x010203);
  writer.writeU16(0xBFB9);
  writer.patchU32(4, static_cast<std::uint32_t>(writer.size()));
  EXPECT_EQ(writer.bytes(), (Bytes{'i', 'c', 'n', 's', 0, 0, 0, 13, 1, 2, 3, 0xBF, 0xB9}));
}

Result<int> half(int value) {
  if (value % 2 != 0) return Error::invalidInput("odd");
  return value / 2;
}
Result<int> quarter(int value) {
  return half(TRY(half(value)));
}

TEST(Result, PassesFailuresUpAndKeepsThePathNearestToTheCause) {
  EXPECT_EQ(*quarter(12), 3);
  EXPECT_FALSE(quarter(6).ok());
  EXPECT_EQ(half(3).error().at("inner").at("outer").message(), "inner: odd");
}

}  // namespace
}  // namespace quorvane
