// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QColorSpace>
#include <cstdlib>

#include "foundation/base/ByteWriter.h"
#include "imaging/Image.h"
#include "imaging/Psd.h"
#include "support/Bitmaps.h"

namespace quorvane {
namespace {

/// A layered picture of 3 x 2 pixels, each channel of one value.
struct Sample {
  int version = 1;
  int mode = 3;
  int depth = 8;
  std::vector<std::uint32_t> values;  ///< one a channel, as wide as `depth`
  int layers = 0;
  bool isDeep = false;  ///< the layers stand in a block of their own, behind the usual place
  bool isPacked = true;
  Bytes modeData = {};
  std::uint16_t resource = 0;
  Bytes resourceData = {};

  [[nodiscard]] Bytes bytes() const {
    ByteWriter file;
    const auto length = [&](ByteWriter& to, std::size_t value) {
      if (version == 2) to.writeU32(0);
      to.writeU32(static_cast<std::uint32_t>(value));
    };
    file.writeCode("8BPS");
    file.writeU16(static_cast<std::uint16_t>(version));
    file.writeBytes(Bytes(6));
    file.writeU16(static_cast<std::uint16_t>(values.size()));
    file.writeU32(2);
    file.writeU32(3);
    file.writeU16(static_cast<std::uint16_t>(depth));
    file.writeU16(static_cast<std::uint16_t>(mode));
    file.writeU32(static_cast<std::uint32_t>(modeData.size()));
    file.writeBytes(modeData);
    ByteWriter resources;
    if (resource != 0) {
      resources.writeCode("8BIM");
      resources.writeU16(resource);
      resources.writeBytes(Bytes{3, 'o', 'd', 'd'});
      resources.writeU32(static_cast<std::uint32_t>(resourceData.size()));
      resources.writeBytes(resourceData);
    }
    file.writeU32(static_cast<std::uint32_t>(resources.bytes().size()));
    file.writeBytes(resources.bytes());
    ByteWriter layerBlock;
    if (isDeep) {
      length(layerBlock, 0);
      layerBlock.writeU32(0);
      layerBlock.writeCode("8BIM");
      layerBlock.writeCode("Lr16");
    }
    length(layerBlock, 2);
    layerBlock.writeU16(static_cast<std::uint16_t>(layers));
    length(file, layerBlock.bytes().size());
    file.writeBytes(layerBlock.bytes());
    writeRows(file);
    return std::move(file).take();
  }

