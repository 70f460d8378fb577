// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

#include "cli/Arguments.h"
#include "cli/FolderSource.h"
#include "cli/Reporter.h"

namespace quorvane::cli {

/// What is done with one folder, on any thread; what it returns is called on the caller's, in the order of the folders.
using FolderWork = std::function<std::function<void()>(const FolderItem&)>;

/// Works through all folders that the call asks for, several at a time, until the end, a signal, or (where the caller
/// wants it) a failure. Shows the progress on a terminal. False, with the reason said, when the list of folders cannot
/// be asked for like that.
bool forEachFolder(const Arguments& arguments, Reporter& reporter, const FolderWork& work);

/// Where a folder of a table was asked for.
std::optional<AskedIn> askedIn(const Arguments& arguments, const FolderItem& item);

}  // namespace quorvane::cli
