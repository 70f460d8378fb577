// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Jpeg2000.h"

#include <gtest/gtest.h>
#include <openjpeg.h>

#include <QColorSpace>
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <string_view>

#include "foundation/base/Limits.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

struct Form {
  int width = 20;
  int height = 12;
  std::vector<int> precisions = {8, 8, 8, 8};
  OPJ_COLOR_SPACE space = OPJ_CLRSPC_SRGB;
  int alpha = -1;  ///< component that a channel definition names as alpha
  bool isAlphaPremultiplied = false;
  bool isSigned = false;
  bool isBoxed = true;
  int tile = 0;  ///< width and height of the tiles
};

/// What component `c` holds at (x, y): any value of its range.
int sampleOf(const Form& form, int c, int x, int y) {
  return (x * 13 + y * 29 + c * 71 + x * y) % (1 << form.precisions[c]);
}

/// The form's picture as another program would write it: without loss.
Bytes written(const Form& form) {
  std::vector<opj_image_cmptparm_t> parameters;
  for (const int precision : form.precisions)
    parameters.push_back({.dx = 1,
                          .dy = 1,
                          .w = OPJ_UINT32(form.width),
                          .h = OPJ_UINT32(form.height),
                          .x0 = 0,
                          .y0 = 0,
                          .prec = OPJ_UINT32(precision),
                          .bpp = OPJ_UINT32(precision),
                          .sgnd = OPJ_UINT32(form.isSigned)});
  opj_image_t* image = opj_image_create(OPJ_UINT32(parameters.size()), parameters.data(), form.space);
  image->x1 = OPJ_UINT32(form.width);
  image->y1 = OPJ_UINT32(form.height);
  for (int c = 0; c < int(parameters.size()); ++c) {
    if (c == form.alpha) image->comps[c].alpha = 1;
    const int offset = form.isSigned ? 1 << (form.precisions[c] - 1) : 0;
    for (int y = 0; y < form.height; ++y)
      for (int x = 0; x < form.width; ++x) image->comps[c].data[y * form.width + x] = sampleOf(form, c, x, y) - offset;
  }
  opj_cparameters_t coding;
  opj_set_default_encoder_parameters(&coding);
  coding.numresolution = 3;
  coding.tcp_mct = 0;
  if (form.tile > 0) {
    coding.tile_size_on = OPJ_TRUE;
    coding.cp_tdx = coding.cp_tdy = form.tile;
  }
  const test::TemporaryFolder folder;
  const std::string path = folder / "picture";
  opj_codec_t* codec = opj_create_compress(form.isBoxed ? OPJ_CODEC_JP2 : OPJ_CODEC_J2K);
  EXPECT_TRUE(opj_setup_encoder(codec, &coding, image));
  opj_stream_t* stream = opj_stream_create_default_file_stream(path.c_str(), OPJ_FALSE);
  EXPECT_TRUE(opj_start_compress(codec, image, stream) && opj_encode(codec, stream) && opj_end_compress(codec, stream));
  opj_stream_destroy(stream);
  opj_destroy_codec(codec);
  opj_image_destroy(image);
  Bytes bytes = test::readFile(path);
  if (form.isAlphaPremultiplied) {
    // The library writes only the other kind: a type of 2 in the definition, which is of channel, type, association.
    const std::string name = "cdef";
    const auto box = std::search(bytes.begin(), bytes.end(), name.begin(), name.end());
    EXPECT_NE(box, bytes.end());
    box[4 + 2 + form.alpha * 6 + 3] = 2;
  }
  return bytes;
}

using Samples = std::array<int, 4>;

