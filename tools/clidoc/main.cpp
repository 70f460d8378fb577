// SPDX-License-Identifier: GPL-3.0-or-later
// clidoc bash|zsh|fish OUT     writes the completion for that shell
// clidoc man TEMPLATE OUT      fills the template of the manual page in: the line .\" COMMANDS becomes the option table
//
// Exit code 0 when OUT was written, 1 when it could not be, 2 for a wrong call.
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>

#include "Clidoc.h"

namespace {

using namespace quorvane;
using namespace quorvane::clidoc;

// A shell completes the value of an option by the option's name alone.
bool namesMeanOneThing(const cli::CommandRow& root) {
  std::map<std::string, const cli::OptionRow*> seen;
  for (const cli::CommandRow* command : allCommands(root))
    for (const cli::OptionRow& option : command->options)
      for (const std::string& name : option.names) {
        const cli::OptionRow& first = *seen.try_emplace(name, &option).first->second;
        if (first.names == option.names && first.value == option.value && first.choices == option.choices) continue;
        std::fprintf(stderr, "clidoc: %s takes other things in %s than elsewhere\n", name.c_str(),
                     command->name.c_str());
        return false;
      }
  return true;
}

bool write(const char* path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.close();
  if (!file) std::fprintf(stderr, "clidoc: cannot write %s\n", path);
  return static_cast<bool>(file);
}

bool writeManual(const char* source, const char* path, const cli::CommandRow& root) {
  std::ifstream file(source, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  const std::string place = ".\\\" COMMANDS\n";
  const std::size_t at = text.find(place);
  if (!file.good() && !file.eof()) return false;
  if (at == std::string::npos) {
    std::fprintf(stderr, "clidoc: %s has no line .\\\" COMMANDS\n", source);
    return false;
  }
  return write(path, text.replace(at, place.size(), manualCommands(root)));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string what = argc > 1 ? argv[1] : "";
  const bool isManual = what == "man" && argc == 4;
  if (!isManual && (argc != 3 || (what != "bash" && what != "zsh" && what != "fish"))) {
    std::fputs("usage: clidoc bash|zsh|fish OUT\n       clidoc man TEMPLATE OUT\n", stderr);
    return 2;
  }
  const cli::CommandRow root = cli::optionTable();
  if (!namesMeanOneThing(root)) return 1;
  if (isManual) return writeManual(argv[2], argv[3], root) ? 0 : 1;
  const auto completion = what == "bash" ? bashCompletion : what == "zsh" ? zshCompletion : fishCompletion;
  return write(argv[2], completion(root)) ? 0 : 1;
}
