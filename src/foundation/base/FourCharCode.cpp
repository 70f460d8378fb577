// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/base/FourCharCode.h"

#include <cstdio>

namespace quorvane {

std::string FourCharCode::toString() const {
  std::string letters;
  for (int shift = 24; shift >= 0; shift -= 8) letters.push_back(static_cast<char>((_value >> shift) & 0xFF));
  return letters;
}

std::string FourCharCode::toDisplayText() const {
  std::string text;
  for (const char letter : toString()) {
    const auto code = static_cast<unsigned char>(letter);
    if (code >= 0x20 && code < 0x7F) {
      text.push_back(letter);
    } else {
      char escaped[8];
      std::snprintf(escaped, sizeof escaped, "\\x%02X", code);
      text += escaped;
    }
  }
  return text;
}

}  // namespace quorvane
