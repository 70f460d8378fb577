// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "foundation/FileWriting.h"
#include "imaging/GifEncoder.h"
#include "imaging/Image.h"
#include "imaging/JpegEncoder.h"
#include "imaging/JpegQuality.h"
#include "imaging/PngCodec.h"
#include "imaging/TiffEncoder.h"

namespace quorvane {

namespace {

Bytes withMetadata(Bytes data, const ImageMetadata& metadata) {
  if (metadata.isEmpty()) return data;
  return Image::combineData(data, metadata.forRenderedPixels()).data;
}

Error atFile(const Error& error, const std::filesystem::path& path) {
  return error.at(path);
}

/// Encodes at a quality; writes what is shorter than the limit (0: anything). True when it was written.
Result<bool> writeIfUnder(const std::filesystem::path& path, const JpegSource& source, int quality, ByteCount limit,
                          std::uint64_t& length, const ImageMetadata& metadata) {
  const auto jpeg = source.encode(compressionFactor(quality));
  if (!jpeg) return atFile(jpeg.error(), path);
  const Bytes bytes = withMetadata(*jpeg, metadata);
  length = bytes.size();
  if (limit.value != 0 && length >= limit.value) return false;
  TRY_VOID(writePlainFile(path, bytes));
  return true;
}

Result<void> writeEncoded(const std::filesystem::path& path, const Result<Bytes>& encoded) {
  if (!encoded) return atFile(encoded.error(), path);
  return writePlainFile(path, encoded.value());
}

}  // namespace

CombinedData Image::combineData(ByteView data, const ImageMetadata& metadata) {
  return combineMetadata(data, metadata);
}

float Image::nextFactorForFactor(float factor, float ratio) {
  return quorvane::nextFactorForFactor(factor, ratio);
}

Result<BitmapImageRep> Image::bitmapForEncoding() const {
  if (auto bitmap = bitmapRepresentation()) return std::move(*bitmap);
  if (!_representations.empty()) return Error::invalidInput("the picture cannot be decoded");
  // Whole pixels that hold all of it.
  BitmapImageRep drawn = BitmapImageRep::bitmapImageRepWithSize({std::ceil(_size.width), std::ceil(_size.height)});
  if (drawn.pixelsWide() == 0) return Error::invalidInput("a picture without size");
  return rendered(drawn.pixelsWide(), drawn.pixelsHigh());
}

Result<Bytes> Image::JPEGRepresentation(int compression, const ImageMetadata& metadata) const {
  return withMetadata(TRY(JpegSource(TRY(bitmapForEncoding())).encode(compressionFactor(compression))), metadata);
}

Result<Bytes> Image::TIFFRepresentation(const ImageMetadata& metadata) const {
  const BitmapImageRep first = TRY(bitmapForEncoding());
  std::vector<BitmapImageRep> others;
  bool isFirst = true;
  for (const ImageRep& rep : _representations) {
    auto bitmap = rep.bitmap();
    if (!bitmap || bitmap->pixelsWide() == 0) continue;
    if (!std::exchange(isFirst, false)) others.push_back(std::move(*bitmap));
  }
  // The metadata first: they belong to the first page, and could not be put in when there are many.
  return appendTiffPages(withMetadata(TRY(encodeTiff(first)), metadata), others);
}

Result<Bytes> Image::PNGRepresentation() const {
  return encodePng(TRY(bitmapForEncoding()));
}

Result<Bytes> Image::GIFRepresentation() const {
  return encodeGif(TRY(bitmapForEncoding()));
}

Result<void> Image::writeToJPEGFile(const std::filesystem::path& path, int compression, ByteCount writeFileIfUnder,
                                    std::uint64_t* returnSize, const ImageMetadata& metadata) const {
  const auto bitmap = bitmapForEncoding();
  if (!bitmap) return atFile(bitmap.error(), path);
  std::uint64_t length = 0;
  const auto written = writeIfUnder(path, JpegSource(*bitmap), compression, writeFileIfUnder, length, metadata);
  if (returnSize != nullptr && length != 0) *returnSize = length;
  if (!written) return written.error();
  if (!*written) return atFile(overByteLimit(length, writeFileIfUnder), path);
  return {};
}

Result<void> Image::writeToJPEGFile(const std::filesystem::path& path, int startingQuality, Kibibytes filesizeLimit,
                                    const ImageMetadata& metadata) const {
  const auto bitmap = bitmapForEncoding();
  if (!bitmap) return atFile(bitmap.error(), path);
  const JpegSource source(*bitmap);
  const ByteCount limit = filesizeLimit.bytes();
  const auto found = searchJpegQuality(startingQuality, limit, [&](int quality, std::uint64_t& length) {
    return writeIfUnder(path, source, quality, limit, length, metadata);
  });
  if (!found) return atFile(found.error(), path);
  return {};
}

Result<void> Image::writeToTIFFFile(const std::filesystem::path& path, const ImageMetadata& metadata) const {
  return writeEncoded(path, TIFFRepresentation(metadata));
}

Result<void> Image::writeToPNGFile(const std::filesystem::path& path) const {
  return writeEncoded(path, PNGRepresentation());
}

Result<void> Image::writeToGIFFile(const std::filesystem::path& path) const {
  return writeEncoded(path, GIFRepresentation());
}

}  // namespace quorvane
