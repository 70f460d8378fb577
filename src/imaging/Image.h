// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"
#include "imaging/ByteCount.h"
#include "imaging/ImageMetadata.h"

namespace quorvane {

/// One form of an image: a bitmap, perhaps still *pending*, that is, decoded on first use. Copies share the outcome.
class ImageRep {
 public:
  using Decoder = std::function<std::optional<BitmapImageRep>()>;

  ImageRep(BitmapImageRep bitmap);  // NOLINT(google-explicit-constructor)
  /// A bitmap of a known pixel size that `decoder` makes when it is first asked for. The decoder is called once.
  static ImageRep pending(int pixelsWide, int pixelsHigh, Size size, Decoder decoder);

  [[nodiscard]] int pixelsWide() const;
  [[nodiscard]] int pixelsHigh() const;
  /// In points.
  [[nodiscard]] Size size() const;
  [[nodiscard]] bool isPending() const;
  /// The pixels; decodes a pending one. nullopt when decoding failed (and then ever after).
  [[nodiscard]] std::optional<BitmapImageRep> bitmap() const;
  /// True for copies of each other.
  [[nodiscard]] bool isSameAs(const ImageRep& other) const { return _state == other._state; }

 private:
  struct State;
  std::shared_ptr<State> _state;
};

class Image;

/// A reader of files that another module brings along (Image::registerReader).
struct ImageReader {
  std::vector<std::string> fileTypes;         ///< extensions, lower case, no dot
  bool (*canRead)(ByteView bytes) = nullptr;  ///< whether a file begins like one of these
  Result<Image> (*read)(ByteView bytes) = nullptr;
};

/// A size in points and an ordered list of representations. A value; copies are cheap, and may be used by several
/// threads.
class Image {
 public:
  Image() = default;
  explicit Image(Size size) : _size(size) {}

  /// An image whose only representation is the bitmap, as large as the bitmap's size().
  static Image imageWithBitmapImageRep(const BitmapImageRep& bitmap);
  /// Reads a picture file (PNG, JPEG, TIFF and what else the installed readers know): first picture, orientation tag
  /// applied, one point a pixel. Refuses by Limits.h before decoding; errors name path and reason.
  static Result<Image> imageWithContentsOfFile(const std::filesystem::path& path);
  /// The same from bytes.
  static Result<Image> imageWithData(ByteView bytes);
  /// The ordinary read of a picture file; or with `usingImageIO` the picture at index 0, drawn into a standard bitmap.
  /// nullopt when there is none.
  static std::optional<Image> initWithContentsOfFile(const std::filesystem::path& path, bool usingImageIO);
  /// The decoded picture drawn into a standard bitmap of its pixel size, in sRGB; nullopt for a null picture.
  static std::optional<Image> initWithCGImageRef(const QImage& image);

  /// Extensions (lower case, no dot, sorted) of the picture files that can be read with what is installed now.
  static std::vector<std::string> imageFileTypes();
  /// Has files read by another module's reader from now on, before any other. Once for each; by the main function, as
  /// it builds what it passes on.
  static void registerReader(ImageReader reader);

  [[nodiscard]] Size size() const { return _size; }
  /// With scalesWhenResized() drawing then scales the representations; their pixels stay.
  void setSize(Size size) { _size = size; }
  [[nodiscard]] bool scalesWhenResized() const { return _scalesWhenResized; }
  void setScalesWhenResized(bool scales) { _scalesWhenResized = scales; }

  void addRepresentation(ImageRep rep) { _representations.push_back(std::move(rep)); }
  [[nodiscard]] const std::vector<ImageRep>& representations() const { return _representations; }

  /// The first representation that is a bitmap (a pending one is decoded; one that fails is passed over).
  [[nodiscard]] std::optional<BitmapImageRep> bitmapRepresentation() const;
  /// True for copies of each other that have one size still: their pictures cannot differ.
  [[nodiscard]] bool isSameAs(const Image& other) const;

  /// The first representation, if any.
  [[nodiscard]] std::optional<ImageRep> bestRepresentation() const;
  /// The smallest representation with at least that many pixels both ways, else the largest; failing ones are passed
  /// over. This is the one that drawing uses.
  [[nodiscard]] std::optional<BitmapImageRep> bitmapForPixels(int wide, int high) const;
  /// Pixel size of the representation with the most pixels; {0, 0} without any.
  [[nodiscard]] Size largestPixelSize() const;

  /// "image size={128, 64}  rep size={128, 64}  pixelsWide=128", with nothing but zeros for the bitmap when there is
  /// none.
  [[nodiscard]] std::string sizeInfo() const;

  /// The image drawn whole into a new standard bitmap of that many pixels (the best representation, resampled).
  [[nodiscard]] BitmapImageRep rendered(int pixelsWide, int pixelsHigh,
                                        ImageInterpolation interpolation = ImageInterpolation::High) const;

  /// bitmapRepresentation(), or for an image without any representation a bitmap of its drawing. JPEG, PNG and GIF
  /// encode this one. Fails when representations are there but cannot be decoded, or there is no size.
  [[nodiscard]] Result<BitmapImageRep> bitmapForEncoding() const;

  /// Encoded pictures. JPEG: `compression` is the quality, 0 to 100; what is transparent is painted on white. TIFF: all
  /// bitmap representations as pages, the one for encoding first, LZW, alpha kept. PNG: alpha kept. GIF: see
  /// encodeGif(). Metadata are put in as ImageMetadata::forRenderedPixels(), as far as they fit; a picture is not lost
  /// for them.
  [[nodiscard]] Result<Bytes> JPEGRepresentation(int compression, const ImageMetadata& metadata = {}) const;
  [[nodiscard]] Result<Bytes> TIFFRepresentation(const ImageMetadata& metadata = {}) const;
  [[nodiscard]] Result<Bytes> PNGRepresentation() const;
  [[nodiscard]] Result<Bytes> GIFRepresentation() const;

  /// Write them, whole or not at all (Folder::writeFile()); after a failure an earlier file stands as it was.
  ///
  /// With a `writeFileIfUnder` other than 0, a JPEG of that many bytes or more is not written: TooLarge. `returnSize`
  /// may be null; it is given the length of the encoded picture either way.
  Result<void> writeToJPEGFile(const std::filesystem::path& path, int compression, ByteCount writeFileIfUnder,
                               std::uint64_t* returnSize, const ImageMetadata& metadata = {}) const;
  /// At `startingQuality`, or at the first lower one of those that nextFactorForFactor() leads to, that gives fewer
  /// bytes than the limit (0: any). TooLarge when none does; a failure of another kind ends the search at once.
  Result<void> writeToJPEGFile(const std::filesystem::path& path, int startingQuality, Kibibytes filesizeLimit,
                               const ImageMetadata& metadata = {}) const;
  Result<void> writeToTIFFFile(const std::filesystem::path& path, const ImageMetadata& metadata = {}) const;
  Result<void> writeToPNGFile(const std::filesystem::path& path) const;
  Result<void> writeToGIFFile(const std::filesystem::path& path) const;

  /// Encoded data (JPEG, PNG, TIFF) with metadata in it; data of another type comes back as it was. See
  /// combineMetadata().
  static CombinedData combineData(ByteView data, const ImageMetadata& metadata);
  /// The next, lower, JPEG quality after one that gave `ratio` times the bytes wanted.
  static float nextFactorForFactor(float factor, float ratio);

 private:
  Size _size;
  bool _scalesWhenResized = false;
  std::vector<ImageRep> _representations;
};

}  // namespace quorvane
