// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cerrno>
#include <map>
#include <utility>

#include "iconfamily/ForkStore.h"
#include "iconfamily/IconFile.h"

namespace quorvane::test {

/// Forks and Finder info as a file system that has them would keep them: no companions, no attributes. Files are told
/// apart by folder and name. `failure`, when set, is what every change answers.
class MemoryForkStore : public ForkStore {
 public:
  std::optional<Error> failure;

  [[nodiscard]] Result<ForkedFile> read(const Folder& folder, const std::string& name) const override {
    if (!TRY(folder.statusOf(name))) return Error::system(ENOENT, "cannot look at").at(folder.pathOf(name));
    const auto found = _files.find({keyOf(folder), name});
    return found == _files.end() ? ForkedFile() : found->second;
  }
  Result<void> write(Folder& folder, const std::string& name, const ForkedFile& content) override {
    if (failure) return *failure;
    if (!TRY(folder.statusOf(name))) return Error::system(ENOENT, "cannot look at").at(folder.pathOf(name));
    _files[{keyOf(folder), name}] = content;
    return {};
  }
  Result<void> removeFile(Folder& folder, const std::string& name) override {
    if (failure) return *failure;
    TRY_VOID(folder.removeFile(name));
    _files.erase({keyOf(folder), name});
    return {};
  }
  [[nodiscard]] std::vector<std::string> filesBeside(const std::string&) const override { return {}; }

  [[nodiscard]] Result<FinderInfo> readFolderInfo(const Folder& folder) const override {
    const auto found = _folders.find(keyOf(folder));
    return found == _folders.end() ? FinderInfo() : found->second;
  }
  Result<std::optional<FolderInfoPlace>> changeFolderFlags(Folder& folder, std::uint16_t set,
                                                           std::uint16_t clear) override {
    if (failure) return *failure;
    FinderInfo& info = _folders[keyOf(folder)];
    info.setFlags(static_cast<std::uint16_t>((info.flags() & ~clear) | set));
    return set == 0 ? std::nullopt : std::optional(FolderInfoPlace::FileSystem);
  }

  [[nodiscard]] Result<void> saveOriginal(const Folder& folder, Folder& into) const override {
    Original original{TRY(readFolderInfo(folder)), {}};
    for (const std::string& name : iconFileNames) {
      if (!TRY(folder.statusOf(name))) continue;
      TRY_VOID(folder.preserve(name, into, name));
      original.files[name] = TRY(read(folder, name));
    }
    _originals[keyOf(into)] = original;
    return {};
  }
  Result<void> restoreOriginal(Folder& folder, const Folder& from) override {
    if (failure) return *failure;
    const auto found = _originals.find(keyOf(from));
    if (found == _originals.end()) return Error(ErrorKind::NotFound, "nothing is kept").at(from.path());
    for (const std::string& name : iconFileNames) {
      TRY_VOID(removeFile(folder, name));
      const auto kept = found->second.files.find(name);
      if (kept == found->second.files.end()) continue;
      TRY_VOID(from.preserve(name, folder, name));
      _files[{keyOf(folder), name}] = kept->second;
    }
    _folders[keyOf(folder)] = found->second.info;
    return {};
  }

 private:
  using FolderKey = std::pair<dev_t, ino_t>;
  struct Original {
    FinderInfo info;
    std::map<std::string, ForkedFile> files;
  };
  static FolderKey keyOf(const Folder& folder) { return {folder.status()->st_dev, folder.status()->st_ino}; }

  std::map<std::pair<FolderKey, std::string>, ForkedFile> _files;
  std::map<FolderKey, FinderInfo> _folders;
  mutable std::map<FolderKey, Original> _originals;
};

}  // namespace quorvane::test
