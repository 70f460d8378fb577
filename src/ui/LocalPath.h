// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>

class QMimeData;
class QUrl;

namespace quorvane {

/// The path with its links resolved; as it is when they cannot be.
[[nodiscard]] std::filesystem::path resolved(const std::filesystem::path& path);

/// The bytes of the path that a "file" address of this computer names, whatever their encoding; nullopt for other
/// addresses, and for one whose path is relative or holds a zero byte.
[[nodiscard]] std::optional<std::filesystem::path> localPath(const QUrl& address);

/// The first address of the data that is a path of this computer, links resolved where they can be; what it names is
/// not looked at.
[[nodiscard]] std::optional<std::filesystem::path> firstLocalPath(const QMimeData& data);

}  // namespace quorvane
