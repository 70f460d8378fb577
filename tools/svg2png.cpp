// SPDX-License-Identifier: GPL-3.0-or-later
// svg2png IN.svg WIDTH HEIGHT OUT.png: renders one of our vector pictures while the program is built.
//
// Exit code 0 when OUT.png was written, 1 when the picture could not be rendered whole, 2 for a wrong call.
#include <QFile>
#include <QImage>
#include <QString>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "svg/PlainSvg.h"

namespace {

constexpr int kMaximumSide = 1024;
// Samples a side for each pixel. Where two shapes meet inside a pixel, plain antialiasing lets the ground shine through
// the joint; samples this fine keep that below what can be seen.
constexpr int kSamples = 4;

std::optional<int> side(const char* text) {
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  if (end == text || *end != '\0' || value < 1 || value > kMaximumSide) return std::nullopt;
  return static_cast<int>(value);
}

}  // namespace

int main(int argc, char** argv) {
  const auto width = argc == 5 ? side(argv[2]) : std::nullopt;
  const auto height = argc == 5 ? side(argv[3]) : std::nullopt;
  if (!width || !height) {
    std::fprintf(stderr, "usage: svg2png IN.svg WIDTH HEIGHT OUT.png (sides from 1 to %d)\n", kMaximumSide);
    return 2;
  }
  quorvane::svg::watchComplaints("svg2png");
  QFile file(QString::fromLocal8Bit(argv[1]));
  QImage picture;
  if (file.open(QIODevice::ReadOnly))
    picture = quorvane::svg::renderPlainSvg(file.readAll(), {*width, *height}, kSamples);
  if (picture.isNull()) {
    std::fprintf(stderr, "svg2png: %s cannot be rendered whole\n", argv[1]);
    return 1;
  }
  if (!picture.convertToFormat(QImage::Format_ARGB32).save(QString::fromLocal8Bit(argv[4]), "PNG")) {
    std::fprintf(stderr, "svg2png: cannot write %s\n", argv[4]);
    return 1;
  }
  return 0;
}
