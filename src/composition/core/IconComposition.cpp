// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/IconComposition.h"

#include "composition/core/LabelGeometry.h"
#include "composition/core/LabelRenderer.h"
#include "composition/core/OverlayRenderer.h"
#include "imaging/Tint.h"

namespace quorvane {

void IconComposition::setCurrentIcon(std::optional<Image> icon) {
  _currentIcon = std::move(icon);
  changed({.displayedImage = !_baseIcon.has_value()});
}

void IconComposition::setBaseIcon(std::optional<Image> icon) {
  _baseIcon = std::move(icon);
  changed({.displayedImage = true});
}

void IconComposition::setTint(std::optional<QColor> tint) {
  _tint = tint;
  changed({.displayedImage = plainPicture().has_value()});
}

void IconComposition::setOverlay(std::optional<IconOverlay> overlay) {
  _overlay = std::move(overlay);
  changed({.overlay = true});
}

std::optional<Image> IconComposition::picture() const {
  const std::optional<Image>& plain = plainPicture();
  if (!plain || !_tint) return plain;
  return _tinted->get({*plain, _tint->rgba()}, [&] { return tinted(*plain, *_tint); });
}

std::optional<Image> IconComposition::displayedImage() const {
  std::optional<Image> image = picture();
  if (image) {
    image->setScalesWhenResized(true);
    image->setSize({canvasSide, canvasSide});
  }
  return image;
}

void IconComposition::setLabel(std::optional<QString> label) {
  _label = std::move(label);
  changed({.label = true});
}

void IconComposition::setColor(std::optional<QColor> color) {
  _color = color;
  changed();
}

void IconComposition::setFont(std::optional<LabelFont> font) {
  _font = std::move(font);
  changed();
}

LabelFont IconComposition::font() const {
  return _font.value_or(systemFont(50));
}

void IconComposition::setFontSize(int size) {
  const bool hadFont = _font.has_value();
  _font = hadFont ? _font->withSize(size) : font();
  changed({.selectedFont = hadFont});
}

void IconComposition::setShadow(std::optional<LabelShadow> shadow) {
  _shadow = std::move(shadow);
  changed();
}

void IconComposition::setLineSpacing(float factor) {
  _lineSpacingFactor = factor;
  changed();
}

void IconComposition::setShearFactor(float factor) {
  _shearFactor = factor;
  changed();
}

void IconComposition::setRotation(float degrees) {
  _rotation = degrees;
  changed();
}

void IconComposition::setOpacity(float fraction) {
  _opacity = fraction;
  changed();
}

Point IconComposition::labelCenter() const {
  return plainPicture() ? scaledLabelCenter(_labelCenter, plainPicture()->size().width) : _labelCenter;
}

void IconComposition::setCanvasLabelCenter(Point center) {
  _labelCenter = center;
  changed();
}

void IconComposition::moveLabelCenter(float deltaX, float deltaY) {
  setCanvasLabelCenter({_labelCenter.x + deltaX, _labelCenter.y + deltaY});
}

void IconComposition::centerLabel() {
  _labelCenter = {canvasSide / 2, canvasSide / 2};
}

void IconComposition::reset() {
  _shearFactor = 0;
  _rotation = 0;
  setBaseIcon(std::nullopt);
}

LabelLook IconComposition::look() const {
  return {.font = _font,
          .color = _color,
          .shadow = _shadow,
          .lineSpacingFactor = _lineSpacingFactor,
          .labelCenter = _labelCenter,
          .shearFactor = _shearFactor,
          .rotation = _rotation,
          .opacity = _opacity};
}

Image IconComposition::composed(const Image& picture) const {
  const Image ground = _overlay ? OverlayRenderer(*_overlay).iconWithBase(picture) : picture;
  return LabelRenderer(look())._iconWithBase(ground, _label);
}

std::optional<Image> IconComposition::iconImage() const {
  const auto image = picture();
  if (!image) return std::nullopt;
  return composed(*image);
}

std::optional<Image> IconComposition::canvasIconImage() const {
  const auto image = displayedImage();
  if (!image) return std::nullopt;
  return composed(*image);
}

void IconComposition::changed(const CompositionChange& change) const {
  if (_listener) _listener(change);
}

}  // namespace quorvane
