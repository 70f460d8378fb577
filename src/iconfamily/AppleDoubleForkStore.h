// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "iconfamily/ForkStore.h"

namespace quorvane {

/// Forks on file systems without forks: those of NAME, with its Finder info, in the companion file "._NAME" beside it;
/// the folder's own Finder info in the extended attribute "user.com.apple.FinderInfo" where the file system takes one,
/// else in the folder's companion, "._FOLDER" in the folder above ("._." inside at the root of a file system).
///
/// Of a companion only what changes is changed: entries that we do not know and attribute blocks stay. A file that has
/// the attribute too gets it kept in step, as are records of file servers (ServerRecord.h) of files and folders that
/// have one. Companions and records of a folder that cannot be read say nothing about its flags.
class AppleDoubleForkStore : public ForkStore {
 public:
  enum class Attributes {
    Use,
    Ignore,  ///< behave as on a file system without extended attributes
  };
  static constexpr const char* infoAttribute = "user.com.apple.FinderInfo";

  explicit AppleDoubleForkStore(Attributes attributes = Attributes::Use) : _attributes(attributes) {}

  [[nodiscard]] Result<ForkedFile> read(const Folder& folder, const std::string& name) const override;
  Result<void> write(Folder& folder, const std::string& name, const ForkedFile& content) override;
  Result<void> removeFile(Folder& folder, const std::string& name) override;
  [[nodiscard]] std::vector<std::string> filesBeside(const std::string& name) const override;

  [[nodiscard]] Result<FinderInfo> readFolderInfo(const Folder& folder) const override;
  [[nodiscard]] Result<void> checkFolderFlags(const Folder& folder) const override;
  Result<std::optional<FolderInfoPlace>> changeFolderFlags(Folder& folder, std::uint16_t set,
                                                           std::uint16_t clear) override;

  [[nodiscard]] Result<void> saveOriginal(const Folder& folder, Folder& into) const override;
  [[nodiscard]] Result<void> checkOriginal(const Folder& from) const override;
  [[nodiscard]] Result<ResourceFork> originalIconFork(const Folder& from) const override;
  Result<void> restoreOriginal(Folder& folder, const Folder& from) override;

 private:
  [[nodiscard]] bool _usesAttributes() const { return _attributes == Attributes::Use; }
  /// Whether the folder's attribute holds the flags now that were to be set.
  Result<bool> _changeAttribute(Folder& folder, std::uint16_t set, std::uint16_t clear) const;
  /// The same for the file server's record, if there is one that can be read.
  Result<bool> _changeServerRecord(Folder& folder, std::uint16_t set, std::uint16_t clear) const;

  Attributes _attributes;
};

}  // namespace quorvane
