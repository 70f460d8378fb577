// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/ResampleWeights.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorvane {

namespace {

/// How far a kernel reaches from its centre, in source pixels at scale 1.
double reach(ResampleKernel kernel) {
  switch (kernel) {
    case ResampleKernel::Box:
      return 0.5;
    case ResampleKernel::Triangle:
      return 1;
    case ResampleKernel::Mitchell:
    case ResampleKernel::CatmullRom:
      return 2;
    case ResampleKernel::Lanczos3:
      return 3;
  }
  return 1;
}

/// The piecewise cubic of Mitchell and Netravali (1988), normalised to 1.
double cubic(double x, double b, double c) {
  if (x < 1) return ((12 - 9 * b - 6 * c) * x * x * x + (-18 + 12 * b + 6 * c) * x * x + (6 - 2 * b)) / 6;
  if (x < 2)
    return ((-b - 6 * c) * x * x * x + (6 * b + 30 * c) * x * x + (-12 * b - 48 * c) * x + (8 * b + 24 * c)) / 6;
  return 0;
}

double sinc(double x) {
  if (x < 1e-9) return 1;
  return std::sin(std::numbers::pi * x) / (std::numbers::pi * x);
}

double valueAt(ResampleKernel kernel, double distance) {
  const double x = std::abs(distance);
  switch (kernel) {
    case ResampleKernel::Box:
      return x <= 0.5 ? 1 : 0;
    case ResampleKernel::Triangle:
      return std::max(0.0, 1 - x);
    case ResampleKernel::Mitchell:
      return cubic(x, 1.0 / 3, 1.0 / 3);
    case ResampleKernel::CatmullRom:
      return cubic(x, 0, 0.5);
    case ResampleKernel::Lanczos3:
      return x < 3 ? sinc(x) * sinc(x / 3) : 0;
  }
  return 0;
}

/// The destination pixels that [start, start + length) touches, first and one past the last.
struct Range {
  int first = 0;
  int end = 0;
};

Range touched(int destinationPixels, double start, double length) {
  if (!(length > 0) || !std::isfinite(start) || !std::isfinite(length)) return {};
  const auto cut = [&](double at) { return static_cast<int>(std::clamp(at, 0.0, double(destinationPixels))); };
  return {cut(std::floor(start)), cut(std::ceil(start + length))};
}

/// Appends `shares` as whole weights that add up to exactly `total`. Rounding the running sum carries each tap's error
/// on to the next, so that hundreds of small taps do not drift.
void appendSpan(ResampleWeights& result, int firstSource, const std::vector<double>& shares, int total) {
  double sum = 0;
  for (const double share : shares) sum += share;
  std::vector<std::int16_t> rounded;
  rounded.reserve(shares.size());
  double running = 0;
  int given = 0;
  for (const double share : shares) {
    running += share;
    const auto upTo = static_cast<int>(std::lround(running / sum * total));
    rounded.push_back(static_cast<std::int16_t>(std::clamp(upTo - given, -32768, 32767)));
    given = upTo;
  }
  const auto isSet = [](std::int16_t weight) { return weight != 0; };
  const auto begin = std::find_if(rounded.begin(), rounded.end(), isSet);
  const auto end = std::find_if(rounded.rbegin(), rounded.rend(), isSet).base();
  if (begin >= end) {
    result.spans.push_back({});
    return;
  }
  result.spans.push_back({firstSource + static_cast<int>(begin - rounded.begin()), static_cast<int>(end - begin),
                          static_cast<int>(result.weights.size())});
  result.weights.insert(result.weights.end(), begin, end);
  result.weights.push_back(0);
}

void noteCopy(ResampleWeights& result) {
  result.isCopy = !result.spans.empty();
  for (std::size_t i = 0; i < result.spans.size() && result.isCopy; ++i)
    result.isCopy = result.spans[i].count == 1 && result.weights[result.spans[i].firstWeight] == weightOne &&
                    result.spans[i].firstSource == result.spans[0].firstSource + static_cast<int>(i);
}

}  // namespace

ResampleWeights makeResampleWeights(int sourcePixels, int destinationPixels, double start, double length,
                                    ResampleKernel kernel) {
  ResampleWeights result;
  const Range range = touched(destinationPixels, start, length);
  result.firstDestination = range.first;
  const double step = sourcePixels / length;    // source pixels a destination pixel
  const double widening = std::max(1.0, step);  // a kernel narrower than the destination's pixels would skip samples
  const double radius = reach(kernel) * widening;
  std::vector<double> shares;
  for (int at = range.first; at < range.end; ++at) {
    const double covered = std::min(at + 1.0, start + length) - std::max(double(at), start);
    const double center = std::clamp((at + 0.5 - start) * step, 0.0, double(sourcePixels));
    const int first = std::clamp(static_cast<int>(std::floor(center - radius)), 0, sourcePixels - 1);
    const int end = std::clamp(static_cast<int>(std::ceil(center + radius)), first + 1, sourcePixels);
    shares.clear();
    double sum = 0;
    for (int source = first; source < end; ++source) {
      shares.push_back(valueAt(kernel, (source + 0.5 - center) / widening));
      sum += shares.back();
    }
    // Only where rounding pushed the one tap there is just out of the kernel.
    if (!(sum > 1e-6)) shares.assign(shares.size(), 1);
    appendSpan(result, first, shares, static_cast<int>(std::lround(std::clamp(covered, 0.0, 1.0) * weightOne)));
  }
  noteCopy(result);
  return result;
}

ResampleWeights makeNearestWeights(int sourcePixels, int destinationPixels, double start, double length) {
  ResampleWeights result;
  const Range range = touched(destinationPixels, start, length);
  result.firstDestination = range.first;
  for (int at = range.first; at < range.end; ++at) {
    const double center = at + 0.5 - start;
    if (center < 0 || center >= length) {
      result.spans.push_back({});
      continue;
    }
    const auto source = static_cast<int>(std::floor(center * sourcePixels / length));
    appendSpan(result, std::clamp(source, 0, sourcePixels - 1), {1.0}, weightOne);
  }
  noteCopy(result);
  return result;
}

}  // namespace quorvane
