// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/core/LookFile.h"
#include "foundation/Folder.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// The user's looks by name: look files (LookFile.h) in one folder, which the command line reads as well, and which may
/// be copied in and out. A picture that a look is drawn on lies beside it. Several programs may change it at once.
class LookStore {
 public:
  /// What is needed to take back a removal.
  struct Removed {
    QString name;
    Bytes look;
    std::optional<std::string> pictureName;  ///< only when the picture went too
    Bytes picture;
  };

  /// The folder need not exist: the first look makes it, for the user alone.
  explicit LookStore(std::filesystem::path folder) : _folder(std::move(folder)) {}
  /// The user's own, "quorvane/looks" where the desktop keeps data.
  static Result<std::filesystem::path> usualFolder();

  /// All names, sorted as people sort them ("2" before "10", whatever the letters' case).
  [[nodiscard]] Result<std::vector<QString>> names() const;
  [[nodiscard]] Result<ReadLook> read(const QString& name) const;
  /// The look's file, for the command line and to show it.
  [[nodiscard]] Result<std::filesystem::path> fileOf(const QString& name) const;

  /// Keeps the look, replacing one of the name. The picture is copied into the store unless it lies there; the look's
  /// own `base` does not matter. Fails on what could not be read again.
  Result<void> save(const QString& name, SavedLook look, const std::optional<BaseReference>& base);
  /// Refused when a look of the new name is there already.
  Result<void> rename(const QString& from, const QString& to);
  /// Removes the look, and its picture when no other look uses that; restore() brings both back.
  Result<Removed> remove(const QString& name);
  /// Refused when a look of the name has come meanwhile.
  Result<void> restore(const Removed& removed);

  /// The file name of a look: what cannot stand in one is written as "%" and two digits. Refuses names that are empty,
  /// begin or end with a blank, or are too long.
  static Result<std::string> fileName(const QString& name);
  /// The name of a file that fileName() gives; nullopt for all others.
  static std::optional<QString> nameOf(const std::string& fileName);

 private:
  [[nodiscard]] Result<Folder> open(Folder::Access access) const;
  /// Copies the picture in and returns the name of the copy.
  Result<std::string> keepPicture(Folder& folder, const BaseReference& base) const;
  /// Whether a look still refers to the picture; true when it cannot be told.
  [[nodiscard]] bool isUsed(const Folder& folder, const std::string& picture) const;
  /// Removes a picture that keepPicture() made and nobody needs any more; true when it went.
  bool dropPicture(Folder& folder, const std::string& picture) const;

  std::filesystem::path _folder;
};

}  // namespace quorvane
