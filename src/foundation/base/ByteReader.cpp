// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/base/ByteReader.h"

namespace quorvane {

bool ByteReader::seek(std::size_t offset) {
  if (offset > _bytes.size()) return false;
  _position = offset;
  return true;
}

bool ByteReader::skip(std::size_t count) {
  if (count > remaining()) return false;
  _position += count;
  return true;
}

std::optional<std::uint32_t> ByteReader::readBigEndian(std::size_t count) {
  if (count > remaining()) return std::nullopt;
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < count; ++i) value = value << 8 | _bytes[_position + i];
  _position += count;
  return value;
}

std::optional<std::uint16_t> ByteReader::readU16() {
  const auto value = readBigEndian(2);
  if (!value) return std::nullopt;
  return static_cast<std::uint16_t>(*value);
}

std::optional<std::uint32_t> ByteReader::readU24() {
  return readBigEndian(3);
}

std::optional<std::uint32_t> ByteReader::readU32() {
  return readBigEndian(4);
}

std::optional<FourCharCode> ByteReader::readCode() {
  const auto value = readBigEndian(4);
  if (!value) return std::nullopt;
  return FourCharCode(*value);
}

ByteView ByteReader::readRest() {
  const ByteView view = _bytes.subspan(_position);
  _position = _bytes.size();
  return view;
}

std::optional<ByteView> ByteReader::slice(std::size_t offset, std::size_t count) const {
  if (offset > _bytes.size() || count > _bytes.size() - offset) return std::nullopt;
  return _bytes.subspan(offset, count);
}

}  // namespace quorvane
