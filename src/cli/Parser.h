// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "cli/Arguments.h"

namespace quorvane::cli {

/// The commands and their options, and the words given for them; nothing is made of the words here.
struct Parser {
  CLI::App app{"Gives a folder an icon of its own: a folder picture with a label drawn on it."};
  std::vector<std::string> paths;
  /// The words given for the look's options, by name: they are read afterwards, so that no locale has a say in numbers.
  std::map<std::string, std::string> look;
  std::string lookFile, savedLook, rowsFrom, filesFrom;
  std::string pixels, quality, maxSize, jobs;
  bool labelFromName = false;
  bool gitExclude = false;
  bool isNull = false;
  bool failsFast = false;
  bool isVerbose = false;
  bool hasNoColor = false;
  bool json = false;
  bool jsonLines = false;
  bool quiet = false;
  bool dryRun = false;
  bool crossFileSystems = false;
  std::vector<std::pair<Command, CLI::App*>> commands;

  Parser();

 private:
  CLI::App* add(CLI::App& parent, Command command, const std::string& name, const std::string& what,
                const std::string& use, const std::vector<std::string>& examples);
  void addLook(CLI::App& command);
  void addMany(CLI::App& command);
  void addSets();
  void addCommon(CLI::App& command);
  void addVerbose(CLI::App& command, const std::string& what) { command.add_flag("-v,--verbose", isVerbose, what); }
  void addDryRun(CLI::App& command) {
    command.add_flag("-n,--dry-run", dryRun, "Do everything but write; says what would happen");
  }
};

}  // namespace quorvane::cli
