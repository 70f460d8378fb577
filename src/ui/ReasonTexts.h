// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

/// The pieces of the reasons that errors have, in English as the core words them, to be looked up in the context
/// "Reasons". A place, %1 to %9, is anything that the core puts in; places are numbered as they follow each other.
namespace quorvane::reasons {

/// Folders, applying and putting back, forks, property lists, the desktop, settings.
std::span<const char* const> ofFolders();
/// Icon families and pictures.
std::span<const char* const> ofPictures();
/// The icon library, looks, the list of versions.
std::span<const char* const> ofLibrary();
/// Words of the C library for an errno, when it has none in the user's language, and those of the libraries that read
/// zip files and pictures.
std::span<const char* const> ofOthers();

}  // namespace quorvane::reasons
