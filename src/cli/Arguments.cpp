// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Arguments.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "app/core/LookValues.h"
#include "cli/ExitCode.h"
#include "cli/Help.h"
#include "cli/Parser.h"
#include "cli/Terminal.h"
#include "foundation/OrderedJobs.h"

namespace quorvane::cli {

namespace {

/// The words of the command line up to a "--", and those after it, which are never options. "--option=" becomes two
/// words: the parser would take the word after it as its value.
struct Words {
  std::vector<std::string> parsed;
  std::vector<std::string> verbatim;
};

Words splitWords(int argc, const char* const* argv) {
  Words words;
  int at = 0;
  for (; at < argc && std::string_view(argv[at]) != "--"; ++at) {
    std::string word = argv[at];
    const bool isEmptyValue = word.starts_with("--") && word.find('=') == word.size() - 1;
    if (isEmptyValue) word.pop_back();
    words.parsed.push_back(std::move(word));
    if (isEmptyValue) words.parsed.emplace_back();
  }
  for (++at; at < argc; ++at) words.verbatim.emplace_back(argv[at]);
  return words;
}

/// How many paths a command takes; their names for a complaint.
struct PathCount {
  std::size_t least;
  std::size_t most;
  const char* names;
};

PathCount pathCount(Command command) {
  switch (command) {
    case Command::Render:
      return {1, 1, "OUT"};
    case Command::IcnsMake:
      return {2, 2, "PICTURE and OUT.icns"};
    case Command::IcnsExtract:
      return {2, 2, "FILE and DIR"};
    case Command::IcnsList:
      return {1, SIZE_MAX, "FILE"};
    case Command::List:
      return {1, SIZE_MAX, "TREE"};
    case Command::Sets:
      return {0, SIZE_MAX, "SET"};
    case Command::SetsAdd:
      return {2, SIZE_MAX, "SET and FILE"};
    case Command::SetsNew:
      return {1, 1, "NAME"};
    case Command::SetsRemove:
      return {1, SIZE_MAX, "SET"};
    case Command::SetsRename:
      return {2, 2, "OLD and NEW"};
    case Command::SetsExport:
      return {2, 2, "SET and FILE.zip"};
    case Command::SetsImport:
      return {1, SIZE_MAX, "FILE.zip or FOLDER"};
    default:
      return {1, SIZE_MAX, "FOLDER"};
  }
}

/// The words that lead to a command, each with a space behind it: "icns make ".
std::string wordsOf(const CLI::App& command) {
  return command.get_parent() == nullptr ? "" : wordsOf(*command.get_parent()) + command.get_name() + " ";
}

/// Says what is wrong and how the command is used.
Finished complain(const std::string& what, const CLI::App& command) {
  std::fprintf(stderr, "quorvane: %s\n%s\nTry 'quorvane %s--help'.\n", what.c_str(), useLine(command).c_str(),
               wordsOf(command).c_str());
  return {exitWrongUse};
}

/// What the library that reads the arguments has found, in words like all the others. It names the option in front
/// of a colon ("--label: 1 required TEXT missing"), and of a flag with a value behind one ("...: --json = x").
std::string complaintOf(const CLI::ParseError& error) {
  const std::string words = printable(std::string_view(error.what()));
  const std::size_t colon = words.find(':');
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) return "a command is missing";
  if (colon == std::string::npos) return words;
  if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr)
    return words.substr(colon + 2, words.find(" = ", colon) - colon - 2) + " takes no value";
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
    return words.substr(0, colon) + (words.ends_with(" missing") ? " needs a value" : " is given more than once");
  return words;
}

const CLI::App* chosenCommand(const CLI::App* app) {
  for (const auto chosen = app->get_subcommands(); !chosen.empty();) return chosenCommand(chosen.front());
  return app;
}

std::string unexpected(const CLI::App& app, const CLI::App& command) {
  const auto extras = app.remaining(true);
  const std::string word = extras.empty() ? "" : extras.front();
  std::vector<std::string> known;
  if (word.starts_with("-")) {
    for (const CLI::Option* option : command.get_options())
      for (const std::string& name : option->get_lnames()) known.push_back("--" + name);
  } else {
    for (const CLI::App* other : command.get_subcommands([](const CLI::App*) { return true; }))
      known.push_back(other->get_name());
  }
  const std::string nearest = nearestWord(word, known);
  return (word.starts_with("-") ? "unknown option " : "one word too many: ") + printable(word) +
         (nearest.empty() ? "" : ", did you mean " + nearest + "?");
}

