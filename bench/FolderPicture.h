// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include "imaging/BitmapImageRep.h"

namespace quorvane::bench {

/// What the product mostly handles: a folder with soft gradients, a fine paper grain, a soft shadow and label strokes
/// on a transparent ground. Drawn without fonts, so that it is the same picture on every machine.
inline QImage folderPicture(int width) {
  QImage image(width, width, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(width / 512.0, width / 512.0);
  painter.setPen(Qt::NoPen);

  for (int blur = 24; blur > 0; --blur) {
    painter.setBrush(QColor(0, 0, 0, 3));
    painter.drawRoundedRect(QRectF(30 - blur, 110 - blur + 14, 452 + 2 * blur, 330 + 2 * blur), 24 + blur, 24 + blur);
  }
  QLinearGradient back(0, 80, 0, 440);
  back.setColorAt(0, QColor(74, 150, 208));
  back.setColorAt(1, QColor(40, 104, 168));
  painter.setBrush(back);
  painter.drawRoundedRect(QRectF(40, 76, 190, 90), 18, 18);
  painter.drawRoundedRect(QRectF(30, 110, 452, 330), 22, 22);
  QLinearGradient front(0, 150, 0, 440);
  front.setColorAt(0, QColor(134, 202, 244));
  front.setColorAt(0.1, QColor(112, 186, 236));
  front.setColorAt(1, QColor(70, 146, 210));
  painter.setBrush(front);
  painter.drawRoundedRect(QRectF(30, 150, 452, 290), 20, 20);
  QRadialGradient gloss(256, 120, 330);
  gloss.setColorAt(0, QColor(255, 255, 255, 90));
  gloss.setColorAt(1, QColor(255, 255, 255, 0));
  painter.setBrush(gloss);
  painter.drawRoundedRect(QRectF(30, 150, 452, 290), 20, 20);

  QPen stroke(QColor(20, 50, 90), 16, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  painter.setPen(stroke);
  painter.setBrush(Qt::NoBrush);
  for (int letter = 0; letter < 6; ++letter) {
    QPainterPath path;
    const double x = 78 + letter * 62;
    path.moveTo(x, 350);
    path.cubicTo(x + 6, 240 + letter * 9, x + 40, 220, x + 42, 350);
    if (letter % 2 == 0) path.lineTo(x + 8, 306);
    if (letter % 3 == 0) path.addEllipse(QPointF(x + 20, 300), 14, 26);
    painter.drawPath(path);
  }
  painter.end();

  // Grain of one level on the opaque part, as rendered artwork has it; a fixed generator, not a random one.
  unsigned state = 12345;
  for (int y = 0; y < width; ++y) {
    auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < width; ++x) {
      state = state * 1664525U + 1013904223U;
      const int shift = static_cast<int>((state >> 24) % 8 == 0);
      const QRgb pixel = pixels[x];
      if (qAlpha(pixel) == 255)
        pixels[x] = qRgb(qRed(pixel) - (qRed(pixel) > 0 ? shift : 0), qGreen(pixel) - (qGreen(pixel) > 0 ? shift : 0),
                         qBlue(pixel) - (qBlue(pixel) > 0 ? shift : 0));
    }
  }
  return image;
}

inline BitmapImageRep folderBitmap(int width) {
  return *BitmapImageRep::bitmapImageRepWithCGImageRef(folderPicture(width));
}

}  // namespace quorvane::bench
