// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/ProgramVersion.h"

#include <algorithm>

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The long form of usual abbreviations, so that words compare by the alphabet; "dev" comes before all.
std::string sortable(std::string_view letters) {
  std::string word(letters);
  std::ranges::transform(word, word.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
  if (word == "a") return "alpha";
  if (word == "b") return "beta";
  if (word == "c") return "rc";
  if (word == "dev") return {};
  return word;
}

}  // namespace

std::optional<ProgramVersion> ProgramVersion::parse(std::string_view text) {
  if (text.size() > limits::versionCharacters) return std::nullopt;
  if (!text.empty() && (text[0] == 'v' || text[0] == 'V')) text.remove_prefix(1);
  if (text.empty() || !isDigit(text[0])) return std::nullopt;
  ProgramVersion version;
  const auto dropZeros = [&] {
    while (!version._parts.empty() && !version._parts.back().isWord && version._parts.back().text.empty())
      version._parts.pop_back();
  };
  while (!text.empty() && text[0] != '+') {
    const bool isWord = !isDigit(text[0]);
    const auto end = std::ranges::find_if_not(text, isWord ? isLetter : isDigit);
    std::string_view part(text.begin(), end);
    if (part.empty()) return std::nullopt;
    text.remove_prefix(part.size());
    if (isWord) {
      dropZeros();
      version._parts.push_back({true, sortable(part)});
    } else {
      part.remove_prefix(std::min(part.find_first_not_of('0'), part.size()));
      version._parts.push_back({false, std::string(part)});
    }
    if (!text.empty() && std::string_view(".-_~").find(text[0]) != std::string_view::npos) {
      text.remove_prefix(1);
      if (text.empty() || text[0] == '+') return std::nullopt;
    }
  }
  dropZeros();
  return version;
}

std::weak_ordering ProgramVersion::compare(const Part& one, const Part& other) {
  if (one.isWord != other.isWord) return one.isWord ? std::weak_ordering::less : std::weak_ordering::greater;
  if (!one.isWord && one.text.size() != other.text.size()) return one.text.size() <=> other.text.size();
  return one.text <=> other.text;
}

std::weak_ordering ProgramVersion::operator<=>(const ProgramVersion& other) const {
  // What is missing counts as 0.
  static const Part zero{false, {}};
  for (std::size_t i = 0; i < std::max(_parts.size(), other._parts.size()); ++i) {
    const auto order = compare(i < _parts.size() ? _parts[i] : zero, i < other._parts.size() ? other._parts[i] : zero);
    if (order != 0) return order;
  }
  return std::weak_ordering::equivalent;
}

}  // namespace quorvane
