// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "foundation/Folder.h"
#include "iconfamily/ForkStore.h"
#include "system/GitTree.h"

namespace quorvane {

/// The patterns that keep git from showing what the icons of any folder consist of, and nothing else: names that only
/// icons have.
std::vector<std::string> iconExcludes(const ForkStore& forks);

/// The same for one branded folder, with what has a common name there and holds nothing but ours, by its path in the
/// work tree. A path that no pattern can say is left out.
std::vector<std::string> folderExcludes(const Folder& folder, const GitTree& tree, const ForkStore& forks);

}  // namespace quorvane
