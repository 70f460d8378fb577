// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>

#include "foundation/base/Error.h"

namespace quorvane {

/// Under the one message of an apply that failed: what could not be done, to which folder, why, and what to do about
/// it, a paragraph each. Plain translated text without control characters, to be selected and copied.
QString applyFailureDetails(const std::filesystem::path& folder, const Error& error);
/// The same for a revert.
QString revertFailureDetails(const std::filesystem::path& folder, const Error& error);

}  // namespace quorvane
