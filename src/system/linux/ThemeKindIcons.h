// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <mutex>

#include "foundation/base/BoundedCache.h"
#include "system/KindIcons.h"

namespace quorvane {

/// Icons from the icon theme of the user's session. Without a session that names a theme, or without a QGuiApplication
/// (whose pictures need one), it has none.
class ThemeKindIcons : public KindIcons {
 public:
  ThemeKindIcons();
  [[nodiscard]] std::optional<Image> iconForKindOfFile(const std::filesystem::path& path) const override;
  [[nodiscard]] std::optional<Image> systemIcon(FourCharCode type) const override;

 private:
  [[nodiscard]] std::optional<Image> iconNamed(const QStringList& names) const;
  bool _hasTheme = false;
  mutable std::mutex _mutex;  ///< Qt's icon themes are for one thread at a time
  /// By the theme's name and the wanted ones.
  mutable BoundedCache<QStringList, std::optional<Image>> _icons{8};
};

/// The name of the icon theme that the session's settings give, by the desktop that runs; empty without one.
QString sessionIconTheme();

}  // namespace quorvane
