// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>

namespace quorvane {

/// Takes one diagnostic line of a category ("iconfamily", "branding" ...).
using LogSink = std::function<void(std::string_view category, std::string_view message)>;

/// Writes a diagnostic to the sink; at first that is the system log. Never shown to the user by itself.
void logMessage(std::string_view category, std::string_view message);

/// Replaces the sink and returns the former one. Not to be called while other threads log.
LogSink setLogSink(LogSink sink);

}  // namespace quorvane
