// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

#include "composition/view/FolderView.h"
#include "support/Bitmaps.h"

namespace quorvane {

/// A picture of 128 x 128 points and 512 pixels a side, of one opaque colour save for a brighter quarter at the top
/// left.
inline Image bluePicture() {
  BitmapImageRep bitmap = test::filledBitmap(512, 512, {20, 40, 120, 255});
  for (int y = 0; y < 256; ++y)
    for (int x = 0; x < 256; ++x) bitmap.mutableRow(y)[4 * x + 1] = 200;
  bitmap.setSize({128, 128});
  return Image::imageWithBitmapImageRep(bitmap);
}

/// A label in the middle of a picture, in a font that is there.
inline void showLabel(FolderView& view, const QString& text = QStringLiteral("Label")) {
  view.setCurrentIcon(bluePicture());
  view.setLabel(text);
  view.setFont(LabelFont{QStringLiteral("DejaVu Sans"), {}, 30});
  view.setColor(QColor(Qt::white));
  view.setCanvasLabelCenter({64, 64});
}

/// What the widget draws on a screen of that density.
inline QImage drawn(QWidget& widget, double density) {
  QImage image(widget.size() * density, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(density);
  image.fill(Qt::transparent);
  widget.render(&image, {}, {}, QWidget::DrawChildren);
  image.setDevicePixelRatio(1);
  return image;
}

/// Largest difference of a channel between two pictures of the same size; 256 when the sizes differ.
inline int largestDifference(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return 256;
  int largest = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
      for (const int shift : {0, 8, 16, 24})
        largest = std::max(largest, std::abs(int(one >> shift & 0xFF) - int(other >> shift & 0xFF)));
    }
  }
  return largest;
}

}  // namespace quorvane
