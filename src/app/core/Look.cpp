// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/Look.h"

#include <QFontDatabase>

#include "app/core/LookConversion.h"
#include "composition/core/IconComposition.h"

namespace quorvane {

namespace {

/// The entry of `names` that equals `wanted` whatever the case of its letters; empty when none does.
QString sameName(const QStringList& names, const QString& wanted) {
  for (const QString& name : names)
    if (name.compare(wanted, Qt::CaseInsensitive) == 0) return name;
  return {};
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
                               wanted.mid(space + 1).toStdString() +
                               "'; it has: " + QFontDatabase::styles(family).join(QLatin1String(", ")).toStdString());
  }
  return Error::invalidInput("no font '" + name + "' is installed");
}

Result<Image> composeIcon(const Look& look, const Image& base) {
  IconComposition composition;
  composition.setBaseIcon(base);
  TRY_VOID(showLook(look, composition));
  auto icon = composition.iconImage();
  if (!icon) return Error::broken("nothing was composed");
  return *std::move(icon);
}

}  // namespace quorvane
