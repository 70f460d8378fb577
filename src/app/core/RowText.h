// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/ListReader.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// A text that comes in pieces, of which a row's worth is looked at a time.
class RowText {
 public:
  explicit RowText(ByteSource source);

  /// The character at a distance from the place reached, at most limits::rowBytes; nullopt behind the end, and when
  /// reading failed.
  std::optional<char> peek(std::size_t distance);
  /// What was peeked at, from the place reached.
  [[nodiscard]] std::string_view view(std::size_t count) const { return std::string_view(_held).substr(_start, count); }
  /// Goes on behind `count` characters that were peeked at.
  void consume(std::size_t count);
  /// Goes on behind the end of the present line, however long it is.
  void skipLine();
  /// The line's length without its end, LF or CRLF; nullopt when it is longer than limits::rowBytes.
  std::optional<std::size_t> lineLength();

  /// The number of the line reached, from 1.
  [[nodiscard]] std::size_t line() const { return _line; }
  /// Why reading stopped before the end, if it did.
  [[nodiscard]] const std::optional<Error>& failure() const { return _failure; }

 private:
  bool fill();

  ByteSource _source;
  std::vector<char> _piece;  ///< what the source fills
  std::string _held;
  std::size_t _start = 0;
  std::size_t _line = 1;
  bool _isAtEnd = false;
  std::optional<Error> _failure;
};

}  // namespace quorvane
