// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>
#include <functional>

#include "foundation/base/Result.h"

namespace quorvane {

/// A label with placeholders: "{name}" stands for the name of the folder that is branded, "{{" for a brace. Any other
/// lower-case word in braces is refused, as a later version may give it a meaning; other braces stand for themselves.
/// A null pattern is no label.

/// The pattern that stands for this very text.
QString patternOf(const QString& text);

/// The text of a pattern. `name` is asked for when the pattern has the placeholder, and its failure is passed on. Fails
/// on unknown placeholders, and on a label that is longer than Limits.h allows.
Result<QString> labelOf(const QString& pattern, const std::function<Result<QString>()>& name);

/// The name of a folder, also for "." and paths that end in a slash; fails when it has none that is text.
Result<QString> folderName(const std::filesystem::path& folder);

}  // namespace quorvane
