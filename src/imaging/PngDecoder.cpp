// SPDX-License-Identifier: GPL-3.0-or-later
#include <png.h>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstring>
#include <string>

#include "foundation/base/ByteReader.h"
#include "foundation/base/Limits.h"
#include "imaging/PngCodec.h"

namespace quorvane {

namespace {

constexpr std::array<std::uint8_t, 8> signature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

/// Deflate makes no more than 1032 bytes of one.
constexpr std::int64_t largestExpansion = 1032;

/// Text and profiles are of no use here and may unpack to any length: they are passed over unread.
constexpr png_byte ignoredChunks[] = "iCCP\0tEXt\0zTXt\0iTXt\0sPLT\0hIST\0pCAL\0sCAL\0eXIf";

struct Header {
  PixelSize size;
  int bitsPerPixel = 0;
};

/// Samples a pixel by colour type; 0 for types that do not exist.
int sampleCount(int colorType) {
  switch (colorType) {
    case PNG_COLOR_TYPE_GRAY:
    case PNG_COLOR_TYPE_PALETTE:
      return 1;
    case PNG_COLOR_TYPE_GRAY_ALPHA:
      return 2;
    case PNG_COLOR_TYPE_RGB:
      return 3;
    case PNG_COLOR_TYPE_RGB_ALPHA:
      return 4;
    default:
      return 0;
  }
}

Result<Header> readHeader(ByteView bytes) {
  if (!isPng(bytes)) return Error::invalidInput("not a PNG file");
  ByteReader reader(bytes.subspan(signature.size()));
  const auto length = reader.readU32();
  const auto type = reader.readCode();
  const auto width = reader.readU32();
  const auto height = reader.readU32();
  const auto depth = reader.readU8();
  const auto colorType = reader.readU8();
  if (!length || !type || !width || !height || !depth || !colorType)
    return Error::invalidInput("PNG header is cut off");
  if (*length != 13 || *type != FourCharCode("IHDR"))
    return Error::invalidInput("PNG file does not begin with a header");
  if (*width == 0 || *height == 0 || *width > PNG_UINT_31_MAX || *height > PNG_UINT_31_MAX)
    return Error::invalidInput("PNG header states an impossible size");
  if (sampleCount(*colorType) == 0 || *depth == 0 || *depth > 16)
    return Error::invalidInput("PNG header states an unknown kind of pixels");
  return Header{{static_cast<int>(*width), static_cast<int>(*height)}, *depth * sampleCount(*colorType)};
}

/// What follows the last row is unpacked to its end and thrown away. Compressed pixels are hardly longer than plain
/// ones (the doubled allowance covers interlacing too), so a file that holds far more hides something that takes long.
Result<void> checkDataLength(ByteView bytes, const Header& header) {
  constexpr std::uint64_t slack = 64 * 1024;
  const std::uint64_t row = (std::uint64_t(header.size.width) * std::uint64_t(header.bitsPerPixel) + 7) / 8 + 1;
  const std::uint64_t most = 2 * row * std::uint64_t(header.size.height) + slack;
  std::uint64_t held = 0;
  ByteReader reader(bytes);
  if (!reader.skip(signature.size())) return {};
  while (const auto length = reader.readU32()) {
    const auto type = reader.readCode();
    if (!type) break;
    if (*type == FourCharCode("IDAT")) held += *length;
    if (!reader.skip(std::size_t{*length} + 4)) break;
  }
  if (held > most) return Error::invalidInput("PNG file holds far more data than its pixels need");
  return {};
}

/// One decoding by libpng, whose errors jump. Everything that must be cleaned up is a member, and the functions between
/// setjmp and the jump hold only plain values, so that no destructor is jumped over.
class PngDecoder {
 public:
  explicit PngDecoder(ByteView bytes)
      : _reader(bytes), _png(png_create_read_struct(PNG_LIBPNG_VER_STRING, this, onError, onWarning)) {
    if (_png != nullptr) _info = png_create_info_struct(_png);
  }
  ~PngDecoder() { png_destroy_read_struct(&_png, &_info, nullptr); }
  PngDecoder(const PngDecoder&) = delete;
  PngDecoder& operator=(const PngDecoder&) = delete;

