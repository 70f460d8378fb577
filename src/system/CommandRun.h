// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <filesystem>
#include <string>
#include <vector>

#include "foundation/base/Result.h"

namespace quorvane::command {

/// What shells say of a program that could not be started.
inline constexpr int cannotStart = 127;

struct Run {
  QByteArray output;
  int status = 0;  ///< exit code, or 128 + signal
};

/// See HVUtility::runCommand(). Safe in programs with several threads. Fails when it cannot be started.
Result<Run> run(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                const std::filesystem::path& folder);

}  // namespace quorvane::command
