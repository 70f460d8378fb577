// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// A version such as 1.10, 2.0b3 or v2.0-rc.1, to be compared: 1.9 < 1.10, 1.0 = 1.0.0, 2.0dev < 2.0a < 2.0b3 < 2.0rc1
/// < 2.0. Numbers may have any length; a word means "not finished yet". What follows a "+" does not count.
class ProgramVersion {
 public:
  /// Nothing for what is no version: one begins with a number, or "v" and a number, and goes on with numbers and words
  /// of ASCII, with at most one of ".", "-", "_", "~" between them.
  static std::optional<ProgramVersion> parse(std::string_view text);

  [[nodiscard]] std::weak_ordering operator<=>(const ProgramVersion& other) const;
  [[nodiscard]] bool operator==(const ProgramVersion& other) const { return (*this <=> other) == 0; }

 private:
  /// Digits without leading zeros, so that 0 is empty; or a word in lower case.
  struct Part {
    bool isWord;
    std::string text;
  };
  static std::weak_ordering compare(const Part& one, const Part& other);

  std::vector<Part> _parts;  ///< without zeros at the end of a row of numbers
};

}  // namespace quorvane
