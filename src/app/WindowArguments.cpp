// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WindowArguments.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

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
    "Qt's own options, such as -platform or -reverse, are taken too.\n"
    "For scripts there is the command \"quorvane\".\n";
constexpr int wrongUse = 2;

// QGuiApplication's, with one dash or two. A session manager starts the program again with "-session ID".
constexpr std::array<std::string_view, 14> toolkitOptions{
    "session",     "platform", "platformpluginpath", "platformtheme", "plugin", "qwindowgeometry", "qwindowtitle",
    "qwindowicon", "display",  "geometry",           "fontengine",    "style",  "stylesheet",      "icon"};
constexpr std::array<std::string_view, 2> toolkitFlags{"reverse", "widgetcount"};

enum class ToolkitOption { Alone, BeforeValue };

std::optional<ToolkitOption> toolkitOption(std::string_view argument) {
  argument.remove_prefix(argument.starts_with("--") ? 2 : 1);
  const auto equals = argument.find('=');
  const std::string_view name = argument.substr(0, equals);
  if (std::ranges::find(toolkitFlags, argument) != toolkitFlags.end()) return ToolkitOption::Alone;
  if (std::ranges::find(toolkitOptions, name) == toolkitOptions.end()) return std::nullopt;
  return equals == std::string_view::npos ? ToolkitOption::BeforeValue : ToolkitOption::Alone;
}

}  // namespace

WindowArguments parseWindowArguments(const std::vector<std::string>& arguments) {
  WindowArguments parsed;
  bool areOptionsOver = false;
  bool isValue = false;
  for (const std::string& argument : arguments) {
    if (std::exchange(isValue, false)) continue;
    if (!areOptionsOver && argument.starts_with("-")) {
      if (argument == "--") {
        areOptionsOver = true;
      } else if (argument == "--help" || argument == "-h") {
        parsed.words = help;
        return parsed;
      } else if (argument == "--version") {
        parsed.words = "quorvane-window " QUORVANE_VERSION "\n";
        return parsed;
      } else if (const auto ofToolkit = toolkitOption(argument)) {
        isValue = ofToolkit == ToolkitOption::BeforeValue;
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
