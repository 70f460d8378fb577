// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace quorvane {

/// True when something exists at the path and it is a folder. A link at the end of the path is followed.
bool isDirectory(const std::filesystem::path& path);

}  // namespace quorvane
