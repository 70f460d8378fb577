// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

namespace quorvane {

/// A line of a text and what ends it.
struct TextLine {
  std::string_view text;
  std::string_view end;  ///< "\n", "\r\n", or empty at the end of a text that does not end with a line end
};

/// Both together are the text again. The views last as long as the text.
inline std::vector<TextLine> textLines(std::string_view text) {
  std::vector<TextLine> lines;
  while (!text.empty()) {
    const std::size_t newline = text.find('\n');
    const std::size_t next = newline == std::string_view::npos ? text.size() : newline + 1;
    std::size_t length = newline == std::string_view::npos ? text.size() : newline;
    if (length < next && length > 0 && text[length - 1] == '\r') --length;
    lines.push_back({text.substr(0, length), text.substr(length, next - length)});
    text.remove_prefix(next);
  }
  return lines;
}

}  // namespace quorvane
