// SPDX-License-Identifier: GPL-3.0-or-later
// tint_sheet OUT.png PICTURE...: each picture as it is and in every colour of a sheet, on a light and a dark ground.
#include <QColor>
#include <QGuiApplication>
#include <QPainter>
#include <array>
#include <cstdio>

#include "imaging/Tint.h"

int main(int argc, char** argv) {
  using namespace quorvane;
  const QGuiApplication application(argc, argv);
  if (argc < 3) return 2;
  constexpr int side = 96;
  constexpr int gap = 8;
  const std::array<const char*, 13> tints{"",        "#e5484d", "#f76808", "#f5c518", "#46a758", "#12a594", "#0091ff",
                                          "#6e56cf", "#e93d82", "#8d6e63", "#ffd1dc", "#39ff14", "#808080"};
  const std::array<const char*, 4> ends{"#000000", "#ffffff", "#1b2a4a", "#ffff00"};
  const int columns = static_cast<int>(tints.size() + ends.size());
  QImage sheet(columns * (side + gap) + gap, (argc - 2) * (side + gap) + gap, QImage::Format_RGB32);
  sheet.fill(QColor(250, 250, 250));
  QPainter painter(&sheet);
  painter.fillRect(0, 0, sheet.width(), sheet.height(), QColor(246, 246, 247));
  for (int row = 0; row < argc - 2; ++row) {
    if (row % 2 == 1) painter.fillRect(0, row * (side + gap), sheet.width(), side + gap, QColor(36, 38, 41));
    const auto image = Image::imageWithContentsOfFile(argv[row + 2]);
    if (!image) {
      std::fprintf(stderr, "%s\n", image.error().message().c_str());
      continue;
    }
    for (int column = 0; column < columns; ++column) {
      const auto at = static_cast<std::size_t>(column);
      const char* name = at < tints.size() ? tints[at] : ends[at - tints.size()];
      const Image shown = *name == '\0' ? *image : tinted(*image, QColor(QLatin1String(name)));
      const int x = gap + column * (side + gap);
      const int y = gap / 2 + row * (side + gap);
      painter.drawImage(x, y, shown.rendered(side, side).toImage());
      if (*name != '\0') painter.fillRect(x, y + side, side, 4, QColor(QLatin1String(name)));
    }
  }
  painter.end();
  return sheet.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
