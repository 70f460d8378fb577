// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvane::scripts {

/// A text as a literal of the script language, quotes included: backslashes, quotes, tabs and line ends are escaped, so
/// that no text ends the literal or the line.
std::string quoted(std::string_view text);

/// Takes a literal off the front of `script` and returns its text; nullopt, and nothing taken, when there is none.
std::optional<std::string> takeQuoted(std::string_view& script);

/// A file's name without its extension, which is how login items are called: what begins with the last full stop,
/// unless that is the first or the last letter of the name.
std::string withoutExtension(std::string_view name);

/// Around the commands for the keeper of the login items.
inline constexpr std::string_view tellBegin = "tell application \"System Events\"\n";
inline constexpr std::string_view tellEnd = "\nend tell";

}  // namespace quorvane::scripts