std::optional<std::filesystem::path> optionalPath(const std::string& text) {
  return text.empty() ? std::nullopt : std::optional(std::filesystem::path(text));
}

/// Reads the values of the look's options; the failure names the option.
Result<void> readLook(const Parser& parser, const CLI::App& app, Arguments& arguments) {
  for (const auto& [name, text] : parser.look) {
    if (app.get_option_no_throw("--" + name) == nullptr || app.count("--" + name) == 0) continue;
    arguments.lookOptions.emplace_back(name, text);
    if (name != "base" && !(name == "overlay" && isOverlayFile(text)))
      TRY_VOID(setLookValue(arguments.look, name, text, "--"));
  }
  arguments.base = optionalPath(parser.look.at("base"));
  arguments.lookFile = optionalPath(parser.lookFile);
  arguments.savedLook = optionalPath(parser.savedLook);
  arguments.labelFromName = parser.labelFromName;
  arguments.gitExclude = parser.gitExclude;
  if (parser.labelFromName && !arguments.look.label.isNull())
    return Error::invalidInput("--label and --label-from-name exclude each other");
  return {};
}

Result<int> readWhole(const std::string& text, const char* option, int least, int most) {
  const auto number = parseNumber(text);
  if (!number || *number < least || *number > most || *number != static_cast<int>(*number))
    return Error::invalidInput(std::string(option) + " takes a whole number from " + std::to_string(least) + " to " +
                               std::to_string(most));
  return static_cast<int>(*number);
}

/// Reads where folders come from and how they are worked through.
Result<void> readMany(const Parser& parser, Arguments& arguments) {
  arguments.rowsFrom = optionalPath(parser.rowsFrom);
  arguments.filesFrom = optionalPath(parser.filesFrom);
  arguments.isNull = parser.isNull;
  arguments.failsFast = parser.failsFast;
  arguments.isVerbose = parser.isVerbose;
  arguments.wantsColor = !parser.hasNoColor;
  // A folder waits for the disk longer than it computes; beyond a few nothing is gained.
  const int usualJobs = std::min(2 * usableProcessors(), 8);
  arguments.jobs = parser.jobs.empty() ? usualJobs : TRY(readWhole(parser.jobs, "--jobs", 1, 64));
  if (arguments.rowsFrom && arguments.filesFrom)
    return Error::invalidInput("--from and --files-from exclude each other");
  if (arguments.rowsFrom && !parser.paths.empty())
    return Error::invalidInput("with --from the folders stand in the table, not among the arguments");
  // What finds folders prints their names; for the others a list is the only place where it matters.
  if (arguments.isNull && !arguments.filesFrom && arguments.command != Command::List)
    return Error::invalidInput("--null says how the list of --files-from is written; there is none");
  if (parser.isVerbose && parser.quiet) return Error::invalidInput("--verbose and --quiet exclude each other");
  return {};
}

/// Reads what `render` is to make; the failure names what does not go together.
Result<void> readOutput(const Parser& parser, Arguments& arguments) {
  if (!parser.pixels.empty()) arguments.pixels = TRY(readWhole(parser.pixels, "--pixels", 16, 4096));
  if (!parser.quality.empty()) arguments.jpeg.quality = TRY(readWhole(parser.quality, "--quality", 1, 100));
  // Beyond a GiB there is nothing left to limit.
  if (!parser.maxSize.empty())
    arguments.jpeg.limit.value = static_cast<std::uint64_t>(TRY(readWhole(parser.maxSize, "--max-size", 1, 1 << 20)));
  if (arguments.command != Command::Render || arguments.paths.empty()) return {};
  const auto kind = pictureKindOf(arguments.paths.front());
  if (!kind)
    return Error::invalidInput("'" + printable(arguments.paths.front()) +
                               "' must end in .png, .jpg, .tif, .gif or .icns, which say what is made");
  if (*kind != PictureKind::Jpeg && !(parser.quality.empty() && parser.maxSize.empty()))
    return Error::invalidInput("--quality and --max-size are for a JPEG (.jpg)");
  return {};
}

