// SPDX-License-Identifier: GPL-3.0-or-later
#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <string_view>

#include "foundation/FileReading.h"
#include "foundation/base/ByteReader.h"
#include "foundation/base/Limits.h"
#include "imaging/Image.h"
#include "imaging/Jpeg2000.h"
#include "imaging/JpegHeader.h"
#include "imaging/JpegInks.h"
#include "imaging/Orientation.h"
#include "imaging/PngCodec.h"
#include "imaging/Psd.h"
#include "imaging/SvgCheck.h"
#include "imaging/TiffInks.h"

namespace quorvane {

namespace {

/// A vector picture has no pixels of its own; it is drawn with as many on its longer side as the largest icon has.
constexpr int vectorPixels = 1024;

Error tooManyPixels(QSize size) {
  return Error::tooLarge("picture of " + std::to_string(size.width()) + " x " + std::to_string(size.height()) +
                         " pixels");
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
    if (*type == FourCharCode("iCCP") || *type == FourCharCode("cHRM")) isForeign = true;
    if (*type == FourCharCode("gAMA")) {
      // The reciprocal of the display's exponent, times 100000; what is near sRGB's means sRGB, as libpng sees it too.
      const auto gamma = reader.slice(reader.position(), 4);
      const auto value = gamma ? ByteReader(*gamma).readU32() : std::nullopt;
      if (value && (*value < 43182 || *value > 47727)) isForeign = true;
    }
    if (!reader.skip(std::size_t{*length} + 4)) break;
  }
  return isForeign;
}

Result<BitmapImageRep> readWithInstalledReaders(ByteView bytes) {
  QByteArray view =
      QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&view);
  buffer.open(QIODevice::ReadOnly);
  // The readers' own ceiling, in MiB: our largest picture with 16 bits a sample.
  QImageReader::setAllocationLimit(static_cast<int>((limits::pictureArea * 8) >> 20) + 1);
  silenceTiffMessages();
  QImageReader reader;
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  reader.setDevice(&buffer);

  const QByteArray format = reader.format();
  if (format.isEmpty()) return Error::invalidInput("not a picture that can be read");
  // Icon families are read by a decoder of ours, elsewhere: this one takes wrong colours for right ones.
  if (format == "icns") return Error::invalidInput("an icon family, not a picture");
  if (format == "svgz") return Error::invalidInput("compressed vector pictures are not read");
  // Asking a vector picture for its size already follows its references.
  if (format == "svg") TRY_VOID(checkSvg(bytes));
  if (format == "png") TRY_VOID(checkPngData(bytes));
  QSize size = reader.size();
  if (format == "svg") {
    if (size.isEmpty()) size = QSize(1, 1);
    size = size.scaled(vectorPixels, vectorPixels, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    reader.setScaledSize(size);
  }
  if (size.isValid() && (size.width() > limits::picturePixels || size.height() > limits::picturePixels ||
                         std::int64_t{size.width()} * size.height() > limits::pictureArea))
    return tooManyPixels(size);

  const QImage image = reader.read();
  if (image.isNull()) return Error::invalidInput(reader.errorString().toStdString());
  auto bitmap = BitmapImageRep::bitmapImageRepWithCGImageRef(image);
  if (!bitmap) return tooManyPixels(image.size());
  return std::move(*bitmap);
}

Result<BitmapImageRep> readJpeg(ByteView bytes) {
  const JpegHeader header = TRY(readJpegHeader(bytes));
  if (header.components != 4) return readWithInstalledReaders(bytes);
  return uprightBitmap(TRY(decodeInkJpeg(bytes)).toStandard(), exifOrientation(bytes));
}

Result<BitmapImageRep> readBitmap(ByteView bytes) {
  if (bytes.empty()) return Error::invalidInput("file is empty");
  if (isJpeg2000(bytes)) return TRY(decodeJpeg2000(bytes, limits::picturePixels)).toStandard();
  if (isPsd(bytes)) return TRY(decodePsd(bytes)).toStandard();
  if (isJpeg(bytes)) return readJpeg(bytes);
  if (isInkTiff(bytes)) return TRY(decodeInkTiff(bytes)).toStandard();
  const bool isOurs = isPng(bytes) && !hasForeignColors(bytes);
  const BitmapImageRep bitmap =
      isOurs ? TRY(decodePng(bytes, limits::picturePixels)).toStandard() : TRY(readWithInstalledReaders(bytes));
  // The installed readers turn all but these upright.
  return uprightBitmap(bitmap, exifOrientation(bytes));
}

}  // namespace

Result<Image> Image::imageWithData(ByteView bytes) {
  return imageWithBitmapImageRep(TRY(readBitmap(bytes)));
}

Result<Image> Image::imageWithContentsOfFile(const std::filesystem::path& path) {
  const Bytes bytes = TRY(readPlainFile(path, limits::pictureFileBytes));
  auto image = imageWithData(bytes);
  if (!image) return image.error().at(path);
  return image;
}

std::optional<BitmapImageRep> BitmapImageRep::bitmapImageRepWithContentsOfFile(const std::filesystem::path& path) {
  if (path.empty()) return std::nullopt;
  const auto image = Image::imageWithContentsOfFile(path);
  return image ? image->bitmapRepresentation() : std::nullopt;
}

}  // namespace quorvane
