// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "foundation/base/Bytes.h"

namespace quorvane::plist {

/// Stands for code units that are no character.
inline constexpr char32_t replacement = 0xFFFD;

/// Appends a character as UTF-8; what is none (a surrogate, beyond U+10FFFF) as U+FFFD.
void appendCharacter(std::string& text, char32_t character);

/// Puts UTF-16 code units together. A surrogate without its other half becomes U+FFFD.
class Utf16Joiner {
 public:
  explicit Utf16Joiner(std::string& text) : _text(text) {}
  void add(char16_t unit);
  /// To be called before anything else is appended to the text, and at the end.
  void finish();

 private:
  std::string& _text;
  char16_t _high = 0;
};

/// UTF-16 bytes as UTF-8; a last odd byte is left out.
std::string fromUtf16(ByteView bytes, bool isLittleEndian);

/// Bytes that are meant to be UTF-8, made well-formed: each byte that belongs to no character becomes U+FFFD.
std::string wellFormed(ByteView bytes);

}  // namespace quorvane::plist
