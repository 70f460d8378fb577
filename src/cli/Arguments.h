// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "app/core/Look.h"
#include "cli/PictureOutput.h"
#include "cli/Reporter.h"

namespace CLI {
class App;
}

namespace quorvane::cli {

enum class Command {
  Apply,
  Revert,
  Reset,
  Repair,
  Status,
  Verify,
  List,
  Render,
  IcnsMake,
  IcnsList,
  IcnsExtract,
  Sets,
  SetsAdd,
  SetsNew,
  SetsRemove,
  SetsRename,
  SetsExport,
  SetsImport,
};

/// The command's name as it is typed and reported ("icns make").
std::string commandName(Command command);

/// What one call of the program asks for.
struct Arguments {
  Command command = Command::Apply;
  /// Folders, or for the icns commands and render the files, for the sets commands names as well, in the order given.
  /// Raw bytes.
  std::vector<std::filesystem::path> paths;
  /// What the look's options alone say.
  Look look;
  /// The options of the look that were given, by name without dashes, and their values as typed; they are right.
  std::vector<std::pair<std::string, std::string>> lookOptions;
  std::optional<std::filesystem::path> base;
  bool labelFromName = false;
  std::optional<std::filesystem::path> lookFile;
  std::optional<std::filesystem::path> savedLook;  ///< where `render` keeps the look
  std::optional<std::filesystem::path> rowsFrom;   ///< a table of folders; "-" is standard input
  std::optional<std::filesystem::path> filesFrom;  ///< a list of folders; "-" is standard input
  bool isNull = false;                             ///< names in lists end with a zero byte, not with a line
  int jobs = 1;                                    ///< folders worked on at a time
  bool failsFast = false;                          ///< no further folder after one that failed
  bool gitExclude = false;                         ///< keep git from showing what the icon consists of
  int pixels = 512;                                ///< side of a rendered picture
  JpegWish jpeg;                                   ///< how `render` makes a JPEG
  OutputForm form = OutputForm::Words;
  bool isQuiet = false;
  bool isVerbose = false;
  bool wantsColor = true;
  bool isDryRun = false;
  bool crossesFileSystems = false;  ///< `list` goes on where another file system is mounted
};

/// The program has nothing more to do than end with this code; what was to be said has been said.
struct Finished {
  int exitCode;
};

/// Reads the command line (argv[0] included). Help and version go to standard output, complaints to standard error.
std::variant<Arguments, Finished> parseArguments(int argc, const char* const* argv);

/// Shows the parser with all its commands and options, as it stands before it has read anything.
void visitParser(const std::function<void(const CLI::App&)>& visit);

/// The commands' first words, for telling a folder from a mistyped command.
const std::vector<std::string>& commandWords();

}  // namespace quorvane::cli
