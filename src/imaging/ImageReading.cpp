// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <mutex>
#include <string_view>
#include <utility>

#include "foundation/FileReading.h"
#include "foundation/base/ByteReader.h"
#include "foundation/base/Limits.h"
#include "imaging/Image.h"
#include "imaging/InstalledReaders.h"
#include "imaging/Jpeg2000.h"
#include "imaging/JpegHeader.h"
#include "imaging/JpegInks.h"
#include "imaging/Orientation.h"
#include "imaging/PngCodec.h"
#include "imaging/Psd.h"
#include "imaging/TiffInks.h"

namespace quorvane {

namespace {

/// Whether a chunk of white point and primaries names those of sRGB (IEC 61966-2-1), as near as libpng asks for.
bool areOurPrimaries(ByteView chunk) {
  constexpr std::array<std::uint32_t, 8> ours = {31270, 32900, 64000, 33000, 30000, 60000, 15000, 6000};
  constexpr std::uint32_t near = 1000;  // hundred-thousandths, as all of them
  ByteReader reader(chunk);
  return std::ranges::all_of(ours, [&](std::uint32_t wanted) {
    const auto value = reader.readU32();
    return value && *value + near >= wanted && *value <= wanted + near;
  });
}

/// True when a chunk before the pixels says that the colours are not sRGB; our own decoder knows no other.
bool hasForeignColors(ByteView png) {
  ByteReader reader(png);
  bool isForeign = false;
  if (!reader.skip(8)) return false;
  while (const auto length = reader.readU32()) {
    const auto type = reader.readCode();
    if (!type || *type == FourCharCode("IDAT")) break;
    if (*type == FourCharCode("sRGB")) return false;
    const ByteView content = reader.slice(reader.position(), *length).value_or(ByteView());
    if (*type == FourCharCode("iCCP")) isForeign = true;
    if (*type == FourCharCode("cHRM") && !areOurPrimaries(content)) isForeign = true;
    if (*type == FourCharCode("gAMA")) {
      // The reciprocal of the display's exponent, times 100000; what is near sRGB's means sRGB, as libpng sees it too.
      const auto value = ByteReader(content).readU32();
      if (value && (*value < 43182 || *value > 47727)) isForeign = true;
    }
    if (!reader.skip(std::size_t{*length} + 4)) break;
  }
  return isForeign;
}

/// Readers that other modules have brought along.
class Registry {
 public:
  void add(ImageReader reader) {
    const std::lock_guard lock(_mutex);
    const auto isSame = [&](const ImageReader& other) { return other.read == reader.read; };
    if (std::ranges::none_of(_readers, isSame)) _readers.push_back(std::move(reader));
  }
  std::vector<ImageReader> readers() {
    const std::lock_guard lock(_mutex);
    return _readers;
  }

 private:
  std::mutex _mutex;
  std::vector<ImageReader> _readers;
};

Registry& registry() {
  static Registry only;
  return only;
}

Result<BitmapImageRep> readJpeg(ByteView bytes) {
  const JpegHeader header = TRY(readJpegHeader(bytes));
  if (header.components != 4) return readWithInstalledReaders(bytes, PictureChoice::First);
  return uprightBitmap(TRY(decodeInkJpeg(bytes)).toStandard(), exifOrientation(bytes));
}

Result<BitmapImageRep> readBitmap(ByteView bytes, PictureChoice choice) {
  if (bytes.empty()) return Error::invalidInput("file is empty");
  if (isJpeg2000(bytes)) return TRY(decodeJpeg2000(bytes, limits::picturePixels)).toStandard();
  if (isPsd(bytes)) return TRY(decodePsd(bytes)).toStandard();
  if (isJpeg(bytes)) return readJpeg(bytes);
  if (isInkTiff(bytes)) return TRY(decodeInkTiff(bytes)).toStandard();
  const bool isOurs = isPng(bytes) && !hasForeignColors(bytes);
  const BitmapImageRep bitmap =
      isOurs ? TRY(decodePng(bytes, limits::picturePixels)).toStandard() : TRY(readWithInstalledReaders(bytes, choice));
  // The installed readers turn all but these upright.
  return uprightBitmap(bitmap, exifOrientation(bytes));
}

Result<Image> readImage(ByteView bytes, PictureChoice choice) {
  for (const ImageReader& reader : registry().readers())
    if (reader.canRead(bytes)) return reader.read(bytes);
  return Image::imageWithBitmapImageRep(TRY(readBitmap(bytes, choice)));
}

Result<Image> readImageFile(const std::filesystem::path& path, PictureChoice choice) {
  const Bytes bytes = TRY(readPlainFile(path, limits::pictureFileBytes));
  auto image = readImage(bytes, choice);
  if (!image) return image.error().at(path);
  return image;
}

}  // namespace

Result<Image> Image::imageWithData(ByteView bytes) {
  return readImage(bytes, PictureChoice::Best);
}

Result<Image> Image::imageWithContentsOfFile(const std::filesystem::path& path) {
  return readImageFile(path, PictureChoice::Best);
}

std::optional<Image> Image::initWithCGImageRef(const QImage& image) {
  const auto bitmap = BitmapImageRep::bitmapImageRepWithCGImageRef(image);
  if (!bitmap) return std::nullopt;
  return imageWithBitmapImageRep(*bitmap);
}

std::optional<Image> Image::initWithContentsOfFile(const std::filesystem::path& path, bool usingImageIO) {
  auto image = readImageFile(path, usingImageIO ? PictureChoice::First : PictureChoice::Best);
  if (!image) return std::nullopt;
  if (!usingImageIO) return std::move(*image);
  const auto bitmap = image->bitmapRepresentation();
  return bitmap ? initWithCGImageRef(bitmap->toImage()) : std::nullopt;
}

void Image::registerReader(ImageReader reader) {
  registry().add(std::move(reader));
}

std::vector<std::string> Image::imageFileTypes() {
  // PNG's own name for its animations; the names of JPEG 2000 files and codestreams; layered pictures.
  std::vector<std::string> types = {"apng", "png", "jp2", "jpf", "jpx", "j2k", "j2c", "jpc", "psd", "psb"};
  const auto add = [&](const std::vector<std::string>& more) { types.insert(types.end(), more.begin(), more.end()); };
  add(installedFileTypes());
  for (const ImageReader& reader : registry().readers()) add(reader.fileTypes);
  std::ranges::sort(types);
  types.erase(std::unique(types.begin(), types.end()), types.end());
  return types;
}

std::optional<BitmapImageRep> BitmapImageRep::bitmapImageRepWithContentsOfFile(const std::filesystem::path& path) {
  if (path.empty()) return std::nullopt;
  const auto image = Image::imageWithContentsOfFile(path);
  return image ? image->bitmapRepresentation() : std::nullopt;
}

}  // namespace quorvane
