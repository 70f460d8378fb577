// SPDX-License-Identifier: GPL-3.0-or-later
// The installed readers turn inks into light without asking the profile, and forget the transparency of grey pictures:
// such files are decoded here.
#include "imaging/TiffInks.h"

#include <tiffio.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <vector>

#include "foundation/base/Limits.h"
#include "imaging/ColorTransform.h"
#include "imaging/Orientation.h"

namespace quorvane {

namespace {

/// A file in memory, as the library wants to see it.
struct Source {
  ByteView bytes;
  std::uint64_t position = 0;

  static tmsize_t read(thandle_t user, void* to, tmsize_t count) {
    auto* source = static_cast<Source*>(user);
    const std::uint64_t left = source->bytes.size() - std::min<std::uint64_t>(source->position, source->bytes.size());
    const auto taken = static_cast<std::size_t>(std::min<std::uint64_t>(left, static_cast<std::uint64_t>(count)));
    if (taken != 0) std::memcpy(to, source->bytes.data() + source->position, taken);
    source->position += taken;
    return static_cast<tmsize_t>(taken);
  }
  static tmsize_t write(thandle_t, void*, tmsize_t) { return 0; }
  static toff_t seek(thandle_t user, toff_t offset, int whence) {
    auto* source = static_cast<Source*>(user);
    const std::uint64_t base = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? source->position : source->bytes.size();
    source->position = base + offset;
    return source->position;
  }
  static int close(thandle_t) { return 0; }
  static toff_t size(thandle_t user) { return static_cast<Source*>(user)->bytes.size(); }
};

struct TiffDeleter {
  void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};

/// An open file; its first picture is the current one. Stays where it is: the library keeps the address.
class InkTiff {
 public:
  explicit InkTiff(ByteView bytes) : _source{bytes} {
    silenceTiffMessages();
    // "m": not by mapping, which the callbacks do not offer.
    _tiff.reset(TIFFClientOpen("picture", "rm", &_source, Source::read, Source::write, Source::seek, Source::close,
                               Source::size, nullptr, nullptr));
    if (!_tiff) return;
    std::uint16_t bits = 0;
    std::uint16_t kind = 0;
    const bool isRead = TIFFGetField(get(), TIFFTAG_PHOTOMETRIC, &_photometric) == 1 &&
                        TIFFGetFieldDefaulted(get(), TIFFTAG_BITSPERSAMPLE, &bits) == 1 && (bits == 8 || bits == 16) &&
                        TIFFGetFieldDefaulted(get(), TIFFTAG_SAMPLEFORMAT, &kind) == 1 && kind == SAMPLEFORMAT_UINT &&
                        TIFFGetFieldDefaulted(get(), TIFFTAG_SAMPLESPERPIXEL, &samples) == 1 &&
                        samples <= limits::psdChannels &&
                        TIFFGetFieldDefaulted(get(), TIFFTAG_PLANARCONFIG, &_planes) == 1 &&
                        TIFFGetField(get(), TIFFTAG_IMAGEWIDTH, &width) == 1 &&
                        TIFFGetField(get(), TIFFTAG_IMAGELENGTH, &height) == 1 && TIFFIsTiled(get()) == 0;
    if (!isRead) return;
    bytesPerSample = bits / 8;
    findTransparency();
    std::uint16_t inks = 0;
    _isOurs = isInk()
                  ? TIFFGetFieldDefaulted(get(), TIFFTAG_INKSET, &inks) == 1 && inks == INKSET_CMYK && samples >= 4
                  : alpha != 0 && (_photometric == PHOTOMETRIC_MINISBLACK || _photometric == PHOTOMETRIC_MINISWHITE);
  }

