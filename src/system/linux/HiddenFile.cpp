// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/linux/HiddenFile.h"

#include <algorithm>
#include <vector>

namespace quorvane::hiddenfile {

namespace {

/// With their line feeds.
std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return lines;
}

bool isName(std::string_view line, std::string_view name) {
  return line.starts_with(name) && (line.size() == name.size() || line.substr(name.size()) == "\n");
}

}  // namespace

bool hides(std::string_view text, std::string_view name) {
  return std::ranges::any_of(linesOf(text), [&](std::string_view line) { return isName(line, name); });
}

std::string withName(std::string_view text, std::string_view name) {
  std::string result(text);
  if (hides(text, name)) return result;
  if (!result.empty() && !result.ends_with('\n')) result += '\n';
  return result.append(name).append("\n");
}

std::optional<std::string> restored(std::string_view text, const std::optional<std::string>& original,
                                    std::string_view name) {
  if (original && hides(*original, name)) return std::string(text);
  if (text == withName(original.value_or(std::string()), name)) return original;
  std::string result;
  for (const std::string_view line : linesOf(text))
    if (!isName(line, name)) result += line;
  if (!original && result.empty()) return std::nullopt;
  return result;
}

}  // namespace quorvane::hiddenfile
