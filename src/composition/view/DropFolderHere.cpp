// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/DropFolderHere.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

// A static library's resources are registered by hand, outside any namespace.
static void registerCanvasPictures() {
  Q_INIT_RESOURCE(canvas);
}

namespace quorvane {

namespace {

constexpr float side = 128;

// What the colours in the picture stand for.
constexpr struct {
  const char* inPicture;
  QPalette::ColorRole role;
} roles[] = {{"#6b7280", QPalette::PlaceholderText}, {"#2563eb", QPalette::Highlight}};

std::optional<BitmapImageRep> drawn(const QByteArray& picture, int pixels) {
  QSvgRenderer renderer(picture);
  if (!renderer.isValid()) return std::nullopt;
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  return BitmapImageRep::bitmapImageRepWithCGImageRef(image);
}

}  // namespace

Image dropFolderHereImage(const QPalette& palette) {
  registerCanvasPictures();
  QFile file(QStringLiteral(":/canvas/DropFolderHere.svg"));
  QByteArray picture;
  if (file.open(QIODevice::ReadOnly)) picture = file.readAll();
  for (const auto& [inPicture, role] : roles) {
    // Opaque: the palette's quiet text may be translucent, which a colour of the picture cannot be.
    const QColor over = palette.color(role);
    const QColor under = palette.color(QPalette::Base);
    const auto mix = [&](int a, int b) { return b + (a - b) * over.alpha() / 255; };
    const QColor color(mix(over.red(), under.red()), mix(over.green(), under.green()), mix(over.blue(), under.blue()));
    picture.replace(inPicture, color.name().toLatin1());
  }
  Image image({side, side});
  for (const int pixels : {128, 160, 192, 256, 320, 384, 512, 576, 768})
    image.addRepresentation(
        ImageRep::pending(pixels, pixels, {side, side}, [picture, pixels] { return drawn(picture, pixels); }));
  return image;
}

}  // namespace quorvane