  [[nodiscard]] TIFF* get() const { return _tiff.get(); }
  /// Whether the picture is of a kind that is decoded here.
  [[nodiscard]] bool isOurs() const { return _isOurs; }
  [[nodiscard]] bool isInk() const { return _photometric == PHOTOMETRIC_SEPARATED; }
  /// The highest value is darkest.
  [[nodiscard]] bool isInverted() const { return _photometric != PHOTOMETRIC_MINISBLACK; }
  [[nodiscard]] PixelFormat format() const {
    return {isInk() ? ColorModel::Cmyk : ColorModel::Grey, bytesPerSample * 8, alpha != 0};
  }
  /// Each sample has rows of its own.
  [[nodiscard]] bool isPlanar() const { return _planes == PLANARCONFIG_SEPARATE; }

  std::uint32_t width = 0;
  std::uint32_t height = 0;
  std::uint16_t samples = 0;
  int bytesPerSample = 0;
  int alpha = 0;              ///< the sample that is transparency; 0 when there is none
  bool isMultiplied = false;  ///< into the colours

 private:
  void findTransparency() {
    const int colors = isInk() ? 4 : 1;
    std::uint16_t count = 0;
    std::uint16_t* kinds = nullptr;
    if (TIFFGetField(get(), TIFFTAG_EXTRASAMPLES, &count, &kinds) != 1) return;
    const std::span extra(kinds, count);
    const auto found = std::ranges::find_if(
        extra, [](std::uint16_t kind) { return kind == EXTRASAMPLE_ASSOCALPHA || kind == EXTRASAMPLE_UNASSALPHA; });
    if (found == extra.end() || colors + (found - extra.begin()) >= samples) return;
    alpha = colors + static_cast<int>(found - extra.begin());
    isMultiplied = *found == EXTRASAMPLE_ASSOCALPHA;
  }

  Source _source;
  std::unique_ptr<TIFF, TiffDeleter> _tiff;
  std::uint16_t _planes = 0;
  std::uint16_t _photometric = 0;
  bool _isOurs = false;
};

ByteView profileOf(const InkTiff& file) {
  std::uint32_t length = 0;
  void* data = nullptr;
  if (TIFFGetField(file.get(), TIFFTAG_ICCPROFILE, &length, &data) != 1) return {};
  return {static_cast<const std::uint8_t*>(data), length};
}

/// Takes the alpha out of colours that it is multiplied into, and turns inverted ones over.
template <typename Sample>
void straighten(std::span<std::uint8_t> row, const PixelFormat& format, bool isMultiplied, bool isInverted) {
  constexpr std::uint32_t highest = std::numeric_limits<Sample>::max();
  auto* pixel = reinterpret_cast<Sample*>(row.data());
  const Sample* const end = pixel + row.size() / sizeof(Sample);
  for (; pixel != end; pixel += format.samples()) {
    const std::uint32_t alpha = isMultiplied ? pixel[format.colors()] : highest;
    for (int color = 0; color < format.colors(); ++color) {
      std::uint32_t value = pixel[color];
      if (alpha != 0 && alpha != highest) value = std::min((value * highest + alpha / 2) / alpha, highest);
      pixel[color] = static_cast<Sample>(isInverted ? highest - value : value);
    }
  }
}

/// Rows of the colours and, where there is one, the alpha, as ColorTransform takes them.
class InkRows {
 public:
  InkRows(const InkTiff& file, ByteView bytes) : _file(file), _format(file.format()) {
    for (int color = 0; color < _format.colors(); ++color) _wanted.push_back(color);
    if (_format.hasAlpha) _wanted.push_back(file.alpha);
    _row.resize(std::size_t{file.width} * _wanted.size() * sampleBytes());
    // Planes lie apart, and a packed strip is read from its beginning: each plane has a reader of its own.
    for (std::size_t plane = 1; file.isPlanar() && plane < _wanted.size(); ++plane)
      _planes.push_back(std::make_unique<InkTiff>(bytes));
    _line.resize(static_cast<std::size_t>(std::max<tmsize_t>(TIFFScanlineSize(file.get()), 0)));
  }