Result<Arguments> readArguments(const Parser& parser, Command command, const CLI::App& app) {
  Arguments arguments;
  arguments.command = command;
  TRY_VOID(readLook(parser, app, arguments));
  TRY_VOID(readMany(parser, arguments));
  for (const std::string& path : parser.paths) {
    if (path.empty()) return Error::invalidInput("an empty path names nothing");
    arguments.paths.emplace_back(path);
  }
  const PathCount count = pathCount(command);
  const bool hasList = arguments.rowsFrom || arguments.filesFrom;
  if (parser.paths.size() < count.least && !hasList) return Error::invalidInput(std::string(count.names) + " missing");
  if (parser.paths.size() > count.most)
    return Error::invalidInput(std::string("takes ") + count.names + " and no more, not '" +
                               printable(parser.paths[count.most]) + "'");
  TRY_VOID(readOutput(parser, arguments));
  if (command == Command::List && parser.isNull && (parser.json || parser.jsonLines))
    return Error::invalidInput("--null prints bare names; it goes with neither --json nor --json-lines");
  if (parser.json && parser.jsonLines) return Error::invalidInput("--json and --json-lines exclude each other");
  arguments.form = parser.json ? OutputForm::Json : parser.jsonLines ? OutputForm::JsonLines : OutputForm::Words;
  arguments.isQuiet = parser.quiet;
  arguments.isDryRun = parser.dryRun;
  arguments.crossesFileSystems = parser.crossFileSystems;
  return arguments;
}

}  // namespace

std::string commandName(Command command) {
  switch (command) {
    case Command::Apply:
      return "apply";
    case Command::Revert:
      return "revert";
    case Command::Reset:
      return "reset";
    case Command::Repair:
      return "repair";
    case Command::Status:
      return "status";
    case Command::Verify:
      return "verify";
    case Command::List:
      return "list";
    case Command::Render:
      return "render";
    case Command::IcnsMake:
      return "icns make";
    case Command::IcnsList:
      return "icns list";
    case Command::IcnsExtract:
      return "icns extract";
    case Command::Sets:
      return "sets";
    case Command::SetsAdd:
      return "sets add";
    case Command::SetsNew:
      return "sets new";
    case Command::SetsRemove:
      return "sets remove";
    case Command::SetsRename:
      return "sets rename";
    case Command::SetsExport:
      return "sets export";
    case Command::SetsImport:
      return "sets import";
  }
  return {};
}

const std::vector<std::string>& commandWords() {
  static const std::vector<std::string> words{"apply",  "revert", "reset",  "repair", "status",
                                              "verify", "list",   "render", "icns",   "sets"};
  return words;
}

void visitParser(const std::function<void(const CLI::App&)>& visit) {
  const Parser parser;
  visit(parser.app);
}

std::variant<Arguments, Finished> parseArguments(int argc, const char* const* argv) {
  Parser parser;
  const Words words = splitWords(argc, argv);
  std::vector<const char*> pointers;
  for (const std::string& word : words.parsed) pointers.push_back(word.c_str());
  try {
    parser.app.parse(static_cast<int>(pointers.size()), pointers.data());
  } catch (const CLI::CallForVersion& version) {
    std::printf("%s\n", version.what());
    return Finished{exitDone};
  } catch (const CLI::Success&) {
    std::fputs(chosenCommand(&parser.app)->help().c_str(), stdout);
    return Finished{exitDone};
  } catch (const CLI::ParseError& error) {
    const CLI::App& command = *chosenCommand(&parser.app);
    // A mistyped option may be why something is missing, so it is told first.
    const bool hasExtras = !parser.app.remaining(true).empty();
    return complain(hasExtras ? unexpected(parser.app, command) : complaintOf(error), command);
  }
  parser.paths.insert(parser.paths.end(), words.verbatim.begin(), words.verbatim.end());
  for (const auto& [command, app] : parser.commands) {
    if (!app->parsed()) continue;
    auto arguments = readArguments(parser, command, *app);
    if (!arguments) return complain(arguments.error().why(), *app);
    return *std::move(arguments);
  }
  return complain("a command is missing", parser.app);
}

}  // namespace quorvane::cli
