// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "iconfamily/IconFamily.h"
#include "iconfamily/IconServices.h"

/// Custom icons on folders that are open already: what IconFamily's operations and the folder flow stand on.
namespace quorvane {

/// The custom icon of a folder or plain file: its flag is set and there is an 'icns' resource -16455. Links are
/// followed. nullopt without one, and for what is neither. Fails on a path that is not there and on companions that are
/// malformed or not plain files.
Result<std::optional<IconFamily>> readCustomIcon(const std::filesystem::path& path, const ForkStore& forks);

/// The family in the folder's icon file, whether or not the folder's flag says that it has one.
Result<std::optional<IconFamily>> readFolderIconResource(const Folder& folder, const ForkStore& forks);

/// The former custom icon among what ForkStore::saveOriginal() kept; nullopt without one.
Result<std::optional<IconFamily>> readOriginalIcon(const Folder& from, const ForkStore& forks);

/// Stores the family as the folder's custom icon (open for writing) and tells the file managers. Replaces whatever icon
/// was there with all its resources. Unlike a bare sequence of steps, a failure puts the former icon files back.
/// `andAlso` runs when the icon is in place, before anybody is told: its failure counts as one of the whole.
Result<void> setFolderIcon(const IconFamily& family, Folder& folder, const IconServices& services,
                           bool withCompatibility = false, const std::function<Result<void>()>& andAlso = {});

}  // namespace quorvane
