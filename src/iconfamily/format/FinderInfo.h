// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "foundation/base/Bytes.h"
#include "foundation/base/FourCharCode.h"

namespace quorvane {

/// The 32 bytes of Finder information of a file or folder. All bytes that we have no name for are kept.
class FinderInfo {
 public:
  static constexpr std::size_t byteCount = 32;

  enum Flag : std::uint16_t {
    isAlias = 0x8000,
    isInvisible = 0x4000,
    hasCustomIcon = 0x0400,
    hasBeenInited = 0x0100,
  };

  /// All zero.
  FinderInfo() = default;
  /// From at least 32 bytes; the rest is ignored. Fewer bytes are filled up with zeros.
  explicit FinderInfo(ByteView bytes);

  [[nodiscard]] std::uint16_t flags() const;
  void setFlags(std::uint16_t flags);
  /// Files only: bytes 0 to 7.
  void setTypeAndCreator(FourCharCode type, FourCharCode creator);
  [[nodiscard]] FourCharCode type() const;
  [[nodiscard]] FourCharCode creator() const;
  /// Bytes 10 to 15: location (0, 0) and the reserved field 0.
  void clearLocationAndReserved();

  [[nodiscard]] bool isZero() const;
  [[nodiscard]] ByteView bytes() const { return _bytes; }
  bool operator==(const FinderInfo&) const = default;

 private:
  std::array<std::uint8_t, byteCount> _bytes{};
};

}  // namespace quorvane
