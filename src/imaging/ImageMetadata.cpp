// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/ImageMetadata.h"

#include <algorithm>
#include <map>

#include "foundation/FileReading.h"
#include "foundation/base/Limits.h"
#include "imaging/MetadataBorder.h"
#include "imaging/TiffDirectories.h"

namespace quorvane {

namespace {

const std::string orientationKey = "Exif.Image.Orientation";
const std::string orientationXmpKey = "Xmp.tiff.Orientation";
const std::string colorSpaceKey = "Exif.Photo.ColorSpace";
const std::string colorSpaceXmpKey = "Xmp.exif.ColorSpace";
const std::string colorRuleKey = "Exif.Iop.InteroperabilityIndex";
const std::string sRgb = "1";

template <typename Data>
void removePixelDescriptions(Data& data) {
  for (auto property = data.begin(); property != data.end();)
    property = metadata::describesPixels(*property) ? data.erase(property) : std::next(property);
}

/// The file as the library may read it: without the camera maker's block of a TIFF, which becomes filling.
Result<Bytes> withoutMakerNotes(ByteView tiff) {
  Bytes bytes(tiff.begin(), tiff.end());
  for (const std::size_t at : TRY(checkTiffDirectories(tiff))) {
    const bool isLittle = bytes[0] == 'I';
    bytes[at] = isLittle ? 0x1C : 0xEA;
    bytes[at + 1] = isLittle ? 0xEA : 0x1C;
  }
  return bytes;
}

bool isTiff(ByteView data) {
  return data.size() > 4 && data[0] == data[1] && (data[0] == 'I' || data[0] == 'M');
}

std::optional<long> wholeValue(const Exiv2::Value& value) {
  if (value.count() == 0) return std::nullopt;
  const long number = value.toLong(0);
  return value.ok() ? std::optional(number) : std::nullopt;
}

template <typename Data, typename Key>
std::optional<std::string> textOf(const Data& data, const std::string& key) {
  const auto found = data.findKey(Key(key));
  return found == data.end() ? std::nullopt : std::optional(found->toString());
}

template <typename Data, typename Key>
void removeFrom(Data& data, const std::string& key) {
  for (auto found = data.findKey(Key(key)); found != data.end(); found = data.findKey(Key(key))) data.erase(found);
}

template <typename Data>
void setIfPresent(Data& data, const std::string& key, const std::string& text) {
  const auto found = std::ranges::find(data, key, [](const auto& property) { return property.key(); });
  if (found != data.end()) found->setValue(text);
}

}  // namespace

ImageMetadata::ImageMetadata() {
  static const auto nothing = std::make_shared<const MetadataProperties>();
  _properties = nothing;
}

ImageMetadata::ImageMetadata(MetadataProperties properties)
    : _properties(std::make_shared<const MetadataProperties>(std::move(properties))) {}

Result<ImageMetadata> ImageMetadata::metadataOfFile(const std::filesystem::path& path) {
  auto metadata = metadataOfData(TRY(readPlainFile(path, limits::pictureFileBytes)));
  if (!metadata) return std::move(metadata).error().at(path);
  return metadata;
}

Result<ImageMetadata> ImageMetadata::metadataOfData(ByteView data) {
  Bytes copy;
  if (isTiff(data)) data = copy = TRY(withoutMakerNotes(data));
  return metadata::guarded("metadata that cannot be read", [&]() -> Result<ImageMetadata> {
    const std::unique_ptr<Exiv2::Image> picture = TRY(metadata::openPicture(data));
    MetadataProperties found{picture->exifData(), picture->iptcData(), picture->xmpData()};
    removePixelDescriptions(found.exif);
    removePixelDescriptions(found.xmp);
    return ImageMetadata(std::move(found));
  });
}

bool ImageMetadata::isEmpty() const {
  return _properties->exif.empty() && _properties->iptc.empty() && _properties->xmp.empty();
}

std::vector<ImageMetadata::Group> ImageMetadata::groups() const {
  const auto lock = metadata::enter();
  std::map<std::string, std::vector<Property>> groups;
  const auto add = [&groups](const auto& data) {
    for (const auto& property : data)
      groups[std::string(property.familyName()) + "." + property.groupName()].push_back(
          {property.key(), property.toString()});
  };
  add(_properties->exif);
  add(_properties->iptc);
  add(_properties->xmp);
  std::vector<Group> result;
  for (auto& [name, properties] : groups) result.push_back({name, std::move(properties)});
  return result;
}

std::optional<std::string> ImageMetadata::value(const std::string& key) const {
  const auto found = metadata::guarded("no such property", [&]() -> Result<std::optional<std::string>> {
    if (key.starts_with("Exif.")) return textOf<Exiv2::ExifData, Exiv2::ExifKey>(_properties->exif, key);
    if (key.starts_with("Iptc.")) return textOf<Exiv2::IptcData, Exiv2::IptcKey>(_properties->iptc, key);
    return textOf<Exiv2::XmpData, Exiv2::XmpKey>(_properties->xmp, key);
  });
  return found ? *found : std::nullopt;
}

Result<void> ImageMetadata::setValue(const std::string& key, const std::string& value) {
  MetadataProperties changed = *_properties;
  TRY_VOID(metadata::guarded("no property " + key, [&]() -> Result<void> {
    bool isSet = false;
    if (key.starts_with("Exif.")) {
      const Exiv2::ExifKey name(key);
      isSet = changed.exif[key].setValue(value) == 0 && !metadata::describesPixels(*changed.exif.findKey(name));
    } else if (key.starts_with("Iptc.")) {
      isSet = changed.iptc[key].setValue(value) == 0;
    } else {
      const Exiv2::XmpKey name(key);
      isSet = changed.xmp[key].setValue(value) == 0 && !metadata::describesPixels(*changed.xmp.findKey(name));
    }
    if (!isSet) return Error::invalidInput("no value for the property " + key);
    return {};
  }));
  _properties = std::make_shared<const MetadataProperties>(std::move(changed));
  return {};
}

void ImageMetadata::remove(const std::string& key) {
  MetadataProperties changed = *_properties;
  const auto removed = metadata::guarded("no such property", [&]() -> Result<void> {
    if (key.starts_with("Exif."))
      removeFrom<Exiv2::ExifData, Exiv2::ExifKey>(changed.exif, key);
    else if (key.starts_with("Iptc."))
      removeFrom<Exiv2::IptcData, Exiv2::IptcKey>(changed.iptc, key);
    else
      removeFrom<Exiv2::XmpData, Exiv2::XmpKey>(changed.xmp, key);
    return {};
  });
  if (removed) _properties = std::make_shared<const MetadataProperties>(std::move(changed));
}

int ImageMetadata::orientation() const {
  const auto stated = metadata::guarded("no orientation", [&]() -> Result<std::optional<long>> {
    if (const auto exif = _properties->exif.findKey(Exiv2::ExifKey(orientationKey)); exif != _properties->exif.end())
      return wholeValue(exif->value());
    if (const auto xmp = _properties->xmp.findKey(Exiv2::XmpKey(orientationXmpKey)); xmp != _properties->xmp.end())
      return wholeValue(xmp->value());
    return std::optional<long>();
  });
  const long orientation = stated ? stated.value().value_or(1) : 1;
  return orientation >= 1 && orientation <= 8 ? static_cast<int>(orientation) : 1;
}

ImageMetadata ImageMetadata::forRenderedPixels() const {
  if (isEmpty()) return *this;
  MetadataProperties changed = *_properties;
  const auto rendered = metadata::guarded("no properties", [&]() -> Result<void> {
    setIfPresent(changed.exif, orientationKey, "1");
    setIfPresent(changed.xmp, orientationXmpKey, "1");
    setIfPresent(changed.exif, colorSpaceKey, sRgb);
    setIfPresent(changed.xmp, colorSpaceXmpKey, sRgb);
    // A second, older way to name the colour space.
    removeFrom<Exiv2::ExifData, Exiv2::ExifKey>(changed.exif, colorRuleKey);
    return {};
  });
  return rendered ? ImageMetadata(std::move(changed)) : ImageMetadata();
}

}  // namespace quorvane
