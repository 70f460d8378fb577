// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/ElementStore.h"

#include <algorithm>
#include <array>
#include <string>

#include "iconfamily/ElementTypes.h"
#include "iconfamily/format/ColorTables.h"
#include "iconfamily/format/IcnsContainer.h"
#include "iconfamily/format/PackedChannels.h"
#include "imaging/Jpeg2000.h"
#include "imaging/PngCodec.h"

namespace quorvane {

namespace {

// Bytes of a type's element that precede the packed channels; always zero when written.
constexpr std::size_t widePrefix = 4;

std::size_t pixelCount(const ElementType& type) {
  return static_cast<std::size_t>(type.pixelsWide) * static_cast<std::size_t>(type.pixelsHigh);
}

BitmapLayout rgbaLayout(int wide, int high) {
  BitmapLayout layout = BitmapLayout::rgba(wide, high);
  layout.isPremultiplied = false;
  return layout;
}

Result<BitmapImageRep> bitmapOf(const ElementType& type, Bytes rgba) {
  auto bitmap =
      BitmapImageRep::bitmapImageRepWithLayout(rgbaLayout(type.pixelsWide, type.pixelsHigh), std::move(rgba));
  if (!bitmap) return Error::broken("element pixels do not fill a bitmap");
  return *std::move(bitmap);
}

Error wrongData(const ElementType& type, const std::string& why) {
  return Error::invalidInput("element '" + type.type.toDisplayText() + "' " + why);
}

Result<BitmapImageRep> decodePicture(const ElementType& type, ByteView data) {
  const int largest = std::max(type.pixelsWide, type.pixelsHigh);
  if (!isPng(data) && !isJpeg2000(data)) return wrongData(type, "holds neither PNG nor JPEG 2000");
  BitmapImageRep picture = isPng(data) ? TRY(decodePng(data, largest)) : TRY(decodeJpeg2000(data, largest));
  if (picture.pixelsWide() != type.pixelsWide || picture.pixelsHigh() != type.pixelsHigh)
    return wrongData(type, "holds a picture of " + std::to_string(picture.pixelsWide()) + " x " +
                               std::to_string(picture.pixelsHigh()) + " pixels");
  return picture;
}

bool isPicture(ByteView data) { return isPng(data) || isJpeg2000(data); }

Bytes rgbaFromArgb(ByteView argb) {
  Bytes rgba(argb.size());
  for (std::size_t i = 0; i + 3 < argb.size(); i += 4) {
    rgba[i] = argb[i + 1];
    rgba[i + 1] = argb[i + 2];
    rgba[i + 2] = argb[i + 3];
    rgba[i + 3] = argb[i];
  }
  return rgba;
}

/// The bitmap's pixels without row padding, alpha first.
Bytes argbOf(const BitmapImageRep& bitmap) {
  Bytes argb;
  const auto wide = static_cast<std::size_t>(bitmap.pixelsWide());
  argb.reserve(wide * static_cast<std::size_t>(bitmap.pixelsHigh()) * 4);
  for (int y = 0; y < bitmap.pixelsHigh(); ++y) {
    const std::uint8_t* row = bitmap.row(y);
    for (std::size_t x = 0; x < wide; ++x)
      argb.insert(argb.end(), {row[4 * x + 3], row[4 * x], row[4 * x + 1], row[4 * x + 2]});
  }
  return argb;
}

ByteView withoutWidePrefix(ByteView data) {
  // Readers differ on data without the four bytes; real files always have them, as zeros.
  const bool hasPrefix =
      data.size() >= widePrefix && std::all_of(data.begin(), data.begin() + widePrefix, [](auto byte) { return byte == 0; });
  return hasPrefix ? data.subspan(widePrefix) : data;
}

/// Packed colour as alpha, red, green, blue with alpha 0.
Result<Bytes> unpackedColor(const ElementType& type, ByteView data) {
  return unpackColorChannels(type.form == ElementForm::Packed24Wide ? withoutWidePrefix(data) : data, pixelCount(type));
}

bool bitAt(ByteView bits, std::size_t index) { return (bits[index / 8] >> (7 - index % 8) & 1) != 0; }

/// Puts the alpha of the mask element, 8-bit or the second half of a 1-bit one, into RGBA pixels; opaque without one.
void applyMask(ByteView family, const ElementType& type, Bytes& rgba) {
  const std::size_t pixels = pixelCount(type);
  const ElementType* maskType = type.mask ? elementType(*type.mask) : nullptr;
  const auto mask = maskType != nullptr ? icnsElement(family, maskType->type) : std::nullopt;
  const bool isBits = maskType != nullptr && maskType->form == ElementForm::Bit1AndMask;
  const bool usable = mask && mask->size() >= (isBits ? pixels / 4 : pixels);
  for (std::size_t i = 0; i < pixels; ++i) {
    std::uint8_t alpha = 255;
    if (usable) alpha = !isBits ? (*mask)[i] : bitAt(mask->subspan(pixels / 8), i) ? 255 : 0;
    rgba[4 * i + 3] = alpha;
  }
}

Result<BitmapImageRep> decodePacked(ByteView family, const ElementType& type, ByteView data) {
  Bytes rgba = rgbaFromArgb(TRY(unpackedColor(type, data)));
  applyMask(family, type, rgba);
  return bitmapOf(type, std::move(rgba));
}

Result<BitmapImageRep> decodeArgb(const ElementType& type, ByteView data) {
  constexpr std::array<std::uint8_t, 4> letters{'A', 'R', 'G', 'B'};
  if (data.size() < letters.size() || !std::equal(letters.begin(), letters.end(), data.begin()))
    return wrongData(type, "holds neither ARGB, PNG nor JPEG 2000");
  return bitmapOf(type, rgbaFromArgb(TRY(unpackArgbChannels(data.subspan(letters.size()), pixelCount(type)))));
}

Result<BitmapImageRep> decodeIndexed(ByteView family, const ElementType& type, ByteView data) {
  const std::size_t pixels = pixelCount(type);
  const bool isWide = type.form == ElementForm::Indexed8;
  if (data.size() < (isWide ? pixels : pixels / 2)) return wrongData(type, "is too short");
  Bytes rgba(pixels * 4);
  for (std::size_t i = 0; i < pixels; ++i) {
    const Rgb color = isWide ? systemColorTable()[data[i]]
                             : smallColorTable()[i % 2 == 0 ? data[i / 2] >> 4 : data[i / 2] & 0x0F];
    rgba[4 * i] = color.red;
    rgba[4 * i + 1] = color.green;
    rgba[4 * i + 2] = color.blue;
  }
  applyMask(family, type, rgba);
  return bitmapOf(type, std::move(rgba));
}

Result<BitmapImageRep> decodeBits(const ElementType& type, ByteView data) {
  const std::size_t pixels = pixelCount(type);
  const bool hasMask = type.form == ElementForm::Bit1AndMask;
  if (data.size() < (hasMask ? pixels / 4 : pixels / 8)) return wrongData(type, "is too short");
  Bytes rgba(pixels * 4);
  for (std::size_t i = 0; i < pixels; ++i) {
    const std::uint8_t level = bitAt(data, i) ? 0 : 255;
    std::fill_n(rgba.begin() + static_cast<std::ptrdiff_t>(4 * i), 3, level);
    rgba[4 * i + 3] = !hasMask || bitAt(data.subspan(pixels / 8), i) ? 255 : 0;
  }
  return bitmapOf(type, std::move(rgba));
}

std::size_t unpackedSize(const WrittenElement& element) {
  const auto pixels = static_cast<std::size_t>(element.pixels) * static_cast<std::size_t>(element.pixels);
  switch (element.data) {
    case ElementData::Argb32:
      return pixels * 4;
    case ElementData::Indexed8:
    case ElementData::Mask8:
      return pixels;
    case ElementData::Bit1AndMask:
      return pixels / 4;
  }
  return 0;
}

}  // namespace

Result<void> setIconFamilyData(Bytes& family, FourCharCode type, ByteView data) {
  const WrittenElement* element = writtenElement(type);
  if (element != nullptr && data.size() != unpackedSize(*element))
    return Error::broken("element '" + type.toDisplayText() + "' was given " + std::to_string(data.size()) + " bytes");
  if (element == nullptr || element->data != ElementData::Argb32) return setIcnsElement(family, type, data);

  if (elementType(type)->form == ElementForm::Picture) {
    const BitmapImageRep bitmap = TRY(bitmapOf(*elementType(type), rgbaFromArgb(data)));
    return setIcnsElement(family, type, TRY(encodePng(bitmap)));
  }
  Bytes packed = packColorChannels(data);
  if (elementType(type)->form == ElementForm::Packed24Wide) packed.insert(packed.begin(), widePrefix, 0);
  return setIcnsElement(family, type, packed);
}

Result<Bytes> getIconFamilyData(ByteView family, FourCharCode type) {
  const auto data = icnsElement(family, type);
  if (!data) return Error(ErrorKind::NotFound, "there is no element '" + type.toDisplayText() + "'");
  const ElementType* known = elementType(type);
  const bool isColor = known != nullptr && (known->form == ElementForm::Packed24 ||
                                            known->form == ElementForm::Packed24Wide || known->form == ElementForm::Picture);
  if (!isColor) return Bytes(data->begin(), data->end());
  if (known->form == ElementForm::Picture || isPicture(*data)) return argbOf(TRY(decodePicture(*known, *data)));
  return unpackedColor(*known, *data);
}

Result<BitmapImageRep> decodeIconFamilyElement(ByteView family, FourCharCode type) {
  const ElementType* known = elementType(type);
  if (known == nullptr || !known->isPicture())
    return Error::invalidInput("'" + type.toDisplayText() + "' is not the type of a picture");
  const auto data = icnsElement(family, type);
  if (!data) return Error(ErrorKind::NotFound, "there is no element '" + type.toDisplayText() + "'");
  switch (known->form) {
    case ElementForm::Picture:
      return decodePicture(*known, *data);
    case ElementForm::Packed24:
    case ElementForm::Packed24Wide:
    case ElementForm::PackedOrPicture:
      // Recent systems also put PNG or JPEG 2000 into the slots of packed colour.
      return isPicture(*data) ? decodePicture(*known, *data) : decodePacked(family, *known, *data);
    case ElementForm::ArgbOrPicture:
      return isPicture(*data) ? decodePicture(*known, *data) : decodeArgb(*known, *data);
    case ElementForm::Indexed8:
    case ElementForm::Indexed4:
      return decodeIndexed(family, *known, *data);
    case ElementForm::Bit1:
    case ElementForm::Bit1AndMask:
      return decodeBits(*known, *data);
    case ElementForm::Mask8:
      break;
  }
  return Error::broken("an element form is not handled");
}

}  // namespace quorvane
