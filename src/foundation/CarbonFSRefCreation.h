// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace quorvane {

/// True when something exists at the path (a link at its end is followed). When nothing does and
/// `createFileIfNecessary` is set, an empty file is made there first, never through a link that leads nowhere. The
/// platform knows files by their paths alone, so there is no reference to fill in beside this answer.
///
/// Making the file waits for the lock of the folder that holds it: not to be asked for while that folder is open for
/// writing.
bool getFSRef(const std::filesystem::path& path, bool createFileIfNecessary);

}  // namespace quorvane
