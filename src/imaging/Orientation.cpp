// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Orientation.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

#include "foundation/base/ByteReader.h"
#include "imaging/JpegHeader.h"
#include "imaging/PngCodec.h"

namespace quorvane {

namespace {

/// Values of a TIFF block in the byte order that it states.
class TiffReader {
 public:
  explicit TiffReader(ByteView bytes) : _bytes(bytes), _isLittle(bytes.size() > 1 && bytes[0] == 'I') {}

  [[nodiscard]] std::optional<std::uint32_t> value(std::size_t offset, std::size_t count) const {
    if (offset > _bytes.size() || count > _bytes.size() - offset) return std::nullopt;
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i) value = value << 8 | _bytes[offset + (_isLittle ? count - 1 - i : i)];
    return value;
  }

 private:
  ByteView _bytes;
  bool _isLittle;
};

/// From the first directory of a TIFF block.
int orientationInTiff(ByteView bytes) {
  constexpr std::size_t entryBytes = 12;
  constexpr std::uint32_t orientationTag = 0x0112;
  constexpr std::uint32_t shortType = 3;
  const TiffReader reader(bytes);
  const auto directory = reader.value(4, 4);
  const auto entries = directory ? reader.value(*directory, 2) : std::nullopt;
  if (reader.value(2, 2) != 42U || !entries) return 1;
  for (std::size_t i = 0; i < *entries; ++i) {
    const std::size_t entry = std::size_t{*directory} + 2 + i * entryBytes;
    const auto tag = reader.value(entry, 2);
    if (!tag) return 1;
    if (*tag != orientationTag) continue;
    const auto value = reader.value(entry + 8, 2);
    if (reader.value(entry + 2, 2) != shortType || !value || *value < 1 || *value > 8) return 1;
    return static_cast<int>(*value);
  }
  return 1;
}

ByteView exifOfPng(ByteView bytes) {
  ByteReader reader(bytes);
  if (!reader.skip(8)) return {};
  while (const auto length = reader.readU32()) {
    const auto type = reader.readCode();
    const auto content = reader.readBytes(*length);
    if (!type || !content) break;
    if (*type == FourCharCode("eXIf")) return *content;
    if (!reader.skip(4)) break;
  }
  return {};
}

bool isWebp(ByteView bytes) {
  return bytes.size() > 16 && std::memcmp(bytes.data(), "RIFF", 4) == 0 &&
         std::memcmp(bytes.data() + 8, "WEBP", 4) == 0;
}

ByteView exifOfWebp(ByteView bytes) {
  ByteReader reader(bytes);
  if (!reader.skip(12)) return {};
  while (const auto type = reader.readCode()) {
    const auto lengthBytes = reader.readBytes(4);
    if (!lengthBytes) break;
    const ByteView low = *lengthBytes;
    const std::size_t length =
        std::size_t{low[0]} | std::size_t{low[1]} << 8 | std::size_t{low[2]} << 16 | std::size_t{low[3]} << 24;
    const auto content = reader.readBytes(length);
    if (!content) break;
    if (*type == FourCharCode("EXIF")) {
      // Some writers keep the start that the block has in a JPEG file.
      constexpr std::array<std::uint8_t, 6> start = {'E', 'x', 'i', 'f', 0, 0};
      if (length > start.size() && std::equal(start.begin(), start.end(), content->begin()))
        return content->subspan(start.size());
      return *content;
    }
    if (length % 2 != 0 && !reader.skip(1)) break;
  }
  return {};
}

}  // namespace

int exifOrientation(ByteView file) {
  if (isPng(file)) return orientationInTiff(exifOfPng(file));
  if (isWebp(file)) return orientationInTiff(exifOfWebp(file));
  if (!isJpeg(file)) return 1;
  const auto header = readJpegHeader(file);
  return header.ok() ? orientationInTiff(header->exif) : 1;
}

BitmapImageRep uprightBitmap(const BitmapImageRep& bitmap, int orientation) {
  if (orientation < 2 || orientation > 8 || bitmap.bitsPerPixel() != 32 || bitmap.isPlanar()) return bitmap;
  // Where the shown picture's columns and rows run in the stored one.
  const bool isTurned = orientation >= 5;
  const bool fromRight = orientation == 2 || orientation == 3 || orientation == 7 || orientation == 8;
  const bool fromBottom = orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
  const int storedWide = bitmap.pixelsWide();
  const int storedHigh = bitmap.pixelsHigh();
  BitmapLayout layout = bitmap.layout();
  layout.pixelsWide = isTurned ? storedHigh : storedWide;
  layout.pixelsHigh = isTurned ? storedWide : storedHigh;
  layout.bytesPerRow = 0;
  auto upright = BitmapImageRep::bitmapImageRepWithLayout(layout);
  if (!upright) return bitmap;
  for (int y = 0; y < layout.pixelsHigh; ++y) {
    std::uint8_t* to = upright->mutableRow(y);
    for (int x = 0; x < layout.pixelsWide; ++x, to += 4) {
      const int column = isTurned ? y : x;
      const int row = isTurned ? x : y;
      const std::ptrdiff_t storedX = fromRight ? storedWide - 1 - column : column;
      std::memcpy(to, bitmap.row(fromBottom ? storedHigh - 1 - row : row) + storedX * 4, 4);
    }
  }
  return std::move(*upright);
}

}  // namespace quorvane
