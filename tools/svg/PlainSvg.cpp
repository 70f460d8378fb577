// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlainSvg.h"

#include <QPainter>
#include <QRgba64>
#include <QStringList>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtGlobal>
#include <cstdio>

namespace quorvane::svg {

namespace {

const char* g_program = "svg";
bool g_complained = false;

// QtSvg warns about a reference that leads nowhere and goes on without it. A build must not pass over that.
void noteComplaint(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtDebugMsg && type != QtInfoMsg) g_complained = true;
  std::fprintf(stderr, "%s: %s\n", g_program, qUtf8Printable(message));
}

// The mean of each block of count x count. The samples are premultiplied, so clear ones carry no colour into the mean.
QImage averaged(const QImage& samples, int count) {
  QImage result(samples.width() / count, samples.height() / count, QImage::Format_RGBA64_Premultiplied);
  const auto square = static_cast<unsigned>(count) * static_cast<unsigned>(count);
  for (int y = 0; y < result.height(); ++y) {
    auto* out = reinterpret_cast<QRgba64*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x) {
      unsigned red = 0, green = 0, blue = 0, alpha = 0;
      for (int row = 0; row < count; ++row) {
        const auto* in = reinterpret_cast<const QRgba64*>(samples.constScanLine(y * count + row)) + x * count;
        for (int column = 0; column < count; ++column) {
          red += in[column].red();
          green += in[column].green();
          blue += in[column].blue();
          alpha += in[column].alpha();
        }
      }
      const auto mean = [square](unsigned sum) { return static_cast<quint16>((sum + square / 2) / square); };
      out[x] = qRgba64(mean(red), mean(green), mean(blue), mean(alpha));
    }
  }
  return result;
}

}  // namespace

void watchComplaints(const char* program) {
  g_program = program;
  qInstallMessageHandler(noteComplaint);
}

QString foreignElement(const QByteArray& picture) {
  static const QStringList plain =
      QStringLiteral("svg g defs path rect circle ellipse line polyline polygon linearGradient radialGradient stop")
          .split(QLatin1Char(' '));
  QXmlStreamReader reader(picture);
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement && !plain.contains(reader.name())) {
      return reader.name().toString();
    }
  }
  return {};
}

QImage renderPlainSvg(const QByteArray& picture, QSize pixels, int samples) {
  if (const QString name = foreignElement(picture); !name.isEmpty()) {
    std::fprintf(stderr, "%s: <%s> is not drawn by this tool\n", g_program, qUtf8Printable(name));
    return {};
  }
  QSvgRenderer renderer(picture);
  if (!renderer.isValid()) return {};
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  // 16 bits a channel: our shadows are many faint layers, and rounding each to 8 bits would tint and step them.
  QImage image(pixels * samples, QImage::Format_RGBA64_Premultiplied);
  if (image.isNull()) return {};
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter);
  painter.end();
  return g_complained ? QImage() : averaged(image, samples);
}

}  // namespace quorvane::svg
