// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The text of a folder's ".directory" file, from which KDE's and LXQt's file managers take the folder's icon. The file
/// may be the user's own, so all but the icon stays to the letter: other keys, order, comments, line ends, a byte-order
/// mark. Nothing here touches a disk.
namespace quorvane::directoryfile {

inline constexpr const char* fileName = ".directory";

/// The two spellings of one icon. LXQt's file manager understands an absolute path only; KDE's prefers the one that
/// comes last, which can be relative to the folder and then survives that the folder is moved.
///
///     [Desktop Entry]
///     Icon=/home/ann/Invoices/.quorvane/icon-1.png
///     [Desktop\sEntry]
///     Icon=./.quorvane/icon-1.png
///
/// KDE's reader unescapes group names and takes both groups for one. To readers of the published format the second is a
/// group of somebody else's.
struct IconPaths {
  std::optional<std::string> absolute;  ///< as plain text; none where it is no UTF-8
  std::string relative;                 ///< begins with "./"
};

/// The text with this icon and no other. Writing it twice is the same as once.
std::string withIcon(std::string_view text, const IconPaths& icon);

/// The text without the icon keys for whose value `isOurs` holds. It is `original` to the letter when nobody has
/// changed anything else since; otherwise only our lines have gone, and the icon keys of the original have come back
/// unless somebody has set others. nullopt: the file should go, as there was none and nothing else is in it.
std::optional<std::string> restored(std::string_view text, const std::optional<std::string>& original,
                                    bool (*isOurs)(std::string_view value));

/// Whether an icon of ours is named.
bool namesIcon(std::string_view text, bool (*isOurs)(std::string_view value));

}  // namespace quorvane::directoryfile
