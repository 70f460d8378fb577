// SPDX-License-Identifier: GPL-3.0-or-later
// Packing and unpacking the colour of a 128-pixel element, and looking up the colours of the two 8-bit elements of a
// family, against the obvious loops. Wanted: at most 0.7, 0.7 and 0.15 of their time.
#include <algorithm>
#include <cstdlib>

#include "Compare.h"
#include "FolderPicture.h"
#include "iconfamily/format/ColorTables.h"
#include "iconfamily/format/PackedChannels.h"

namespace quorvane::bench {
namespace {

constexpr int width = 128;
constexpr std::size_t pixels = std::size_t{width} * width;

const Bytes& argbPixels() {
  static const Bytes bytes = [] {
    const QImage image = folderPicture(width).convertToFormat(QImage::Format_ARGB32);
    Bytes argb;
    for (int y = 0; y < width; ++y)
      for (int x = 0; x < width; ++x) {
        const QRgb color = image.pixel(x, y);
        for (const int sample : {0, qRed(color), qGreen(color), qBlue(color)})
          argb.push_back(static_cast<std::uint8_t>(sample));
      }
    return argb;
  }();
  return bytes;
}

Bytes packPlainly(const Bytes& argb) {
  Bytes packed;
  for (std::size_t color = 1; color <= 3; ++color) {
    const auto at = [&](std::size_t i) { return argb[4 * i + color]; };
    Bytes literals;
    const auto flush = [&] {
      for (std::size_t i = 0; i < literals.size(); i += 128) {
        const std::size_t count = std::min<std::size_t>(128, literals.size() - i);
        packed.push_back(static_cast<std::uint8_t>(count - 1));
        for (std::size_t k = 0; k < count; ++k) packed.push_back(literals[i + k]);
      }
      literals.clear();
    };
    for (std::size_t i = 0; i < pixels;) {
      std::size_t run = 1;
      while (i + run < pixels && run < 130 && at(i + run) == at(i)) ++run;
      if (run >= 3) {
        flush();
        packed.push_back(static_cast<std::uint8_t>(run + 125));
        packed.push_back(at(i));
      } else {
        literals.insert(literals.end(), run, at(i));
      }
      i += run;
    }
    flush();
  }
  return packed;
}

Bytes unpackPlainly(const Bytes& packed) {
  Bytes argb(4 * pixels);
  std::size_t done = 0;
  const auto put = [&](std::uint8_t level) {
    argb[4 * (done % pixels) + 1 + done / pixels] = level;
    ++done;
  };
  for (std::size_t i = 0; done < 3 * pixels;) {
    const std::size_t control = packed[i++];
    if (control < 128) {
      for (std::size_t k = 0; k <= control; ++k) put(packed[i++]);
    } else {
      for (std::size_t k = 0; k < control - 125; ++k) put(packed[i]);
      ++i;
    }
  }
  return argb;
}

void packing(benchmark::State& state) {
  const Bytes& argb = argbPixels();
  if (unpackPlainly(packColorChannels(argb)) != argb) std::abort();
  compare(
      state, [&] { benchmark::DoNotOptimize(packColorChannels(argb)); },
      [&] { benchmark::DoNotOptimize(packPlainly(argb)); });
}

void unpacking(benchmark::State& state) {
  const Bytes packed = packColorChannels(argbPixels());
  compare(
      state, [&] { benchmark::DoNotOptimize(unpackColorChannels(packed, pixels)); },
      [&] { benchmark::DoNotOptimize(unpackPlainly(packed)); });
}

std::uint8_t nearestOfAll(int red, int green, int blue) {
  int best = 1 << 30;
  std::size_t found = 0;
  for (std::size_t i = 0; i < 256; ++i) {
    const Rgb& entry = systemColorTable()[i];
    const int r = red - entry.red, g = green - entry.green, b = blue - entry.blue;
    if (const int distance = r * r + g * g + b * b; distance < best) {
      best = distance;
      found = i;
    }
  }
  return static_cast<std::uint8_t>(found);
}

void nearestColors(benchmark::State& state) {
  const Bytes& argb = argbPixels();
  constexpr std::size_t count = 32 * 32 + 16 * 16;
  const auto forEach = [&](const auto& lookUp) {
    for (std::size_t i = 0; i < count; ++i) {
      const std::uint8_t* sample = &argb[4 * (i * 12)];
      benchmark::DoNotOptimize(lookUp(sample[1], sample[2], sample[3]));
    }
  };
  const auto ours = [](int r, int g, int b) {
    return nearestSystemColor(static_cast<float>(r) / 255.0F, static_cast<float>(g) / 255.0F,
                              static_cast<float>(b) / 255.0F);
  };
  compare(
      state, [&] { forEach(ours); }, [&] { forEach(nearestOfAll); });
}

BENCHMARK(packing)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(unpacking)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(nearestColors)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvane::bench
