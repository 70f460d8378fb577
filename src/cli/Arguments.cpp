// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Arguments.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <cstdint>
#include <cstdio>

#include "app/core/EffectPresets.h"
#include "cli/ExitCode.h"
#include "cli/Help.h"
#include "cli/Terminal.h"
#include "cli/Values.h"
#include "foundation/base/Version.h"

namespace quorvane::cli {

namespace {

/// The words given for options whose values are read afterwards, so that no locale has a say in numbers.
struct RawLook {
  std::string label, base, font, size, color, effect, lineSpacing, shear, rotate, opacity, center;
};

struct Parser {
  CLI::App app{"Gives a folder an icon of its own: a folder picture with a label drawn on it."};
  std::vector<std::string> paths;
  RawLook raw;
  std::string pixels;
  bool labelFromName = false;
  bool gitExclude = false;
  bool json = false;
  bool jsonLines = false;
  bool quiet = false;
  bool dryRun = false;
  bool crossFileSystems = false;
  std::vector<std::pair<Command, CLI::App*>> commands;

  Parser();
  CLI::App* add(CLI::App& parent, Command command, const std::string& name, const std::string& what,
                const std::string& use, const std::vector<std::string>& examples);
  void addLook(CLI::App& command);
  void addCommon(CLI::App& command);
  void addDryRun(CLI::App& command) {
    command.add_flag("-n,--dry-run", dryRun, "Do everything but write; says what would happen");
  }
};

CLI::App* Parser::add(CLI::App& parent, Command command, const std::string& name, const std::string& what,
                      const std::string& use, const std::vector<std::string>& examples) {
  CLI::App* added = parent.add_subcommand(name, what)->group("Commands");
  added->set_help_flag("-h,--help", "Print this help");
  describeUse(*added, use, examples);
  commands.emplace_back(command, added);
  return added;
}

void Parser::addLook(CLI::App& command) {
  const auto option = [&](const char* name, std::string& value, const char* type, const std::string& what) {
    command.add_option(name, value, what)->type_name(type);
  };
  std::string effects;
  for (const EffectPreset& preset : effectPresets())
    effects += (effects.empty() ? "" : ", ") + std::string(preset.name);
  option("-l,--label", raw.label, "TEXT", "Label; \\n breaks the line, \\\\ is a backslash");
  option("-b,--base", raw.base, "PICTURE",
         "Picture to draw on (icns, PNG, JPEG, TIFF ...) instead of the folder's icon");
  option("--font", raw.font, "NAME", "Family, or family and style, e.g. \"DejaVu Sans Bold\" [system font, bold]");
  option("--size", raw.size, "POINTS", "Font size on a 128 point icon; shrinks to fit [what fits the folder's front]");
  option("--color", raw.color, "COLOR", "#rgb, #rrggbb, #rrggbbaa or a name [black]");
  option("--effect", raw.effect, "NAME", "Shadow: " + effects + " [none]");
  option("--line-spacing", raw.lineSpacing, "FACTOR", "Largest line height by the font's own; 0 sets no limit [1]");
  option("--shear", raw.shear, "FACTOR", "Upward slant to the right [0]");
  option("--rotate", raw.rotate, "DEGREES", "Rotation, counter-clockwise [0]");
  option("--opacity", raw.opacity, "FRACTION", "0 is invisible, 1 solid [1]");
  option("--center", raw.center, "X,Y", "Middle of the label on a 128 x 128 icon, from the bottom left [64,64]");
}

void Parser::addCommon(CLI::App& command) {
  command.add_flag("--json", json, "Print one JSON object");
  command.add_flag("--json-lines", jsonLines, "Print one JSON object a line for each item");
  command.add_flag("-q,--quiet", quiet, "Print failures only");
}

Parser::Parser() {
  app.name("quorvane");
  app.set_help_flag("-h,--help", "Print this help");
  app.set_version_flag("--version", "quorvane " QUORVANE_VERSION);
  describeUse(app, "COMMAND ...",
              {"quorvane apply --label \"Invoices\\n2026\" --color \"#b00020\" --effect soft ~/Invoices",
               "quorvane reset ~/Invoices", "quorvane apply --help"});
  app.require_subcommand(1);

  const auto folders = [this](CLI::App* command) {
    command->add_option("FOLDER", paths, "One or more folders")->type_name("");
  };

  CLI::App* apply = add(app, Command::Apply, "apply", "Give folders an icon with a label", "apply [OPTIONS] FOLDER...",
                        {"quorvane apply --label \"Invoices\\n2026\" --color \"#b00020\" --effect soft ~/Invoices",
                         "quorvane apply --label-from-name --base box.icns -- */"});
  folders(apply);
  addLook(*apply);
  apply->add_flag("--label-from-name", labelFromName, "The label is each folder's own name");
  apply->add_flag("--git-exclude", gitExclude, "In a git work tree: put the icon's files on its private exclude list");
  addDryRun(*apply);
  addCommon(*apply);

  CLI::App* revert =
      add(app, Command::Revert, "revert", "Put the backed-up icon back as a custom icon", "revert [OPTIONS] FOLDER...",
          {"quorvane revert ~/Invoices", "quorvane revert --json ~/Invoices ~/Taxes"});
  folders(revert);
  addDryRun(*revert);
  addCommon(*revert);

  CLI::App* reset =
      add(app, Command::Reset, "reset", "Give back exactly what was there before the first apply",
          "reset [OPTIONS] FOLDER...", {"quorvane reset ~/Invoices", "quorvane reset --dry-run ~/Invoices ~/Taxes"});
  folders(reset);
  addDryRun(*reset);
  addCommon(*reset);

  CLI::App* repair =
      add(app, Command::Repair, "repair", "Mend brands: after a move, a copy or an interruption",
          "repair [OPTIONS] FOLDER...", {"quorvane repair ~/Invoices", "quorvane repair --dry-run ~/*/"});
  folders(repair);
  addDryRun(*repair);
  addCommon(*repair);

  CLI::App* status =
      add(app, Command::Status, "status", "Say what icon, backup and record folders have", "status [OPTIONS] FOLDER...",
          {"quorvane status ~/Invoices", "quorvane status --json ~/Invoices ~/Taxes"});
  folders(status);
  addCommon(*status);

  CLI::App* verify = add(app, Command::Verify, "verify", "Check that brands are whole and shown everywhere",
                         "verify [OPTIONS] FOLDER...", {"quorvane verify ~/Invoices", "quorvane verify --json ~/*/"});
  folders(verify);
  addCommon(*verify);

  CLI::App* list = add(app, Command::List, "list", "Find the branded folders in trees", "list [OPTIONS] TREE...",
                       {"quorvane list ~/Documents", "quorvane list --json-lines /srv/share"});
  list->add_option("TREE", paths, "One or more folders to search, with all below")->type_name("");
  list->add_flag("--cross-file-systems", crossFileSystems, "Go on where another file system is mounted");
  addCommon(*list);

  CLI::App* render = add(app, Command::Render, "render", "Compose an icon into a PNG or icns file, touching no folder",
                         "render [OPTIONS] OUT",
                         {"quorvane render --label Taxes --effect soft taxes.png",
                          "quorvane render --label Taxes --base box.png --pixels 1024 taxes.png"});
  render->add_option("OUT", paths, "File to write; .icns makes an icon family, anything else a PNG")->type_name("");
  addLook(*render);
  render->add_option("--pixels", pixels, "Side of the PNG, 16 to 4096 [512]")->type_name("N");
  addDryRun(*render);
  addCommon(*render);

  CLI::App* icns = app.add_subcommand("icns", "Make and read icon family files")->group("Commands");
  icns->set_help_flag("-h,--help", "Print this help");
  describeUse(*icns, "icns make|list|extract ...",
              {"quorvane icns make picture.png picture.icns", "quorvane icns extract picture.icns pictures/"});
  icns->require_subcommand(1);
  CLI::App* make =
      add(*icns, Command::IcnsMake, "make", "Encode a picture as an icon family", "icns make PICTURE OUT.icns",
          {"quorvane icns make picture.png picture.icns", "quorvane icns make photo.jpg photo.icns"});
  CLI::App* listElements =
      add(*icns, Command::IcnsList, "list", "List the elements of icon family files", "icns list FILE...",
          {"quorvane icns list picture.icns", "quorvane icns list --json picture.icns"});
  CLI::App* extract = add(*icns, Command::IcnsExtract, "extract",
                          "Write each picture of an icon family as DIR/TYPE.png", "icns extract FILE DIR",
                          {"quorvane icns extract picture.icns pictures/", "quorvane icns extract --json a.icns out"});
  make->add_option("FILES", paths, "PICTURE and OUT.icns")->type_name("");
  listElements->add_option("FILE", paths, "One or more icns files")->type_name("");
  extract->add_option("FILES", paths, "FILE and DIR")->type_name("");
  for (CLI::App* command : {make, listElements, extract}) addCommon(*command);
}

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
    default:
      return {1, SIZE_MAX, "FOLDER"};
  }
}

