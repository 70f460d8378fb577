// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/MetadataBorder.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "foundation/base/ByteReader.h"
#include "foundation/base/FourCharCode.h"
#include "foundation/base/Limits.h"
#include "imaging/TiffDirectories.h"

namespace quorvane::metadata {

namespace {

/// Tags of a TIFF file's directory about its pixels: sizes, strips and tiles, compression, colours, and the blocks that
/// are kept as properties of another kind.
constexpr std::array<std::pair<std::uint16_t, std::uint16_t>, 16> pixelTags{{{0x00FE, 0x010A},
                                                                             {0x0111, 0x0111},
                                                                             {0x0115, 0x0119},
                                                                             {0x011C, 0x0125},
                                                                             {0x0129, 0x0129},
                                                                             {0x012D, 0x012D},
                                                                             {0x013D, 0x0145},
                                                                             {0x014A, 0x014A},
                                                                             {0x0152, 0x015B},
                                                                             {0x0200, 0x0214},
                                                                             {0x02BC, 0x02BC},
                                                                             {0x83BB, 0x83BB},
                                                                             {0x8649, 0x8649},
                                                                             {0x8769, 0x8769},
                                                                             {0x8773, 0x8773},
                                                                             {0x8825, 0x8825}}};

constexpr std::array<std::string_view, 4> pixelGroups{"Thumbnail", "Image2", "Image3", "PanasonicRaw"};

/// Of groups whose other properties are welcome: places in the file, and what only fills room.
constexpr std::array<std::string_view, 3> pixelKeys{"Exif.Photo.InteroperabilityTag", "Exif.MakerNote.Offset",
                                                    "Exif.Photo.0xea1c"};

constexpr std::array<std::string_view, 16> pixelXmp{"Xmp.tiff.ImageWidth",
                                                    "Xmp.tiff.ImageLength",
                                                    "Xmp.tiff.BitsPerSample",
                                                    "Xmp.tiff.Compression",
                                                    "Xmp.tiff.PhotometricInterpretation",
                                                    "Xmp.tiff.SamplesPerPixel",
                                                    "Xmp.tiff.PlanarConfiguration",
                                                    "Xmp.tiff.YCbCrSubSampling",
                                                    "Xmp.tiff.YCbCrPositioning",
                                                    "Xmp.tiff.YCbCrCoefficients",
                                                    "Xmp.tiff.TransferFunction",
                                                    "Xmp.tiff.WhitePoint",
                                                    "Xmp.tiff.PrimaryChromaticities",
                                                    "Xmp.exif.PixelXDimension",
                                                    "Xmp.exif.PixelYDimension",
                                                    "Xmp.xmp.Thumbnails"};

Result<void> checkPngText(ByteView png) {
  ByteReader reader(png);
  std::uint64_t total = 0;
  if (!reader.skip(8)) return {};
  while (const auto length = reader.readU32()) {
    const auto type = reader.readCode();
    if (!type) break;
    const bool isText = *type == FourCharCode("tEXt") || *type == FourCharCode("zTXt") ||
                        *type == FourCharCode("iTXt") || *type == FourCharCode("eXIf");
    if (isText) total += *length;
    if (total > limits::metadataBytes) return Error::tooLarge("the metadata of a picture");
    if (!reader.skip(std::size_t{*length} + 4)) break;
  }
  return {};
}

}  // namespace

std::unique_lock<std::mutex> enter() {
  static std::mutex mutex;
  std::unique_lock lock(mutex);
  static const bool isReady = [] {
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    return Exiv2::XmpParser::initialize();
  }();
  (void)isReady;  // without it there are no XMP properties, which the library says itself
  return lock;
}

Result<std::unique_ptr<Exiv2::Image>> openPicture(ByteView bytes) {
  const Error notThese = Error::invalidInput("no JPEG, PNG or TIFF picture");
  if (bytes.size() > limits::pictureFileBytes) return Error::tooLarge("a picture file");
  // The library's count of bytes is a long.
  const auto size = static_cast<long>(bytes.size());
  const int type = bytes.empty() ? Exiv2::ImageType::none : Exiv2::ImageFactory::getType(bytes.data(), size);
  if (type != Exiv2::ImageType::jpeg && type != Exiv2::ImageType::png && type != Exiv2::ImageType::tiff)
    return notThese;
  if (type == Exiv2::ImageType::png) TRY_VOID(checkPngText(bytes));
  if (type == Exiv2::ImageType::tiff && !TRY(checkTiffDirectories(bytes)).empty())
    return Error(ErrorKind::Unsupported, "a TIFF picture with a camera maker's own block");
  std::unique_ptr<Exiv2::Image> picture(Exiv2::ImageFactory::open(bytes.data(), size).release());
  if (!picture || !picture->good()) return notThese;
  picture->readMetadata();
  return picture;
}

bool describesPixels(const Exiv2::Exifdatum& property) {
  const std::string group = property.groupName();
  if (group == "Image")
    return std::ranges::any_of(
        pixelTags, [tag = property.tag()](const auto& range) { return tag >= range.first && tag <= range.second; });
  return group.starts_with("SubImage") || group.starts_with("SubThumb") ||
         std::ranges::find(pixelGroups, group) != pixelGroups.end() ||
         std::ranges::find(pixelKeys, property.key()) != pixelKeys.end();
}

bool describesPixels(const Exiv2::Xmpdatum& property) {
  const std::string key = property.key();
  // Parts of lists and structures have longer keys.
  return std::ranges::any_of(pixelXmp, [&key](std::string_view name) {
    return key.starts_with(name) && (key.size() == name.size() || key[name.size()] == '[' || key[name.size()] == '/');
  });
}

}  // namespace quorvane::metadata
