// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace quorvane {

/// The name of the client that keeps this folder, with everything in it, in step with other machines, by the marker
/// that it keeps at the top of its tree; nullopt when there is none. Looks at this one folder only. Clients without a
/// marker of their own are not told.
std::optional<std::string> synchronisingClientAt(const std::filesystem::path& folder);

}  // namespace quorvane
