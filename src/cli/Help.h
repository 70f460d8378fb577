// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <string>
#include <vector>

namespace quorvane::cli {

/// Help in the order in which it is needed: use, examples, then the rest.
class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter();
  std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override;
  std::string make_option_opts(const CLI::Option* option) const override;
};

/// Sets the use line (without the program's name) and the examples that the help of `app` begins with.
void describeUse(CLI::App& app, const std::string& use, const std::vector<std::string>& examples);

/// What describeUse set.
std::string useText(const CLI::App& app);
std::vector<std::string> examplesOf(const CLI::App& app);

/// The first line of a command's help: "Use: quorvane ...".
std::string useLine(const CLI::App& app);

}  // namespace quorvane::cli
