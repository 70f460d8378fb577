// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/plist/Unicode.h"

#include <string_view>

#include "foundation/base/Text.h"

namespace quorvane::plist {

namespace {

constexpr std::size_t longestCharacter = 4;

constexpr bool isHigh(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool isLow(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

void appendCharacter(std::string& text, char32_t character) {
  if (isHigh(character) || isLow(character) || character > 0x10FFFF) character = replacement;
  const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) return put(character);
  if (character < 0x800) {
    put(0xC0 | character >> 6);
  } else if (character < 0x10000) {
    put(0xE0 | character >> 12);
    put(0x80 | (character >> 6 & 0x3F));
  } else {
    put(0xF0 | character >> 18);
    put(0x80 | (character >> 12 & 0x3F));
    put(0x80 | (character >> 6 & 0x3F));
  }
  put(0x80 | (character & 0x3F));
}

void Utf16Joiner::add(char16_t unit) {
  if (_high != 0 && isLow(unit)) {
    appendCharacter(_text, 0x10000 + ((char32_t{_high} - 0xD800) << 10) + (char32_t{unit} - 0xDC00));
    _high = 0;
    return;
  }
  finish();
  if (isHigh(unit)) {
    _high = unit;
  } else {
    appendCharacter(_text, unit);
  }
}

void Utf16Joiner::finish() {
  if (_high != 0) appendCharacter(_text, replacement);
  _high = 0;
}

std::string fromUtf16(ByteView bytes, bool isLittleEndian) {
  std::string text;
  Utf16Joiner joiner(text);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const unsigned first = bytes[i];
    const unsigned second = bytes[i + 1];
    joiner.add(static_cast<char16_t>(isLittleEndian ? second << 8 | first : first << 8 | second));
  }
  joiner.finish();
  return text;
}

std::string wellFormed(ByteView bytes) {
  const std::string_view all(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  if (isUtf8(all)) return std::string(all);
  std::string text;
  for (std::size_t at = 0; at < all.size();) {
    std::size_t length = 1;
    while (length <= longestCharacter && !isUtf8(all.substr(at, length))) ++length;
    if (length > longestCharacter) {
      appendCharacter(text, replacement);
      ++at;
    } else {
      text += all.substr(at, length);
      at += length;
    }
  }
  return text;
}

}  // namespace quorvane::plist
