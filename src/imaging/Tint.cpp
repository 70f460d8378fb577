// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Tint.h"

#include <array>
#include <memory>
#include <mutex>
#include <vector>

#include "imaging/Premultiply.h"

namespace quorvane {

namespace {

// Pictures of icons have few colours, or colours that come again soon.
constexpr std::size_t rememberedColors = 8192;

constexpr std::uint32_t opaque = 0xFF000000U;

std::uint32_t packed(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return opaque | static_cast<std::uint32_t>(red) << 16 | static_cast<std::uint32_t>(green) << 8 | blue;
}

/// Tints colours and remembers the last ones.
class ColorMemory {
 public:
  explicit ColorMemory(const TintMap& map) : _map(map), _entries(rememberedColors) {}

  std::uint32_t tinted(std::uint32_t color) {
    Entry& entry = _entries[(color * 0x9E3779B1U) >> 19];
    static_assert(rememberedColors == 1U << (32 - 19));
    if (entry.color != color) entry = {color, compute(color)};
    return entry.tinted;
  }

 private:
  struct Entry {
    std::uint32_t color = 0;  // none: all that are looked for are opaque
    std::uint32_t tinted = 0;
  };

  [[nodiscard]] std::uint32_t compute(std::uint32_t color) const {
    const auto light = [color](int shift) { return linearOfByte(static_cast<std::uint8_t>(color >> shift)); };
    const LinearRgb rgb = linearRgbOf(_map(okLabOf(LinearRgb{light(16), light(8), light(0)})));
    return packed(byteOfLinear(rgb.red), byteOfLinear(rgb.green), byteOfLinear(rgb.blue));
  }

  const TintMap& _map;
  std::vector<Entry> _entries;
};

/// The body colour of an image, found when the first of its representations is tinted.
class LazyMap {
 public:
  LazyMap(Image image, const QColor& tint) : _image(std::move(image)), _tint(tint) {}

  const TintMap& get() {
    const std::lock_guard lock(_mutex);
    if (!_map) {
      // All representations show the same; this one has enough pixels to tell.
      const auto bitmap = _image.bitmapForPixels(128, 128);
      _map.emplace(bitmap ? BodyColor::of(*bitmap) : BodyColor(), _tint);
      _image = Image();
    }
    return *_map;
  }

 private:
  std::mutex _mutex;
  Image _image;
  QColor _tint;
  std::optional<TintMap> _map;
};

}  // namespace

BitmapImageRep tinted(const BitmapImageRep& bitmap, const TintMap& map) {
  BitmapImageRep result = bitmap.toStandard();
  ColorMemory memory(map);
  for (int y = 0; y < result.pixelsHigh(); ++y) {
    std::uint8_t* pixel = result.mutableRow(y);
    for (int x = 0; x < result.pixelsWide(); ++x, pixel += 4) {
      const unsigned alpha = pixel[3];
      if (alpha == 0) continue;
      const bool isOpaque = alpha == 255;
      const auto plain = [&](int channel) {
        return isOpaque ? pixel[channel] : unpremultiplied(pixel[channel], alpha);
      };
      const std::uint32_t color = memory.tinted(packed(plain(0), plain(1), plain(2)));
      for (int channel = 0; channel < 3; ++channel) {
        const std::uint32_t sample = color >> (16 - 8 * channel) & 0xFFU;
        pixel[channel] = isOpaque ? static_cast<std::uint8_t>(sample) : premultiplied(sample, alpha);
      }
    }
  }
  return result;
}

Image tinted(const Image& image, const QColor& tint) {
  if (!tint.isValid() || tint.alpha() == 0) return image;
  const auto map = std::make_shared<LazyMap>(image, tint);
  Image result(image.size());
  result.setScalesWhenResized(image.scalesWhenResized());
  for (const ImageRep& rep : image.representations()) {
    result.addRepresentation(ImageRep::pending(rep.pixelsWide(), rep.pixelsHigh(), rep.size(),
                                               [rep, map]() -> std::optional<BitmapImageRep> {
                                                 const auto bitmap = rep.bitmap();
                                                 if (!bitmap) return std::nullopt;
                                                 return tinted(*bitmap, map->get());
                                               }));
  }
  return result;
}

}  // namespace quorvane
