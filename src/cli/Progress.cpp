// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Progress.h"

#include <QString>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "cli/Terminal.h"

namespace quorvane::cli {

namespace {

constexpr int barCells = 24;
constexpr std::chrono::milliseconds redrawInterval{100};
constexpr const char* red = "\x1b[31m";
constexpr const char* plain = "\x1b[0m";
constexpr const char* clearLine = "\r\x1b[K";

/// Not by printf, which would put in the locale's comma.
std::string withDecimals(double value, int decimals) {
  return QString::number(value, 'f', decimals).toStdString();
}

std::string bar(double fraction) {
  const int filled = static_cast<int>(std::lround(std::clamp(fraction, 0.0, 1.0) * barCells));
  return "[" + std::string(static_cast<std::size_t>(filled), '#') +
         std::string(static_cast<std::size_t>(barCells - filled), '-') + "]";
}

}  // namespace

std::string failureCount(std::size_t failed, bool hasColor) {
  const std::string words = std::to_string(failed) + " failed";
  return hasColor && failed > 0 ? red + words + plain : words;
}

std::string durationInWords(double seconds) {
  if (seconds < 60) return withDecimals(std::max(seconds, 0.0), 1) + " s";
  const auto whole = static_cast<long long>(std::min(seconds, 1e9));
  const auto twoDigits = [](long long number) { return (number < 10 ? "0" : "") + std::to_string(number); };
  if (whole < 3600) return std::to_string(whole / 60) + " min " + twoDigits(whole % 60) + " s";
  return std::to_string(whole / 3600) + " h " + twoDigits(whole % 3600 / 60) + " min";
}

std::string progressLine(const ProgressState& state, int width, bool hasColor) {
  const double rate = state.seconds > 0 ? static_cast<double>(state.done) / state.seconds : 0;
  std::vector<std::string> parts;
  if (state.total && *state.total > 0)
    parts.push_back(bar(static_cast<double>(state.done) / static_cast<double>(*state.total)));
  parts.push_back(std::to_string(state.done) + (state.total ? "/" + std::to_string(*state.total) : " done"));
  if (state.failed > 0) parts.push_back(failureCount(state.failed, false));
  if (rate > 0) parts.push_back(withDecimals(rate, rate < 10 ? 1 : 0) + "/s");
  if (rate > 0 && state.total && *state.total > state.done)
    parts.push_back(durationInWords(static_cast<double>(*state.total - state.done) / rate) + " left");

  std::string line;
  std::size_t shown = 0;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const std::size_t gap = line.empty() ? 0 : 2;
    // The last column stays empty: some terminals go to the next line there.
    if (shown + gap + parts[i].size() >= static_cast<std::size_t>(std::max(width, 1))) continue;
    shown += gap + parts[i].size();
    // Measured without the colour, which takes no room.
    const bool tellsFailures = state.failed > 0 && parts[i] == failureCount(state.failed, false);
    line += std::string(gap, ' ') + (tellsFailures ? failureCount(state.failed, hasColor) : parts[i]);
  }
  return line;
}

void Progress::draw(const ProgressState& state) {
  const auto now = Clock::now();
  if (_lastDrawn && now - *_lastDrawn < redrawInterval) return;
  _lastDrawn = now;
  _isDrawn = true;
  std::fprintf(stderr, "%s%s", clearLine, progressLine(state, terminalWidth(), _hasColor).c_str());
  std::fflush(stderr);
}

void Progress::clear() {
  if (!_isDrawn) return;
  _isDrawn = false;
  std::fputs(clearLine, stderr);
  std::fflush(stderr);
}

}  // namespace quorvane::cli
