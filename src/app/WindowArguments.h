// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvane {

/// What the window program was started with.
struct WindowArguments {
  std::vector<std::filesystem::path> folders;  ///< absolute; whether they are folders is not known yet
  std::optional<std::string> words;            ///< to be printed instead of opening the window
  int exitCode = 0;                            ///< then
};

/// Options, paths (raw bytes, relative to `directory`) and "file:" addresses. Everything behind "--" is a path.
WindowArguments parseWindowArguments(const std::vector<std::string>& arguments, const std::filesystem::path& directory);

}  // namespace quorvane
