// SPDX-License-Identifier: GPL-3.0-or-later
#include "Emblem.h"

#include <QPainter>

#include "Coverage.h"
#include "svg/PlainSvg.h"

namespace quorvane::baseicons {

namespace {

// Points of lightness between the emblem and the folder's colour. Small pictures need more to be told at all.
double contrast(int pixels) {
  return pixels >= 128 ? 12 : pixels >= 32 ? 24 : 30;
}

QString wish(double points) {
  return (points < 0 ? QString() : QStringLiteral("+")) + QString::number(points);
}

}  // namespace

Result<void> drawEmblem(QPainter& painter, Sources& sources, const IconRow& icon, QRect box, int pixels) {
  QString file = QStringLiteral("emblems/%1-16.svg").arg(icon.emblem);
  if (box.width() > 16 || !sources.has(file)) file = QStringLiteral("emblems/%1.svg").arg(icon.emblem);
  const QByteArray glyph = TRY(sources.read(file));
  const QImage drawn = svg::renderPlainSvg(glyph, box.size(), 4);
  if (drawn.isNull()) return Error::invalidInput(file.toStdString() + " cannot be rendered whole");
  QImage placed(pixels, pixels, QImage::Format_RGBA64_Premultiplied);
  placed.fill(Qt::transparent);
  QPainter(&placed).drawImage(box.topLeft(), drawn);
  const Coverage shape = Coverage::ofAlpha(placed);

  // A dark folder has no room for darker.
  const double sign = icon.tone.lightness < 50 ? 1 : -1;
  const auto color = [&](double points) { return *shade(icon.tone, wish(points)); };
  if (pixels >= 32) {
    // The light comes from above on the left, so the lower right rim of the cut catches it.
    const double rim = std::max(pixels / 170.0, 0.6);
    Coverage light = shape.moved(rim * 0.6, rim);
    for (int y = 0; y < pixels; ++y)
      for (int x = 0; x < pixels; ++x) light.set(x, y, light.at(x, y) * (1 - shape.at(x, y)));
    painter.drawImage(0, 0, light.inColor(Qt::white, 0.4));
  }
  painter.drawImage(0, 0, shape.inColor(color(sign * contrast(pixels))));
  if (pixels >= 128) {
    const double depth = pixels / 110.0;
    const Coverage floor = shape.moved(depth * 0.6, depth).blurred(depth * 0.7);
    Coverage dark(pixels);
    for (int y = 0; y < pixels; ++y)
      for (int x = 0; x < pixels; ++x) dark.set(x, y, shape.at(x, y) * (1 - floor.at(x, y)));
    painter.drawImage(0, 0, dark.inColor(color(-34), 0.55));
  }
  return {};
}

}  // namespace quorvane::baseicons
