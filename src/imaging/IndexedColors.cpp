// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/IndexedColors.h"

#include <libimagequant.h>

#include <algorithm>
#include <memory>
#include <unordered_map>

#include "imaging/AlphaDither.h"
#include "imaging/Premultiply.h"

// Of the OpenMP runtime that the quantizer brings along; its header belongs to one compiler only.
extern "C" {
int omp_get_max_threads();
void omp_set_num_threads(int count);
}

namespace quorvane {

namespace {

/// Lets the quantizer work in the calling thread alone: its sums come out the same on every machine then, and threads
/// that wait for each other on a busy one cost more than they bring.
class SingleThread {
 public:
  SingleThread() : _before(omp_get_max_threads()) { omp_set_num_threads(1); }
  ~SingleThread() { omp_set_num_threads(_before); }
  SingleThread(const SingleThread&) = delete;
  SingleThread& operator=(const SingleThread&) = delete;

 private:
  int _before;
};

constexpr std::size_t paletteSize = 256;

struct FreeQuantizer {
  void operator()(liq_attr* attributes) const { liq_attr_destroy(attributes); }
  void operator()(liq_image* image) const { liq_image_destroy(image); }
  void operator()(liq_result* result) const { liq_result_destroy(result); }
};

/// RGBA, not premultiplied; alpha is 255 where the pixel shows and all four are 0 where it does not.
struct CutOutPixels {
  Bytes rgba;
  bool hasHoles = false;
};

CutOutPixels cutOut(const BitmapImageRep& bitmap) {
  const std::vector<std::uint8_t> shown = ditheredAlpha(bitmap);
  CutOutPixels result{Bytes(shown.size() * 4), false};
  auto shows = shown.begin();
  std::uint8_t* to = result.rgba.data();
  for (int y = 0; y < bitmap.pixelsHigh(); ++y) {
    const std::uint8_t* from = bitmap.row(y);
    for (int x = 0; x < bitmap.pixelsWide(); ++x, from += 4, to += 4, ++shows) {
      if (*shows == 0) {
        result.hasHoles = true;
        continue;
      }
      for (int channel = 0; channel < 3; ++channel) to[channel] = unpremultiplied(from[channel], from[3]);
      to[3] = 255;
    }
  }
  return result;
}

/// Every colour as it is; nullopt when there are more than `most`.
std::optional<IndexedColors> exactColors(const CutOutPixels& pixels, std::size_t most) {
  IndexedColors result;
  result.indices.resize(pixels.rgba.size() / 4);
  std::unordered_map<std::uint32_t, std::uint8_t> known;
  for (std::size_t i = 0; i < result.indices.size(); ++i) {
    const std::uint8_t* at = pixels.rgba.data() + i * 4;
    if (at[3] == 0) continue;  // gets its index when the palette stands
    const std::uint32_t color = at[0] | at[1] << 8 | at[2] << 16;
    const auto [place, isNew] = known.try_emplace(color, static_cast<std::uint8_t>(result.palette.size()));
    if (isNew) {
      if (result.palette.size() == most) return std::nullopt;
      result.palette.push_back({at[0], at[1], at[2]});
    }
    result.indices[i] = place->second;
  }
  return result;
}

std::uint8_t nearestColor(const IndexedColors& colors, const std::uint8_t* rgb) {
  const auto distance = [rgb](const std::array<std::uint8_t, 3>& color) {
    int sum = 0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      const int difference = color[channel] - rgb[channel];
      sum += difference * difference;
    }
    return sum;
  };
  const auto nearest = std::ranges::min_element(colors.palette, {}, distance);
  return static_cast<std::uint8_t>(nearest - colors.palette.begin());
}

Result<IndexedColors> reducedColors(const CutOutPixels& pixels, int wide, int high) {
  const SingleThread single;
  const Error failure = Error::broken("choosing the colours of a GIF");
  const std::unique_ptr<liq_attr, FreeQuantizer> attributes(liq_attr_create());
  if (!attributes) return failure;
  // With holes the quantizer spends one of these on them.
  liq_set_max_colors(attributes.get(), static_cast<int>(paletteSize));
  const std::unique_ptr<liq_image, FreeQuantizer> image(
      liq_image_create_rgba(attributes.get(), pixels.rgba.data(), wide, high, 0));
  liq_result* made = nullptr;
  if (!image || liq_image_quantize(image.get(), attributes.get(), &made) != LIQ_OK) return failure;
  const std::unique_ptr<liq_result, FreeQuantizer> result(made);
  liq_set_dithering_level(result.get(), 1.0F);
  IndexedColors colors;
  colors.indices.resize(pixels.rgba.size() / 4);
  if (liq_write_remapped_image(result.get(), image.get(), colors.indices.data(), colors.indices.size()) != LIQ_OK)
    return failure;

  // See-through entries, of which there may be several, are left out: their place is one at the end.
  const liq_palette* palette = liq_get_palette(result.get());
  std::array<std::optional<std::uint8_t>, paletteSize> places;
  for (std::size_t i = 0; i < palette->count && i < paletteSize; ++i) {
    const liq_color& color = palette->entries[i];
    if (color.a < 128 || colors.palette.size() + (pixels.hasHoles ? 1 : 0) == paletteSize) continue;
    places[i] = static_cast<std::uint8_t>(colors.palette.size());
    colors.palette.push_back({color.r, color.g, color.b});
  }
  if (colors.palette.empty()) return failure;
  for (std::size_t i = 0; i < colors.indices.size(); ++i) {
    const std::uint8_t* at = pixels.rgba.data() + i * 4;
    const auto place = places[colors.indices[i]];
    // Dithering may have carried a shown pixel over to a see-through entry.
    if (at[3] != 0) colors.indices[i] = place ? *place : nearestColor(colors, at);
  }
  return colors;
}

}  // namespace

Result<IndexedColors> indexedColors(const BitmapImageRep& bitmap) {
  if (bitmap.pixelsWide() == 0) return Error::invalidInput("no pixels to reduce to a palette");
  const CutOutPixels pixels = cutOut(bitmap.toStandard());
  auto exact = exactColors(pixels, paletteSize - (pixels.hasHoles ? 1 : 0));
  IndexedColors colors =
      exact ? *std::move(exact) : TRY(reducedColors(pixels, bitmap.pixelsWide(), bitmap.pixelsHigh()));
  colors.pixelsWide = bitmap.pixelsWide();
  colors.pixelsHigh = bitmap.pixelsHigh();
  if (pixels.hasHoles) {
    colors.transparentIndex = static_cast<std::uint8_t>(colors.palette.size());
    colors.palette.push_back({255, 255, 255});  // for readers that know no transparency
    for (std::size_t i = 0; i < colors.indices.size(); ++i)
      if (pixels.rgba[i * 4 + 3] == 0) colors.indices[i] = *colors.transparentIndex;
  }
  return colors;
}

}  // namespace quorvane
