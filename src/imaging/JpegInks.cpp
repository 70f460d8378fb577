// SPDX-License-Identifier: GPL-3.0-or-later
// The installed readers turn inks into light without asking the profile, so files of inks are decoded here.
#include "imaging/JpegInks.h"

#include <csetjmp>
#include <cstdio>
#include <cstdlib>
// Behind <cstdio>, which it needs.
#include <jpeglib.h>

#include <memory>
#include <string>

#include "foundation/base/Limits.h"
#include "imaging/ColorTransform.h"
#include "imaging/JpegHeader.h"

namespace quorvane {

namespace {

/// One decoding by the library, whose errors jump. Between setjmp and the jump stand only plain values.
class InkDecoder {
 public:
  InkDecoder() {
    _info.err = jpeg_std_error(&_errors);
    _info.client_data = this;
    _errors.error_exit = onError;
    _errors.emit_message = [](j_common_ptr, int) {};
    _errors.output_message = [](j_common_ptr) {};
  }
  ~InkDecoder() {
    jpeg_destroy_decompress(&_info);
    std::free(_profile);  // NOLINT(cppcoreguidelines-no-malloc): the library's way of handing it over
  }
  InkDecoder(const InkDecoder&) = delete;
  InkDecoder& operator=(const InkDecoder&) = delete;

  bool readHeader(ByteView bytes) {
    if (setjmp(_jump) != 0) return false;  // NOLINT(cert-err52-cpp): the library knows no other way
    jpeg_create_decompress(&_info);
    jpeg_mem_src(&_info, bytes.data(), static_cast<unsigned long>(bytes.size()));
    jpeg_save_markers(&_info, JPEG_APP0 + 2, 0xFFFF);
    jpeg_read_header(&_info, TRUE);
    jpeg_read_icc_profile(&_info, &_profile, &_profileLength);
    return true;
  }

  bool start() {
    if (setjmp(_jump) != 0) return false;  // NOLINT(cert-err52-cpp)
    _info.out_color_space = JCS_CMYK;
    jpeg_start_decompress(&_info);
    return _info.output_components == 4;
  }

  bool readRow(std::uint8_t* row) {
    if (setjmp(_jump) != 0) return false;  // NOLINT(cert-err52-cpp)
    return jpeg_read_scanlines(&_info, &row, 1) == 1;
  }

  [[nodiscard]] PixelSize size() const {
    return {static_cast<int>(_info.image_width), static_cast<int>(_info.image_height)};
  }
  [[nodiscard]] ByteView profile() const { return {_profile, _profileLength}; }
  /// Whoever writes the Adobe marker writes 255 for no ink; others write what the word says.
  [[nodiscard]] bool countsFromFullInk() const { return _info.saw_Adobe_marker != 0; }
  [[nodiscard]] Error error() {
    char text[JMSG_LENGTH_MAX] = {};
    _errors.format_message(reinterpret_cast<j_common_ptr>(&_info), text);
    return Error::invalidInput(std::string("JPEG: ") + text);
  }

 private:
  [[noreturn]] static void onError(j_common_ptr info) {
    std::longjmp(static_cast<InkDecoder*>(info->client_data)->_jump, 1);  // NOLINT(cert-err52-cpp)
  }

  jpeg_decompress_struct _info{};
  jpeg_error_mgr _errors{};
  std::jmp_buf _jump{};
  JOCTET* _profile = nullptr;
  unsigned _profileLength = 0;
};

}  // namespace

Result<BitmapImageRep> decodeInkJpeg(ByteView bytes) {
  InkDecoder decoder;
  if (!decoder.readHeader(bytes)) return decoder.error();
  const auto [width, height] = decoder.size();
  if (width > limits::picturePixels || height > limits::picturePixels ||
      std::int64_t{width} * height > limits::pictureArea)
    return Error::tooLarge("picture of " + std::to_string(width) + " x " + std::to_string(height) + " pixels");
  BitmapLayout layout = BitmapLayout::rgba(width, height);
  layout.isPremultiplied = false;
  auto bitmap = BitmapImageRep::bitmapImageRepWithLayout(layout);
  if (!bitmap) return Error::tooLarge("JPEG picture is too large");
  if (!decoder.start()) return decoder.error();

  const ColorTransform transform({ColorModel::Cmyk, 8, false}, decoder.profile());
  Bytes row(static_cast<std::size_t>(width) * 4);
  for (int y = 0; y < height; ++y) {
    if (!decoder.readRow(row.data())) return decoder.error();
    if (!decoder.countsFromFullInk())
      for (std::uint8_t& ink : row) ink = static_cast<std::uint8_t>(255 - ink);
    transform.convert(row.data(), bitmap->mutableRow(y), width);
  }
  return std::move(*bitmap);
}

}  // namespace quorvane
