// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/base/Result.h"
#include "iconfamily/IconFamily.h"
#include "library/core/IconRecord.h"
#include "library/core/LibraryServices.h"

namespace quorvane {

/// The file in a set's folder that lists its icons in their order, and the one in a library's folder for its sets.
inline constexpr const char* iconListName = "QVIcons.plist";
inline constexpr const char* setListName = "sets.plist";

/// The in-memory face of one folder of base icons. The folder's name is the set's name, its icns and PNG files and its
/// folders are the icons, and a list file in it keeps their order. Every change goes to disk at once. A handle that is
/// shared by those who show it; main thread only, but for the operations on paths.
///
/// Nothing is ever done through a link: one that stands in the place of a set or of an icon is no set and no icon.
/// Several programs may change one set at a time: each change of the list is made to what the file says then.
class IconSet : public std::enable_shared_from_this<IconSet> {
 public:
  using Icons = std::vector<IconRecord>;
  enum class Change { Name, Icons };
  using Listener = std::function<void(IconSet& set, Change change)>;

  /// The icons of a folder, in the list's order, and those that the list does not have behind them; rewrites the list
  /// when it says anything else. A missing folder is made, with those above it, and has no icons. nullopt when that
  /// cannot be. A folder that cannot be read shows what can be, and its list stays as it is.
  static std::optional<Icons> _iconsInDirectory(const std::filesystem::path& path, const LibraryServices& services);
  /// The same as the folder stands: nothing is made or written. Fails when there is no folder to be read.
  static Result<Icons> iconsAt(const std::filesystem::path& path, const LibraryServices& services);
  /// The record of a file or folder; nullopt when no picture can be had.
  static std::optional<IconRecord> _iconForPath(const std::filesystem::path& path, const LibraryServices& services);
  /// What is shown for it: a ".png" or ".icns" file's pictures (exactly these endings), or a folder's icon at 128 x 128
  /// points. Only headers are read; the pictures are when they are needed.
  static std::optional<Image> _iconImageForPath(const std::filesystem::path& path, const LibraryServices& services);
  /// The family that a file or folder gives when it is added: of an icns file its own, of a PNG, TIFF, PSD or JPG file
  /// one made from the picture (endings in any case), of all others their desktop icon. Any thread.
  static Result<IconFamily> _iconFamilyForPath(const std::filesystem::path& path, const LibraryServices& services);
  /// Writes the records' names, in order, as the folder's list.
  static Result<void> _writeIconArray(const Icons& icons, const std::filesystem::path& toDirectory);

  /// A set of that folder, which is made when it is missing.
  static std::shared_ptr<IconSet> initWithPath(const std::filesystem::path& path, const LibraryServices& services);

  /// The same, but nothing is made: null when there is no folder (any more).
  static std::shared_ptr<IconSet> initWithExistingPath(const std::filesystem::path& path,
                                                       const LibraryServices& services);

  /// The last component of the path; raw bytes.
  [[nodiscard]] std::string name() const;
  /// Renames the folder and its entry in the library's list (one that is missing there is added), and reads the icons
  /// again. When the name is taken, the set keeps its path, but the folder of the new name is read all the same: its
  /// icons become this set's and its list's; and the reason is returned. A name that is no plain file name, or that the
  /// disk refuses, is refused, and nothing happens.
  Result<void> setName(const std::string& name);

  [[nodiscard]] const std::filesystem::path& path() const { return _path; }
  /// Replaces the path only; touches nothing on disk.
  void setPath(const std::filesystem::path& path);

  [[nodiscard]] const Icons& icons() const { return _icons; }
  /// Takes the icons over and writes their names to the list. What another program has added to the list meanwhile is
  /// kept behind them. Fails when it cannot be written; the icons are taken over all the same.
  Result<void> setIcons(Icons icons);
  /// Reads the folder again. One that has gone has no icons, and is not made again.
  void reload();

  /// Writes an icns file of a source into the folder, under its name or, where that is taken, a numbered one, and
  /// returns its record. Neither icons() nor the list change. The source is never changed.
  std::optional<IconRecord> addIconAtPath(const std::filesystem::path& path);
  /// The same, with the reason when there is none.
  Result<IconRecord> addIcon(const std::filesystem::path& path);
  /// Takes an icon's file (or folder) out of the set's folder: to the trash, else for good; but a folder that holds
  /// something and that the trash does not take stays, with the reason. Neither icons() nor the list change. The
  /// outcome may be ignored: one that is gone already is a success without an item.
  Result<std::optional<TrashedItem>> removeIconFileWithName(const std::string& name);

  /// Has the listener told of changes of the name and the icons, after them; returns its number for removeListener().
  int addListener(Listener listener);
  void removeListener(int number);

  [[nodiscard]] const LibraryServices& services() const { return _services; }

 private:
  IconSet(std::filesystem::path path, const LibraryServices& services);
  /// _iconsInDirectory() of a folder that is there.
  static Result<Icons> _load(const std::filesystem::path& path, const LibraryServices& services);
  void _tell(Change change);

  std::filesystem::path _path;
  Icons _icons;
  LibraryServices _services;
  /// The names in the list file as this set last read or wrote it: what another program added is what else stands
  /// there.
  std::vector<std::string> _listed;
  std::map<int, Listener> _listeners;
  int _listenerNumbers = 0;
};

}  // namespace quorvane
