// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace quorvane::cli {

namespace {

std::string_view variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

}  // namespace

bool isTerminal(int file) {
  return ::isatty(file) == 1;
}

bool canRedraw() {
  const std::string_view kind = variable("TERM");
  return isTerminal(STDERR_FILENO) && !kind.empty() && kind != "dumb";
}

bool canColor(bool isWanted) {
  return isWanted && canRedraw() && variable("NO_COLOR").empty();
}

int terminalWidth() {
  winsize size{};
  return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

}  // namespace quorvane::cli
