// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Parser.h"

#include <algorithm>

#include "app/core/EffectPresets.h"
#include "cli/Help.h"
#include "composition/core/Emblems.h"
#include "foundation/base/Version.h"

namespace quorvane::cli {

namespace {

/// A line for each: its name, and what it may be looked for by.
std::string emblemList() {
  std::string list;
  for (const Emblem& emblem : emblems()) {
    std::string line = emblem.name.toStdString();
    line.resize(std::max(line.size() + 1, std::size_t{16}), ' ');
    list += (list.empty() ? "" : "\n") + line + emblem.keywords.join(QLatin1String(", ")).toStdString();
  }
  return list;
}

}  // namespace

CLI::App* Parser::add(CLI::App& parent, Command command, const std::string& name, const std::string& what,
                      const std::string& use, const std::vector<std::string>& examples) {
  CLI::App* added = parent.add_subcommand(name, what)->group("Commands");
  added->set_help_flag("-h,--help", "Print this help");
  describeUse(*added, use, examples);
  commands.emplace_back(command, added);
  return added;
}

void Parser::addLook(CLI::App& command) {
  const auto option = [&](const std::string& names, const char* type, const std::string& what) {
    command.add_option(names, look[names.substr(names.find("--") + 2)], what)->type_name(type);
  };
  option("-l,--label", "TEXT", "Label; \\n breaks the line, \\\\ is a backslash");
  option("-b,--base", "PICTURE",
         "Picture to draw on (icns, PNG, JPEG ...) or SET/ICON of the library, instead of the folder's icon");
  option("--font", "NAME", "Family, or family and style, e.g. \"DejaVu Sans Bold\" [system font, bold]");
  option("--size", "POINTS", "Font size on a 128 point icon; shrinks to fit [what fits the folder's front]");
  option("--color", "COLOR", "#rgb, #rrggbb, #rrggbbaa or a name [black]");
  option("--effect", "NAME", "Shadow: " + effectNames() + " [none]");
  option("--line-spacing", "FACTOR", "Largest line height by the font's own; 0 sets no limit [1]");
  option("--shear", "FACTOR", "Upward slant to the right [0]");
  option("--rotate", "DEGREES", "Rotation, counter-clockwise [0]");
  option("--opacity", "FRACTION", "0 is invisible, 1 solid [1]");
  option("--center", "X,Y", "Middle of the label on a 128 x 128 icon, from the bottom left [64,64]");
  option("--tint", "COLOR", "Recolour the picture: a colour, or none; its alpha is the strength [none]");
  option("--overlay", "WHAT", "Lay emblem:NAME, emoji:X or a picture file on it, under the label; or none [none]");
  option("--overlay-center", "X,Y", "Middle of the overlay, as --center [64,58]");
  option("--overlay-size", "N", "Side of the overlay's square on a 128 x 128 icon, 4 to 256 [52]");
  option("--overlay-color", "COLOR", "Colour of an emblem; auto is a shade of the picture's [auto]");
  option("--overlay-opacity", "FRACTION", "0 is invisible, 1 solid [1]");
  command.add_option("--look", lookFile, "Look file to begin with; the options above change it")->type_name("FILE");
}

void Parser::addMany(CLI::App& command) {
  command.add_option("--files-from", filesFrom, "List of more folders, one a line; - is standard input")
      ->type_name("FILE");
  command.add_flag("-0,--null", isNull, "The names in the list end with a zero byte, not with the line");
  command.add_option("-j,--jobs", jobs, "Folders worked on at a time [two a processor, 8 at most]")->type_name("N");
  command.add_flag("--fail-fast", failsFast, "Begin no further folder after one that failed");
  command.add_flag("--no-color", hasNoColor, "No colours on the terminal");
}

void Parser::addCommon(CLI::App& command) {
  command.add_flag("--json", json, "Print one JSON object");
  command.add_flag("--json-lines", jsonLines, "Print one JSON object a line for each item");
  command.add_flag("-q,--quiet", quiet, "Print failures only");
}

Parser::Parser() {
  app.name("quorvane");
  app.set_help_flag("-h,--help", "Print this help");
  app.set_version_flag("--version", "quorvane " QUORVANE_VERSION, "Print the version and exit");
  // Ends the program as the version does, and before a command is asked for.
  app.add_flag_callback(
      "--list-emblems", [] { throw CLI::CallForVersion(emblemList(), 0); }, "Print the names of the emblems and exit");
  describeUse(app, "COMMAND ...",
              {"quorvane apply --label \"Invoices\\n2026\" --color \"#b00020\" --effect soft ~/Invoices",
               "quorvane reset ~/Invoices", "quorvane apply --help"});
  app.require_subcommand(1);

  const auto folders = [this](CLI::App* command) {
    command->add_option("FOLDER", paths, "One or more folders")->type_name("");
  };

  CLI::App* apply = add(
      app, Command::Apply, "apply", "Give folders an icon with a label", "apply [OPTIONS] FOLDER...",
      {"quorvane apply --label \"Invoices\\n2026\" --color \"#b00020\" --effect soft ~/Invoices",
       "quorvane apply --label-from-name --base box.icns -- */", "quorvane apply --effect soft --from folders.csv"});
  folders(apply);
  addLook(*apply);
  apply->add_flag("--label-from-name", labelFromName, "The label is each folder's own name");
  apply
      ->add_option(
          "--from", rowsFrom,
          "Table of folders and values of their own: CSV with a header line, or JSON lines; - is standard input")
      ->type_name("FILE");
  addMany(*apply);
  apply->add_flag("--git-exclude", gitExclude, "In a git work tree: put the icon's files on its private exclude list");
  addVerbose(*apply, "Say what is drawn on what, how long it takes, and what went wrong without harm");
  addDryRun(*apply);
  addCommon(*apply);

  CLI::App* revert =
      add(app, Command::Revert, "revert", "Put the backed-up icon back as a custom icon", "revert [OPTIONS] FOLDER...",
          {"quorvane revert ~/Invoices", "quorvane revert --json ~/Invoices ~/Taxes"});
  folders(revert);
  addMany(*revert);
  addVerbose(*revert, "Say what went wrong without harm");
  addDryRun(*revert);
  addCommon(*revert);

  CLI::App* reset =
      add(app, Command::Reset, "reset", "Give back exactly what was there before the first apply",
          "reset [OPTIONS] FOLDER...", {"quorvane reset ~/Invoices", "quorvane reset --dry-run ~/Invoices ~/Taxes"});
  folders(reset);
  addMany(*reset);
  addVerbose(*reset, "Say what went wrong without harm");
  addDryRun(*reset);
  addCommon(*reset);

  CLI::App* repair =
      add(app, Command::Repair, "repair", "Mend brands: after a move, a copy or an interruption",
          "repair [OPTIONS] FOLDER...", {"quorvane repair ~/Invoices", "quorvane repair --dry-run ~/*/"});
  folders(repair);
  addMany(*repair);
  addVerbose(*repair, "Say what went wrong without harm");
  addDryRun(*repair);
  addCommon(*repair);

  CLI::App* status =
      add(app, Command::Status, "status", "Say what icon, backup and record folders have", "status [OPTIONS] FOLDER...",
          {"quorvane status ~/Invoices", "quorvane status --json ~/Invoices ~/Taxes"});
  folders(status);
  addMany(*status);
  addCommon(*status);

  CLI::App* verify = add(app, Command::Verify, "verify", "Check that brands are whole and shown everywhere",
                         "verify [OPTIONS] FOLDER...", {"quorvane verify ~/Invoices", "quorvane verify --json ~/*/"});
  folders(verify);
  addMany(*verify);
  addCommon(*verify);

  CLI::App* list = add(app, Command::List, "list", "Find the branded folders in trees", "list [OPTIONS] TREE...",
                       {"quorvane list ~/Documents", "quorvane list --json-lines /srv/share",
                        "quorvane list --null ~ | quorvane repair --null --files-from -"});
  list->add_option("TREE", paths, "One or more folders to search, with all below")->type_name("");
  list->add_flag("--cross-file-systems", crossFileSystems, "Go on where another file system is mounted");
  list->add_flag("-0,--null", isNull, "Print nothing but names, as they are, each ended by a zero byte");
  addCommon(*list);

  CLI::App* render = add(app, Command::Render, "render",
                         "Compose an icon into a picture or icns file, touching no folder", "render [OPTIONS] OUT",
                         {"quorvane render --label Taxes --effect soft taxes.png",
                          "quorvane render --label Taxes --base box.png --pixels 1024 taxes.png",
                          "quorvane render --label Taxes --max-size 40 taxes.jpg"});
  render
      ->add_option("OUT", paths,
                   "File to write: .png, .jpg, .tif, .gif, or .icns for an icon family; without an ending, a PNG")
      ->type_name("");
  addLook(*render);
  render->add_flag("--label-from-name", labelFromName, "The label is the name of OUT without its ending");
  render->add_option("--save-look", savedLook, "Keep the look in a file, too; a label from the name stays one")
      ->type_name("FILE");
  render->add_option("--pixels", pixels, "Side of the picture, 16 to 4096 [512]")->type_name("N");
  render->add_option("--quality", quality, "Quality of a JPEG, 1 to 100 [90]")->type_name("N");
  render
      ->add_option("--max-size", maxSize,
                   "Make a JPEG smaller than so many KiB (1024 bytes), lowering the quality as far as needed")
      ->type_name("KIB");
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
  addSets();
}

void Parser::addSets() {
  CLI::App* sets =
      app.add_subcommand("sets", "List the icon library, and change your own part of it")->group("Commands");
  sets->set_help_flag("-h,--help", "Print this help");
  describeUse(*sets, "sets [SET...] | sets add|new|remove|rename|export|import ...",
              {"quorvane sets", "quorvane sets \"My Folders\"",
               "quorvane apply --base \"My Folders/box\" --label Taxes ~/Taxes"});
  sets->require_subcommand(0, 1);
  sets->add_option("SET", paths, "Sets whose icons are listed; without any, the sets are")->type_name("");
  const auto one = [&](Command command, const std::string& name, const std::string& what, const std::string& use,
                       const std::string& operand, const std::string& operandText,
                       const std::vector<std::string>& examples) {
    CLI::App* added = add(*sets, command, name, what, "sets " + name + " " + use, examples);
    added->add_option(operand, paths, operandText)->type_name("");
    addCommon(*added);
  };
  one(Command::SetsAdd, "add", "Add pictures and icns files to a set, or the icons that other files and folders show",
      "SET FILE...", "FILES", "SET and one or more files or folders", {"quorvane sets add \"My Folders\" box.png"});
  one(Command::SetsNew, "new", "Make an empty set", "NAME", "NAME", "Name of the set",
      {"quorvane sets new \"My Folders\""});
  one(Command::SetsRemove, "remove", "Move icons of a set to the trash; without any, remove an empty set",
      "SET [ICON...]", "NAMES", "SET and icons in it",
      {"quorvane sets remove \"My Folders\" box", "quorvane sets remove \"My Folders\""});
  one(Command::SetsRename, "rename", "Give a set another name", "OLD NEW", "NAMES", "OLD and NEW",
      {"quorvane sets rename \"New Set\" \"My Folders\""});
  one(Command::SetsExport, "export", "Write a set as a zip file", "SET FILE.zip", "FILES", "SET and FILE.zip",
      {"quorvane sets export \"My Folders\" folders.zip"});
  one(Command::SetsImport, "import", "Make sets of zip files and of folders of pictures", "FILE.zip|FOLDER...", "FILES",
      "One or more zip files or folders", {"quorvane sets import folders.zip ~/Pictures/icons"});
  addCommon(*sets);
  // Behind those inside: of several commands that were given the first one counts.
  commands.emplace_back(Command::Sets, sets);
}

}  // namespace quorvane::cli
