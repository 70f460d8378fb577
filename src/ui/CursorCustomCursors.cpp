// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/CursorCustomCursors.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <cmath>

#include "ui/WindowResources.h"

namespace quorvane {
namespace {

constexpr int side = 16;
constexpr int hotSpot = 8;

QCursor cursorNamed(const char* name) {
  QSvgRenderer drawing(windowResource(QStringLiteral("cursors/") + QLatin1String(name) + QLatin1String(".svg")));
  const double ratio = std::ceil(qGuiApp->devicePixelRatio());
  const int pixels = static_cast<int>(side * ratio);
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  drawing.render(&painter, QRectF(0, 0, pixels, pixels));
  painter.end();
  image.setDevicePixelRatio(ratio);
  return QCursor(QPixmap::fromImage(image), hotSpot, hotSpot);
}

// Never destroyed, on purpose: a cursor must not be taken down after the application object.
const QCursor& kept(QCursor* cursor) {
  return *cursor;
}

}  // namespace

const QCursor& crossCursor() {
  static const QCursor& cursor = kept(new QCursor(cursorNamed("cursor_cross")));
  return cursor;
}

const QCursor& moveCursor() {
  static const QCursor& cursor = kept(new QCursor(cursorNamed("cursor_move")));
  return cursor;
}

const QCursor& hvOpenHandCursor() {
  static const QCursor& cursor = kept(new QCursor(cursorNamed("cursor_open_hand")));
  return cursor;
}

const QCursor& hvClosedHandCursor() {
  static const QCursor& cursor = kept(new QCursor(cursorNamed("cursor_closed_hand")));
  return cursor;
}

const QCursor& diagUpCursor() {
  static const QCursor& cursor = kept(new QCursor(cursorNamed("cursor_diag_up")));
  return cursor;
}

const QCursor& diagDownCursor() {
  static const QCursor& cursor = kept(new QCursor(cursorNamed("cursor_diag_down")));
  return cursor;
}

}  // namespace quorvane
