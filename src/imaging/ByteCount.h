// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <limits>

namespace quorvane {

/// A length of a file.
struct ByteCount {
  std::uint64_t value = 0;
};

/// The same in units of 1024 bytes.
struct Kibibytes {
  std::uint64_t value = 0;
  [[nodiscard]] constexpr ByteCount bytes() const {
    constexpr auto most = std::numeric_limits<std::uint64_t>::max();
    return {value > most / 1024 ? most : value * 1024};
  }
};

}  // namespace quorvane
