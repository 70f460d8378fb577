// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/base/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <numeric>
#include <optional>

namespace quorvane {

namespace {

struct Decoded {
  char32_t character = 0;
  std::size_t length = 0;
};

/// The character at the start of `bytes`, or nothing when they are no well-formed UTF-8 there.
std::optional<Decoded> decode(std::string_view bytes) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  if (bytes.empty()) return std::nullopt;
  const unsigned lead = at(0);
  if (lead < 0x80) return Decoded{lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return std::nullopt;
  char32_t character = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((at(i) & 0xC0U) != 0x80) return std::nullopt;
    character = character << 6 | (at(i) & 0x3FU);
  }
  static constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
  if (character < least[length] || character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF))
    return std::nullopt;
  return Decoded{character, length};
}

bool isDangerous(char32_t c) {
  const bool isControl = c < 0x20 || (c >= 0x7F && c < 0xA0);
  const bool turnsText = (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0x200E || c == 0x200F;
  const bool breaksLine = c == 0x2028 || c == 0x2029;
  const bool isTag = c >= 0xE0000 && c <= 0xE007F;
  return isControl || turnsText || breaksLine || isTag || c == 0xFEFF;
}

}  // namespace

std::string printable(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const auto decoded = decode(text);
    char escaped[16];
    if (!decoded) {
      std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned>(static_cast<unsigned char>(text[0])));
      shown += escaped;
      text.remove_prefix(1);
      continue;
    }
    if (!isDangerous(decoded->character)) {
      shown += text.substr(0, decoded->length);
    } else {
      const auto code = static_cast<unsigned>(decoded->character);
      std::snprintf(escaped, sizeof escaped, code < 0x80 ? "\\x%02X" : "\\u{%04X}", code);
      shown += escaped;
    }
    text.remove_prefix(decoded->length);
  }
  return shown;
}

std::string printable(const std::filesystem::path& path) {
  return printable(std::string_view(path.native()));
}

std::string excerpt(std::string_view text) {
  constexpr std::size_t most = 80;
  return printable(text.substr(0, most)) + (text.size() > most ? "..." : "");
}

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto decoded = decode(bytes);
    if (!decoded) return false;
    bytes.remove_prefix(decoded->length);
  }
  return true;
}

std::string nearestWord(std::string_view given, const std::vector<std::string>& known) {
  std::string best;
  std::size_t bestSteps = std::max<std::size_t>(given.size() / 2, 1) + 1;
  for (const std::string& word : known) {
    // So many steps it takes at least.
    if (std::max(word.size(), given.size()) - std::min(word.size(), given.size()) >= bestSteps) continue;
    std::vector<std::size_t> row(word.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < given.size(); ++i) {
      std::size_t diagonal = row[0];
      row[0] = i + 1;
      for (std::size_t j = 0; j < word.size(); ++j) {
        const std::size_t replaced = diagonal + (given[i] == word[j] ? 0 : 1);
        diagonal = row[j + 1];
        row[j + 1] = std::min({row[j] + 1, row[j + 1] + 1, replaced});
      }
    }
    if (row.back() < bestSteps) {
      bestSteps = row.back();
      best = word;
    }
  }
  return best;
}

}  // namespace quorvane
