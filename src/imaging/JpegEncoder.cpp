// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/JpegEncoder.h"

// The library's header counts on this one.
#include <cstdio>
// clang-format off
#include <jpeglib.h>
// clang-format on

#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdlib>
#include <string>

#include "imaging/PixelDensity.h"

namespace quorvane {

namespace {

/// Below, colours at half resolution cost nothing that shows; above, the edges of coloured letters would fray.
constexpr int fullColorQuality = 90;

/// The library's error handler must come first in it: it hands back only a pointer to that.
struct ErrorTrap {
  jpeg_error_mgr manager;
  std::jmp_buf jump;
  std::array<char, JMSG_LENGTH_MAX> message;
};

[[noreturn]] void fail(j_common_ptr common) {
  auto* trap = reinterpret_cast<ErrorTrap*>(common->err);
  common->err->format_message(common, trap->message.data());
  std::longjmp(trap->jump, 1);  // NOLINT(cert-err52-cpp): the library knows no other way
}

void saySilently(j_common_ptr /*common*/) {}

struct Header {
  int pixelsWide;
  int pixelsHigh;
  int quality;
  int dotsPerInchAcross;
  int dotsPerInchDown;
};

/// Between the setjmp and the jump stand only plain values, so that no destructor is jumped over. The buffer at `*data`
/// is the caller's to free, also after a failure.
bool encodeRows(const Header& header, const std::uint8_t* rgbx, ErrorTrap* trap, unsigned char** data,
                unsigned long* size) {
  jpeg_compress_struct jpeg{};
  jpeg.err = jpeg_std_error(&trap->manager);
  trap->manager.error_exit = fail;
  trap->manager.output_message = saySilently;
  if (setjmp(trap->jump) != 0) {  // NOLINT(cert-err52-cpp)
    jpeg_destroy_compress(&jpeg);
    return false;
  }
  jpeg_create_compress(&jpeg);
  jpeg_mem_dest(&jpeg, data, size);
  jpeg.image_width = static_cast<JDIMENSION>(header.pixelsWide);
  jpeg.image_height = static_cast<JDIMENSION>(header.pixelsHigh);
  jpeg.input_components = 4;
  jpeg.in_color_space = JCS_EXT_RGBX;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, header.quality, TRUE);
  jpeg.optimize_coding = TRUE;  // bench/PictureBench: 0.87 of the bytes
  if (header.quality >= fullColorQuality) jpeg.comp_info[0].h_samp_factor = jpeg.comp_info[0].v_samp_factor = 1;
  jpeg.density_unit = 1;  // dots per inch
  jpeg.X_density = static_cast<UINT16>(header.dotsPerInchAcross);
  jpeg.Y_density = static_cast<UINT16>(header.dotsPerInchDown);
  jpeg_start_compress(&jpeg, TRUE);
  while (jpeg.next_scanline < jpeg.image_height) {
    // The library takes rows that could be written to, and does not.
    auto* row = const_cast<JSAMPROW>(rgbx) + std::size_t{jpeg.next_scanline} * jpeg.image_width * 4;
    jpeg_write_scanlines(&jpeg, &row, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
  return true;
}

/// Four bytes at a time, alike for all channels, as then several pixels are done at once.
void paintOnWhite(const std::uint8_t* from, std::uint8_t* to, int count) {
  for (int x = 0; x < count; ++x) {
    const unsigned white = 255U - from[4 * x + 3];
    // Bitmaps of foreign bytes may hold more colour than alpha. The fourth becomes 255, and is not looked at.
    for (int channel = 0; channel < 4; ++channel)
      to[4 * x + channel] = static_cast<std::uint8_t>(std::min(from[4 * x + channel] + white, 255U));
  }
}

}  // namespace

JpegSource::JpegSource(const BitmapImageRep& bitmap)
    : _pixelsWide(bitmap.pixelsWide()),
      _pixelsHigh(bitmap.pixelsHigh()),
      _dotsPerInchAcross(static_cast<int>(std::lround(dotsPerInch(bitmap.pixelsWide(), bitmap.size().width)))),
      _dotsPerInchDown(static_cast<int>(std::lround(dotsPerInch(bitmap.pixelsHigh(), bitmap.size().height)))),
      _rgbx(static_cast<std::size_t>(_pixelsWide) * static_cast<std::size_t>(_pixelsHigh) * 4) {
  const BitmapImageRep standard = bitmap.toStandard();
  const auto length = static_cast<std::size_t>(_pixelsWide) * 4;
  for (int y = 0; y < _pixelsHigh; ++y)
    paintOnWhite(standard.row(y), _rgbx.data() + length * static_cast<std::size_t>(y), _pixelsWide);
}

Result<Bytes> JpegSource::encode(float compressionFactor) const {
  if (_rgbx.empty()) return Error::invalidInput("no pixels to write as JPEG");
  // Also of what is no number.
  const float factor = compressionFactor > 0 ? std::min(compressionFactor, 1.0F) : 0.0F;
  const Header header{_pixelsWide, _pixelsHigh, static_cast<int>(std::lround(factor * 100)), _dotsPerInchAcross,
                      _dotsPerInchDown};
  ErrorTrap trap{};
  unsigned char* data = nullptr;
  unsigned long size = 0;
  const bool isEncoded = encodeRows(header, _rgbx.data(), &trap, &data, &size);
  Bytes jpeg;
  if (isEncoded) jpeg.assign(data, data + size);
  std::free(data);
  if (!isEncoded) return Error::broken(std::string("encoding a JPEG: ") + trap.message.data());
  return jpeg;
}

}  // namespace quorvane
