// SPDX-License-Identifier: GPL-3.0-or-later
#include <map>

#include "Clidoc.h"

namespace quorvane::clidoc {

namespace {

using cli::CommandRow;
using cli::OptionRow;

// Names of files are left to readline: with no words of ours it completes them itself, quoting and "~" included.
const char* const kBegin = R"(# bash completion for quorvane
# SPDX-License-Identifier: GPL-3.0-or-later

_quorvane()
{
    local cur=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD-1]} command= options= commands= operands= i
    COMPREPLY=()

    # "--option=value" arrives as three words.
    if [[ $cur == = ]]; then
        cur=
    elif [[ $option == = ]]; then
        option=${COMP_WORDS[COMP_CWORD-2]}
    fi

    local words=()
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            --) option=--; break ;;
            -*) ;;
            *) words+=("${COMP_WORDS[i]}") ;;
        esac
    done
)";

const char* const kEnd = R"(
    case $operands in
        folders) compopt -o dirnames ;;
        files) compopt -o default ;;
    esac
} &&
complete -F _quorvane quorvane
)";

std::string joined(const std::vector<std::string>& words, const char* between = " ") {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : between) + word;
  return text;
}

// What follows an option that takes a value: by name, for all commands alike.
std::string valueCases(const CommandRow& root) {
  std::map<std::string, std::string> namesByAction;
  for (const CommandRow* command : allCommands(root))
    for (const OptionRow& option : command->options) {
      if (option.value.empty()) continue;
      std::string action;
      switch (kindOf(option)) {
        case Kind::Choice:
          action = "COMPREPLY=($(compgen -W " + shellQuoted(joined(option.choices)) + " -- \"$cur\"))";
          break;
        case Kind::File:
          action = "compopt -o default";
          break;
        case Kind::Folder:
          action = "compopt -o dirnames";
          break;
        case Kind::Text:
          break;
      }
      std::string& names = namesByAction[action];
      const std::string pattern = joined(option.names, "|");
      if (("|" + names + "|").find("|" + pattern + "|") == std::string::npos)
        names += (names.empty() ? "" : "|") + pattern;
    }
  std::string text = "\n    case $option in\n";
  for (const auto& [action, names] : namesByAction)
    text += "        " + names + ")" + (action.empty() ? "" : "\n            " + action) + "\n            return ;;\n";
  return text + "    esac\n";
}

std::string commandCase(const CommandRow& command) {
  std::vector<std::string> options;
  for (const OptionRow& option : command.options)
    options.insert(options.end(), option.names.begin(), option.names.end());
  std::vector<std::string> commands;
  for (const CommandRow& child : command.commands) commands.push_back(child.name.substr(child.name.rfind(' ') + 1));
  std::string text =
      "        " + shellQuoted(command.name) + ")\n            options=" + shellQuoted(joined(options)) + "\n";
  if (!commands.empty()) text += "            commands=" + shellQuoted(joined(commands)) + "\n";
  if (!command.operands.empty()) {
    const Kind kind = kindOf(command.operands.front());
    if (kind == Kind::Folder) text += "            operands=folders\n";
    if (kind == Kind::File) text += "            operands=files\n";
  }
  return text + "            ;;\n";
}

// Of the words before the cursor the first is the command; where that is the name of a group, the first two.
std::string commandSearch(const CommandRow& root) {
  std::string text = "\n    command=${words[0]-}\n    case $command in\n";
  for (const CommandRow& child : root.commands)
    if (!child.commands.empty())
      text += "        " + child.name + ") [[ ${words[1]+x} ]] && command+=\" ${words[1]}\" ;;\n";
  return text + "    esac\n";
}

}  // namespace

std::string bashCompletion(const CommandRow& root) {
  std::string text = kBegin + commandSearch(root) + valueCases(root) + "\n    case $command in\n";
  for (const CommandRow* command : allCommands(root)) text += commandCase(*command);
  text += R"(        *)
            return ;;
    esac

    if [[ $cur == -* && $option != -- ]]; then
        COMPREPLY=($(compgen -W "$options" -- "$cur"))
        return
    fi
    if [[ $commands ]]; then
        COMPREPLY=($(compgen -W "$commands" -- "$cur"))
        # A folder instead of a command opens in the window.
        [[ $command || ${COMPREPLY[0]-} ]] || ! type -P quorvane-window >/dev/null || operands=folders
    fi
)";
  return text + kEnd;
}

}  // namespace quorvane::clidoc
