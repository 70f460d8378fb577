// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace quorvane {

/// A four-character type code as a 32-bit value, first letter in the high byte ('it32' is 0x69743332).
class FourCharCode {
 public:
  constexpr FourCharCode() = default;
  constexpr explicit FourCharCode(std::uint32_t value) : _value(value) {}
  /// From a literal of exactly four letters: FourCharCode("it32").
  constexpr FourCharCode(const char (&letters)[5])  // NOLINT(google-explicit-constructor)
      : _value(byte(letters[0]) << 24 | byte(letters[1]) << 16 | byte(letters[2]) << 8 | byte(letters[3])) {}

  [[nodiscard]] constexpr std::uint32_t value() const { return _value; }
  constexpr bool operator==(const FourCharCode&) const = default;
  constexpr auto operator<=>(const FourCharCode&) const = default;

  /// The four bytes as they are; not for a terminal, which toDisplayText() is.
  [[nodiscard]] std::string toString() const;
  /// Printable: bytes outside the visible ASCII range as \xHH.
  [[nodiscard]] std::string toDisplayText() const;

 private:
  static constexpr std::uint32_t byte(char c) { return static_cast<unsigned char>(c); }
  std::uint32_t _value = 0;
};

}  // namespace quorvane