Samples asTheyAre(const Samples& s) {
  return s;
}
Samples opaque(const Samples& s) {
  return {s[0], s[1], s[2], 255};
}
Samples grey(const Samples& s) {
  return {s[0], s[0], s[0], 255};
}
Samples greyWithAlpha(const Samples& s) {
  return {s[0], s[0], s[0], s[1]};
}
Samples notPremultiplied(const Samples& s) {
  const auto undone = [&](int color) { return s[3] == 0 ? 0 : std::min(255, (2 * color * 255 + s[3]) / (2 * s[3])); };
  return {undone(s[0]), undone(s[1]), undone(s[2]), s[3]};
}
Samples fromLuma(const Samples& s) {
  const double y = s[0], b = s[1] - 128, r = s[2] - 128;
  const auto byte = [](double value) { return int(std::clamp(value + 0.5, 0.0, 255.0)); };
  return {byte(y + 1.402 * r), byte(y - 0.344 * b - 0.714 * r), byte(y + 1.772 * b), 255};
}

TEST(Jpeg2000, EveryFormGivesTheColoursOfItsSamples) {
  struct Row {
    const char* what;
    Form form;
    Samples (*expected)(const Samples&);  ///< what becomes of a pixel's samples, brought to 8 bits
    int tolerance = 0;
  };
  const Row rows[] = {
      {"alpha by definition, in tiles", {.width = 50, .height = 33, .alpha = 3, .tile = 16}, asTheyAre},
      {"alpha because it is the fourth", {}, asTheyAre},
      {"bare codestream", {.isBoxed = false}, asTheyAre},
      {"grey", {.precisions = {8}, .space = OPJ_CLRSPC_GRAY}, grey},
      {"grey and alpha", {.precisions = {8, 8}, .space = OPJ_CLRSPC_GRAY, .alpha = 1}, greyWithAlpha},
      {"16 bits", {.precisions = {16, 16, 16, 16}, .alpha = 3}, asTheyAre},
      {"12 bits", {.precisions = {12, 12, 12}}, opaque},
      {"4 bits", {.precisions = {4, 4, 4}}, opaque},
      {"1 bit", {.precisions = {1}, .space = OPJ_CLRSPC_GRAY}, grey},
      {"signed", {.precisions = {8, 8, 8}, .isSigned = true}, opaque},
      {"luma", {.precisions = {8, 8, 8}, .space = OPJ_CLRSPC_SYCC}, fromLuma, 1},
      {"premultiplied", {.alpha = 3, .isAlphaPremultiplied = true}, notPremultiplied},
  };
  for (const auto& [what, form, expected, tolerance] : rows) {
    SCOPED_TRACE(what);
    const auto decoded = decodeJpeg2000(written(form), 64);
    ASSERT_TRUE(decoded.ok()) << decoded.error().message();
    ASSERT_TRUE(decoded->pixelsWide() == form.width && decoded->pixelsHigh() == form.height);
    EXPECT_FALSE(decoded->layout().isPremultiplied);
    for (int y = 0; y < form.height; ++y)
      for (int x = 0; x < form.width; ++x) {
        Samples samples{};
        for (int c = 0; c < int(form.precisions.size()); ++c) {
          const int value = sampleOf(form, c, x, y), bits = form.precisions[c];
          samples[c] = bits > 8 ? value >> (bits - 8) : value * 255 / ((1 << bits) - 1);
        }
        const Samples wanted = expected(samples);
        for (int channel = 0; channel < 4; ++channel)
          ASSERT_NEAR(decoded->row(y)[x * 4 + channel], wanted[channel], tolerance) << x << "," << y << ":" << channel;
      }
  }
}

ErrorKind kindOf(const Bytes& bytes, int maxPixels = 64) {
  const auto decoded = decodeJpeg2000(bytes, maxPixels);
  return decoded.ok() ? ErrorKind::Broken : decoded.error().kind();
}

/// The bytes of a bare codestream with one field replaced: `offset` from the marker that begins with FF and `marker`.
Bytes patched(Bytes bytes, std::uint8_t marker, std::size_t offset, const Bytes& value) {
  const Bytes wanted = {0xFF, marker};
  const auto at = std::search(bytes.begin(), bytes.end(), wanted.begin(), wanted.end());
  EXPECT_NE(at, bytes.end());
  std::copy(value.begin(), value.end(), at + static_cast<std::ptrdiff_t>(offset));
  return bytes;
}

