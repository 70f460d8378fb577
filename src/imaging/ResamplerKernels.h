// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

/// The inner loops of the resampler, in whole numbers, so that the vectorised form and the portable one give the same
/// bytes. Both forms are always there where the vectorised one exists; the plain names choose.
namespace quorvane::kernels {

/// Fractional bits of the values between the two passes: 255 becomes 16320.
inline constexpr int middleBits = 6;

/// sums[i] = sum over k of weights[k] * rows[k * rowBytes + i], with middleBits of fraction, for `count` samples (a
/// multiple of 4). weights[taps] must be 0. Clamped to 0 <= colour <= alpha <= 255 like the result: a kernel's overshoot
/// in one direction does not ring on in the other.
void gatherRows(const std::uint8_t* rows, std::ptrdiff_t rowBytes, const std::int16_t* weights, int taps, int count,
                std::int16_t* sums);

/// One pixel: the weighted sum of `taps` pixels of gatherRows(), each clamped to 0 <= colour <= alpha <= 255. One more
/// pixel than taps must be readable; weights[taps] must be 0.
void gatherPixel(const std::int16_t* pixels, const std::int16_t* weights, int taps, std::uint8_t* result);

/// destination = source + destination * (255 - source alpha) / 255, rounded, for `count` pixels.
void blendOver(const std::uint8_t* source, std::uint8_t* destination, int count);

namespace portable {
void gatherRows(const std::uint8_t* rows, std::ptrdiff_t rowBytes, const std::int16_t* weights, int taps, int count,
                std::int16_t* sums);
void gatherPixel(const std::int16_t* pixels, const std::int16_t* weights, int taps, std::uint8_t* result);
}  // namespace portable

}  // namespace quorvane::kernels
