// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a JPEG or TIFF picture of inks, as a colour profile, and as a file whose orientation is asked for.
#include <cstdlib>

#include "imaging/ColorTransform.h"
#include "imaging/JpegHeader.h"
#include "imaging/JpegInks.h"
#include "imaging/Orientation.h"
#include "imaging/TiffInks.h"

using namespace quorvane;

namespace {

void readWholly(const Result<BitmapImageRep>& picture, int orientation) {
  if (picture.ok()) {
    const BitmapImageRep upright = uprightBitmap(*picture, orientation);
    if (upright.pixelsWide() * upright.pixelsHigh() != picture->pixelsWide() * picture->pixelsHigh()) std::abort();
  } else if (picture.error().kind() == ErrorKind::Broken) {
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ByteView bytes(data, size);
  const int orientation = exifOrientation(bytes);
  if (orientation < 1 || orientation > 8) std::abort();
  // Large pictures only take long: both decoders fill in what a file lacks.
  const auto header = readJpegHeader(bytes);
  if (isJpeg(bytes) && header.ok() && header->components == 4 && header->size.width * header->size.height <= 1 << 14)
    readWholly(decodeInkJpeg(bytes), orientation);
  if (isInkTiff(bytes)) readWholly(decodeInkTiff(bytes), orientation);
  // Profiles, as libraries that have a long record see them.
  for (const ColorModel model : {ColorModel::Grey, ColorModel::Rgb, ColorModel::Cmyk}) {
    const PixelFormat format{model, 8, false};
    constexpr std::uint8_t pixel[4] = {1, 100, 200, 255};
    std::uint8_t converted[4] = {};
    ColorTransform(format, bytes).convert(pixel, converted, 1);
    if (converted[3] != 255) std::abort();
  }
  return 0;
}
