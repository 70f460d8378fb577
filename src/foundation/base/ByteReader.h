// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "foundation/base/Bytes.h"
#include "foundation/base/FourCharCode.h"

namespace quorvane {

/// Reads big-endian values from bytes it does not own. The only place with offset arithmetic on foreign bytes.
///
/// Invariant: position() <= size(). Every read either takes all it asked for or takes nothing and returns nullopt.
class ByteReader {
 public:
  explicit ByteReader(ByteView bytes) : _bytes(bytes) {}

  [[nodiscard]] std::size_t position() const { return _position; }
  [[nodiscard]] std::size_t size() const { return _bytes.size(); }
  [[nodiscard]] std::size_t remaining() const { return _bytes.size() - _position; }
  [[nodiscard]] bool atEnd() const { return remaining() == 0; }

  /// Moves to an absolute offset; false (and no move) when it lies past the end.
  [[nodiscard]] bool seek(std::size_t offset);
  [[nodiscard]] bool skip(std::size_t count);

  std::optional<std::uint8_t> readU8() {
    if (atEnd()) return std::nullopt;
    return _bytes[_position++];
  }
  std::optional<std::uint16_t> readU16();
  std::optional<std::uint32_t> readU24();
  std::optional<std::uint32_t> readU32();
  std::optional<FourCharCode> readCode();
  /// A view of the next `count` bytes.
  std::optional<ByteView> readBytes(std::size_t count) {
    if (count > remaining()) return std::nullopt;
    const ByteView view = _bytes.subspan(_position, count);
    _position += count;
    return view;
  }
  /// Everything that is left.
  ByteView readRest();

  /// The `count` bytes from an absolute `offset`, without moving; nullopt when they do not all exist.
  [[nodiscard]] std::optional<ByteView> slice(std::size_t offset, std::size_t count) const;

 private:
  std::optional<std::uint32_t> readBigEndian(std::size_t count);

  ByteView _bytes;
  std::size_t _position = 0;
};

}  // namespace quorvane
