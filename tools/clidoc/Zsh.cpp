// SPDX-License-Identifier: GPL-3.0-or-later
#include "Clidoc.h"

namespace quorvane::clidoc {

namespace {

using cli::CommandRow;
using cli::OptionRow;

std::string plain(const std::string& text) {
  return escaped(text, "\\:[]");
}

// What completes a value: ":message:action".
std::string valueOf(const OptionRow& row) {
  std::string text = ":" + plain(row.value) + ":";
  switch (kindOf(row)) {
    case Kind::Choice: {
      std::string choices;
      for (const std::string& choice : row.choices) choices += (choices.empty() ? "" : " ") + choice;
      return text + "(" + choices + ")";
    }
    case Kind::File:
      return text + "_files";
    case Kind::Folder:
      return text + "_directories";
    case Kind::Text:
      break;
  }
  return text + " ";
}

std::string optionSpec(const OptionRow& option) {
  std::string names;
  for (const std::string& name : option.names) names += (names.empty() ? "" : " ") + name;
  const std::string value = option.value.empty() ? "" : valueOf(option);
  std::string text;
  for (const std::string& name : option.names) {
    // A long option takes its value behind "=" as well, a short one also directly behind it.
    const char* sign = option.value.empty() ? "" : name.starts_with("--") ? "=" : "+";
    text += " \\\n    " + shellQuoted("(" + names + ")" + name + sign + "[" + plain(option.text) + "]" + value);
  }
  return text;
}

std::string functionName(const CommandRow& command) {
  std::string name = "_quorvane_command_" + command.name;
  for (char& character : name)
    if (character == ' ' || character == '-') character = '_';
  return command.name.empty() ? "_quorvane" : name;
}

std::string function(const CommandRow& command) {
  std::string text = functionName(command) + "() {\n";
  const bool isGroup = !command.commands.empty();
  if (isGroup) text += "  local curcontext=$curcontext state line ret=1\n  typeset -A opt_args\n";
  text += isGroup ? "  _arguments -C -S" : "  _arguments -s -S";
  for (const OptionRow& option : command.options) text += optionSpec(option);
  if (!isGroup) {
    for (const OptionRow& operand : command.operands) text += " \\\n    " + shellQuoted("*" + valueOf(operand));
    return text + "\n}\n\n";
  }
  text +=
      " \\\n    '1:command:->command' \\\n    '*::argument:->argument' && ret=0\n  case $state in\n    command)\n"
      "      local choices=(\n";
  for (const CommandRow& child : command.commands)
    text += "        " + shellQuoted(child.name.substr(child.name.rfind(' ') + 1) + ":" + escaped(child.text, "\\:")) +
            "\n";
  text += "      )\n      _describe -t commands command choices && ret=0\n";
  if (command.name.empty())
    text +=
        "      # A folder instead of a command opens in the window.\n"
        "      (( ret && $+commands[quorvane-window] )) && _directories && ret=0\n";
  text += "      ;;\n    argument)\n      case $words[1] in\n";
  for (const CommandRow& child : command.commands)
    text += "        " + child.name.substr(child.name.rfind(' ') + 1) + ") " + functionName(child) + " && ret=0 ;;\n";
  return text + "      esac\n      ;;\n  esac\n  return ret\n}\n\n";
}

}  // namespace

std::string zshCompletion(const CommandRow& root) {
  std::string text = "#compdef quorvane\n# SPDX-License-Identifier: GPL-3.0-or-later\n\n";
  for (const CommandRow* command : allCommands(root)) text += function(*command);
  return text + "_quorvane \"$@\"\n";
}

}  // namespace quorvane::clidoc
