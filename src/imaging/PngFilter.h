// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvane {

/// Filters rows of 8-bit RGBA as PNG (ISO/IEC 15948, 9) wants them before compression: each row is replaced by its
/// differences from the neighbours, in the one of five ways that leaves the smallest sum of absolute differences.
class PngFilter {
 public:
  explicit PngFilter(std::size_t rowBytes);

  /// Writes the number of the chosen filter and the filtered row: 1 + rowBytes bytes. `above` is the row before it, of
  /// zeros for the first one. Both rows must have four zero bytes in front.
  void filter(const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* result);

 private:
  std::size_t _rowBytes;
  std::vector<std::uint8_t> _candidate;
};

}  // namespace quorvane
