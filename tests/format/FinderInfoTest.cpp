// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/FinderInfo.h"

#include <gtest/gtest.h>

#include "format/Fixtures.h"

namespace quorvane {
namespace {

using test::hex;

TEST(FinderInfo, ChangesOnlyTheBytesOfTheFieldsNamed) {
  FinderInfo info(Bytes(40, 0xEE));
  info.setTypeAndCreator("icon", "MACS");
  info.setFlags(FinderInfo::isInvisible | FinderInfo::hasCustomIcon);
  info.clearLocationAndReserved();
  const Bytes expected = hex("69636F6E 4D414353 4400 00000000 0000 EEEEEEEEEEEEEEEE EEEE EEEE EEEEEEEE");
  EXPECT_EQ(Bytes(info.bytes().begin(), info.bytes().end()), expected);
  EXPECT_EQ(info.type(), FourCharCode("icon"));
  EXPECT_EQ(info.creator(), FourCharCode("MACS"));
  EXPECT_EQ(info.flags(), 0x4400);
  EXPECT_FALSE(info.isZero());
  EXPECT_EQ(FinderInfo(hex("00000000 00000000 04")).flags(), FinderInfo::hasCustomIcon) << "filled up with zeros";
  EXPECT_TRUE(FinderInfo(ByteView()).isZero());
}

}  // namespace
}  // namespace quorvane
