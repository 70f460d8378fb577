// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quorvane::cli {

/// An option or an operand of a command, as the command's help shows it.
struct OptionRow {
  std::vector<std::string> names;    ///< as typed, the short one first; of an operand its placeholder ("FOLDER")
  std::string value;                 ///< placeholder of the value ("TEXT"); empty for a flag. Of an operand its name.
  std::string text;                  ///< what it does, one line
  std::vector<std::string> choices;  ///< all values it takes, where that is a fixed set

  bool operator==(const OptionRow&) const = default;
};

/// A command, or the program itself.
struct CommandRow {
  std::string name;  ///< as typed ("icns make"); empty for the program itself
  std::string text;
  std::string use;                    ///< "apply [OPTIONS] FOLDER..."
  std::vector<std::string> examples;  ///< whole command lines
  std::vector<OptionRow> options;
  std::vector<OptionRow> operands;
  std::vector<CommandRow> commands;  ///< those that may follow this one's name
};

/// All that the command line understands, for the manual page and the shells' completions: the parser's own table.
CommandRow optionTable();

}  // namespace quorvane::cli
