// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ColorText.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvane {
namespace {

constexpr std::pair<QRgb, const char*> names[] = {
    {0xff000000, QT_TRANSLATE_NOOP("ColorNames", "black")}, {0xffffffff, QT_TRANSLATE_NOOP("ColorNames", "white")},
    {0xffff0000, QT_TRANSLATE_NOOP("ColorNames", "red")},   {0xff00ff00, QT_TRANSLATE_NOOP("ColorNames", "green")},
    {0xff0000ff, QT_TRANSLATE_NOOP("ColorNames", "blue")},  {0xffffff00, QT_TRANSLATE_NOOP("ColorNames", "yellow")},
    {0xff00ffff, QT_TRANSLATE_NOOP("ColorNames", "cyan")},  {0xffff00ff, QT_TRANSLATE_NOOP("ColorNames", "magenta")},
    {0xff808080, QT_TRANSLATE_NOOP("ColorNames", "grey")},
};

double luminance(const QColor& color) {
  const auto linear = [](double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  const QColor rgb = color.toRgb();
  return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) + 0.0722 * linear(rgb.blueF());
}

}  // namespace

QString colorText(const QColor& color) {
  QString text = color.name(QColor::HexRgb);
  for (const auto& [rgb, name] : names) {
    if ((color.rgb() | 0xff000000) == rgb) {
      text += QStringLiteral(" (%1)").arg(QCoreApplication::translate("ColorNames", name));
    }
  }
  if (color.alpha() == 255) return text;
  const QString percent = QLocale().toString(static_cast<int>(std::lround(color.alphaF() * 100)));
  return text + QCoreApplication::translate("ColorNames", ", %1% opaque").arg(percent);
}

double contrastRatio(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace quorvane