  /// nullptr when the row cannot be read.
  const std::uint8_t* read(std::uint32_t y) {
    const std::size_t samples = _file.isPlanar() ? 1 : _file.samples;
    if (_line.size() < _file.width * samples * sampleBytes()) return nullptr;
    for (std::size_t i = 0; i < _wanted.size(); ++i) {
      TIFF* tiff = i == 0 || !_file.isPlanar() ? _file.get() : _planes[i - 1]->get();
      const int plane = _file.isPlanar() ? _wanted[i] : 0;
      const bool isNew = i == 0 || _file.isPlanar();
      if (tiff == nullptr || (isNew && TIFFReadScanline(tiff, _line.data(), y, static_cast<std::uint16_t>(plane)) != 1))
        return nullptr;
      take(i, _file.isPlanar() ? 0 : static_cast<std::size_t>(_wanted[i]), samples);
    }
    if (_file.bytesPerSample == 2)
      straighten<std::uint16_t>(_row, _format, _file.isMultiplied, _file.isInverted());
    else
      straighten<std::uint8_t>(_row, _format, _file.isMultiplied, _file.isInverted());
    return _row.data();
  }

 private:
  [[nodiscard]] std::size_t sampleBytes() const { return static_cast<std::size_t>(_file.bytesPerSample); }

  /// The sample at `from` of each pixel of the line, which has `stride` of them there, to place `to` in the row.
  void take(std::size_t to, std::size_t from, std::size_t stride) {
    const std::size_t size = sampleBytes();
    for (std::size_t x = 0; x < _file.width; ++x)
      std::memcpy(_row.data() + (x * _wanted.size() + to) * size, _line.data() + (x * stride + from) * size, size);
  }

  const InkTiff& _file;
  PixelFormat _format;
  std::vector<int> _wanted;  ///< samples of the file
  std::vector<std::unique_ptr<InkTiff>> _planes;
  Bytes _line;
  Bytes _row;
};

}  // namespace

void silenceTiffMessages() {
  static std::once_flag once;
  std::call_once(once, [] {
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
  });
}

bool isInkTiff(ByteView bytes) {
  if (bytes.size() < 8 || bytes[0] != bytes[1] || (bytes[0] != 'I' && bytes[0] != 'M')) return false;
  return InkTiff(bytes).isOurs();
}

Result<BitmapImageRep> decodeInkTiff(ByteView bytes) {
  const InkTiff file(bytes);
  if (!file.isOurs()) return Error::invalidInput("not a TIFF picture of inks or with transparent greys");
  if (file.width > std::uint32_t{limits::picturePixels} || file.height > std::uint32_t{limits::picturePixels} ||
      std::int64_t{file.width} * file.height > limits::pictureArea)
    return Error::tooLarge("picture of " + std::to_string(file.width) + " x " + std::to_string(file.height) +
                           " pixels");
  // No compression that is in use packs tighter (LZW comes near), so the rest is missing.
  constexpr std::int64_t largestExpansion = 2048;
  if (std::int64_t{file.width} * file.height * file.format().samples() * file.bytesPerSample / largestExpansion >
      static_cast<std::int64_t>(bytes.size()))
    return Error::invalidInput("TIFF picture is damaged or cut off");
  BitmapLayout layout = BitmapLayout::rgba(static_cast<int>(file.width), static_cast<int>(file.height));
  layout.isPremultiplied = false;
  auto bitmap = BitmapImageRep::bitmapImageRepWithLayout(layout);
  if (!bitmap) return Error::invalidInput("TIFF picture has no pixels");

  const ColorTransform transform(file.format(), profileOf(file), std::int64_t{file.width} * file.height);
  InkRows rows(file, bytes);
  for (int y = 0; y < layout.pixelsHigh; ++y) {
    const std::uint8_t* row = rows.read(static_cast<std::uint32_t>(y));
    if (row == nullptr) return Error::invalidInput("TIFF picture is damaged or cut off");
    transform.convert(row, bitmap->mutableRow(y), layout.pixelsWide);
  }
  std::uint16_t orientation = 1;
  TIFFGetFieldDefaulted(file.get(), TIFFTAG_ORIENTATION, &orientation);
  return uprightBitmap(*bitmap, orientation);
}

}  // namespace quorvane
