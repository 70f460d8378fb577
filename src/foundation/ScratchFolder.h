// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>

namespace quorvane {

/// A folder of this process alone among the system's temporary files: made when it is first asked for, for the user
/// alone (mode 0700). What somebody else has put in its place is neither used nor touched.
class ScratchFolder {
 public:
  /// The system's folder for temporary files with "/" at its end: an absolute $TMPDIR, else "/tmp/".
  static std::filesystem::path temporaryDirectory();

  /// Nothing is made yet.
  explicit ScratchFolder(std::filesystem::path path);
  [[nodiscard]] const std::filesystem::path& path() const { return _path; }

  /// Makes it, with the folders above that are missing, and gives its path; nothing when that failed. Later calls
  /// repeat the first answer.
  const std::optional<std::filesystem::path>& make();
  /// Removes it with everything in it; links in it are removed, never followed. True when there is none afterwards.
  [[nodiscard]] bool cleanUp() const;

 private:
  std::filesystem::path _path;
  std::optional<std::optional<std::filesystem::path>> _made;
};

}  // namespace quorvane
