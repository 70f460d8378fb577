// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/base/ByteWriter.h"

namespace quorvane {

void ByteWriter::writeU16(std::uint16_t value) {
  _bytes.push_back(static_cast<std::uint8_t>(value >> 8));
  _bytes.push_back(static_cast<std::uint8_t>(value));
}

void ByteWriter::writeU24(std::uint32_t value) {
  _bytes.push_back(static_cast<std::uint8_t>(value >> 16));
  writeU16(static_cast<std::uint16_t>(value));
}

void ByteWriter::writeU32(std::uint32_t value) {
  writeU16(static_cast<std::uint16_t>(value >> 16));
  writeU16(static_cast<std::uint16_t>(value));
}

void ByteWriter::patchU32(std::size_t offset, std::uint32_t value) {
  for (std::size_t i = 0; i < 4; ++i) _bytes.at(offset + i) = static_cast<std::uint8_t>(value >> (24 - 8 * i));
}

}  // namespace quorvane