  void writeRows(ByteWriter& file) const {
    const std::size_t wide = static_cast<std::size_t>((3 * depth + 7) / 8);
    file.writeU16(isPacked ? 1 : 0);
    for (std::size_t row = 0; isPacked && row < values.size() * 2; ++row) {
      if (version == 2) file.writeU16(0);
      file.writeU16(static_cast<std::uint16_t>(wide + 2));
    }
    for (const std::uint32_t value : values)
      for (int row = 0; row < 2; ++row) {
        // What does nothing, then all literally.
        if (isPacked) file.writeBytes(Bytes{0x80, static_cast<std::uint8_t>(wide - 1)});
        for (int x = 0; x < 3 && depth > 1; ++x)
          for (int shift = depth - 8; shift >= 0; shift -= 8) file.writeU8(static_cast<std::uint8_t>(value >> shift));
        if (depth == 1) file.writeU8(static_cast<std::uint8_t>(value));
      }
  }
};

Bytes profileOf(QColorSpace::NamedColorSpace space) {
  const QByteArray icc = QColorSpace(space).iccProfile();
  return Bytes(icc.begin(), icc.end());
}

TEST(Psd, ModesDepthsAndTransparencyBecomeOurs) {
  Bytes palette(768, 10);
  palette[5] = 200;
  const struct {
    const char* name;
    Sample sample;
    std::vector<int> wanted;  ///< not premultiplied
  } rows[] = {
      {"rgb", {.values = {255, 128, 0}}, {255, 128, 0, 255}},
      {"not packed", {.values = {255, 128, 0}, .isPacked = false}, {255, 128, 0, 255}},
      {"large file", {.version = 2, .values = {255, 128, 0, 255}, .layers = -1}, {255, 128, 0, 255}},
      {"16 bits", {.depth = 16, .values = {0xFFFF, 0x80FF, 0x0040}}, {255, 129, 0, 255}},
      {"alpha over white", {.values = {255, 155, 127, 128}, .layers = -1}, {255, 56, 0, 128}},
      {"wholly transparent", {.values = {255, 255, 255, 0}, .layers = -1}, {255, 255, 255, 0}},
      {"16-bit alpha",
       {.depth = 16, .values = {0xFFFF, 0x7FFF, 0x7FFF, 0x8000}, .layers = -1, .isDeep = true},
       {255, 0, 0, 128}},
      {"16-bit alpha in a large file",
       {.version = 2, .depth = 16, .values = {0xFFFF, 0x7FFF, 0x7FFF, 0x8000}, .layers = -1, .isDeep = true},
       {255, 0, 0, 128}},
      {"saved selection", {.values = {255, 128, 0, 7}, .layers = 1}, {255, 128, 0, 255}},
      {"transparency that is missing", {.values = {255, 128, 0}, .layers = -1}, {255, 128, 0, 255}},
      {"grey", {.mode = 1, .values = {77}}, {77, 77, 77, 255}},
      {"duotone", {.mode = 8, .values = {77}}, {77, 77, 77, 255}},
      {"bitmap", {.mode = 0, .depth = 1, .values = {0xDF}}, {0, 0, 0, 255}},
      {"indexed", {.mode = 2, .values = {5}, .modeData = palette}, {200, 10, 10, 255}},
      {"transparent index",
       {.mode = 2, .values = {5}, .modeData = palette, .resource = 1047, .resourceData = {0, 5}},
       {200, 10, 10, 0}},
      {"inks", {.mode = 4, .values = {255, 0, 255, 128}}, {128, 0, 128, 255}},
      {"inks over white", {.mode = 4, .values = {255, 127, 255, 255, 128}, .layers = -1}, {255, 0, 255, 128}},
      // L 50.2, a 20, b -30 by the formulae of the CIE and of sRGB.
      {"Lab", {.mode = 9, .values = {128, 148, 98}}, {133, 109, 171, 255}},
      {"Lab grey over white",
       {.mode = 9, .depth = 16, .values = {0xBFFF, 0x8000, 0x8000, 0x8000}, .layers = -1},
       {119, 119, 119, 128}},
      // 0.5, 1.0 and 2.0: half the light is 188.
      {"light", {.depth = 32, .values = {0x3F000000, 0x3F800000, 0x40000000}}, {188, 255, 255, 255}},
      {"light of no number", {.depth = 32, .values = {0x7FC00000, 0xBF800000, 0x7F800000}}, {0, 0, 255, 255}},
      {"profile",
       {.values = {100, 180, 100}, .resource = 1039, .resourceData = profileOf(QColorSpace::AdobeRgb)},
       {0, 181, 94, 255}},
      {"profile of another model",
       {.mode = 1, .values = {77}, .resource = 1039, .resourceData = profileOf(QColorSpace::AdobeRgb)},
       {77, 77, 77, 255}},
      {"profile of rubbish", {.values = {9, 8, 7}, .resource = 1039, .resourceData = Bytes(200, 7)}, {9, 8, 7, 255}},
  };
  for (const auto& [name, sample, wanted] : rows) {
    const auto bitmap = decodePsd(sample.bytes());
    ASSERT_TRUE(bitmap.ok()) << name << ": " << bitmap.error().message();
    ASSERT_EQ(bitmap->pixelsWide(), 3) << name;
    ASSERT_EQ(bitmap->pixelsHigh(), 2) << name;
    const int x = sample.depth == 1 ? 1 : 2;
    const auto found = test::pixelAt(*bitmap, x, 1);
    // The engine for profiles rounds its tables.
    for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(found[i], wanted[i], 2) << name << ", channel " << i;
  }
  Sample bitmap{.mode = 0, .depth = 1, .values = {0xDF}};
  EXPECT_EQ(test::pixelAt(*decodePsd(bitmap.bytes()), 2, 0)[0], 255);
}

TEST(Psd, WhatIsNotReadIsRefusedAndNothingIsReadPastTheEnd) {
  const std::pair<const char*, Sample> refused[] = {
      {"separate inks", {.mode = 7, .values = {1, 2}}},
      {"unknown mode", {.mode = 5, .values = {1, 2, 3}}},
      {"too few channels", {.mode = 4, .values = {1, 2, 3}}},
      {"too many channels", {.values = std::vector<std::uint32_t>(57)}},
      {"depth", {.mode = 2, .depth = 16, .values = {1}, .modeData = Bytes(768)}},
      {"no palette", {.mode = 2, .values = {1}, .modeData = Bytes(767)}},
      {"version", {.version = 3, .values = {1, 2, 3}}},
  };
  for (const auto& [name, sample] : refused) EXPECT_FALSE(decodePsd(sample.bytes()).ok()) << name;

  for (const bool isPacked : {false, true}) {
    const Bytes whole = Sample{.values = {1, 2, 3, 4}, .layers = -1, .isPacked = isPacked}.bytes();
    for (std::size_t length = 0; length < whole.size(); ++length) {
      const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
      EXPECT_FALSE(decodePsd(cut).ok()) << length;
    }
  }
  // Sizes over the limits, and sizes that the rows do not bear out.
  Bytes large = Sample{.values = {1, 2, 3}}.bytes();
  large[14] = large[18] = 1;
  EXPECT_EQ(decodePsd(large).error().kind(), ErrorKind::TooLarge);
  large[14] = large[18] = 0;
  large[16] = large[20] = 0x20;
  EXPECT_EQ(decodePsd(large).error().kind(), ErrorKind::InvalidInput);
  // A row that its bytes do not fill.
  Bytes shortRow = Sample{.values = {1, 2, 3}}.bytes();
  shortRow[shortRow.size() - 4] = 1;
  EXPECT_FALSE(decodePsd(shortRow).ok());
}

}  // namespace
}  // namespace quorvane
