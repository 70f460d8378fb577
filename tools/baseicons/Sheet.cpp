// SPDX-License-Identifier: GPL-3.0-or-later
#include "Sheet.h"

#include <QPainter>
#include <algorithm>

namespace quorvane::baseicons {

Result<void> writeSheet(Sources& sources, const std::vector<SetRow>& sets, const std::filesystem::path& out, int pixels,
                        const QStringList& names) {
  std::vector<SetRow> wanted;
  std::size_t columns = 0;
  for (const SetRow& set : sets) {
    if (!names.isEmpty() && !names.contains(set.name)) continue;
    wanted.push_back(set);
    columns = std::max(columns, set.icons.size());
  }
  const int step = pixels + std::max(4, pixels / 8);
  const int width = step * static_cast<int>(columns);
  const int height = step * static_cast<int>(wanted.size());
  QImage sheet(width, 2 * height, QImage::Format_RGB32);
  sheet.fill(QColor(250, 250, 250));
  QPainter painter(&sheet);
  painter.fillRect(0, height, width, height, QColor(36, 36, 38));
  const int margin = (step - pixels) / 2;
  for (std::size_t row = 0; row < wanted.size(); ++row)
    for (std::size_t column = 0; column < wanted[row].icons.size(); ++column) {
      const QImage picture = TRY(drawPicture(sources, wanted[row].icons[column], pixels));
      const QPoint place(static_cast<int>(column) * step + margin, static_cast<int>(row) * step + margin);
      painter.drawImage(place, picture);
      painter.drawImage(place + QPoint(0, height), picture);
    }
  painter.end();
  if (!sheet.save(QString::fromStdString(out.string()), "PNG")) return Error::broken("the sheet cannot be written");
  return {};
}

}  // namespace quorvane::baseicons
