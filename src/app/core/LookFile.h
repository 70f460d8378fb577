// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <filesystem>
#include <optional>

#include "app/core/BasePicture.h"
#include "app/core/Look.h"
#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// A look to use again and to give away: a small JSON text in UTF-8. Every key but the version may be missing, which
/// leaves the value as in Look. Labels, colours and effects are written as in the example, size left out is found:
///
///   {
///       "quorvane-look": 1,            the version of the form
///       "label": "{name}\n2026",       a pattern (LabelPattern.h)
///       "base": "pictures/box.png",    relative to the look file, in its folder or below
///       "font": "DejaVu Sans Bold", "size": 24, "color": "#b00020", "effect": "soft", "line-spacing": 1,
///       "shear": 0, "rotate": 0, "opacity": 1, "center": [64, 64],
///       "tint": "#46a758",             left out: none
///       "overlay": "emblem:star",      or "emoji:X"; or "overlay-picture": a small PNG file as base64; left out: none
///       "overlay-center": [64, 58], "overlay-size": 52, "overlay-opacity": 1, "overlay-color": "#ffffff"
///   }
struct SavedLook {
  Look look;                                  ///< its label stays null
  QString labelPattern;                       ///< null: no label
  std::optional<std::filesystem::path> base;  ///< as it stands in the file; checkInnerPath() holds
  QJsonObject others;                         ///< keys of other programs and versions, kept when it is written
};

/// Fails on anything that is no look of this version or breaks a limit; the reason names the key.
Result<SavedLook> lookFromJson(ByteView json);
/// The same look gives the same bytes. Fails on a base that is no inner path or no UTF-8, and on more than can be read.
Result<Bytes> lookToJson(const SavedLook& saved);

/// A look file that was read, and the picture it is drawn on.
struct ReadLook {
  SavedLook saved;
  std::optional<BaseReference> base;
};

/// Reads a look file that the user named; its base stays in the folder of the very file, behind all links.
Result<ReadLook> readLookFile(const std::filesystem::path& path);

/// The reference to a picture as a look file at `path` may hold it. Refused when the picture lies elsewhere than in the
/// file's folder or below.
Result<std::filesystem::path> innerReference(const BaseReference& base, const std::filesystem::path& path);

/// Writes the file whole or not at all, replacing one that is there, never through a link.
Result<void> writeLookFile(const std::filesystem::path& path, const SavedLook& saved);

}  // namespace quorvane
