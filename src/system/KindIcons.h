// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "foundation/base/BoundedCache.h"
#include "foundation/base/FourCharCode.h"
#include "imaging/Image.h"

namespace quorvane {

/// Where the icon of a kind of thing (a folder, a text file, a disk) comes from. Custom icons play no part here. Safe
/// to share between threads, as all realisations are.
class KindIcons {
 public:
  virtual ~KindIcons() = default;
  /// The icon of the kind of what is at the path; nullopt when this source has none.
  [[nodiscard]] virtual std::optional<Image> iconForKindOfFile(const std::filesystem::path& path) const = 0;
  /// The icon of a system type: 'fldr', 'ofld', 'docu', 'APPL', 'hdsk', 'trsh'.
  [[nodiscard]] virtual std::optional<Image> systemIcon(FourCharCode type) const = 0;
};

/// The program's own pictures: a folder for folders, a document for files. Needs nothing of the desktop.
class OwnKindIcons : public KindIcons {
 public:
  [[nodiscard]] std::optional<Image> iconForKindOfFile(const std::filesystem::path& path) const override;
  [[nodiscard]] std::optional<Image> systemIcon(FourCharCode type) const override;

 private:
  /// So that each picture is decoded once.
  mutable BoundedCache<FourCharCode, std::optional<Image>> _icons{8};
};

/// Asks one source after the other; the first answer counts.
class FirstKindIcons : public KindIcons {
 public:
  explicit FirstKindIcons(std::vector<std::unique_ptr<KindIcons>> sources) : _sources(std::move(sources)) {}
  [[nodiscard]] std::optional<Image> iconForKindOfFile(const std::filesystem::path& path) const override;
  [[nodiscard]] std::optional<Image> systemIcon(FourCharCode type) const override;

 private:
  std::vector<std::unique_ptr<KindIcons>> _sources;
};

/// The icon theme of the user's session, then the program's own pictures.
std::unique_ptr<KindIcons> makeDesktopKindIcons();

}  // namespace quorvane
