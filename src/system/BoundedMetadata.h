// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>

#include "system/FolderMarks.h"

namespace quorvane {

/// The same settings with an end to every wait: a session may take a call and never answer. One that has let a call go
/// unanswered for longer than `patience` is not asked again; every call then fails at once, as without a session.
/// Safe to use from several threads when `settings` is.
std::unique_ptr<FolderMetadata> makeBoundedMetadata(std::shared_ptr<FolderMetadata> settings,
                                                    std::chrono::milliseconds patience);

}  // namespace quorvane
