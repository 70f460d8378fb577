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

// QApplication's and those of its X11 platform, with one dash or two. A session manager starts the program again with
// "-session ID".
constexpr std::array<std::string_view, 15> toolkitOptions{
    "session", "platform", "platformpluginpath", "platformtheme", "plugin", "qwindowgeometry", "geometry",
    "title",   "icon",     "qwindowtitle",       "qwindowicon",   "style",  "stylesheet",      "display",
    "name"};
constexpr std::array<std::string_view, 2> toolkitOptionsWithEquals{"style", "stylesheet"};
constexpr std::array<std::string_view, 4> toolkitFlags{"reverse", "widgetcount", "nograb", "dograb"};

enum class ToolkitOption { Alone, BeforeValue };

std::string_view withoutDashes(std::string_view argument) {
  return argument.substr(argument.starts_with("--") ? 2 : 1);
}

std::optional<ToolkitOption> toolkitOption(std::string_view argument) {
  const std::string_view name = withoutDashes(argument);
  const auto has = [](const auto& names, std::string_view wanted) {
    return std::ranges::find(names, wanted) != names.end();
  };
  if (has(toolkitOptions, name)) return ToolkitOption::BeforeValue;
  const auto equals = name.find('=');
  const bool hasValue = equals != std::string_view::npos && has(toolkitOptionsWithEquals, name.substr(0, equals));
  return hasValue || has(toolkitFlags, name) ? std::optional(ToolkitOption::Alone) : std::nullopt;
}

WindowArguments wrongly(const std::string& complaint) {
  WindowArguments parsed;
  parsed.words = "quorvane-window: " + complaint + "\nTry 'quorvane-window --help'.\n";
  parsed.exitCode = wrongUse;
  return parsed;
}

}  // namespace

WindowArguments parseWindowArguments(const std::vector<std::string>& arguments) {
  WindowArguments parsed;
  bool areOptionsOver = false;
  bool isValue = false;
  for (const std::string& argument : arguments) {
    if (std::exchange(isValue, false)) {
      parsed.toolkitOptions.push_back(argument);
      continue;
    }
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
        parsed.toolkitOptions.push_back(argument);
        const std::string_view name = withoutDashes(argument);
        parsed.namesDisplay |= name == "platform" || name == "display";
      } else {
        return wrongly("unknown option '" + printable(argument) + "'");
      }
      continue;
    }
    if (!argument.empty()) parsed.folders.push_back(argument);
  }
  if (isValue) return wrongly("option '" + parsed.toolkitOptions.back() + "' needs a value");
  return parsed;
}

}  // namespace quorvane