/// Says what is wrong and how the command is used.
Finished complain(const std::string& what, const CLI::App& command) {
  std::fprintf(stderr, "quorvane: %s\n%s\nTry 'quorvane %s--help'.\n", what.c_str(), useLine(command).c_str(),
               command.get_parent() == nullptr ? "" : (command.get_name() + " ").c_str());
  return {exitWrongUse};
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

/// Reads the values of the look's options; the failure names the option.
Result<Look> readLook(const RawLook& raw) {
  Look look;
  const auto number = [](const std::string& text, const char* option, double least, double most,
                         auto& to) -> Result<void> {
    if (text.empty()) return {};
    const auto value = parseNumber(text);
    if (!value || *value < least || *value > most)
      return Error::invalidInput(std::string(option) + " takes a number from " + shortNumber(least) + " to " +
                                 shortNumber(most) + ", not '" + printable(text) + "'");
    to = static_cast<std::remove_reference_t<decltype(to)>>(*value);
    return {};
  };
  if (!raw.size.empty()) TRY_VOID(number(raw.size, "--size", 1, 2000, look.fontSize.emplace()));
  TRY_VOID(number(raw.lineSpacing, "--line-spacing", 0, 100, look.lineSpacingFactor));
  TRY_VOID(number(raw.shear, "--shear", -100, 100, look.shearFactor));
  TRY_VOID(number(raw.rotate, "--rotate", -36000, 36000, look.rotation));
  TRY_VOID(number(raw.opacity, "--opacity", 0, 1, look.opacity));
  look.fontName = raw.font;
  if (!raw.label.empty()) look.label = TRY(parseLabel(raw.label));
  if (!raw.color.empty()) look.color = TRY(parseColor(raw.color));
  if (!raw.center.empty()) look.labelCenter = TRY(parsePoint(raw.center));
  if (!raw.effect.empty()) {
    const auto tag = effectTagNamed(raw.effect);
    if (!tag) return Error::invalidInput("there is no effect '" + printable(raw.effect) + "'");
    look.effectTag = *tag;
  }
  return look;
}

Result<Arguments> readArguments(const Parser& parser, Command command) {
  Arguments arguments;
  arguments.command = command;
  arguments.look = TRY(readLook(parser.raw));
  if (!parser.raw.base.empty()) arguments.base = parser.raw.base;
  arguments.labelFromName = parser.labelFromName;
  arguments.gitExclude = parser.gitExclude;
  if (parser.labelFromName && !arguments.look.label.isNull())
    return Error::invalidInput("--label and --label-from-name exclude each other");
  if (!parser.pixels.empty()) {
    const auto pixels = parseNumber(parser.pixels);
    if (!pixels || *pixels != static_cast<int>(*pixels) || *pixels < 16 || *pixels > 4096)
      return Error::invalidInput("--pixels takes a whole number from 16 to 4096");
    arguments.pixels = static_cast<int>(*pixels);
  }
  for (const std::string& path : parser.paths) {
    if (path.empty()) return Error::invalidInput("an empty path names nothing");
    arguments.paths.emplace_back(path);
  }
  const PathCount count = pathCount(command);
  if (parser.paths.size() < count.least) return Error::invalidInput(std::string(count.names) + " missing");
  if (parser.paths.size() > count.most)
    return Error::invalidInput(std::string("takes ") + count.names + " and no more, not '" +
                               printable(parser.paths[count.most]) + "'");
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
  }
  return {};
}

const std::vector<std::string>& commandWords() {
  static const std::vector<std::string> words{"apply",  "revert", "reset",  "repair", "status",
                                              "verify", "list",   "render", "icns"};
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
    return complain(hasExtras ? unexpected(parser.app, command) : printable(std::string_view(error.what())), command);
  }
  parser.paths.insert(parser.paths.end(), words.verbatim.begin(), words.verbatim.end());
  for (const auto& [command, app] : parser.commands) {
    if (!app->parsed()) continue;
    auto arguments = readArguments(parser, command);
    if (!arguments) return complain(arguments.error().why(), *app);
    return *std::move(arguments);
  }
  return complain("a command is missing", parser.app);
}

}  // namespace quorvane::cli
