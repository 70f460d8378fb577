// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace quorvane::cli {

/// How far a run over many folders is.
struct ProgressState {
  std::size_t done = 0;  ///< with those that failed
  std::size_t failed = 0;
  std::optional<std::size_t> total;
  double seconds = 0;  ///< since the beginning
};

/// "3 failed", in red where that is wanted and some did.
std::string failureCount(std::size_t failed, bool hasColor);

/// The words of the progress line, of at most `width` characters: a bar, how many are done of how many, the rate, the
/// time left and the failures; what is not known is left out.
std::string progressLine(const ProgressState& state, int width, bool hasColor);

/// "12.3 s", "4 min 05 s", "2 h 07 min".
std::string durationInWords(double seconds);

/// One line on the terminal behind standard error that is drawn over and over, ten times a second at most. Other output
/// needs clear() before it.
class Progress {
 public:
  explicit Progress(bool hasColor) : _hasColor(hasColor) {}
  ~Progress() { clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void draw(const ProgressState& state);
  /// Takes the line away, if it is there.
  void clear();

 private:
  using Clock = std::chrono::steady_clock;

  bool _hasColor;
  bool _isDrawn = false;
  std::optional<Clock::time_point> _lastDrawn;
};

}  // namespace quorvane::cli
