// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/OriginalState.h"

#include <algorithm>
#include <sstream>

namespace quorvane {

namespace {

constexpr const char* form = "quorvane-original 1";
constexpr const char* lastLine = "end";
constexpr const char* kept = "kept";
constexpr const char* absent = "absent";
constexpr const char* hexPrefix = "hex:";
constexpr const char* digits = "0123456789abcdef";

Error damaged(const std::string& why) {
  return Error::invalidInput("the record of the original icon is damaged: " + why);
}

std::optional<Bytes> fromHex(const std::string& text) {
  Bytes bytes;
  const std::string known = digits;
  if (text.size() % 2 != 0) return std::nullopt;
  for (std::size_t at = 0; at < text.size(); at += 2) {
    const std::size_t high = known.find(text[at]);
    const std::size_t low = known.find(text[at + 1]);
    if (high == std::string::npos || low == std::string::npos) return std::nullopt;
    bytes.push_back(static_cast<std::uint8_t>(high * 16 + low));
  }
  return bytes;
}

}  // namespace

Result<OriginalState> OriginalState::parse(ByteView text) {
  std::istringstream lines(std::string(text.begin(), text.end()));
  std::string line;
  if (!std::getline(lines, line) || line != form) return damaged("unknown form");
  OriginalState state;
  while (std::getline(lines, line)) {
    if (line == lastLine) return state;
    const std::size_t space = line.find(' ');
    if (space == std::string::npos) return damaged("a line without a value");
    state._values[line.substr(0, space)] = line.substr(space + 1);
  }
  return damaged("its end is missing");
}

Bytes OriginalState::serialize() const {
  std::string text = form;
  text += '\n';
  for (const auto& [key, value] : _values) text.append(key).append(" ").append(value).append("\n");
  text.append(lastLine).append("\n");
  return Bytes(text.begin(), text.end());
}

void OriginalState::setKept(const std::string& key, bool isKept) {
  _values[key] = isKept ? kept : absent;
}

void OriginalState::setBytes(const std::string& key, const std::optional<Bytes>& bytes) {
  std::string& text = _values[key];
  text = bytes ? hexPrefix : absent;
  if (!bytes) return;
  for (const std::uint8_t byte : *bytes) {
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
}

Result<bool> OriginalState::isKept(const std::string& key) const {
  const auto found = _values.find(key);
  if (found == _values.end()) return damaged("nothing about " + key);
  if (found->second == kept) return true;
  if (found->second == absent) return false;
  return damaged("what is said of " + key);
}

Result<std::optional<Bytes>> OriginalState::bytes(const std::string& key) const {
  const auto found = _values.find(key);
  if (found == _values.end()) return damaged("nothing about " + key);
  if (found->second == absent) return std::optional<Bytes>();
  const std::string prefix = hexPrefix;
  if (found->second.starts_with(prefix))
    if (auto bytes = fromHex(found->second.substr(prefix.size()))) return bytes;
  return damaged("what is said of " + key);
}

}  // namespace quorvane
