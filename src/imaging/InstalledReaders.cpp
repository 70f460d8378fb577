// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/InstalledReaders.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "foundation/base/ByteReader.h"
#include "foundation/base/Limits.h"
#include "imaging/PngCodec.h"
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

// An icon file's directory.
constexpr std::size_t iconHeaderBytes = 6;
constexpr std::size_t iconEntryBytes = 16;

/// Index of the largest picture in it, of the deepest among equals.
int bestIcon(ByteView bytes) {
  std::pair<int, int> best;  // area and bits a pixel
  int bestIndex = 0;
  for (std::size_t at = iconHeaderBytes, index = 0; at + iconEntryBytes <= bytes.size();
       at += iconEntryBytes, ++index) {
    if (index >= (std::size_t{bytes[4]} | std::size_t{bytes[5]} << 8)) break;
    // A side of 256 does not fit its byte and is written as 0.
    const auto side = [&](std::size_t offset) { return bytes[at + offset] == 0 ? 256 : int{bytes[at + offset]}; };
    const std::pair found(side(0) * side(1), bytes[at + 6] | bytes[at + 7] << 8);
    if (found <= best) continue;
    best = found;
    bestIndex = static_cast<int>(index);
  }
  return bestIndex;
}

/// The PNG file that a picture of an icon file is, or nullopt.
std::optional<ByteView> pngInIcon(ByteView bytes, int index) {
  const std::size_t entry = iconHeaderBytes + static_cast<std::size_t>(index) * iconEntryBytes;
  if (entry + iconEntryBytes > bytes.size()) return std::nullopt;
  const auto number = [&](std::size_t at) {
    std::size_t value = 0;
    for (std::size_t i = 4; i-- > 0;) value = value << 8 | bytes[entry + at + i];
    return value;
  };
  const auto png = ByteReader(bytes).slice(number(12), number(8));
  return png && isPng(*png) ? png : std::nullopt;
}

/// A PNG file without its texts. The reader unpacks them all, to a thousand times their length, and none is shown.
Bytes withoutTexts(ByteView png) {
  constexpr std::size_t signatureBytes = 8;
  Bytes kept(png.begin(), png.begin() + signatureBytes);
  ByteReader reader(png);
  if (!reader.skip(signatureBytes)) return kept;
  while (const auto length = reader.readU32()) {
    const std::size_t start = reader.position() - 4;
    const auto type = reader.readCode();
    if (!type) break;
    const bool isWhole = reader.skip(std::size_t{*length} + 4);
    const ByteView chunk = png.subspan(start, isWhole ? reader.position() - start : png.size() - start);
    if (*type != FourCharCode("tEXt") && *type != FourCharCode("zTXt") && *type != FourCharCode("iTXt"))
      kept.insert(kept.end(), chunk.begin(), chunk.end());
    if (!isWhole) break;
  }
  return kept;
}

}  // namespace

Result<BitmapImageRep> readWithInstalledReaders(ByteView bytes, PictureChoice choice) {
  const Bytes lean = isPng(bytes) ? withoutTexts(bytes) : Bytes();
  if (!lean.empty()) bytes = lean;
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
  // Its library makes room for whatever size the file states.
  if (format == "mng") return Error::invalidInput("animations in the format MNG are not read");
  if (format == "svgz") return Error::invalidInput("compressed vector pictures are not read");
  // Asking a vector picture for its size already follows its references.
  if (format == "svg") TRY_VOID(checkSvg(bytes));
  if (format == "png") TRY_VOID(checkPngData(bytes));
  if (format == "ico" || format == "cur") {
    const int index = choice == PictureChoice::Best ? bestIcon(bytes) : 0;
    if (const auto png = pngInIcon(bytes, index)) return readWithInstalledReaders(*png, choice);
    reader.jumpToImage(index);
  }
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

std::vector<std::string> installedFileTypes() {
  // Refused above, whatever is installed.
  constexpr std::array<std::string_view, 3> refused = {"icns", "mng", "svgz"};
  std::vector<std::string> types;
  for (const QByteArray& format : QImageReader::supportedImageFormats())
    if (std::ranges::find(refused, std::string_view(format)) == refused.end())
      types.push_back(format.toLower().toStdString());
  return types;
}

}  // namespace quorvane
