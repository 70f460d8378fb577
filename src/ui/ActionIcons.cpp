// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ActionIcons.h"

#include <QDir>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "ui/WindowResources.h"

namespace quorvane {
namespace {

/// The colour that the drawings are drawn in.
constexpr const char* drawnColor = "#000000";

class ActionIconEngine : public QIconEngine {
 public:
  ActionIconEngine(QString name, QByteArray drawing, QPalette::ColorRole role)
      : _name(std::move(name)), _drawing(std::move(drawing)), _role(role) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1;
    QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
    picture.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect, picture);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const QColor color = _color(mode);
    const QString key =
        QStringLiteral("action/%1/%2x%3/%4").arg(_name).arg(size.width()).arg(size.height()).arg(color.rgba(), 0, 16);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(QByteArray(_drawing).replace(drawnColor, color.name(QColor::HexRgb).toLatin1()));
    QPainter painter(&image);
    const int side = std::min(image.width(), image.height());
    painter.setOpacity(color.alphaF());
    renderer.render(&painter, QRectF((image.width() - side) / 2, (image.height() - side) / 2, side, side));
    painter.end();
    picture = QPixmap::fromImage(image);
    QPixmapCache::insert(key, picture);
    return picture;
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
    return pixmap(size, mode, state);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new ActionIconEngine(*this); }
  QString key() const override { return QStringLiteral("quorvane-action"); }
  QString iconName() override { return _name; }
  bool isNull() override { return false; }

 private:
  [[nodiscard]] QColor _color(QIcon::Mode mode) const {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, _role);
    // The toolkit calls a button with the keys active, and the item of a menu that is lit.
    const bool isLit = mode == QIcon::Selected || (mode == QIcon::Active && _role == QPalette::Text);
    return palette.color(QPalette::Active, isLit ? QPalette::HighlightedText : _role);
  }

  QString _name;
  QByteArray _drawing;
  QPalette::ColorRole _role;
};

}  // namespace

QIcon actionIcon(const QString& name, QPalette::ColorRole role) {
  QByteArray drawing = windowResource(QStringLiteral("actions/") + name + QLatin1String(".svg"));
  return drawing.isEmpty() ? QIcon() : QIcon(new ActionIconEngine(name, std::move(drawing), role));
}

QStringList actionIconNames() {
  windowResource({});  // the folder is there once the resources are
  QStringList names = QDir(QStringLiteral(":/actions")).entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
  for (QString& name : names) name.chop(4);
  // The style sheet's own, in fixed colours.
  names.removeIf([](const QString& name) {
    return name.startsWith(QLatin1String("chevron-")) || name.startsWith(QLatin1String("tick-"));
  });
  return names;
}

}  // namespace quorvane