/// The file with its colour box replaced by other boxes.
Bytes withColorBoxes(Bytes file, const Bytes& boxes) {
  const auto start = [&](std::string_view type) { return std::ranges::search(file, type).begin() - 4; };
  const auto header = start("jp2h");
  const auto color = start("colr");
  header[3] = static_cast<std::uint8_t>(header[3] - color[3] + int(boxes.size()) % 256);
  header[2] = static_cast<std::uint8_t>(header[2] + int(boxes.size()) / 256);
  const auto at = file.erase(color, color + color[3]);
  file.insert(at, boxes.begin(), boxes.end());
  return file;
}

TEST(Jpeg2000, ProfilesPalettesAndInksBecomeOurs) {
  const int stored = sampleOf({.precisions = {8}}, 0, 3, 2);
  const QByteArray profile = QColorSpace(QColorSpace::SRgbLinear).iccProfile();
  Bytes box = {
      0, 0, std::uint8_t((profile.size() + 11) / 256), std::uint8_t((profile.size() + 11) % 256), 'c', 'o', 'l', 'r', 2,
      0, 0};
  box.insert(box.end(), profile.begin(), profile.end());
  const Bytes linear = withColorBoxes(written({.precisions = {8, 8, 8}}), box);
  const double light = stored / 255.0;
  const double shown = 255 * (1.055 * std::pow(light, 1 / 2.4) - 0.055);
  EXPECT_NEAR(decodeJpeg2000(linear, 4096)->row(2)[3 * 4], shown, 1);

  // Two bits, for which a palette has red, green, blue and a dark grey.
  const Bytes colors[] = {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {9, 8, 7}};
  Bytes boxes = {0, 0, 0, 15, 'c', 'o', 'l', 'r', 1, 0, 0, 0, 0, 0, 16,  // sRGB
                 0, 0, 0, 26, 'p', 'c', 'l', 'r', 0, 4, 3, 7, 7, 7};
  for (const Bytes& color : colors) boxes.insert(boxes.end(), color.begin(), color.end());
  const Bytes map = {0, 0, 0, 20, 'c', 'm', 'a', 'p', 0, 0, 1, 0, 0, 0, 1, 1, 0, 0, 1, 2};
  boxes.insert(boxes.end(), map.begin(), map.end());
  const Form indexed{.precisions = {2}, .space = OPJ_CLRSPC_GRAY};
  const auto decoded = decodeJpeg2000(withColorBoxes(written(indexed), boxes), 4096);
  ASSERT_TRUE(decoded.ok()) << decoded.error().message();
  for (int x = 0; x < indexed.width; ++x) {
    const Bytes& wanted = colors[sampleOf(indexed, 0, x, 5)];
    EXPECT_TRUE(std::equal(wanted.begin(), wanted.end(), decoded->row(5) + x * 4)) << x;
  }

  // Four inks, counted from none.
  const Form inks{.precisions = {8, 8, 8, 8}};
  Bytes print = {0, 0, 0, 15, 'c', 'o', 'l', 'r', 1, 0, 0, 0, 0, 0, 12};
  const auto printed = decodeJpeg2000(withColorBoxes(written(inks), print), 4096);
  ASSERT_TRUE(printed.ok()) << printed.error().message();
  const int cyan = sampleOf(inks, 0, 3, 2);
  const int black = sampleOf(inks, 3, 3, 2);
  EXPECT_NEAR(printed->row(2)[3 * 4], (255 - cyan) * (255 - black) / 255, 1);
  EXPECT_EQ(printed->row(2)[3 * 4 + 3], 255);
  print[14] = 14;  // Lab, which is not read
  EXPECT_FALSE(decodeJpeg2000(withColorBoxes(written({.precisions = {8, 8, 8}}), print), 4096).ok());
}

