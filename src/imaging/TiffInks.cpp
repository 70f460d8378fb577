// SPDX-License-Identifier: GPL-3.0-or-later
// The installed readers turn inks into light without asking the profile, so files of inks are decoded here.
#include "imaging/TiffInks.h"

#include <tiffio.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <mutex>
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
    std::uint16_t photometric = 0;
    std::uint16_t bits = 0;
    std::uint16_t inks = 0;
    _isInk = TIFFGetField(get(), TIFFTAG_PHOTOMETRIC, &photometric) == 1 && photometric == PHOTOMETRIC_SEPARATED &&
             TIFFGetFieldDefaulted(get(), TIFFTAG_INKSET, &inks) == 1 && inks == INKSET_CMYK &&
             TIFFGetFieldDefaulted(get(), TIFFTAG_BITSPERSAMPLE, &bits) == 1 && (bits == 8 || bits == 16) &&
             TIFFGetFieldDefaulted(get(), TIFFTAG_SAMPLESPERPIXEL, &samples) == 1 && samples >= 4 &&
             samples <= limits::psdChannels && TIFFGetFieldDefaulted(get(), TIFFTAG_PLANARCONFIG, &_planes) == 1 &&
             TIFFGetField(get(), TIFFTAG_IMAGEWIDTH, &width) == 1 &&
             TIFFGetField(get(), TIFFTAG_IMAGELENGTH, &height) == 1 && TIFFIsTiled(get()) == 0;
    bytesPerSample = bits / 8;
  }

  [[nodiscard]] TIFF* get() const { return _tiff.get(); }
  [[nodiscard]] bool isInk() const { return _isInk; }
  /// Each sample has rows of its own.
  [[nodiscard]] bool isPlanar() const { return _planes == PLANARCONFIG_SEPARATE; }

  std::uint32_t width = 0;
  std::uint32_t height = 0;
  std::uint16_t samples = 0;
  int bytesPerSample = 0;

 private:
  Source _source;
  std::unique_ptr<TIFF, TiffDeleter> _tiff;
  std::uint16_t _planes = 0;
  bool _isInk = false;
};

ByteView profileOf(const InkTiff& file) {
  std::uint32_t length = 0;
  void* data = nullptr;
  if (TIFFGetField(file.get(), TIFFTAG_ICCPROFILE, &length, &data) != 1) return {};
  return {static_cast<const std::uint8_t*>(data), length};
}

/// Rows of four inks, each sample counting from full ink.
class InkRows {
 public:
  InkRows(const InkTiff& file, ByteView bytes) : _file(file), _inks(std::size_t{file.width} * 4 * sampleBytes()) {
    // Planes lie apart, and a packed strip is read from its beginning: each plane has a reader of its own.
    for (int plane = 1; file.isPlanar() && plane < 4; ++plane) _planes.push_back(std::make_unique<InkTiff>(bytes));
    _line.resize(static_cast<std::size_t>(std::max<tmsize_t>(TIFFScanlineSize(file.get()), 0)));
  }

  /// nullptr when the row cannot be read.
  const std::uint8_t* read(std::uint32_t y) {
    const std::size_t samples = _file.isPlanar() ? 1 : _file.samples;
    if (_line.size() < _file.width * samples * sampleBytes()) return nullptr;
    for (std::size_t plane = 0; plane < (_file.isPlanar() ? 4 : 1); ++plane) {
      TIFF* tiff = plane == 0 ? _file.get() : _planes[plane - 1]->get();
      if (tiff == nullptr || TIFFReadScanline(tiff, _line.data(), y, static_cast<std::uint16_t>(plane)) != 1)
        return nullptr;
      take(plane, _file.isPlanar() ? 1 : 4, samples);
    }
    for (std::uint8_t& byte : _inks) byte = static_cast<std::uint8_t>(~byte);
    return _inks.data();
  }

 private:
  [[nodiscard]] std::size_t sampleBytes() const { return static_cast<std::size_t>(_file.bytesPerSample); }

  /// `count` samples of each pixel of the line, of `stride` that it has there, to the inks from `first` on.
  void take(std::size_t first, std::size_t count, std::size_t stride) {
    const std::size_t size = sampleBytes();
    for (std::size_t x = 0; x < _file.width; ++x)
      std::memcpy(_inks.data() + (x * 4 + first) * size, _line.data() + x * stride * size, count * size);
  }

  const InkTiff& _file;
  std::vector<std::unique_ptr<InkTiff>> _planes;
  Bytes _line;
  Bytes _inks;
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
  return InkTiff(bytes).isInk();
}

Result<BitmapImageRep> decodeInkTiff(ByteView bytes) {
  const InkTiff file(bytes);
  if (!file.isInk()) return Error::invalidInput("not a TIFF picture of four inks");
  if (file.width > std::uint32_t{limits::picturePixels} || file.height > std::uint32_t{limits::picturePixels} ||
      std::int64_t{file.width} * file.height > limits::pictureArea)
    return Error::tooLarge("picture of " + std::to_string(file.width) + " x " + std::to_string(file.height) +
                           " pixels");
  // No compression that is in use packs tighter (LZW comes near), so the rest is missing.
  constexpr std::int64_t largestExpansion = 2048;
  if (std::int64_t{file.width} * file.height * 4 * file.bytesPerSample / largestExpansion >
      static_cast<std::int64_t>(bytes.size()))
    return Error::invalidInput("TIFF picture is damaged or cut off");
  BitmapLayout layout = BitmapLayout::rgba(static_cast<int>(file.width), static_cast<int>(file.height));
  layout.isPremultiplied = false;
  auto bitmap = BitmapImageRep::bitmapImageRepWithLayout(layout);
  if (!bitmap) return Error::invalidInput("TIFF picture has no pixels");

  const ColorTransform transform({ColorModel::Cmyk, file.bytesPerSample * 8, false}, profileOf(file));
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
