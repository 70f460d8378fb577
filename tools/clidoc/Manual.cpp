// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "Clidoc.h"

namespace quorvane::clidoc {

namespace {

using cli::CommandRow;
using cli::OptionRow;

// Text as roff prints it: no backslash of ours is a command, "-" stays what is typed, and no line begins with a
// request.
std::string roff(const std::string& text) {
  std::string result;
  for (const char character : text) {
    if (character == '\\') {
      result += "\\e";
    } else if (character == '-') {
      result += "\\-";
    } else if (character == '~' || character == '^' || character == '\'') {
      result += character == '~' ? "\\(ti" : character == '^' ? "\\(ha" : "\\(aq";
    } else if (character == '"') {
      result += "\\(dq";
    } else {
      result += character;
    }
  }
  return result.starts_with(".") ? "\\&" + result : result;
}

std::string optionEntry(const OptionRow& option) {
  std::string text = ".TP\n";
  for (const std::string& name : option.names)
    text += (&name == &option.names.front() ? "" : ", ") + ("\\fB" + roff(name)) + "\\fR";
  if (!option.value.empty()) text += " \\fI" + roff(option.value) + "\\fR";
  return text + "\n" + roff(option.text) + ".\n";
}

bool hasOption(const CommandRow& command, const OptionRow& option) {
  return std::ranges::find(command.options, option) != command.options.end();
}

// Those that do something by themselves, and not only by the commands below them.
std::vector<const CommandRow*> workingCommands(const CommandRow& root) {
  auto commands = allCommands(root);
  std::erase_if(commands,
                [](const CommandRow* command) { return !command->commands.empty() && command->operands.empty(); });
  return commands;
}

// "apply [OPTIONS] FOLDER..." with the words to type in bold and those to replace in italics. Commands below it, which
// stand behind a bar there, have headings of their own.
std::string heading(const CommandRow& command) {
  const std::string use = command.use.substr(0, command.use.find(" | "));
  const std::string rest = use.size() > command.name.size() ? use.substr(command.name.size()) : "";
  return ".SS \"\\fB" + roff(command.name) + "\\fR\\fI" + roff(rest) + "\\fR\"\n";
}

}  // namespace

std::string manualCommands(const CommandRow& root) {
  const auto commands = workingCommands(root);
  const auto isCommon = [&](const OptionRow& option) {
    return std::ranges::all_of(commands, [&](const CommandRow* command) { return hasOption(*command, option); });
  };
  const auto firstWith = [&](const OptionRow& option) {
    return *std::ranges::find_if(commands, [&](const CommandRow* command) { return hasOption(*command, option); });
  };

  std::string text = ".SH COMMANDS\n";
  for (const CommandRow* command : commands) {
    text += heading(*command) + roff(command->text) + ".\n";
    // What an earlier command has explained is named and not told again.
    for (const CommandRow* earlier : commands) {
      std::string names;
      if (earlier != command)
        for (const OptionRow& option : command->options)
          if (!isCommon(option) && firstWith(option) == earlier)
            names += (names.empty() ? "\\fB" : ", \\fB") + roff(longName(option)) + "\\fR";
      if (!names.empty()) text += "As with \\fB" + roff(earlier->name) + "\\fR: " + names + ".\n";
    }
    for (const OptionRow& option : command->options)
      if (!isCommon(option) && firstWith(option) == command) text += optionEntry(option);
  }
  text += ".SH OPTIONS\nEvery command takes these as well.\n";
  for (const OptionRow& option : commands.front()->options)
    if (isCommon(option)) text += optionEntry(option);
  text += ".PP\nThese stand alone, without a command.\n";
  for (const OptionRow& option : root.options)
    if (!isCommon(option)) text += optionEntry(option);
  return text;
}

}  // namespace quorvane::clidoc
