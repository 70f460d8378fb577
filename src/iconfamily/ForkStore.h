// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "iconfamily/format/FinderInfo.h"
#include "iconfamily/format/ResourceFork.h"

namespace quorvane {

/// What a file has besides its data.
struct ForkedFile {
  ResourceFork fork;
  FinderInfo info;
};

/// Where the Finder info of a folder is kept.
enum class FolderInfoPlace {
  FileSystem,       ///< a file system that has such a thing
  Attribute,        ///< an extended attribute of the folder
  CompanionBeside,  ///< a companion file in the folder above
  CompanionInside,  ///< a companion file inside, at the root of a file system
};

/// Where resource forks and Finder info live: the seam to file systems that have them and to those that do not. Chosen
/// once by the main function or a test.
///
/// Folders that are changed are open for writing. A place that is not what it should be (a link, a folder, a fifo, far
/// too large, malformed) is refused, never followed and never overwritten.
class ForkStore {
 public:
  virtual ~ForkStore() = default;

  /// Fork and Finder info of a plain file; empty and zero when it has none. NotFound without the file.
  [[nodiscard]] virtual Result<ForkedFile> read(const Folder& folder, const std::string& name) const = 0;
  /// Replaces both for an existing plain file, together; its data and times stay. An empty fork and zero info leave no
  /// trace. On failure nothing has changed.
  virtual Result<void> write(Folder& folder, const std::string& name, const ForkedFile& content) = 0;
  /// Removes the file with its fork and Finder info; success when there is nothing.
  virtual Result<void> removeFile(Folder& folder, const std::string& name) = 0;
  /// The names of the files beside `name` in its folder that may hold its fork.
  [[nodiscard]] virtual std::vector<std::string> filesBeside(const std::string& name) const = 0;

  /// Finder info of the folder itself; zero when it has none. The custom-icon flag is set when any place says so.
  [[nodiscard]] virtual Result<FinderInfo> readFolderInfo(const Folder& folder) const = 0;
  /// Fails when changeFolderFlags() would find no place to keep flags in, as far as it can be told without writing.
  [[nodiscard]] virtual Result<void> checkFolderFlags(const Folder& folder) const = 0;
  /// Clears Finder flags of the folder, then sets others, in every place that holds Finder info of it, so that all
  /// readers agree; where flags are to be set and no place holds any, in a new one. Returns the place that now holds
  /// the flags that were set; nullopt when none were to be set. May lock the folder above for a moment.
  virtual Result<std::optional<FolderInfoPlace>> changeFolderFlags(Folder& folder, std::uint16_t set,
                                                                   std::uint16_t clear) = 0;

  /// Keeps in the empty folder `into` (somewhere inside `folder`) all that is needed to bring back later, bit for bit,
  /// the folder's icon files with all that belongs to them and the folder's Finder info, or their absence. Complete
  /// only when it succeeds: build it under a temporary name.
  [[nodiscard]] virtual Result<void> saveOriginal(const Folder& folder, Folder& into) const = 0;
  /// Fails when something of what saveOriginal() kept there is missing or damaged.
  [[nodiscard]] virtual Result<void> checkOriginal(const Folder& from) const = 0;
  /// The fork of the icon file that was kept; empty without one.
  [[nodiscard]] virtual Result<ResourceFork> originalIconFork(const Folder& from) const = 0;
  /// Brings it back, the very files where the file system allows it. Can be repeated after an interruption; `from`
  /// stays as it is. What somebody else wrote into the folder's Finder info meanwhile is left, only our flags come out.
  virtual Result<void> restoreOriginal(Folder& folder, const Folder& from) = 0;
};

}  // namespace quorvane
