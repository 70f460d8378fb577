// SPDX-License-Identifier: GPL-3.0-or-later
#include "Clidoc.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quorvane::clidoc {

Kind kindOf(const cli::OptionRow& row) {
  constexpr std::array<std::string_view, 4> folders{"FOLDER", "FOLDERS", "DIR", "TREE"};
  constexpr std::array<std::string_view, 6> files{"FILE", "FILES", "PICTURE", "OUT", "LOOK", "OUT.icns"};
  if (!row.choices.empty()) return Kind::Choice;
  if (std::ranges::find(folders, row.value) != folders.end()) return Kind::Folder;
  return std::ranges::find(files, row.value) != files.end() ? Kind::File : Kind::Text;
}

std::vector<const cli::CommandRow*> allCommands(const cli::CommandRow& root) {
  std::vector<const cli::CommandRow*> commands{&root};
  for (const cli::CommandRow& child : root.commands) {
    const auto below = allCommands(child);
    commands.insert(commands.end(), below.begin(), below.end());
  }
  return commands;
}

const std::string& longName(const cli::OptionRow& option) {
  return option.names.back();
}

std::string escaped(const std::string& text, const std::string& characters, const std::string& mark) {
  std::string result;
  for (const char character : text) {
    if (characters.find(character) != std::string::npos) result += mark;
    result += character;
  }
  return result;
}

std::string shellQuoted(const std::string& text) {
  std::string result = "'";
  for (const char character : text) result += character == '\'' ? std::string("'\\''") : std::string(1, character);
  return result + "'";
}

}  // namespace quorvane::clidoc
