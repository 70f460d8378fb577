// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/FinderInfo.h"

#include <algorithm>

namespace quorvane {

namespace {

constexpr std::size_t typeOffset = 0;
constexpr std::size_t creatorOffset = 4;
constexpr std::size_t flagsOffset = 8;
constexpr std::size_t locationOffset = 10;
constexpr std::size_t extendedOffset = 16;

using InfoBytes = std::array<std::uint8_t, FinderInfo::byteCount>;

FourCharCode codeAt(const InfoBytes& bytes, std::size_t offset) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i) value = value << 8 | bytes[offset + i];
  return FourCharCode(value);
}

void putCode(InfoBytes& bytes, std::size_t offset, FourCharCode code) {
  for (std::size_t i = 0; i < 4; ++i) bytes[offset + i] = static_cast<std::uint8_t>(code.value() >> (24 - 8 * i));
}

}  // namespace

FinderInfo::FinderInfo(ByteView bytes) {
  std::copy_n(bytes.begin(), std::min(bytes.size(), byteCount), _bytes.begin());
}

std::uint16_t FinderInfo::flags() const {
  return static_cast<std::uint16_t>(_bytes[flagsOffset] << 8 | _bytes[flagsOffset + 1]);
}

void FinderInfo::setFlags(std::uint16_t flags) {
  _bytes[flagsOffset] = static_cast<std::uint8_t>(flags >> 8);
  _bytes[flagsOffset + 1] = static_cast<std::uint8_t>(flags);
}

void FinderInfo::setTypeAndCreator(FourCharCode type, FourCharCode creator) {
  putCode(_bytes, typeOffset, type);
  putCode(_bytes, creatorOffset, creator);
}

FourCharCode FinderInfo::type() const {
  return codeAt(_bytes, typeOffset);
}

FourCharCode FinderInfo::creator() const {
  return codeAt(_bytes, creatorOffset);
}

void FinderInfo::clearLocationAndReserved() {
  std::fill(_bytes.begin() + locationOffset, _bytes.begin() + extendedOffset, std::uint8_t{0});
}

bool FinderInfo::isZero() const {
  return std::all_of(_bytes.begin(), _bytes.end(), [](std::uint8_t byte) { return byte == 0; });
}

}  // namespace quorvane
