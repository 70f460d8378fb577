// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>
#include <vector>

#include "Shades.h"
#include "foundation/base/Result.h"

namespace quorvane::baseicons {

/// One icon of the library, as library.json has it.
struct IconRow {
  QString name;     ///< without the extension
  QString drawing;  ///< drawings/DRAWING*.svg.in
  QString emblem;   ///< emblems/EMBLEM.svg; empty for none
  Tone tone;
};

struct SetRow {
  QString name;
  std::vector<IconRow> icons;
};

/// The sets in the order in which they are shown. Fails on what the file may not hold: unknown keys and colours, names
/// that stand twice or are no file names.
Result<std::vector<SetRow>> readLibrary(const std::filesystem::path& file);

}  // namespace quorvane::baseicons
