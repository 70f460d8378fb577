// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <filesystem>

#include "foundation/Folder.h"
#include "foundation/SettingsStorage.h"

namespace quorvane {

class SettingsText;

/// Settings in one text file (see SettingsText) that any number of processes change at once.
///
/// A change is made under the lock of the file's folder to what the file holds at that moment, and the file is replaced
/// as a whole. The lock is waited for a bounded time; once it was not to be had, later changes do not wait again until
/// one has got it.
///
/// What is no settings file of a version we know (damaged, empty, unreadable, a folder ...) counts as no settings, with
/// one warning in the log. Reading leaves it alone; the first change moves it aside under a fresh name and begins anew.
/// A link of the user's own to a file elsewhere is followed, and stays when the file it leads to is replaced; where it
/// leads nowhere useful, the link is moved aside, never what it leads to. A file that nobody may write, or one of
/// somebody else's behind a link, is read but not changed: updates fail.
class SettingsFile : public SettingsStorage {
 public:
  static constexpr std::chrono::milliseconds patience{2'000};

  /// Neither the file nor its folder need exist; the folder is made by the first change.
  explicit SettingsFile(std::filesystem::path path, std::chrono::milliseconds wait = patience)
      : _path(std::move(path)), _wait(wait) {}
  /// The user's own: "quorvane/settings.json" where the desktop keeps settings.
  static Result<std::filesystem::path> usualPath();

  /// Fails only when it cannot be told what is there.
  Result<QVariantMap> read() override;
  Result<QVariantMap> update(const SettingsChanges& changes) override;
  Result<void> settle() override;
  [[nodiscard]] bool hasChanged() const override;

 private:
  /// Tells one state of a file from another, whatever the clock does.
  struct Stamp {
    struct Item {
      dev_t device = 0;
      ino_t inode = 0;
      off_t size = 0;
      timespec modified{}, changed{};
    } entry, target;
    bool operator==(const Stamp& other) const;
  };
  struct Found;

  [[nodiscard]] Stamp _currentStamp() const;
  /// What is there: settings, nothing, or something that is none.
  [[nodiscard]] Result<Found> _look() const;
  void _warn(const Error& fault);
  Result<void> _moveAside(Folder& folder);
  Result<Folder> _openLocked();
  Result<void> _replace(Folder& folder, const Found& found, const Bytes& text);
  /// One try under the lock; ErrorKind::Refused when somebody without it has changed the file meanwhile.
  Result<QVariantMap> _tryUpdate(Folder& folder, const SettingsChanges& changes);

  std::filesystem::path _path;
  std::chrono::milliseconds _wait;
  bool _isLockStuck = false;
  std::string _warned;  ///< the last warning, which is not repeated
  Stamp _stamp;
  std::optional<std::filesystem::path> _unsettled;  ///< folder of a file that was replaced, but perhaps not for good
};

}  // namespace quorvane
