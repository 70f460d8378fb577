// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Psd.h"

#include <algorithm>
#include <bit>
#include <limits>

#include "imaging/ColorTransform.h"

namespace quorvane {

namespace {

ColorModel modelOf(const PsdFile& file) {
  switch (file.mode) {
    case PsdMode::Rgb:
    case PsdMode::Indexed:
      return file.bitsPerSample == 32 ? ColorModel::LinearRgb : ColorModel::Rgb;
    case PsdMode::Cmyk:
      return ColorModel::Cmyk;
    case PsdMode::Lab:
      return ColorModel::Lab;
    default:
      return ColorModel::Grey;
  }
}

/// One sample of a row as it is in the file, as a value of the width that we convert from.
template <typename Sample>
Sample sampleAt(const std::uint8_t* row, int x, int bits) {
  if constexpr (sizeof(Sample) == 1) {
    // In a bitmap, what is set is black.
    if (bits == 1) return (row[x / 8] >> (7 - x % 8) & 1) != 0 ? 0 : 255;
    return row[x];
  } else {
    if (bits == 16) return static_cast<Sample>(row[x * 2] << 8 | row[x * 2 + 1]);
    std::uint32_t word = 0;
    for (int i = 0; i < 4; ++i) word = word << 8 | row[x * 4 + i];
    const auto light = std::bit_cast<float>(word);
    // What is brighter than white has no place in an icon; neither has what is no number.
    return light > 0 ? static_cast<Sample>(std::min(light, 1.0F) * 65535.0F + 0.5F) : Sample{0};
  }
}

/// Takes away the white that a transparent picture's colours are blended with.
template <typename Sample>
void removeWhite(Sample* pixels, int count, const PixelFormat& format) {
  constexpr std::int64_t highest = std::numeric_limits<Sample>::max();
  for (Sample* pixel = pixels; count > 0; --count, pixel += format.samples()) {
    const std::int64_t alpha = pixel[format.colors()];
    if (alpha == 0 || alpha == highest) continue;
    for (int color = 0; color < format.colors(); ++color) {
      const bool isDifference = format.model == ColorModel::Lab && color > 0;
      const std::int64_t white = isDifference ? (highest + 1) / 2 : highest;
      const std::int64_t distance = (pixel[color] - white) * highest / alpha;
      pixel[color] = static_cast<Sample>(std::clamp<std::int64_t>(white + distance, 0, highest));
    }
  }
}

template <typename Sample>
Result<void> decodeRows(const PsdFile& file, BitmapImageRep& bitmap) {
  const PixelFormat format{modelOf(file), int{sizeof(Sample)} * 8, file.hasTransparency};
  const ColorTransform transform(format, file.profile);
  const int samples = format.samples();
  Bytes packed(file.bytesPerRow());
  std::vector<Sample> pixels(static_cast<std::size_t>(file.width) * static_cast<std::size_t>(samples));
  std::uint8_t* to = bitmap.mutableRow(0);
  for (int y = 0; y < file.height; ++y, to += bitmap.bytesPerRow()) {
    for (int channel = 0; channel < samples; ++channel) {
      TRY_VOID(file.readRow(channel, y, packed));
      Sample* sample = pixels.data() + channel;
      for (int x = 0; x < file.width; ++x, sample += samples)
        *sample = sampleAt<Sample>(packed.data(), x, file.bitsPerSample);
    }
    if (format.hasAlpha) removeWhite(pixels.data(), file.width, format);
    transform.convert(pixels.data(), to, file.width);
  }
  return {};
}

Result<void> decodeIndexedRows(const PsdFile& file, BitmapImageRep& bitmap) {
  constexpr std::size_t colors = 256;
  Bytes palette(colors * 3);
  for (std::size_t i = 0; i < colors; ++i)
    for (std::size_t color = 0; color < 3; ++color) palette[i * 3 + color] = file.palette[color * colors + i];
  Bytes converted(colors * 4);
  ColorTransform({ColorModel::Rgb, 8, false}, file.profile).convert(palette.data(), converted.data(), colors);
  if (file.transparentIndex) converted[static_cast<std::size_t>(*file.transparentIndex) * 4 + 3] = 0;

  Bytes row(file.bytesPerRow());
  for (int y = 0; y < file.height; ++y) {
    TRY_VOID(file.readRow(0, y, row));
    std::uint8_t* to = bitmap.mutableRow(y);
    for (const std::uint8_t index : row) to = std::copy_n(converted.data() + std::size_t{index} * 4, 4, to);
  }
  return {};
}

}  // namespace

Result<BitmapImageRep> decodePsd(ByteView bytes) {
  const PsdFile file = TRY(readPsdFile(bytes));
  BitmapLayout layout = BitmapLayout::rgba(file.width, file.height);
  layout.isPremultiplied = false;
  auto bitmap = BitmapImageRep::bitmapImageRepWithLayout(layout);
  if (!bitmap) return Error::tooLarge("PSD picture is too large");
  if (file.mode == PsdMode::Indexed)
    TRY_VOID(decodeIndexedRows(file, *bitmap));
  else if (file.bitsPerSample <= 8)
    TRY_VOID(decodeRows<std::uint8_t>(file, *bitmap));
  else
    TRY_VOID(decodeRows<std::uint16_t>(file, *bitmap));
  return std::move(*bitmap);
}

}  // namespace quorvane
