// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <set>

#include "imaging/ImageMetadata.h"
#include "imaging/MetadataBorder.h"
#include "imaging/TiffEncoder.h"

namespace quorvane {

namespace {

const std::string failing = "metadata that cannot be put into the picture";

struct Kinds {
  bool exif = true;
  bool iptc = true;
  bool xmp = true;
};

/// Of a camera maker's own block.
bool isMakers(const Exiv2::Exifdatum& property) {
  const std::string group = property.groupName();
  return group == "MakerNote" || property.key() == "Exif.Photo.MakerNote" || Exiv2::ExifTags::isMakerGroup(group);
}

void mergeExif(const Exiv2::ExifData& from, Exiv2::Image& picture) {
  Exiv2::ExifData& to = picture.exifData();
  // With such a block a TIFF would not be read again, and all else be lost with it.
  const bool isTiff = picture.imageType() == Exiv2::ImageType::tiff;
  for (const Exiv2::Exifdatum& property : from) {
    if (metadata::describesPixels(property) || (isTiff && isMakers(property))) continue;
    if (const auto old = to.findKey(Exiv2::ExifKey(property.key())); old != to.end()) to.erase(old);
    to.add(property);
  }
  // Where there are Exif properties of the photograph, these two have to be right.
  const bool hasPhoto = std::ranges::any_of(from, [](const auto& property) { return property.groupName() == "Photo"; });
  if (!hasPhoto || picture.pixelWidth() <= 0 || picture.pixelHeight() <= 0) return;
  to["Exif.Photo.PixelXDimension"] = static_cast<std::uint32_t>(picture.pixelWidth());
  to["Exif.Photo.PixelYDimension"] = static_cast<std::uint32_t>(picture.pixelHeight());
}

void mergeIptc(const Exiv2::IptcData& from, Exiv2::IptcData& to) {
  std::set<std::string> replaced;
  for (const Exiv2::Iptcdatum& property : from) {
    // Properties may repeat: those of the file go once, all of the new ones come.
    if (replaced.insert(property.key()).second)
      for (auto old = to.findKey(Exiv2::IptcKey(property.key())); old != to.end();
           old = to.findKey(Exiv2::IptcKey(property.key())))
        to.erase(old);
    to.add(property);
  }
}

void mergeXmp(const Exiv2::XmpData& from, Exiv2::XmpData& to) {
  for (const Exiv2::Xmpdatum& property : from) {
    if (metadata::describesPixels(property)) continue;
    if (const auto old = to.findKey(Exiv2::XmpKey(property.key())); old != to.end()) to.erase(old);
    to.add(property);
  }
}

template <typename Data>
bool hasAll(const Data& wanted, const Data& written) {
  std::set<std::string> keys;
  for (const auto& property : written) keys.insert(property.key());
  return std::ranges::all_of(wanted, [&keys](const auto& property) { return keys.contains(property.key()); });
}

struct Outcome {
  Bytes data;
  bool isComplete;
};

Result<Outcome> combine(ByteView data, const MetadataProperties& properties, Kinds kinds) {
  return metadata::guarded(failing, [&]() -> Result<Outcome> {
    // The library changes a TIFF where it lies, although it is given to it for reading.
    const Bytes copy(data.begin(), data.end());
    const std::unique_ptr<Exiv2::Image> picture = TRY(metadata::openPicture(copy));
    const bool isTiff = picture->imageType() == Exiv2::ImageType::tiff;
    if (kinds.exif) mergeExif(properties.exif, *picture);
    if (kinds.iptc) mergeIptc(properties.iptc, picture->iptcData());
    if (kinds.xmp) mergeXmp(properties.xmp, picture->xmpData());
    picture->writeMetadata();
    Exiv2::BasicIo& io = picture->io();
    if (io.open() != 0) return Error::broken(failing);
    const Exiv2::DataBuf written = io.read(static_cast<long>(io.size()));
    Outcome outcome{Bytes(written.pData_, written.pData_ + written.size_), true};
    // The library knows the first four pages of a TIFF and would drop more.
    if (isTiff && tiffPageCount(outcome.data) != tiffPageCount(data))
      return Error(ErrorKind::Unsupported, "metadata cannot be put into a TIFF of so many pages");
    // It also leaves out, without a word, what is too long for its place.
    const std::unique_ptr<Exiv2::Image> again = TRY(metadata::openPicture(outcome.data));
    outcome.isComplete = (!kinds.exif || hasAll(properties.exif, again->exifData())) &&
                         (!kinds.iptc || hasAll(properties.iptc, again->iptcData())) &&
                         (!kinds.xmp || hasAll(properties.xmp, again->xmpData()));
    return outcome;
  });
}

}  // namespace

CombinedData combineMetadata(ByteView data, const ImageMetadata& metadata) {
  CombinedData result{Bytes(data.begin(), data.end()), std::nullopt};
  if (metadata.isEmpty()) return result;
  const MetadataProperties& properties = metadata.properties();
  const Error incomplete = Error::tooLarge("some of the metadata, which has no room in the picture");
  if (auto all = combine(data, properties, Kinds{}); all.ok()) {
    result.data = std::move(all->data);
    if (!all->isComplete) result.missing = incomplete;
    return result;
  } else {
    result.missing = all.error();
  }
  // One kind may be what the others fail by.
  for (const Kinds& one : {Kinds{true, false, false}, Kinds{false, true, false}, Kinds{false, false, true}})
    if (auto part = combine(result.data, properties, one); part.ok()) result.data = std::move(part->data);
  return result;
}

}  // namespace quorvane
