// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The text of a folder's ".hidden" file: names, one a line, that file managers leave out. Lines end at line feeds
/// only, so a name may end in a carriage return. The file may be the user's own; all other lines stay to the letter.
namespace quorvane::hiddenfile {

inline constexpr const char* fileName = ".hidden";

bool hides(std::string_view text, std::string_view name);
/// The text with the name in it; unchanged when it is there already.
std::string withName(std::string_view text, std::string_view name);
/// The text without the name, unless the original (nullopt: there was no such file) had it; the original to the letter
/// when nobody has changed anything else since. nullopt: the file should go.
std::optional<std::string> restored(std::string_view text, const std::optional<std::string>& original,
                                    std::string_view name);

}  // namespace quorvane::hiddenfile
