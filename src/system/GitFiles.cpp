// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/GitFiles.h"

#include <set>

namespace quorvane::gitfiles {

namespace {

/// A text that is one path and line ends, as git itself reads it.
Result<std::string> onlyPath(std::string_view text) {
  while (text.ends_with('\n') || text.ends_with('\r')) text.remove_suffix(1);
  if (text.empty()) return Error::invalidInput("names no path");
  if (text.find('\0') != std::string_view::npos) return Error::invalidInput("names a path with a zero byte");
  return std::string(text);
}

std::optional<std::string> escaped(std::string_view text) {
  if (text.empty() || text.find('\n') != std::string_view::npos || text.find('\0') != std::string_view::npos)
    return std::nullopt;
  std::string pattern;
  for (const char each : text) {
    if (each == '\\' || each == '*' || each == '?' || each == '[') pattern += '\\';
    pattern += each;
  }
  // At the end of a line spaces are dropped unless escaped, and a carriage return counts as part of the line end.
  if (pattern.ends_with(' ')) pattern.insert(pattern.size() - 1, "\\");
  if (pattern.ends_with('\r')) pattern.replace(pattern.size() - 1, 1, "[\r]");
  return pattern;
}

}  // namespace

Result<std::string> repositoryPath(std::string_view text) {
  constexpr std::string_view key = "gitdir: ";
  if (!text.starts_with(key)) return Error::invalidInput("does not say where the repository is");
  return onlyPath(text.substr(key.size()));
}

Result<std::string> commonPath(std::string_view text) {
  return onlyPath(text);
}

std::optional<std::string> patternForPath(std::string_view path) {
  // The slash in front ties it to the top of the work tree.
  const auto pattern = escaped(path);
  return pattern ? std::optional("/" + *pattern) : std::nullopt;
}

std::optional<std::string> patternForName(std::string_view name) {
  auto pattern = escaped(name);
  if (pattern && (pattern->starts_with('#') || pattern->starts_with('!'))) pattern->insert(0, "\\");
  return pattern;
}

std::vector<std::string> missingPatterns(std::string_view list, const std::vector<std::string>& patterns) {
  std::set<std::string_view> lines;
  while (!list.empty()) {
    const std::size_t newline = list.find('\n');
    lines.insert(list.substr(0, newline));
    list.remove_prefix(newline == std::string_view::npos ? list.size() : newline + 1);
  }
  std::vector<std::string> missing;
  for (const std::string& pattern : patterns)
    if (lines.insert(pattern).second) missing.push_back(pattern);
  return missing;
}

std::string withPatterns(std::string_view list, const std::vector<std::string>& patterns) {
  std::string result(list);
  for (const std::string& pattern : missingPatterns(list, patterns)) {
    if (!result.empty() && !result.ends_with('\n')) result += '\n';
    result += pattern + '\n';
  }
  return result;
}

}  // namespace quorvane::gitfiles
