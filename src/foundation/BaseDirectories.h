// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "foundation/base/Result.h"

namespace quorvane {

/// What the desktop's base-directory rules keep apart.
enum class BaseDirectory {
  Config,  ///< $XDG_CONFIG_HOME, else ~/.config
  Data,    ///< $XDG_DATA_HOME, else ~/.local/share
  State,   ///< $XDG_STATE_HOME, else ~/.local/state
  Cache,   ///< $XDG_CACHE_HOME, else ~/.cache
};

/// The user's home, absolute. Fails when there is none.
Result<std::filesystem::path> homeDirectory();
/// The user's folder of that kind, absolute; it need not exist. A relative or empty value of the variable is ignored.
/// Fails when the user has no home.
Result<std::filesystem::path> baseDirectory(BaseDirectory kind);
/// The program's own folder in there.
Result<std::filesystem::path> ownDirectory(BaseDirectory kind);

/// Makes a folder and those above it that are missing, for the user alone (mode 0700). Success when it is there.
Result<void> makePrivateDirectories(const std::filesystem::path& path);

}  // namespace quorvane
