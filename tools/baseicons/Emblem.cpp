// SPDX-License-Identifier: GPL-3.0-or-later
#include "Emblem.h"

#include <QPainter>
#include <algorithm>

#include "Coverage.h"
#include "svg/PlainSvg.h"

namespace quorvane::baseicons {

namespace {

constexpr int tinySide = 8;

// One of the emblems drawn in whole pixels, out of the text that holds them all.
Result<QImage> tinyEmblem(Sources& sources, const QString& name) {
  const QString file = QStringLiteral("library/emblems-8.txt");
  const QStringList lines = QString::fromUtf8(TRY(sources.read(file))).split(QLatin1Char('\n'));
  const qsizetype first = lines.indexOf(name) + 1;
  if (first == 0 || first + tinySide > lines.size())
    return Error::invalidInput(file.toStdString() + " has no " + name.toStdString());
  QImage result(tinySide, tinySide, QImage::Format_RGBA64_Premultiplied);
  result.fill(Qt::transparent);
  for (int y = 0; y < tinySide; ++y) {
    const QString& line = lines[first + y];
    if (line.size() != tinySide)
      return Error::invalidInput(file.toStdString() + " has a line too short or too long in " + name.toStdString());
    for (int x = 0; x < tinySide; ++x)
      if (line[x] == QLatin1Char('#')) result.setPixelColor(x, y, Qt::black);
  }
  return result;
}

Result<QImage> emblem(Sources& sources, const QString& name, int side) {
  if (side <= tinySide) return tinyEmblem(sources, name);
  QString file = QStringLiteral("emblems/%1-16.svg").arg(name);
  if (side > 16 || !sources.has(file)) file = QStringLiteral("emblems/%1.svg").arg(name);
  QImage drawn = svg::renderPlainSvg(TRY(sources.read(file)), {side, side}, 4);
  if (drawn.isNull()) return Error::invalidInput(file.toStdString() + " cannot be rendered whole");
  return drawn;
}

// Where one thing is and the other is not.
Coverage without(const Coverage& shape, const Coverage& other) {
  Coverage result(shape.side());
  for (int y = 0; y < shape.side(); ++y)
    for (int x = 0; x < shape.side(); ++x) result.set(x, y, shape.at(x, y) * (1 - other.at(x, y)));
  return result;
}

}  // namespace

Result<void> drawEmblem(QPainter& painter, Sources& sources, const IconRow& icon, const EmblemRoom& room, int pixels) {
  const QImage drawn = TRY(emblem(sources, icon.emblem, room.box.width()));
  QImage placed(pixels, pixels, QImage::Format_RGBA64_Premultiplied);
  placed.fill(Qt::transparent);
  QPainter(&placed).drawImage(room.box.topLeft(), drawn);
  const Coverage shape = Coverage::ofAlpha(placed);
  const auto color = [&](double points) {
    return *shade(icon.tone, (points < 0 ? QString() : QStringLiteral("+")) + QString::number(points));
  };

  if (pixels >= 32) {
    // The light comes from above on the left, so the lower right rim of the cut catches it.
    const double rim = std::max(pixels / 170.0, 0.6);
    painter.drawImage(0, 0, without(shape.moved(rim * 0.6, rim), shape).inColor(Qt::white, 0.35));
  }
  // A dark folder has no room for darker.
  const bool isDark = icon.tone.lightness < 50;
  painter.drawImage(0, 0, shape.inColor(color(isDark ? room.depth : -room.depth)));
  if (pixels >= 128) {
    const double depth = pixels / 110.0;
    const Coverage floor = shape.moved(depth * 0.6, depth).blurred(depth * 0.7);
    painter.drawImage(0, 0, without(shape, floor).inColor(color(-32), 0.45));
  }
  return {};
}

}  // namespace quorvane::baseicons