TEST(Jpeg2000, HeadersThatClaimTooMuchOrReadTwoWaysAreRefusedBeforeDecoding) {
  const Bytes good = written({.isBoxed = false});
  ASSERT_EQ(kindOf(good), ErrorKind::Broken);
  EXPECT_EQ(kindOf(good, 19), ErrorKind::TooLarge);
  constexpr std::uint8_t siz = 0x51, cod = 0x52;
  const std::tuple<const char*, std::uint8_t, std::size_t, Bytes> rows[] = {
      {"width as negative", siz, 6, Bytes(4, 0xFF)},
      {"nothing between the edges", siz, 14, {0, 0, 0, 20}},
      {"tiles of no width", siz, 22, Bytes(4)},
      {"five components", siz, 38, {0, 5}},
      {"38 bits", siz, 40, {37}},
      {"a component of half the width", siz, 41, {2}},
      {"33 levels", cod, 9, {33}},
      {"code blocks of 2048", cod, 10, {9}},
      {"an unknown marker", 0x5C, 0, {0xFF, 0x30}},
      {"a tile shorter than its header", 0x90, 6, {0, 0, 0, 5}}};
  for (const auto& [what, marker, offset, value] : rows)
    EXPECT_EQ(kindOf(patched(good, marker, offset, value)), ErrorKind::InvalidInput) << what;
  EXPECT_EQ(kindOf(patched(good, siz, 6, {0x7F, 0xFF, 0xFF, 0xFF}), limits::picturePixels), ErrorKind::TooLarge);

  const auto large = [&](std::uint8_t high, std::uint8_t low) {  // 4096 wide and high, tiles of that size
    const Bytes side = {0, 0, 16, 0}, tile = {0, 0, high, low};
    return patched(patched(patched(patched(good, siz, 6, side), siz, 10, side), siz, 22, tile), siz, 26, tile);
  };
  EXPECT_EQ(kindOf(large(0, 4), 4096), ErrorKind::TooLarge) << "a million tiles";
  EXPECT_EQ(kindOf(patched(large(16, 0), cod, 10, {0, 0}), 4096), ErrorKind::TooLarge) << "code blocks of 4 x 4";
  EXPECT_EQ(kindOf(patched(large(0, 128), cod, 6, {0xFF, 0xFF}), 4096), ErrorKind::TooLarge) << "layers";

  // Files of boxes that never come to their picture: one box of no length, two larger than everything.
  const Bytes start = {0, 0, 0, 12, 'j', 'P', ' ', ' ', '\r', '\n', 0x87, '\n'};
  for (const Bytes& box : {Bytes{0, 0, 0, 4, 'f', 'r', 'e', 'e'}, Bytes{0xFF, 0xFF, 0xFF, 0xFF, 'f', 'r', 'e', 'e'},
                           Bytes{0, 0, 0, 1, 'f', 'r', 'e', 'e', 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}}) {
    Bytes file = start;
    file.insert(file.end(), box.begin(), box.end());
    EXPECT_EQ(kindOf(file), ErrorKind::InvalidInput);
  }
}

TEST(Jpeg2000, DamagedFilesFailQuietlyAndSoon) {
  const auto start = std::chrono::steady_clock::now();
  testing::internal::CaptureStderr();
  testing::internal::CaptureStdout();
  for (const bool isBoxed : {true, false}) {
    const Bytes good = written({.alpha = 3, .isBoxed = isBoxed});
    ASSERT_TRUE(isJpeg2000(good));
    for (std::size_t at = 0; at < good.size(); ++at) {
      const Bytes part(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(at));
      EXPECT_FALSE(decodeJpeg2000(part, 64).ok() && at < good.size() / 2) << at;
      for (const unsigned flip : {0x01U, 0x80U, 0xFFU}) {
        Bytes damaged = good;
        damaged[at] = static_cast<std::uint8_t>(damaged[at] ^ flip);
        const auto decoded = decodeJpeg2000(damaged, 64);
        EXPECT_TRUE(!decoded.ok() || decoded->pixelsWide() <= 64);
      }
    }
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr() + testing::internal::GetCapturedStdout(), "");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

}  // namespace
}  // namespace quorvane
