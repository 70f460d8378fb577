// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/TiffEncoder.h"

#include <tiffio.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "foundation/base/Limits.h"
#include "imaging/PixelDensity.h"

namespace quorvane {

namespace {

/// What the library takes for a file: bytes, a place in them, and what went wrong last.
struct MemoryFile {
  Bytes bytes;
  std::uint64_t position = 0;
  std::string failure;
};

MemoryFile& fileOf(thandle_t handle) {
  return *static_cast<MemoryFile*>(handle);
}

tmsize_t readFrom(thandle_t handle, void* to, tmsize_t count) {
  MemoryFile& file = fileOf(handle);
  if (count <= 0 || file.position >= file.bytes.size()) return 0;
  const auto length = std::min<std::uint64_t>(static_cast<std::uint64_t>(count), file.bytes.size() - file.position);
  std::memcpy(to, file.bytes.data() + file.position, length);
  file.position += length;
  return static_cast<tmsize_t>(length);
}

tmsize_t writeTo(thandle_t handle, void* from, tmsize_t count) {
  MemoryFile& file = fileOf(handle);
  // Far above what the largest pictures need, below what the format's offsets reach.
  if (count < 0 || file.position + static_cast<std::uint64_t>(count) > limits::writtenTiffBytes) return -1;
  const auto end = static_cast<std::size_t>(file.position) + static_cast<std::size_t>(count);
  if (end > file.bytes.size()) file.bytes.resize(end);
  if (count > 0) std::memcpy(file.bytes.data() + file.position, from, static_cast<std::size_t>(count));
  file.position = end;
  return count;
}

toff_t seekIn(thandle_t handle, toff_t offset, int whence) {
  MemoryFile& file = fileOf(handle);
  // Offsets are unsigned, also backwards: the sum wraps round to what is meant.
  file.position = offset + (whence == SEEK_CUR ? file.position : whence == SEEK_END ? file.bytes.size() : 0);
  return file.position;
}

int closeNothing(thandle_t /*handle*/) {
  return 0;
}

toff_t sizeOf(thandle_t handle) {
  return fileOf(handle).bytes.size();
}

int keepFailure(TIFF* /*tiff*/, void* data, const char* /*module*/, const char* format, va_list arguments) {
  std::array<char, 256> text{};
  std::vsnprintf(text.data(), text.size(), format, arguments);
  static_cast<MemoryFile*>(data)->failure = text.data();
  return 1;  // nothing is printed
}

int dropWarning(TIFF* /*tiff*/, void* /*data*/, const char* /*module*/, const char* /*format*/, va_list /*values*/) {
  return 1;
}

struct CloseTiff {
  void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using OpenTiff = std::unique_ptr<TIFF, CloseTiff>;

OpenTiff open(MemoryFile& file, const char* mode) {
  TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
  if (options == nullptr) return nullptr;
  TIFFOpenOptionsSetErrorHandlerExtR(options, keepFailure, &file);
  TIFFOpenOptionsSetWarningHandlerExtR(options, dropWarning, &file);
  OpenTiff tiff(TIFFClientOpenExt("memory", mode, &file, readFrom, writeTo, seekIn, closeNothing, sizeOf, nullptr,
                                  nullptr, options));
  TIFFOpenOptionsFree(options);
  return tiff;
}

bool isOpaque(const BitmapImageRep& bitmap) {
  for (int y = 0; y < bitmap.pixelsHigh(); ++y)
    for (int x = 0; x < bitmap.pixelsWide(); ++x)
      if (bitmap.row(y)[x * 4 + 3] != 255) return false;
  return true;
}

bool writePage(TIFF* tiff, const BitmapImageRep& page, int number, int count) {
  const BitmapImageRep bitmap = page.toStandard();
  const bool hasAlpha = !isOpaque(bitmap);
  const std::size_t samples = hasAlpha ? 4 : 3;
  const auto wide = static_cast<std::size_t>(bitmap.pixelsWide());
  const std::uint16_t associated = EXTRASAMPLE_ASSOCALPHA;
  bool isSet = TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, bitmap.pixelsWide()) == 1 &&
               TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, bitmap.pixelsHigh()) == 1 &&
               TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8) == 1 &&
               TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, static_cast<int>(samples)) == 1 &&
               TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB) == 1 &&
               TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == 1 &&
               TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT) == 1 &&
               TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_LZW) == 1 &&
               TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL) == 1 &&
               TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH) == 1 &&
               TIFFSetField(tiff, TIFFTAG_XRESOLUTION, dotsPerInch(bitmap.pixelsWide(), page.size().width)) == 1 &&
               TIFFSetField(tiff, TIFFTAG_YRESOLUTION, dotsPerInch(bitmap.pixelsHigh(), page.size().height)) == 1;
  if (hasAlpha) isSet = isSet && TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &associated) == 1;
  if (count > 1) isSet = isSet && TIFFSetField(tiff, TIFFTAG_PAGENUMBER, number, count) == 1;
  isSet = isSet && TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(tiff, 0)) == 1;
  if (!isSet) return false;

  Bytes row(wide * samples);
  for (int y = 0; y < bitmap.pixelsHigh(); ++y) {
    const std::uint8_t* from = bitmap.row(y);
    for (std::size_t x = 0; x < wide; ++x) std::memcpy(row.data() + x * samples, from + x * 4, samples);
    if (TIFFWriteScanline(tiff, row.data(), static_cast<std::uint32_t>(y)) != 1) return false;
  }
  return TIFFWriteDirectory(tiff) == 1;
}

Error failureOf(const MemoryFile& file) {
  return Error::broken("encoding a TIFF: " + (file.failure.empty() ? "it does not work" : file.failure));
}

}  // namespace

Result<Bytes> encodeTiff(const BitmapImageRep& bitmap) {
  if (bitmap.pixelsWide() == 0) return Error::invalidInput("no pixels to write as TIFF");
  MemoryFile file;
  {
    // Little-endian everywhere, so that a picture has the same bytes on every machine.
    const OpenTiff tiff = open(file, "wl");
    if (!tiff || !writePage(tiff.get(), bitmap, 0, 1)) return failureOf(file);
  }
  return std::move(file.bytes);
}

Result<Bytes> appendTiffPages(Bytes bytes, const std::vector<BitmapImageRep>& pages) {
  if (pages.empty()) return bytes;
  const int before = tiffPageCount(bytes);
  if (before == 0) return Error::invalidInput("no TIFF file to add pages to");
  const int count = before + static_cast<int>(pages.size());
  MemoryFile file{std::move(bytes), 0, {}};
  {
    const OpenTiff tiff = open(file, "a");
    if (!tiff) return failureOf(file);
    for (std::size_t i = 0; i < pages.size(); ++i)
      if (!writePage(tiff.get(), pages[i], before + static_cast<int>(i), count)) return failureOf(file);
  }
  return std::move(file.bytes);
}

int tiffPageCount(ByteView tiff) {
  MemoryFile file{{tiff.begin(), tiff.end()}, 0, {}};
  const OpenTiff opened = open(file, "r");
  return opened ? static_cast<int>(TIFFNumberOfDirectories(opened.get())) : 0;
}

}  // namespace quorvane
