// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// The file in a folder whose resource fork holds the folder's custom icon: "Icon" and a carriage return.
inline constexpr const char* iconFileName = "Icon\r";
/// The same where a file server mapped the carriage return, which its clients may not use, to U+F00D.
inline constexpr const char* mappedIconFileName = "Icon\xEF\x80\x8D";
/// All spellings, the one that we write first.
inline const std::array<std::string, 2> iconFileNames{iconFileName, mappedIconFileName};

/// The spelling under which the icon file stands, whatever kind of thing stands there; nullopt when there is none.
Result<std::optional<std::string>> findIconFile(const Folder& folder);

}  // namespace quorvane
