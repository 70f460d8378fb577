// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"

/// Files of a folder that are kept in another folder until they are wanted back, as they are.
namespace quorvane {

/// Keeps a plain file under another name; false when there is none.
Result<bool> keepFile(const Folder& folder, const std::string& name, const Folder& in, const std::string& as);

/// Makes `name` in `to` the file that was kept, with its owner, mode and times. The kept one stays, so that it can be
/// done again.
Result<void> putBackFile(const Folder& from, const std::string& keptName, Folder& to, const std::string& name);

}  // namespace quorvane
