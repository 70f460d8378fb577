// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>

#include "foundation/base/Error.h"

namespace quorvane {

/// Under the one message of an apply that failed: what could not be done, to which folder, why, and what to do about
/// it, a paragraph each. Plain translated text without control characters, to be selected and copied.
/// `reason` is the error's in the user's language, with its path, and free of control characters.
QString applyFailureDetails(const std::filesystem::path& folder, const Error& error, const QString& reason);
/// The same for a revert.
QString revertFailureDetails(const std::filesystem::path& folder, const Error& error, const QString& reason);

}  // namespace quorvane
