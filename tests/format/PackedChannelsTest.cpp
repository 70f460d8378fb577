// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/PackedChannels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "format/Fixtures.h"

namespace quorvane {
namespace {

using test::hex;
using test::join;

// Pixels whose three channels are `channel`; alpha is rubbish that must not come out.
Bytes pixelsOf(const Bytes& channel) {
  Bytes argb;
  for (const std::uint8_t level : channel) argb.insert(argb.end(), {0xA5, level, level, level});
  return argb;
}

Bytes withoutAlpha(Bytes argb) {
  for (std::size_t i = 0; i < argb.size(); i += 4) argb[i] = 0;
  return argb;
}

// The length of the shortest packed form of one channel, by trying every control byte at every place.
std::size_t shortestPacking(const Bytes& channel) {
  const std::size_t n = channel.size();
  std::vector<std::size_t> cost(n + 1, 0);
  for (std::size_t at = n; at-- > 0;) {
    std::size_t best = n * 2;
    for (std::size_t count = 1; count <= std::min<std::size_t>(128, n - at); ++count)
      best = std::min(best, 1 + count + cost[at + count]);
    for (std::size_t count = 1; count <= 130 && at + count <= n && channel[at + count - 1] == channel[at]; ++count)
      if (count >= 3) best = std::min(best, 2 + cost[at + count]);
    cost[at] = best;
  }
  return cost[0];
}

TEST(PackedChannels, PacksEachChannelByItself) {
  // red 1 2 2 2, green 2 2 2 2, blue 2 3 4 4
  const Bytes argb = hex("FF010202 FF020203 FF020204 FF020204");
  EXPECT_EQ(packColorChannels(argb), hex("0001 8002  8102  03 02030404"));
}

TEST(PackedChannels, IsAsShortAsCanBeAndKeepsToTheChannels) {
  std::mt19937 random(11);
  std::vector<Bytes> channels;
  // Lengths about those where a control byte is full, alone and with neighbours.
  for (const std::size_t run : {1, 2, 3, 4, 127, 128, 129, 130, 131, 132, 133, 134, 260, 261, 262, 263, 390, 391})
    for (const std::size_t before : {0, 1, 2, 127, 128, 129})
      for (const std::size_t behind : {0, 1, 3}) {
        Bytes channel;
        for (std::size_t i = 0; i < before; ++i) channel.push_back(static_cast<std::uint8_t>(2 * i + 1));
        channel.insert(channel.end(), run, 0);
        channel.insert(channel.end(), behind, 2);
        channels.push_back(channel);
      }
  for (int i = 0; i < 300; ++i) {
    Bytes channel(1 + random() % 700);
    const std::size_t colors = 1 + random() % 4, stickiness = 1 + random() % 40;
    for (std::size_t at = 0; at < channel.size(); ++at)
      channel[at] =
          at != 0 && random() % stickiness != 0 ? channel[at - 1] : static_cast<std::uint8_t>(random() % colors);
    channels.push_back(channel);
  }
  for (const Bytes& channel : channels) {
    const Bytes argb = pixelsOf(channel);
    const Bytes packed = packColorChannels(argb);
    ASSERT_EQ(*unpackColorChannels(packed, channel.size()), withoutAlpha(argb));
    // Three equal channels pack to three equal parts only if no run goes from one to the next.
    const std::size_t part = packed.size() / 3;
    ASSERT_TRUE(std::equal(packed.begin(), packed.end() - part, packed.begin() + part));
    ASSERT_EQ(packed.size(), 3 * shortestPacking(channel)) << testing::PrintToString(channel);
  }
}

TEST(PackedChannels, UnpacksWhatOthersWrite) {
  const Bytes wanted = hex("00010101 00010102 00010103 00010104");
  const Bytes packed = hex("8101 8101 03 01020304");
  EXPECT_EQ(*unpackColorChannels(packed, 4), wanted);
  EXPECT_EQ(*unpackColorChannels(join({packed, hex("0000")}), 4), wanted) << "stray bytes";
  EXPECT_EQ(*unpackColorChannels(hex("8501 03 01020304"), 4), wanted) << "a run across channels";
  EXPECT_EQ(*unpackColorChannels(hex("010101 010102 010103 010104"), 4), wanted) << "3 bytes a pixel, unpacked";
  EXPECT_EQ(*unpackColorChannels(hex("99010101 FF010102 00010103 7F010104"), 4), wanted) << "4 bytes a pixel";
  // 12 bytes that are packed data all the same.
  EXPECT_EQ(*unpackColorChannels(hex("08 010203040506070809 8007"), 4), hex("00010509 00020607 00030707 00040807"));
  EXPECT_EQ(*unpackColorChannels(hex("06 01020304050607 8204 0000"), 4), hex("00060102 00030405 00060782 00040000"));
  EXPECT_EQ(unpackColorChannels({}, 0)->size(), 0U);
  EXPECT_EQ(*unpackArgbChannels(hex("01 0A0B 01 1A1B 01 2A2B 01 3A3B 00"), 2), hex("0A1A2A3A 0B1B2B3B"));
}

TEST(PackedChannels, RefusesWhatDoesNotComeOut) {
  const std::pair<const char*, Bytes> rows[] = {
      {"nothing", {}},
      {"one control byte", hex("FF")},
      {"too little", hex("8101 8101 02 010203")},
      {"literals cut", hex("8101 8101 03 010203")},
      {"repeat without its byte", hex("8101 8101 81")},
      {"last run too long", hex("8101 8101 8201")},
      {"three stray bytes", hex("8101 8101 8101 000000")},
  };
  for (const auto& [what, packed] : rows) {
    EXPECT_FALSE(unpackColorChannels(packed, 4).ok()) << what;
    EXPECT_FALSE(unpackArgbChannels(packed, 3).ok()) << what;
  }
  EXPECT_FALSE(unpackArgbChannels(Bytes(16, 0xEE), 4).ok());
  EXPECT_FALSE(unpackColorChannels(hex("8101"), 4096 * 4096).ok());
  EXPECT_EQ(unpackColorChannels(hex("8101"), SIZE_MAX / 2).error().kind(), ErrorKind::TooLarge);
}

}  // namespace
}  // namespace quorvane
