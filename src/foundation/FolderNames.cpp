// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/FolderNames.h"

#include <sys/random.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <ctime>

namespace quorvane::names {

namespace {

constexpr std::string_view prefix = ".quorvane-";
constexpr std::string_view suffix = ".tmp";
constexpr std::string_view letters = "0123456789abcdefghijklmnopqrstuvwxyz";
constexpr std::size_t randomLetters = 8;

}  // namespace

Result<void> check(std::string_view name) {
  if (name.empty()) return Error::invalidInput("empty name");
  if (name == "." || name == "..") return Error::invalidInput("\".\" and \"..\" are no names of items");
  if (name.find('/') != std::string_view::npos) return Error::invalidInput("name with a slash");
  if (name.find('\0') != std::string_view::npos) return Error::invalidInput("name with a zero byte");
  if (name.size() > maximumBytes)
    return Error::invalidInput("name of " + std::to_string(name.size()) + " bytes, at most " +
                               std::to_string(maximumBytes) + " are possible");
  return {};
}

std::string makeTemporary() {
  std::array<std::uint8_t, randomLetters> random{};
  if (::getrandom(random.data(), random.size(), GRND_NONBLOCK) != static_cast<ssize_t>(random.size())) {
    // Early after the start of the machine. Names need only differ: whoever meets an existing one tries another.
    static std::atomic<std::uint64_t> count = 0;
    std::uint64_t mixed = (static_cast<std::uint64_t>(::getpid()) << 32) ^ static_cast<std::uint64_t>(::clock());
    mixed = (mixed + ++count) * 0x9E3779B97F4A7C15U;
    for (auto& byte : random) byte = static_cast<std::uint8_t>((mixed >>= 7) & 0xFF);
  }
  std::string name(prefix);
  for (const std::uint8_t byte : random) name += letters[byte % letters.size()];
  return name += suffix;
}

bool isTemporary(std::string_view name) {
  if (name.size() != prefix.size() + randomLetters + suffix.size()) return false;
  if (!name.starts_with(prefix) || !name.ends_with(suffix)) return false;
  const std::string_view middle = name.substr(prefix.size(), randomLetters);
  return std::all_of(middle.begin(), middle.end(), [](char c) { return letters.find(c) != std::string_view::npos; });
}

}  // namespace quorvane::names
