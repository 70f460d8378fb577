// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <memory>

#include "app/core/FolderBranding.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "support/TemporaryFolder.h"
#include "system/FileManagerNotices.h"
#include "system/FolderMarks.h"
#include "system/KindIcons.h"

namespace quorvane::test {

/// Remembers which folders were noted as changed.
class RecordingNotices : public FileManagerNotices {
 public:
  Result<void> noteDirectoryModified(Folder& folder) override {
    noted.push_back(folder.path());
    return {};
  }
  std::vector<std::filesystem::path> noted;
};

/// A session's settings of folders, without a session.
class MemoryMetadata : public FolderMetadata {
 public:
  [[nodiscard]] Result<std::optional<std::string>> customIcon(const std::filesystem::path& folder) const override {
    if (!isReachable) return Error(ErrorKind::Unsupported, "no session");
    const auto found = icons.find(folder);
    return found == icons.end() ? std::optional<std::string>() : std::optional(found->second);
  }
  Result<void> setCustomIcon(const std::filesystem::path& folder, const std::optional<std::string>& picture) override {
    if (!isReachable) return Error(ErrorKind::Unsupported, "no session");
    if (picture) {
      icons[folder] = *picture;
    } else {
      icons.erase(folder);
    }
    return {};
  }
  std::map<std::filesystem::path, std::string> icons;
  bool isReachable = true;
};

/// A picture of one colour, opaque, 128 points and `pixels` pixels a side.
Image plainImage(QColor color, int pixels = 64);

/// A folder in a temporary folder, and the services that work on it. The parameter says whether the file system is used
/// as one with extended attributes.
class BrandingFixture : public ::testing::TestWithParam<AppleDoubleForkStore::Attributes> {
 protected:
  TemporaryFolder tree;
  std::filesystem::path folder = tree / "Invoices";
  AppleDoubleForkStore forks{GetParam()};
  OwnKindIcons kinds;
  RecordingNotices notices;
  MemoryMetadata metadata;
  std::unique_ptr<FolderMarks> marks = makeDesktopMarks(metadata);
  IconServices services{.forks = forks, .kinds = kinds, .notices = notices, .marks = marks.get()};
  FolderBranding branding{services};

  BrandingFixture() { std::filesystem::create_directory(folder); }

  /// The family that the folder shows as its custom icon; empty bytes without one.
  [[nodiscard]] Bytes shownIcon() const;
};

}  // namespace quorvane::test
