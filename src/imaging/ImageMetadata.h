// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

struct MetadataProperties;

/// What is said about a picture beside its pixels: the Exif, IPTC and XMP properties of a picture file. A value; copies
/// are cheap. What merely describes how a file's pixels lie (sizes, strips, colour profiles, thumbnails) is not part of
/// it. A property is named by kind, group and name, as in "Exif.Photo.DateTimeOriginal" or "Xmp.dc.title"; its value is
/// text in the usual notation of its type (fractions as "1/125", several values with spaces between).
class ImageMetadata {
 public:
  struct Property {
    std::string key;
    std::string value;
    bool operator==(const Property&) const = default;
  };
  struct Group {
    std::string name;  ///< as in "Exif.Photo"
    std::vector<Property> properties;
  };

  /// Nothing.
  ImageMetadata();

  /// What a JPEG, PNG or TIFF file says; nothing of what cannot be understood. Errors: no such picture, over the
  /// limits.
  static Result<ImageMetadata> metadataOfFile(const std::filesystem::path& path);
  static Result<ImageMetadata> metadataOfData(ByteView data);

  [[nodiscard]] bool isEmpty() const;
  /// Everything, by group.
  [[nodiscard]] std::vector<Group> groups() const;
  /// nullopt when there is no such property. Of an IPTC property that repeats, the first.
  [[nodiscard]] std::optional<std::string> value(const std::string& key) const;
  /// Fails when there can be no such property, or none of that value.
  Result<void> setValue(const std::string& key, const std::string& value);
  void remove(const std::string& key);

  /// How a viewer is to turn the pixels: 1 (they stand upright) to 8, as Exif counts. 1 when nothing is said.
  [[nodiscard]] int orientation() const;

  /// The same about pixels that we have read and write anew. Reading an image turns it upright and converts its colours
  /// to sRGB; were the original's orientation carried over as it was, viewers would turn the picture a second time. So
  /// an orientation becomes 1, a colour space sRGB.
  [[nodiscard]] ImageMetadata forRenderedPixels() const;

  /// What is kept inside; for those who put it into files.
  [[nodiscard]] const MetadataProperties& properties() const { return *_properties; }

 private:
  explicit ImageMetadata(MetadataProperties properties);

  std::shared_ptr<const MetadataProperties> _properties;
};

/// Encoded data with metadata in it, as far as that could be done.
struct CombinedData {
  Bytes data;                    ///< always whole: at worst what it was before
  std::optional<Error> missing;  ///< why something of the metadata is not in it
};

/// Puts the metadata into a JPEG, PNG or TIFF file; the pixels stay as they are encoded. What the file says itself
/// stays, too, unless the metadata say otherwise. The orientation is carried over as it stands: only the caller knows
/// whether these pixels are still to be turned (ImageMetadata::forRenderedPixels() if not).
CombinedData combineMetadata(ByteView data, const ImageMetadata& metadata);

}  // namespace quorvane
