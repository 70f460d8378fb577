// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/ScriptText.h"

namespace quorvane::scripts {

namespace {

constexpr std::string_view plain = "\\\"\n\r\t";
constexpr std::string_view letters = "\\\"nrt";

}  // namespace

std::string quoted(std::string_view text) {
  std::string literal = "\"";
  for (const char letter : text) {
    const auto at = plain.find(letter);
    if (at == std::string_view::npos) {
      literal += letter;
    } else {
      literal += {'\\', letters[at]};
    }
  }
  return literal + '"';
}

std::optional<std::string> takeQuoted(std::string_view& script) {
  if (!script.starts_with('"')) return std::nullopt;
  std::string text;
  for (std::size_t at = 1; at < script.size(); ++at) {
    if (script[at] == '"') {
      script.remove_prefix(at + 1);
      return text;
    }
    if (script[at] != '\\') {
      text += script[at];
      continue;
    }
    const auto escape = ++at < script.size() ? letters.find(script[at]) : std::string_view::npos;
    if (escape == std::string_view::npos) return std::nullopt;
    text += plain[escape];
  }
  return std::nullopt;
}

std::string withoutExtension(std::string_view name) {
  const auto slash = name.rfind('/');
  const std::size_t first = slash == std::string_view::npos ? 0 : slash + 1;
  const auto stop = name.rfind('.');
  const bool hasExtension = stop != std::string_view::npos && stop > first && stop + 1 < name.size();
  return std::string(name.substr(0, hasExtension ? stop : name.size()));
}

}  // namespace quorvane::scripts
