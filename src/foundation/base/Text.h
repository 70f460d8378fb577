// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// Text that cannot drive a terminal: control characters, bytes that are no UTF-8, and the characters that turn or hide
/// text are shown as \xHH or \u{HHHH}; a backslash as it is.
std::string printable(std::string_view text);
inline std::string printable(const std::string& text) {
  return printable(std::string_view(text));
}
std::string printable(const std::filesystem::path& path);

/// The beginning of a text that may be of any length, printable, to name it in a complaint.
std::string excerpt(std::string_view text);

/// True when the bytes are well-formed UTF-8 (surrogates and overlong forms are not).
bool isUtf8(std::string_view bytes);

/// The word of `known` that is nearest to `given` by editing steps, when it is near enough to suggest; else empty.
std::string nearestWord(std::string_view given, const std::vector<std::string>& known);

}  // namespace quorvane
