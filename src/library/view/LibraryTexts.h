// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "library/core/IconRecord.h"

namespace quorvane {

/// What an icon is called: its file's name without an ending that says what kind of picture it is.
QString shownIconName(const IconRecord& icon);

/// What the built-in library calls a set or an icon, in the user's language. What has no other name there stays.
QString builtinName(const QString& name);

/// "12 icons".
QString iconCount(int icons);

}  // namespace quorvane
