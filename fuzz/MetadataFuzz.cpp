// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a picture with metadata. What is read can be put into a picture of ours, which stays whole.
#include <cstdlib>

#include "imaging/Image.h"
#include "imaging/TiffDirectories.h"

using namespace quorvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ByteView bytes(data, size);
  (void)checkTiffDirectories(bytes);
  const auto metadata = ImageMetadata::metadataOfData(bytes);
  if (!metadata.ok()) {
    if (metadata.error().kind() == ErrorKind::Broken) std::abort();
    return 0;
  }
  (void)metadata.value().groups();
  const int orientation = metadata.value().orientation();
  if (orientation < 1 || orientation > 8 || metadata.value().forRenderedPixels().orientation() != 1) std::abort();
  static const Image image = Image::imageWithBitmapImageRep(BitmapImageRep::bitmapImageRepWithSize({2, 2}));
  const auto jpeg = image.JPEGRepresentation(50, metadata.value());
  if (!jpeg.ok() || !Image::imageWithData(jpeg.value()).ok()) std::abort();
  if (Image::combineData(bytes, metadata.value()).data.empty()) std::abort();
  return 0;
}
