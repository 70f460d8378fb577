// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/Look.h"

#include <QFontDatabase>
#include <algorithm>
#include <cmath>

#include "app/core/EffectPresets.h"
#include "composition/core/IconComposition.h"
#include "composition/core/LabelFitting.h"

namespace quorvane {

namespace {

/// The entry of `names` that equals `wanted` whatever the case of its letters; empty when none does.
QString sameName(const QStringList& names, const QString& wanted) {
  for (const QString& name : names)
    if (name.compare(wanted, Qt::CaseInsensitive) == 0) return name;
  return {};
}

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

Result<LabelFont> labelFontNamed(const std::string& name, double size) {
  if (name.empty()) {
    LabelFont font = systemFont(size);
    font.style = sameName(QFontDatabase::styles(font.family), QStringLiteral("Bold"));
    return font;
  }
  const QString wanted = QString::fromStdString(name).simplified();
  const QStringList families = QFontDatabase::families();
  if (const QString family = sameName(families, wanted); !family.isEmpty()) return LabelFont{family, {}, size};
  // The longest beginning that is a family leaves the style: "DejaVu Sans Mono Bold" is no style of "DejaVu Sans".
  for (qsizetype space = wanted.lastIndexOf(u' '); space > 0; space = wanted.lastIndexOf(u' ', space - 1)) {
    const QString family = sameName(families, wanted.left(space));
    if (family.isEmpty()) continue;
    const QString style = sameName(QFontDatabase::styles(family), wanted.mid(space + 1));
    if (!style.isEmpty()) return LabelFont{family, style, size};
    return Error::invalidInput("the font '" + family.toStdString() + "' has no style '" +
                               wanted.mid(space + 1).toStdString() + "'; it has: " +
                               QFontDatabase::styles(family).join(QLatin1String(", ")).toStdString());
  }
  return Error::invalidInput("no font '" + name + "' is installed");
}

Result<Image> composeIcon(const Look& look, const Image& base) {
  IconComposition composition;
  composition.setBaseIcon(base);
  if (!look.label.isNull()) composition.setLabel(look.label);
  composition.setFont(TRY(labelFontNamed(look.fontName, look.fontSize.value_or(largestChosenSize))));
  composition.setLineSpacing(look.lineSpacingFactor);
  if (!look.fontSize && !look.label.isNull())
    composition.setFontSize(static_cast<int>(sizeThatFits(look.label, composition.look())));
  composition.setColor(look.color);
  composition.setShadow(shadowForEffectTag(look.effectTag));
  composition.setCanvasLabelCenter(look.labelCenter);
  composition.setShearFactor(look.shearFactor);
  composition.setRotation(look.rotation);
  composition.setOpacity(look.opacity);
  auto icon = composition.iconImage();
  if (!icon) return Error::broken("nothing was composed");
  return *std::move(icon);
}

}  // namespace quorvane
