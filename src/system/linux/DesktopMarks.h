// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "system/FolderMarks.h"

namespace quorvane {

/// Marks for all file managers at once: GNOME's, Cinnamon's and MATE's read the session's settings of the folder, KDE's
/// and LXQt's the folder's ".directory" file, and all but KDE's leave out what ".hidden" names.
class DesktopMarks : public FolderMarks {
 public:
  explicit DesktopMarks(FolderMetadata& metadata) : _metadata(metadata) {}

  [[nodiscard]] Result<void> saveOriginal(const Folder& folder, Folder& into) const override;
  Result<Notes> set(Folder& folder, const WantedMarks& wanted, Folder* original) override;
  [[nodiscard]] Result<std::vector<std::string>> faults(const Folder& folder, const WantedMarks& wanted) const override;
  void forgetThumbnails(const std::filesystem::path& folder) const override;

 private:
  static Result<void> _setDirectoryFile(Folder& folder, const WantedMarks& wanted, Folder* original);
  static Result<void> _setHiddenFile(Folder& folder, const WantedMarks& wanted, Folder* original);
  /// Another setting than ours, before it is replaced.
  Result<void> _keepSetting(const Folder& folder, Folder& original) const;
  Result<void> _setMetadata(Folder& folder, const WantedMarks& wanted, const Folder* original) const;

  FolderMetadata& _metadata;
};

}  // namespace quorvane
