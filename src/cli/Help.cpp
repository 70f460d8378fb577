// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Help.h"

namespace quorvane::cli {

namespace {

// The library keeps one free text per command, its footer; the use line and the examples travel in it, one a line.
std::vector<std::string> linesOf(const CLI::App& app) {
  std::vector<std::string> lines;
  std::string footer = app.get_footer();
  for (std::size_t end; (end = footer.find('\n')) != std::string::npos; footer.erase(0, end + 1))
    lines.push_back(footer.substr(0, end));
  if (!footer.empty()) lines.push_back(footer);
  return lines;
}

}  // namespace

HelpFormatter::HelpFormatter() {
  column_width(28);
  label("OPTIONS", "options");
  label("SUBCOMMANDS", "commands");
  label("Options", "Options");
  label("Subcommands", "Commands");
  label("Positionals", "What it works on");
}

std::string HelpFormatter::make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const {
  if (mode == CLI::AppFormatMode::Sub) return make_expanded(app);
  std::string help = useLine(*app) + "\n";
  for (const std::string& example : examplesOf(*app)) help += "  " + example + "\n";
  help += "\n" + app->get_description() + "\n";
  help += make_positionals(app);
  help += make_groups(app, mode);
  help += make_subcommands(app, mode);
  (void)name;
  return help;
}

std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
  // The value's name stands in the option's text; the library would add its type in capitals as well.
  return option->get_type_name().empty() ? "" : " " + option->get_type_name();
}

void describeUse(CLI::App& app, const std::string& use, const std::vector<std::string>& examples) {
  std::string footer = use;
  for (const std::string& example : examples) footer += "\n" + example;
  app.footer(footer);
  app.formatter(std::make_shared<HelpFormatter>());
}

std::string useText(const CLI::App& app) {
  const auto lines = linesOf(app);
  return lines.empty() ? app.get_name() : lines.front();
}

std::vector<std::string> examplesOf(const CLI::App& app) {
  auto lines = linesOf(app);
  if (!lines.empty()) lines.erase(lines.begin());
  return lines;
}

std::string useLine(const CLI::App& app) {
  return "Use: quorvane " + useText(app);
}

}  // namespace quorvane::cli
