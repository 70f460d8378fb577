// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <filesystem>

#include "Drawing.h"
#include "Library.h"
#include "foundation/base/Result.h"

namespace quorvane::baseicons {

/// For whoever draws: the icons of some sets (of all, without names) at one size, a row a set, on light ground and on
/// dark, without anything being built. `pixels` is a size that is drawn (16, 32, 128, 256, 512).
Result<void> writeSheet(Sources& sources, const std::vector<SetRow>& sets, const std::filesystem::path& out, int pixels,
                        const QStringList& names);

}  // namespace quorvane::baseicons
