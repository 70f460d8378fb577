// SPDX-License-Identifier: GPL-3.0-or-later
// svg2png IN.svg WIDTH HEIGHT OUT.png: renders one of our vector pictures while the program is built.
//
// Exit code 0 when OUT.png was written, 1 when the picture could not be rendered whole, 2 for a wrong call.
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRgba64>
#include <QString>
#include <QStringList>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

constexpr int kMaximumSide = 1024;
// Samples a side for each pixel. Where two shapes meet inside a pixel, plain antialiasing lets the ground shine through
// the joint; samples this fine keep that below what can be seen.
constexpr int kSamples = 4;

bool g_complained = false;

// QtSvg warns about a reference that leads nowhere and goes on without it. A build must not pass over that.
void noteComplaint(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtDebugMsg && type != QtInfoMsg) g_complained = true;
  std::fprintf(stderr, "svg2png: %s\n", qUtf8Printable(message));
}

// The first element that is not plain drawing, empty when there is none. QtSvg passes over filters, masks and clips
// without a word and would need fonts for text, so a picture that uses one would be built wrong unnoticed.
QString foreignElement(const QString& path) {
  static const QStringList plain =
      QStringLiteral("svg g defs path rect circle ellipse line polyline polygon linearGradient radialGradient stop")
          .split(QLatin1Char(' '));
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};  // said by the renderer, which opens it next
  QXmlStreamReader reader(&file);
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement && !plain.contains(reader.name())) {
      return reader.name().toString();
    }
  }
  return {};
}

std::optional<int> side(const char* text) {
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  if (end == text || *end != '\0' || value < 1 || value > kMaximumSide) return std::nullopt;
  return static_cast<int>(value);
}

// The mean of each kSamples x kSamples block. The samples are premultiplied, so clear ones carry no colour into the
// mean.
QImage averaged(const QImage& samples) {
  QImage result(samples.width() / kSamples, samples.height() / kSamples, QImage::Format_ARGB32);
  constexpr unsigned count = kSamples * kSamples;
  for (int y = 0; y < result.height(); ++y) {
    auto* out = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x) {
      unsigned red = 0, green = 0, blue = 0, alpha = 0;
      for (int row = 0; row < kSamples; ++row) {
        const auto* in = reinterpret_cast<const QRgba64*>(samples.constScanLine(y * kSamples + row)) + x * kSamples;
        for (int column = 0; column < kSamples; ++column) {
          red += in[column].red();
          green += in[column].green();
          blue += in[column].blue();
          alpha += in[column].alpha();
        }
      }
      const auto mean = [](unsigned sum) { return static_cast<quint16>((sum + count / 2) / count); };
      out[x] = qRgba64(mean(red), mean(green), mean(blue), mean(alpha)).unpremultiplied().toArgb32();
    }
  }
  return result;
}

// Null when the file is no picture that QtSvg understands to the last element.
QImage rendered(const QString& path, int width, int height) {
  if (const QString name = foreignElement(path); !name.isEmpty()) {
    std::fprintf(stderr, "svg2png: <%s> is not drawn by this tool\n", qUtf8Printable(name));
    return {};
  }
  QSvgRenderer renderer(path);
  if (!renderer.isValid()) return {};
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  // 16 bits a channel: our shadows are many faint layers, and rounding each to 8 bits would tint and step them.
  QImage samples(width * kSamples, height * kSamples, QImage::Format_RGBA64_Premultiplied);
  if (samples.isNull()) return {};
  samples.fill(Qt::transparent);
  QPainter painter(&samples);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter);
  painter.end();
  return g_complained ? QImage() : averaged(samples);
}

}  // namespace

int main(int argc, char** argv) {
  const auto width = argc == 5 ? side(argv[2]) : std::nullopt;
  const auto height = argc == 5 ? side(argv[3]) : std::nullopt;
  if (!width || !height) {
    std::fprintf(stderr, "usage: svg2png IN.svg WIDTH HEIGHT OUT.png (sides from 1 to %d)\n", kMaximumSide);
    return 2;
  }
  qInstallMessageHandler(noteComplaint);
  const QImage picture = rendered(QString::fromLocal8Bit(argv[1]), *width, *height);
  if (picture.isNull()) {
    std::fprintf(stderr, "svg2png: %s cannot be rendered whole\n", argv[1]);
    return 1;
  }
  if (!picture.save(QString::fromLocal8Bit(argv[4]), "PNG")) {
    std::fprintf(stderr, "svg2png: cannot write %s\n", argv[4]);
    return 1;
  }
  return 0;
}
