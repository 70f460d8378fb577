// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/OptionTable.h"

#include <QColor>

#include "app/core/EffectPresets.h"
#include "cli/Arguments.h"
#include "cli/Help.h"

namespace quorvane::cli {

namespace {

// The parser reads the values itself, so it is told here which of them come from a fixed set.
std::vector<std::string> choicesOf(const std::string& option) {
  std::vector<std::string> choices;
  if (option == "--effect") {
    for (const EffectPreset& preset : effectPresets()) choices.emplace_back(preset.name);
  } else if (option == "--color" || option == "--tint" || option == "--overlay-color") {
    for (const QString& name : QColor::colorNames()) choices.push_back(name.toStdString());
    if (option == "--tint") choices.emplace_back("none");
    if (option == "--overlay-color") choices.emplace_back("auto");
  }
  return choices;
}

OptionRow rowOf(const CLI::Option& option) {
  OptionRow row;
  row.text = option.get_description();
  if (option.get_positional()) {
    row.names = {option.get_name(true)};
    row.value = row.names.front();
    return row;
  }
  for (const std::string& name : option.get_snames()) row.names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) row.names.push_back("--" + name);
  if (option.get_items_expected_max() != 0) row.value = option.get_type_name();
  row.choices = choicesOf(row.names.back());
  return row;
}

CommandRow rowOf(const CLI::App& app, const std::string& name) {
  CommandRow row;
  row.name = name;
  row.text = app.get_description();
  row.use = useText(app);
  row.examples = examplesOf(app);
  for (const CLI::Option* option : app.get_options())
    (option->get_positional() ? row.operands : row.options).push_back(rowOf(*option));
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
    row.commands.push_back(rowOf(*command, name + (name.empty() ? "" : " ") + command->get_name()));
  return row;
}

}  // namespace

CommandRow optionTable() {
  CommandRow table;
  visitParser([&table](const CLI::App& app) { table = rowOf(app, ""); });
  return table;
}

}  // namespace quorvane::cli