  /// False when the bytes are bad or memory is short; why() then says it.
  bool decodeInto(std::uint8_t* pixels, std::ptrdiff_t bytesPerRow, PixelSize size) {
    if (_info == nullptr) return false;
    if (setjmp(png_jmpbuf(_png)) != 0) return false;  // NOLINT(cert-err52-cpp): the library knows no other way
    readInfo(size);
    readRows(pixels, bytesPerRow, size);
    return true;
  }

  [[nodiscard]] const char* why() const { return _why; }

 private:
  void readInfo(PixelSize size) {
    png_set_read_fn(_png, this, onRead);
    png_set_user_limits(_png, static_cast<png_uint_32>(size.width), static_cast<png_uint_32>(size.height));
    png_set_keep_unknown_chunks(_png, PNG_HANDLE_CHUNK_NEVER, nullptr, 0);
    png_set_keep_unknown_chunks(_png, PNG_HANDLE_CHUNK_NEVER, ignoredChunks,
                                static_cast<int>(sizeof ignoredChunks / 5));
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
    png_set_crc_action(_png, PNG_CRC_QUIET_USE, PNG_CRC_QUIET_USE);
    png_set_option(_png, PNG_IGNORE_ADLER32, PNG_OPTION_ON);
#endif
    png_read_info(_png, _info);
  }

  void readRows(std::uint8_t* pixels, std::ptrdiff_t bytesPerRow, PixelSize size) {
    png_set_expand(_png);
    png_set_strip_16(_png);
    png_set_gray_to_rgb(_png);
    png_set_add_alpha(_png, 0xFF, PNG_FILLER_AFTER);
    const int passes = png_set_interlace_handling(_png);
    png_read_update_info(_png, _info);
    if (png_get_rowbytes(_png, _info) != static_cast<std::size_t>(size.width) * 4) png_error(_png, "unexpected layout");
    for (int pass = 0; pass < passes; ++pass)
      for (int y = 0; y < size.height; ++y) png_read_row(_png, pixels + y * bytesPerRow, nullptr);
  }

  static void onRead(png_structp png, png_bytep to, std::size_t count) {
    const auto bytes = static_cast<PngDecoder*>(png_get_io_ptr(png))->_reader.readBytes(count);
    if (!bytes) png_error(png, "file is cut off");
    std::memcpy(to, bytes->data(), count);
  }

  [[noreturn]] static void onError(png_structp png, png_const_charp message) {
    auto* self = static_cast<PngDecoder*>(png_get_error_ptr(png));
    std::strncpy(self->_why, message, sizeof self->_why - 1);
    png_longjmp(png, 1);
  }

  static void onWarning(png_structp /*png*/, png_const_charp /*message*/) {}

  ByteReader _reader;
  char _why[128] = "out of memory";
  png_structp _png;
  png_infop _info = nullptr;
};

}  // namespace

bool isPng(ByteView bytes) {
  return bytes.size() >= signature.size() && std::equal(signature.begin(), signature.end(), bytes.begin());
}

Result<PixelSize> pngSize(ByteView bytes) {
  return TRY(readHeader(bytes)).size;
}

Result<void> checkPngData(ByteView bytes) {
  return checkDataLength(bytes, TRY(readHeader(bytes)));
}

Result<BitmapImageRep> decodePng(ByteView bytes, int maxPixels) {
  const Header header = TRY(readHeader(bytes));
  TRY_VOID(checkDataLength(bytes, header));
  const auto [width, height] = header.size;
  const std::int64_t area = std::int64_t{width} * height;
  if (width > maxPixels || height > maxPixels || area > limits::pictureArea)
    return Error::tooLarge("PNG picture of " + std::to_string(width) + " x " + std::to_string(height) + " pixels");
  if (area * header.bitsPerPixel / 8 / largestExpansion > static_cast<std::int64_t>(bytes.size()))
    return Error::invalidInput("PNG file is cut off");

  BitmapLayout layout = BitmapLayout::rgba(width, height);
  layout.isPremultiplied = false;
  auto bitmap = BitmapImageRep::bitmapImageRepWithLayout(layout);
  if (!bitmap) return Error::tooLarge("PNG picture is too large");
  PngDecoder decoder(bytes);
  if (!decoder.decodeInto(bitmap->mutableRow(0), bitmap->bytesPerRow(), header.size))
    return Error::invalidInput(std::string("PNG: ") + decoder.why());
  return std::move(*bitmap);
}

}  // namespace quorvane
