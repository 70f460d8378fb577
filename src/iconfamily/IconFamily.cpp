// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/IconFamily.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "foundation/base/ByteReader.h"
#include "iconfamily/ElementStore.h"
#include "iconfamily/ElementTypes.h"
#include "iconfamily/FamilyImage.h"
#include "iconfamily/IconFamilyInternals.h"
#include "iconfamily/format/IcnsContainer.h"

namespace quorvane {

namespace {

std::optional<Bytes> elementData(const WrittenElement& element, const BitmapImageRep& bitmap) {
  switch (element.data) {
    case ElementData::Argb32:
      return internals::get32BitDataFromBitmapImageRep(bitmap, element.pixels);
    case ElementData::Indexed8:
      return internals::get8BitDataFromBitmapImageRep(bitmap, element.pixels);
    case ElementData::Mask8:
      return internals::get8BitMaskFromBitmapImageRep(bitmap, element.pixels);
    case ElementData::Bit1AndMask:
      return internals::get1BitMaskFromBitmapImageRep(bitmap, element.pixels);
  }
  return std::nullopt;
}

}  // namespace

IconFamily IconFamily::iconFamilyWithIconFamilyHandle(Bytes handle) {
  IconFamily family;
  family.hIconFamily = std::move(handle);
  return family;
}

IconFamily IconFamily::initWithData(ByteView data) {
  return iconFamilyWithIconFamilyHandle(Bytes(data.begin(), data.end()));
}

Result<IconFamily> IconFamily::iconFamilyWithThumbnailsOfImage(const Image& image,
                                                               ImageInterpolation usingImageInterpolation) {
  const auto resampled = internals::resampleImage(image, 512, usingImageInterpolation);
  const auto large = resampled ? resampled->bitmapRepresentation() : std::nullopt;
  if (!large) return Error::invalidInput("the image has no picture to make an icon of");

  IconFamily family;
  const auto store = [&family](const BitmapImageRep& bitmap, std::initializer_list<FourCharCode> types) {
    // The outcome of a single store is not looked at: a family without that element is still of use.
    for (const FourCharCode type : types) (void)family.setIconFamilyElement(type, bitmap);
  };
  store(*large, {"ic09"});
  // Every size is scaled from the 512-pixel bitmap, never from the next larger one.
  const auto scaled = [&](float pixels) {
    return large->bitmapImageRepByScalingToSize({pixels, pixels}, usingImageInterpolation, std::nullopt);
  };
  store(scaled(256), {"ic08"});
  store(scaled(128), {"it32", "t8mk"});
  store(scaled(32), {"il32", "icl8", "l8mk", "ICN#"});
  store(scaled(16), {"is32", "ics8", "s8mk", "ics#"});
  return family;
}

bool IconFamily::setIconFamilyElement(FourCharCode type, const BitmapImageRep& fromBitmapImageRep) {
  const WrittenElement* element = writtenElement(type);
  if (element == nullptr) return false;
  const auto data = elementData(*element, fromBitmapImageRep);
  return data && setIconFamilyData(hIconFamily, type, *data).ok();
}

std::optional<BitmapImageRep> IconFamily::bitmapImageRepWithAlphaForIconFamilyElement(FourCharCode type) const {
  static constexpr FourCharCode decodable[] = {"ic09", "ic08", "it32", "ih32", "il32", "is32"};
  if (std::ranges::find(decodable, type) == std::end(decodable)) return std::nullopt;
  const ElementType& known = *elementType(type);
  auto argb = getIconFamilyData(hIconFamily, type);
  const std::size_t pixels = static_cast<std::size_t>(known.pixelsWide) * static_cast<std::size_t>(known.pixelsHigh);
  if (!argb || argb->size() != 4 * pixels) return std::nullopt;
  if (known.mask) {
    const auto mask = icnsElement(hIconFamily, *known.mask);
    const bool usable = mask && mask->size() >= pixels;
    for (std::size_t i = 0; i < pixels; ++i) {
      std::uint8_t& alpha = (*argb)[4 * i];
      alpha = usable ? static_cast<std::uint8_t>(alpha | (*mask)[i]) : std::uint8_t{255};
    }
  }
  BitmapLayout layout = BitmapLayout::rgba(known.pixelsWide, known.pixelsHigh);
  layout.alphaFirst = true;
  layout.isPremultiplied = false;
  return BitmapImageRep::bitmapImageRepWithLayout(layout, *std::move(argb));
}

std::optional<Bytes> IconFamily::storedElement(FourCharCode type) const {
  const auto data = icnsElement(hIconFamily, type);
  if (!data) return std::nullopt;
  return Bytes(data->begin(), data->end());
}

bool IconFamily::looksLikeFamily(ByteView bytes) {
  return ByteReader(bytes).readCode() == FourCharCode("icns");
}

Result<void> IconFamily::check() const {
  const auto elements = icnsElements(hIconFamily);
  if (!elements) return elements.error();
  // What is left of a cut file: put on a folder, it would show nothing at all.
  if (elements->empty()) return Error::invalidInput("an icon family without a whole element");
  return {};
}

std::optional<Image> IconFamily::imageWithAllReps() const {
  const auto elements = icnsElements(hIconFamily);
  if (!elements) return std::nullopt;
  std::vector<FourCharCode> held;
  for (const IcnsElement& element : *elements) held.push_back(element.type);
  return imageOfElements(held, [bytes = std::make_shared<const Bytes>(hIconFamily)](FourCharCode type) {
    return decodeIconFamilyElement(*bytes, type).toOptional();
  });
}

}  // namespace quorvane
