// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace quorvane {

/// Removes the pictures that the desktop cached of a folder or file, in every size, from the user's cache folder.
/// Whatever cannot be removed stays.
void removeThumbnails(const std::filesystem::path& path);

}  // namespace quorvane
