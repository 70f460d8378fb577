// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WindowArguments.h"

#include "foundation/base/Text.h"
#include "foundation/base/Version.h"

namespace quorvane {

namespace {

constexpr const char* help =
    "Use: quorvane-window [FOLDER...]\n"
    "\n"
    "Opens the window in which a folder is given its own icon. A FOLDER is a path or a\n"
    "\"file:\" address; of several the last one stays open.\n"
    "\n"
    "  --help      this text\n"
    "  --version   the version\n"
    "\n"
    "For scripts there is the command \"quorvane\".\n";
constexpr int wrongUse = 2;

}  // namespace

WindowArguments parseWindowArguments(const std::vector<std::string>& arguments) {
  WindowArguments parsed;
  bool areOptionsOver = false;
  for (const std::string& argument : arguments) {
    if (!areOptionsOver && argument.starts_with("-")) {
      if (argument == "--") {
        areOptionsOver = true;
      } else if (argument == "--help" || argument == "-h") {
        parsed.words = help;
        return parsed;
      } else if (argument == "--version") {
        parsed.words = "quorvane-window " QUORVANE_VERSION "\n";
        return parsed;
      } else {
        parsed.words = "quorvane-window: unknown option '" + printable(argument) + "'\nTry 'quorvane-window --help'.\n";
        parsed.exitCode = wrongUse;
        return parsed;
      }
      continue;
    }
    if (!argument.empty()) parsed.folders.push_back(argument);
  }
  return parsed;
}

}  // namespace quorvane
