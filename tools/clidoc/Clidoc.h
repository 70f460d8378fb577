// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "cli/OptionTable.h"

// Runs while the program is built: turns the command line's own option table into the manual page and into completions
// for shells, so that none of them can say anything else than the program does.
namespace quorvane::clidoc {

/// What stands at a place: decides what a shell offers there.
enum class Kind { Text, File, Folder, Choice };

/// Placeholders tell: FOLDER and DIR are folders, FILE, PICTURE and the like files.
Kind kindOf(const cli::OptionRow& row);

/// Every command that does something, and the groups, in the order of the help; the program itself comes first.
std::vector<const cli::CommandRow*> allCommands(const cli::CommandRow& root);

/// The name of an option that tells it from others: the long one.
const std::string& longName(const cli::OptionRow& option);

/// `text` with every one of `characters` behind `mark`.
std::string escaped(const std::string& text, const std::string& characters, const std::string& mark = "\\");

/// `text` in single quotes as bash and zsh read them.
std::string shellQuoted(const std::string& text);

std::string bashCompletion(const cli::CommandRow& root);
std::string zshCompletion(const cli::CommandRow& root);
std::string fishCompletion(const cli::CommandRow& root);

/// The COMMANDS and OPTIONS sections of the manual page, as roff.
std::string manualCommands(const cli::CommandRow& root);

}  // namespace quorvane::clidoc
