// SPDX-License-Identifier: GPL-3.0-or-later
#include "format/Fixtures.h"

#include <string>

#include "foundation/base/ByteWriter.h"

namespace quorvane::test {

Bytes hex(std::string_view digits) {
  std::string packed;
  for (const char digit : digits)
    if (digit != ' ' && digit != '\n') packed.push_back(digit);
  Bytes bytes;
  for (std::size_t i = 0; i + 1 < packed.size(); i += 2)
    bytes.push_back(static_cast<std::uint8_t>(std::stoi(packed.substr(i, 2), nullptr, 16)));
  return bytes;
}

Bytes letters(std::string_view text) {
  return Bytes(text.begin(), text.end());
}

Bytes join(std::initializer_list<Bytes> parts) {
  Bytes all;
  for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

Bytes patched(Bytes bytes, std::size_t offset, std::size_t width, std::uint32_t value) {
  for (std::size_t i = 0; i < width; ++i)
    bytes.at(offset + i) = static_cast<std::uint8_t>(value >> (8 * (width - 1 - i)));
  return bytes;
}

Bytes element(FourCharCode type, const Bytes& data) {
  ByteWriter writer;
  writer.writeCode(type);
  writer.writeU32(static_cast<std::uint32_t>(8 + data.size()));
  writer.writeBytes(data);
  return std::move(writer).take();
}

Bytes family(std::initializer_list<Bytes> elements) {
  return element("icns", join(elements));
}

Bytes blankFork() {
  ByteWriter header;
  for (const std::uint32_t value : {256, 256, 0, 30}) header.writeU32(value);
  ByteWriter fork;
  fork.writeBytes(header.bytes());
  fork.writeBytes(letters("This resource fork intentionally left blank   "));
  fork.writeZeros(256 - fork.size());
  fork.writeBytes(header.bytes());
  fork.writeBytes(hex("00000000 0000 0000 001C 001E FFFF"));
  return std::move(fork).take();
}

}  // namespace quorvane::test
