// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/base/Result.h"
#include "library/core/IconSet.h"
#include "library/core/LibraryServices.h"

namespace quorvane {

/// Where the libraries lie.
struct LibraryPlaces {
  std::filesystem::path builtin;  ///< comes with the program; only read
  std::filesystem::path custom;   ///< the user's own; need not exist
  std::filesystem::path former;   ///< where the user's own was once; empty: nowhere

  /// The built-in one in share/quorvane/BaseIcons beside the program's own folder (or what QUORVANE_BASE_ICONS names),
  /// the user's own in the program's folder, named after its identifier, where the desktop keeps data; the former one
  /// in "Library/Quorvane" of the user's home. A user without a home has none: `custom` is empty.
  static LibraryPlaces usual();
};

/// The file of an icon by the words "SET/ICON", the icon's name with or without its ending: in the user's library, else
/// in the built-in one. nullopt when the words name no set; fails, with what there is, when they name a set alone or no
/// icon of it, or two.
Result<std::optional<std::filesystem::path>> findLibraryIcon(const std::string& words,
                                                             const LibraryPlaces& places = LibraryPlaces::usual());

/// The two libraries of icon sets. Each call reads the disk. Main thread.
class IconLibrary {
 public:
  using Sets = std::vector<std::shared_ptr<IconSet>>;

  IconLibrary(LibraryPlaces places, const LibraryServices& services)
      : _places(std::move(places)), _services(services) {}

  [[nodiscard]] const std::filesystem::path& baseIconsPath() const { return _places.builtin; }
  [[nodiscard]] const std::filesystem::path& customIconsPath() const { return _places.custom; }
  [[nodiscard]] const LibraryServices& services() const { return _services; }

  /// Makes the user's library, or moves it from where it once was. Its path; nullopt when that cannot be.
  std::optional<std::filesystem::path> createCustomIconsFolder() const;
  /// The same, with the reason when it cannot be.
  Result<std::filesystem::path> makeCustomIconsFolder() const;

  /// The built-in sets, exactly as listed.
  [[nodiscard]] Sets builtinIconSets() const;
  /// The user's sets: as listed, and those that the list does not have behind them; rewrites the list.
  [[nodiscard]] Sets customIconSets() const;
  /// Does nothing: edits reach the disk by themselves.
  void setCustomIconSets(const Sets& sets) const { (void)sets; }
  /// The sets of any library, in the order of its list; where there is none, a new one of the name "New Set".
  [[nodiscard]] Sets _iconSetsInDirectory(const std::filesystem::path& path) const;

  /// The names of a library's sets in order, as it stands: nothing is made or written. Of the built-in one those that
  /// are listed. A library that is missing has none.
  [[nodiscard]] std::vector<std::string> setNames(const std::filesystem::path& path) const;
  /// Where a set is made that has none of those names: "New Set", "New Set 1" ...
  [[nodiscard]] std::filesystem::path pathToNewSet(const std::vector<std::string>& names) const;

  /// Takes the folder of a set without icons away. Refused when it holds an icon now. What else lies in it goes to the
  /// trash with it; without a trash such a folder stays. The item when it lies in the trash.
  Result<std::optional<TrashedItem>> removeSet(const IconSet& set) const;

 private:
  LibraryPlaces _places;
  LibraryServices _services;
};

}  // namespace quorvane
