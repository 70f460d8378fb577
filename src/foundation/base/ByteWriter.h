// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "foundation/base/Bytes.h"
#include "foundation/base/FourCharCode.h"

namespace quorvane {

/// Appends big-endian values to bytes of its own.
class ByteWriter {
 public:
  [[nodiscard]] std::size_t size() const { return _bytes.size(); }
  void reserve(std::size_t count) { _bytes.reserve(count); }

  void writeU8(std::uint8_t value) { _bytes.push_back(value); }
  void writeU16(std::uint16_t value);
  void writeU24(std::uint32_t value);
  void writeU32(std::uint32_t value);
  void writeCode(FourCharCode code) { writeU32(code.value()); }
  void writeBytes(ByteView bytes) { _bytes.insert(_bytes.end(), bytes.begin(), bytes.end()); }
  void writeZeros(std::size_t count) { _bytes.insert(_bytes.end(), count, 0); }

  /// Overwrites four bytes written earlier, for lengths that are known only at the end. `offset` + 4 <= size().
  void patchU32(std::size_t offset, std::uint32_t value);

  [[nodiscard]] const Bytes& bytes() const& { return _bytes; }
  [[nodiscard]] Bytes take() && { return std::move(_bytes); }

 private:
  Bytes _bytes;
};

}  // namespace quorvane
