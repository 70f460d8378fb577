// SPDX-License-Identifier: GPL-3.0-or-later
// emblem_sheet OUT.png [all]: draws the emblems as they are used, for the eye: at 12, 16 and 24 pixels in black on
// white and white on black, at 48 with their names, and tone on tone on folders; "all" puts every one of them on a
// folder and draws them at 256.
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>
#include <cstdio>

namespace {

constexpr int kWidth = 1200;
constexpr QColor kPaper(255, 255, 255);
constexpr QColor kInk(0, 0, 0);

QStringList names() {
  QFile list(QStringLiteral(":/emblems/emblems.json"));
  QStringList result;
  if (!list.open(QIODevice::ReadOnly)) return result;
  for (const QJsonValue& entry : QJsonDocument::fromJson(list.readAll()).array())
    result << entry[QLatin1String("name")].toString();
  return result;
}

QImage rendered(const QString& file, int pixels) {
  QSvgRenderer renderer(file);
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  return image;
}

QImage emblem(const QString& name, int pixels, QColor color) {
  const QString drawn = QStringLiteral(":/emblems/%1-16.svg").arg(name);
  const bool small = pixels >= 14 && pixels <= 18 && QFile::exists(drawn);
  QImage image = rendered(small ? drawn : QStringLiteral(":/emblems/%1.svg").arg(name), pixels);
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(image.rect(), color);
  return image;
}

// Draws all of them in cells from left to right and gives the height that this took.
template <typename DrawCell>
int drawGrid(const QStringList& emblems, QRect area, QSize cell, DrawCell drawCell) {
  const int columns = area.width() / cell.width();
  for (int i = 0; i < emblems.size(); ++i) {
    const QPoint corner(i % columns * cell.width(), i / columns * cell.height());
    drawCell(emblems[i], QRect(area.topLeft() + corner, cell));
  }
  return static_cast<int>((emblems.size() + columns - 1) / columns) * cell.height();
}

QRect centred(QRect cell, int side) {
  return {cell.x() + (cell.width() - side) / 2, cell.y() + (cell.height() - side) / 2, side, side};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: emblem_sheet OUT.png [all]\n");
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  Q_INIT_RESOURCE(emblems);
  const bool all = argc > 2;
  const QStringList emblems = names();

  QImage sheet(kWidth, all ? 9000 : 2000, QImage::Format_RGB32);
  sheet.fill(kPaper);
  QPainter painter(&sheet);
  painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 8));
  int y = 12;
  y += drawGrid(emblems, {0, y, kWidth, 0}, {100, 84}, [&](const QString& name, QRect cell) {
    painter.drawImage(centred(cell.adjusted(0, 0, 0, -20), 48).topLeft(), emblem(name, 48, kInk));
    painter.setPen(QColor(0x60, 0x60, 0x68));
    painter.drawText(cell.adjusted(0, 62, 0, 0), Qt::AlignHCenter, name);
  });

  for (const int pixels : {24, 16, 12}) {
    int taken = 0;
    for (const bool dark : {false, true}) {
      const QRect half(dark ? kWidth / 2 : 0, y, kWidth / 2, 0);
      if (dark) painter.fillRect(half.adjusted(0, 0, 0, taken), QColor(0x16, 0x17, 0x1a));
      taken = drawGrid(emblems, half, {pixels * 3 / 2, pixels * 3 / 2}, [&](const QString& name, QRect cell) {
        painter.drawImage(centred(cell, pixels).topLeft(), emblem(name, pixels, dark ? kPaper : kInk));
      });
    }
    y += taken;
  }

  y += 12;
  const QImage folder = rendered(QStringLiteral(QUORVANE_PICTURES "/folder.svg"), 128);
  y += drawGrid(all ? emblems : emblems.first(16), {8, y, kWidth - 8, 0}, {148, 136},
                [&](const QString& name, QRect cell) {
                  painter.drawImage(centred(cell, 128).topLeft(), folder);
                  const QPoint middle = centred(cell, 56).topLeft() + QPoint(0, 4);
                  painter.drawImage(middle + QPoint(0, 1), emblem(name, 56, QColor(255, 255, 255, 70)));
                  painter.drawImage(middle, emblem(name, 56, QColor(0x2c, 0x52, 0x9c)));
                });
  if (all) {
    y += drawGrid(emblems, {0, y, kWidth, 0}, {300, 272}, [&](const QString& name, QRect cell) {
      painter.drawImage(centred(cell, 256).topLeft(), emblem(name, 256, kInk));
    });
  }
  painter.end();
  if (sheet.copy(0, 0, kWidth, y + 8).save(QString::fromLocal8Bit(argv[1]))) return 0;
  std::fprintf(stderr, "emblem_sheet: cannot write %s\n", argv[1]);
  return 1;
}
