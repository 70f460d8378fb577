// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvane {

/// What the window program was started with.
struct WindowArguments {
  std::vector<std::string> folders;         ///< as given: paths and addresses
  std::vector<std::string> toolkitOptions;  ///< with their values: all that Qt is to see
  bool namesDisplay = false;                ///< they say where the window opens
  std::optional<std::string> words;         ///< to be printed instead of opening the window
  int exitCode = 0;                         ///< then
};

/// Without the program's name. Everything behind "--" is a folder.
WindowArguments parseWindowArguments(const std::vector<std::string>& arguments);

}  // namespace quorvane
