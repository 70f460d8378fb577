// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// The "file:" address of an absolute path, in ASCII. Every byte of the path comes back, whether it is text or not.
[[nodiscard]] std::string fileAddress(const std::filesystem::path& path);

/// The path of a "file:" address of this computer; nullopt for every other address, for what is no address, and for one
/// that leads to no absolute path.
[[nodiscard]] std::optional<std::filesystem::path> pathOfAddress(std::string_view address);

/// What a program was started with: a path, which is made absolute, or a "file:" address. nullopt for other addresses
/// ("sftp://host/folder"), unless something of that name is there.
[[nodiscard]] std::optional<std::filesystem::path> pathOfArgument(std::string_view argument);

}  // namespace quorvane
