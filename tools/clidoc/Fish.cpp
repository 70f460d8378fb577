// SPDX-License-Identifier: GPL-3.0-or-later
#include "Clidoc.h"

namespace quorvane::clidoc {

namespace {

using cli::CommandRow;
using cli::OptionRow;

std::string quoted(const std::string& text) {
  return "'" + escaped(text, "\\'") + "'";
}

std::string valueOf(const OptionRow& row) {
  switch (kindOf(row)) {
    case Kind::Choice: {
      std::string choices;
      for (const std::string& choice : row.choices) choices += (choices.empty() ? "" : " ") + choice;
      return " -x -a " + quoted(choices);
    }
    case Kind::File:
      return " -r -F";
    case Kind::Folder:
      return " -x -a '(__fish_complete_directories)'";
    case Kind::Text:
      break;
  }
  return " -x";
}

std::string rowsOf(const CommandRow& command) {
  const std::string begin = "complete -c quorvane -n " + quoted("__quorvane_in " + quoted(command.name));
  std::string text;
  for (const OptionRow& option : command.options) {
    text += begin;
    for (const std::string& name : option.names)
      text += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    text += (option.value.empty() ? "" : valueOf(option)) + " -d " + quoted(option.text) + "\n";
  }
  for (const CommandRow& child : command.commands)
    text += begin + " -a " + child.name.substr(child.name.rfind(' ') + 1) + " -d " + quoted(child.text) + "\n";
  if (!command.operands.empty()) {
    const Kind kind = kindOf(command.operands.front());
    if (kind == Kind::Folder) text += begin + " -a '(__fish_complete_directories)'\n";
    if (kind == Kind::File) text += begin + " -F\n";
  }
  return text + "\n";
}

}  // namespace

std::string fishCompletion(const CommandRow& root) {
  std::string names;
  for (const CommandRow* command : allCommands(root))
    if (!command->name.empty()) names += " " + quoted(command->name);
  std::string text = "# SPDX-License-Identifier: GPL-3.0-or-later\nset -g __quorvane_commands" + names + R"(

function __quorvane_in -d 'Whether the words before the cursor stand in this command'
    set -l words (commandline -opc)
    set -e words[1]
    set -l command ''
    for word in $words
        string match -q -- '-*' $word; and continue
        set -l longer (string trim -- "$command $word")
        contains -- $longer $__quorvane_commands; or break
        set command $longer
    end
    test "$command" = "$argv[1]"
end

complete -c quorvane -f
# A folder instead of a command opens in the window.
complete -c quorvane -n "__quorvane_in ''; and command -q quorvane-window" -a '(__fish_complete_directories)'

)";
  for (const CommandRow* command : allCommands(root)) text += rowsOf(*command);
  return text;
}

}  // namespace quorvane::clidoc
