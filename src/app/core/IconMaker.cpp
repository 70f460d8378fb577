// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/IconMaker.h"

#include <array>
#include <charconv>

#include "app/core/LookValues.h"

namespace quorvane {

namespace {

/// The look in full: no two looks that differ have the same words.
std::string wordsOf(const Look& look) {
  const auto part = [](const std::string& text) { return std::to_string(text.size()) + ":" + text; };
  std::string words = look.label.isNull() ? "-" : part(look.label.toStdString());
  words += part(look.fontName) + part(look.color.name(QColor::HexArgb).toStdString()) + std::to_string(look.effectTag);
  for (const LookNumber& number : lookNumbers()) {
    const auto value = number.get(look);
    words += " " + (value ? shortNumber(*value) : "");
  }
  return words + " " + shortNumber(look.labelCenter.x) + " " + shortNumber(look.labelCenter.y);
}

}  // namespace

Result<IconMaker::Base> IconMaker::base(const BaseReference& reference) {
  return _files.get(reference, [&]() -> Result<Base> { return Base{TRY(readBasePicture(reference)), ++_numbers}; });
}

Result<IconMaker::Base> IconMaker::base(const IconFamily& family,
                                        const std::function<std::optional<Image>()>& otherwise) {
  const auto canvasPicture = [&](std::optional<Image> image) {
    image->setScalesWhenResized(true);
    image->setSize({128, 128});
    return Base{*std::move(image), ++_numbers};
  };
  auto known = _families.get(family.data(), [&]() -> std::optional<Base> {
    auto image = family.imageWithAllReps();
    if (!image || !image->bitmapRepresentation()) return std::nullopt;
    return canvasPicture(std::move(image));
  });
  if (known) return *std::move(known);
  auto image = otherwise();
  if (!image) return Error::invalidInput("its icon holds no picture");
  return canvasPicture(std::move(image));
}

Result<IconFamily> IconMaker::icon(const Look& look, const Base& base) {
  return _icons.get({wordsOf(look), base.number}, [&]() -> Result<IconFamily> {
    return IconFamily::iconFamilyWithThumbnailsOfImage(TRY(composeIcon(look, base.image)));
  });
}

}  // namespace quorvane
