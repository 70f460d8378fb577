// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/LookConversion.h"

#include <algorithm>
#include <cmath>

#include "app/core/EffectPresets.h"
#include "composition/core/LabelFitting.h"

namespace quorvane {

namespace {

// The calm part of a folder's front on the canvas of 128 units, around its middle; and the largest size that is chosen.
constexpr Size frontRoom{104, 68};
constexpr double largestChosenSize = 40;

/// The whole size at which the label fits the room, from 10 up.
double sizeThatFits(const QString& label, const LabelLook& look) {
  // Fitted at ten times the size: the fitting starts from whole multiples of a canvas's width.
  constexpr float scale = 10;
  LabelLook large = look;
  large.font->size = largestChosenSize * scale / std::floor(frontRoom.width * scale / 128);
  const FittedLabel fitted = fitLabel(label, large, {frontRoom.width * scale, frontRoom.height * scale}).label;
  return std::max(std::floor(fitted.attributes.font.size / scale), static_cast<double>(smallestFittedSize));
}

}  // namespace

Result<void> showLook(const Look& look, IconComposition& composition) {
  LabelFont font = TRY(labelFontNamed(look.fontName, look.fontSize.value_or(largestChosenSize)));
  if (!look.fontSize && !look.label.isNull()) {
    LabelLook measured;
    measured.font = font;
    measured.lineSpacingFactor = look.lineSpacingFactor;
    font.size = sizeThatFits(look.label, measured);
  }
  composition.setTint(look.tint);
  composition.setOverlay(look.overlay.hasDrawing() ? std::optional(look.overlay) : std::nullopt);
  composition.setLabel(look.label.isNull() ? std::nullopt : std::optional(look.label));
  composition.setFont(font);
  composition.setLineSpacing(look.lineSpacingFactor);
  composition.setColor(look.color);
  composition.setShadow(shadowForEffectTag(look.effectTag));
  composition.setCanvasLabelCenter(look.labelCenter);
  composition.setShearFactor(look.shearFactor);
  composition.setRotation(look.rotation);
  composition.setOpacity(look.opacity);
  return {};
}

Result<Look> lookOf(const IconComposition& composition) {
  const LabelLook values = composition.look();
  const auto tag = effectTagOfShadow(values.shadow);
  if (!tag) return Error::invalidInput("the label's shadow is none of the effects that a look can hold");
  const LabelFont font = composition.font();
  return Look{.label = composition.label().value_or(QString()),
              .fontName = font.displayName().toStdString(),
              .fontSize = font.size,
              .color = values.color.value_or(QColor(Qt::black)),
              .effectTag = *tag,
              .lineSpacingFactor = values.lineSpacingFactor,
              .labelCenter = values.labelCenter,
              .shearFactor = values.shearFactor,
              .rotation = values.rotation,
              .opacity = values.opacity,
              .tint = composition.tint(),
              .overlay = composition.overlay().value_or(IconOverlay())};
}

}  // namespace quorvane
