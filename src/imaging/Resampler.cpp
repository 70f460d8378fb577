// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Resampler.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "imaging/ResampleWeights.h"
#include "imaging/ResamplerKernels.h"

namespace quorvane {

namespace {

// bench/ResampleCompare: nearest of all to a trusted filter at every size (40 to 56 dB; Catmull-Rom 39 to 42, Mitchell
// 33 to 37, which is soft to the eye), and its ringing on labels and edges, half a level at most, is not to be seen.
constexpr ResampleKernel bestKernel = ResampleKernel::Lanczos3;

/// The source pixels that any of the spans reads, first and one past the last.
std::pair<int, int> sourceRange(const ResampleWeights& weights) {
  int first = 0;
  int end = 0;
  for (const auto& span : weights.spans) {
    if (span.count == 0) continue;
    first = end == 0 ? span.firstSource : std::min(first, span.firstSource);
    end = std::max(end, span.firstSource + span.count);
  }
  return {first, end};
}

std::uint8_t* pixelsOf(BitmapImageRep& destination, const ResampleWeights& columns, int y) {
  return destination.mutableRow(y) + std::ptrdiff_t{4} * columns.firstDestination;
}

void copyPixels(const BitmapImageRep& source, BitmapImageRep& destination, const ResampleWeights& columns,
                const ResampleWeights& rows) {
  for (std::size_t i = 0; i < rows.spans.size(); ++i)
    kernels::blendOver(source.row(rows.spans[i].firstSource) + std::ptrdiff_t{4} * columns.spans[0].firstSource,
                       pixelsOf(destination, columns, rows.firstDestination + static_cast<int>(i)),
                       static_cast<int>(columns.spans.size()));
}

/// Rows first: they are gathered in long runs straight from the bytes, and only those that are needed, one at a time.
void gatherPixels(const BitmapImageRep& source, BitmapImageRep& destination, const ResampleWeights& columns,
                  const ResampleWeights& rows) {
  const auto [firstColumn, endColumn] = sourceRange(columns);
  const int sampleCount = 4 * (endColumn - firstColumn);
  if (sampleCount == 0) return;
  std::vector<std::int16_t> gathered(static_cast<std::size_t>(sampleCount) + 4);
  std::vector<std::uint8_t> line(columns.spans.size() * 4);
  for (std::size_t i = 0; i < rows.spans.size(); ++i) {
    const auto& rowSpan = rows.spans[i];
    if (rowSpan.count == 0) continue;
    kernels::gatherRows(source.row(rowSpan.firstSource) + std::ptrdiff_t{4} * firstColumn, source.bytesPerRow(),
                        rows.weights.data() + rowSpan.firstWeight, rowSpan.count, sampleCount, gathered.data());
    std::uint8_t* pixel = line.data();
    for (const auto& span : columns.spans) {
      if (span.count > 0)
        kernels::gatherPixel(gathered.data() + std::ptrdiff_t{4} * (span.firstSource - firstColumn),
                             columns.weights.data() + span.firstWeight, span.count, pixel);
      pixel += 4;
    }
    kernels::blendOver(line.data(), pixelsOf(destination, columns, rows.firstDestination + static_cast<int>(i)),
                       static_cast<int>(columns.spans.size()));
  }
}

template <typename MakeWeights>
void draw(const BitmapImageRep& source, BitmapImageRep& destination, const PixelRect& target,
          const MakeWeights& makeWeights) {
  if (source.pixelsWide() == 0 || destination.pixelsWide() == 0) return;
  // A copy of the handle: should both be the same bitmap, writing then makes the destination's pixels its own.
  const BitmapImageRep from = source.toStandard();
  const ResampleWeights columns = makeWeights(from.pixelsWide(), destination.pixelsWide(), target.x, target.width);
  const ResampleWeights rows = makeWeights(from.pixelsHigh(), destination.pixelsHigh(), target.y, target.height);
  if (columns.isCopy && rows.isCopy)
    copyPixels(from, destination, columns, rows);
  else
    gatherPixels(from, destination, columns, rows);
}

}  // namespace

void drawResampled(const BitmapImageRep& source, BitmapImageRep& destination, const PixelRect& target,
                   ResampleKernel kernel) {
  draw(source, destination, target, [kernel](int from, int to, double start, double length) {
    return makeResampleWeights(from, to, start, length, kernel);
  });
}

void drawResampled(const BitmapImageRep& source, BitmapImageRep& destination, const PixelRect& target,
                   ImageInterpolation interpolation) {
  switch (interpolation) {
    case ImageInterpolation::None:
      return draw(source, destination, target, makeNearestWeights);
    case ImageInterpolation::Low:
      return drawResampled(source, destination, target, ResampleKernel::Triangle);
    case ImageInterpolation::Default:
    case ImageInterpolation::High:
      break;
  }
  drawResampled(source, destination, target, bestKernel);
}

}  // namespace quorvane
