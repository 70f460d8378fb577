// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "foundation/base/Result.h"

namespace quorvane {

/// Gives up to as many bytes as there is room for, at least one; 0 at the end.
using ByteSource = std::function<Result<std::size_t>(std::span<char>)>;

/// Reads paths, raw bytes, from a list: one a line, or each ended by a zero byte. Holds no more than one path and one
/// piece of the list at a time.
class ListReader {
 public:
  ListReader(ByteSource source, char separator);

  /// The next path; empty lines are passed over. nullopt at the end. A failure is the end, too: the source failed, or a
  /// path is far longer than any can be (Limits.h), so that this is no list of paths.
  Result<std::optional<std::filesystem::path>> next();
  /// The number of the line, from 1, on which the path stood that was given last; with zero bytes, of the path.
  [[nodiscard]] std::size_t line() const { return _line; }

 private:
  ByteSource _source;
  char _separator;
  std::vector<char> _piece;  ///< what the source fills
  std::string _held;
  std::size_t _start = 0;  ///< of what is not given yet, in _held
  std::size_t _line = 0;
  bool _isAtEnd = false;
};

}  // namespace quorvane
