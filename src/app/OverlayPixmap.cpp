// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OverlayPixmap.h"

#include <QPainter>

#include "composition/core/OverlayRenderer.h"

namespace quorvane {

QPixmap overlayPixmap(const OverlayDrawing& drawing, int side, const QColor& color, double density) {
  IconOverlay overlay;
  overlay.drawing = drawing;
  overlay.center = {canvasSide / 2, canvasSide / 2};
  overlay.size = canvasSide;
  const int pixels = qRound(side * density);
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  const auto width = static_cast<float>(pixels);
  const LabelLayer layer =
      OverlayRenderer(overlay).layer(width, QTransform(1, 0, 0, -1, 0, pixels), image.rect(), color);
  if (QPainter painter(&image); !layer.pixels.isNull()) painter.drawImage(layer.topLeft, layer.pixels);
  image.setDevicePixelRatio(density);
  return QPixmap::fromImage(image);
}

}  // namespace quorvane
