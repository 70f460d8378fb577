// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>

#include "foundation/BaseDirectories.h"
#include "foundation/FileManagerExtras.h"
#include "foundation/base/Version.h"
#include "library/core/IconLibrary.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr const char* insidePrefix = "share/quorvane/BaseIcons";

/// Beside the running program: in PREFIX/bin when installed, two folders deep in a build tree.
fs::path builtinLibrary() {
  const char* told = std::getenv("QUORVANE_BASE_ICONS");
  if (told != nullptr && *told == '/') return told;
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  const fs::path installed = program.parent_path().parent_path() / insidePrefix;
  const fs::path built = program.parent_path().parent_path().parent_path() / insidePrefix;
  return !isDirectory(installed) && isDirectory(built) ? built : installed;
}

}  // namespace

LibraryPlaces LibraryPlaces::usual() {
  LibraryPlaces places{.builtin = builtinLibrary(), .custom = {}, .former = {}};
  if (const auto data = baseDirectory(BaseDirectory::Data)) places.custom = *data / QUORVANE_APP_ID;
  if (const auto home = homeDirectory()) places.former = *home / "Library" / "Quorvane";
  return places;
}

}  // namespace quorvane
