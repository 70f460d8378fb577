// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "foundation/base/Result.h"

/// Names of single items inside a folder, as raw bytes.
namespace quorvane::names {

/// Longest name that Linux file systems take, in bytes.
inline constexpr std::size_t maximumBytes = 255;

/// Refuses what is not one path component: empty, ".", "..", with "/" or a zero byte, or too long.
Result<void> check(std::string_view name);

/// A fresh ".quorvane-XXXXXXXX.tmp", hidden and recognisable.
std::string makeTemporary();
/// Whether a name has exactly that form.
bool isTemporary(std::string_view name);

}  // namespace quorvane::names
