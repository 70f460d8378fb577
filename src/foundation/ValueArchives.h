// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>
#include <optional>

namespace quorvane {

/// A font as the settings keep it: by names and by its nominal size in canvas units, never a physical point.
struct FontDescription {
  QString family;
  QString style;  ///< e.g. "Bold Oblique"; empty for the family's regular one
  double size = 0;
  bool operator==(const FontDescription&) const = default;
};

/// Values packed into bytes of our own: a tag, a version, and the parts as big-endian numbers, so that what was packed
/// comes back exactly, whatever the version of Qt. Whatever is no whole archive of a version that is known unpacks to
/// nothing.
///
/// A colour keeps its space, its components and its alpha. An invalid one packs to no bytes.
[[nodiscard]] QByteArray archiveColor(const QColor& color);
[[nodiscard]] std::optional<QColor> unarchiveColor(const QByteArray& bytes);

/// Names over the limit in Limits.h, or that are no text, and a size that is no finite number pack to no bytes.
[[nodiscard]] QByteArray archiveFont(const FontDescription& font);
[[nodiscard]] std::optional<FontDescription> unarchiveFont(const QByteArray& bytes);

}  // namespace quorvane
