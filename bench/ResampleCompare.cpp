// SPDX-License-Identifier: GPL-3.0-or-later
// ResampleCompare FOLDER
//
// Shows which kernel draws icons best: a test picture (text, lines of one pixel, a zone plate, soft and hard edges) is
// shrunk and grown with each of ours and with the drawing library's two ways. Prints, for each, the PSNR in decibels of
// the premultiplied samples against two filters of ImageMagick, and how far the result leaves the range of the source
// pixels under it (ringing: mean over all samples, in levels). Writes every result and an enlarged sheet into FOLDER.
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QProcess>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <numbers>

#include "FolderPicture.h"
#include "imaging/Resampler.h"

namespace quorvane::bench {
namespace {

QImage testPicture() {
  QImage image = folderPicture(512);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  // A zone plate: rings that get finer outwards, where aliasing shows as new rings.
  for (int y = 0; y < 200; ++y)
    for (int x = 0; x < 200; ++x) {
      const double squared = (x - 100.0) * (x - 100.0) + (y - 100.0) * (y - 100.0);
      if (squared > 9800) continue;
      const int value = static_cast<int>(std::lround(127.5 + 127.5 * std::cos(squared * std::numbers::pi / 256)));
      image.setPixelColor(x + 300, y + 4, QColor(value, value, value));
    }
  painter.setRenderHint(QPainter::Antialiasing, false);
  for (int i = 0; i < 16; ++i) {
    painter.fillRect(8 + i * 12, 8, 1, 60, i % 2 == 0 ? Qt::black : Qt::white);
    painter.fillRect(220, 8 + i * 5, 70, 1, Qt::darkRed);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(60);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRect(30, 340, 452, 100), Qt::AlignCenter, QStringLiteral("Invoices"));
  font.setPixelSize(15);
  painter.setFont(font);
  painter.setPen(Qt::black);
  painter.drawText(QRect(30, 150, 452, 40), Qt::AlignCenter,
                   QStringLiteral("small print 0123456789 the quick brown fox"));
  return image;
}

QImage withOurs(const QImage& source, int width, ResampleKernel kernel) {
  const auto bitmap = BitmapImageRep::bitmapImageRepWithCGImageRef(source);
  auto target = BitmapImageRep::bitmapImageRepWithSize({static_cast<float>(width), static_cast<float>(width)});
  drawResampled(*bitmap, target, {0, 0, static_cast<double>(width), static_cast<double>(width)}, kernel);
  return target.toImage();
}

QImage withPainter(const QImage& source, int width) {
  QImage target(width, width, QImage::Format_ARGB32_Premultiplied);
  target.fill(Qt::transparent);
  QPainter painter(&target);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRect(0, 0, width, width), source);
  return target;
}

QImage withScaled(const QImage& source, int width) {
  return source.scaled(width, width, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Null when the tool is not installed. A folder of scripts may hold another program under the plain name.
QImage withImageMagick(const QString& sourceFile, const QString& targetFile, int width, const char* filter) {
  const QString size = QStringLiteral("%1x%1!").arg(width);
  for (const char* tool : {"convert-im6.q16", "convert"}) {
    QProcess process;
    process.start(QLatin1String(tool), {sourceFile, QStringLiteral("-filter"), QLatin1String(filter),
                                        QStringLiteral("-resize"), size, QStringLiteral("PNG32:") + targetFile});
    if (process.waitForFinished() && process.exitCode() == 0)
      return QImage(targetFile).convertToFormat(QImage::Format_ARGB32_Premultiplied);
  }
  return {};
}

double decibels(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int i = 0; i < a.width() * 4; ++i) {
      const double difference = a.constScanLine(y)[i] - b.constScanLine(y)[i];
      sum += difference * difference;
    }
  const double mean = sum / (4.0 * a.width() * a.height());
  return mean == 0 ? 99 : 10 * std::log10(255 * 255 / mean);
}

double ringing(const QImage& source, const QImage& result) {
  const double scale = static_cast<double>(source.width()) / result.width();
  const int reach = static_cast<int>(std::ceil(std::max(scale, 1.0)));
  double sum = 0;
  for (int y = 0; y < result.height(); ++y)
    for (int x = 0; x < result.width(); ++x)
      for (int channel = 0; channel < 4; ++channel) {
        int low = 255;
        int high = 0;
        const int left = static_cast<int>((x + 0.5) * scale) - reach;
        const int top = static_cast<int>((y + 0.5) * scale) - reach;
        for (int v = std::max(top, 0); v <= std::min(top + 2 * reach, source.height() - 1); ++v)
          for (int u = std::max(left, 0); u <= std::min(left + 2 * reach, source.width() - 1); ++u) {
            const int value = source.constScanLine(v)[u * 4 + channel];
            low = std::min(low, value);
            high = std::max(high, value);
          }
        const int value = result.constScanLine(y)[x * 4 + channel];
        sum += std::max({0, low - value, value - high});
      }
  return sum / (4.0 * result.width() * result.height());
}

struct Method {
  const char* name;
  std::function<QImage(const QImage&, int)> draw;
};

std::vector<Method> methods() {
  const auto ours = [](ResampleKernel kernel) {
    return [kernel](const QImage& source, int width) { return withOurs(source, width, kernel); };
  };
  return {{"box", ours(ResampleKernel::Box)},
          {"triangle", ours(ResampleKernel::Triangle)},
          {"mitchell", ours(ResampleKernel::Mitchell)},
          {"catmull-rom", ours(ResampleKernel::CatmullRom)},
          {"lanczos3", ours(ResampleKernel::Lanczos3)},
          {"painter", withPainter},
          {"scaled", withScaled}};
}

void compareAt(const QString& folder, const QImage& source, int width) {
  const QString sourceFile = QStringLiteral("%1/source-%2.png").arg(folder).arg(source.width());
  source.save(sourceFile);
  const QString stem = QStringLiteral("%1/%2-to-%3-").arg(folder).arg(source.width()).arg(width);
  const QImage lanczos = withImageMagick(sourceFile, stem + QStringLiteral("im-lanczos.png"), width, "Lanczos");
  const QImage box = withImageMagick(sourceFile, stem + QStringLiteral("im-box.png"), width, "Box");
  if (lanczos.isNull() || box.isNull()) {
    std::printf("ImageMagick is not installed: no reference\n");
    return;
  }
  const int tile = 384;
  QImage sheet(4 * tile, 2 * tile, QImage::Format_ARGB32_Premultiplied);
  sheet.fill(QColor(236, 236, 236));
  QPainter painter(&sheet);
  const auto show = [&](int index, const QImage& image, const char* name) {
    const QRect place((index % 4) * tile, (index / 4) * tile, tile, tile);
    const QImage part = image.width() > tile ? image.copy(0, 0, tile, tile) : image;
    painter.drawImage(place.adjusted(0, 0, -4, -4), part);  // enlarged by whole pixels: no smoothing here
    painter.setPen(Qt::red);
    painter.drawText(place.left() + 6, place.bottom() - 8, QLatin1String(name));
  };
  std::printf("%d -> %d\n%-14s %9s %9s %9s %9s\n", source.width(), width, "", "lanczos", "box", "ringing", "ms");
  int index = 0;
  for (const auto& [name, draw] : methods()) {
    const auto start = std::chrono::steady_clock::now();
    const QImage result = draw(source, width);
    const double ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    std::printf("%-14s %9.1f %9.1f %9.3f %9.2f\n", name, decibels(result, lanczos), decibels(result, box),
                ringing(source, result), ms);
    result.save(stem + QLatin1String(name) + QStringLiteral(".png"));
    show(index++, result, name);
  }
  show(index, lanczos, "ImageMagick Lanczos");
  painter.end();
  sheet.save(stem + QStringLiteral("sheet.png"));
}

}  // namespace
}  // namespace quorvane::bench

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: ResampleCompare FOLDER\n");
    return 2;
  }
  const QString folder = QString::fromLocal8Bit(argv[1]);
  QDir().mkpath(folder);
  const QImage source = quorvane::bench::testPicture();
  for (const int width : {256, 128, 32, 16}) quorvane::bench::compareAt(folder, source, width);
  quorvane::bench::compareAt(folder, quorvane::bench::withScaled(source, 128), 512);
  return 0;
}
