// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/IconMaker.h"

#include <QCryptographicHash>
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
  words += " " + shortNumber(look.labelCenter.x) + " " + shortNumber(look.labelCenter.y);
  if (look.tint) words += " tint " + colorText(*look.tint);
  const IconOverlay& overlay = look.overlay;
  if (!overlay.hasDrawing()) return words;
  words += " over " + shortNumber(overlay.center.x) + " " + shortNumber(overlay.center.y) + " ";
  if (overlay.color) words += colorText(*overlay.color);
  if (const auto* picture = std::get_if<OverlayPicture>(&overlay.drawing)) {
    const QByteArrayView png(picture->png().data(), static_cast<qsizetype>(picture->png().size()));
    return words + part(QCryptographicHash::hash(png, QCryptographicHash::Sha256).toStdString());
  }
  return words + part(overlayText(overlay.drawing).value_or(""));
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

Result<OverlayPicture> IconMaker::overlay(const BaseReference& reference) {
  return _overlays.get(reference, [&] { return readOverlayPicture(reference); });
}

Result<IconFamily> IconMaker::icon(const Look& look, const Base& base) {
  return _icons.get({wordsOf(look), base.number}, [&]() -> Result<IconFamily> {
    return IconFamily::iconFamilyWithThumbnailsOfImage(TRY(composeIcon(look, base.image)));
  });
}

}  // namespace quorvane
