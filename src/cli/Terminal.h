// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "foundation/base/Text.h"

namespace quorvane::cli {

/// Whether the file (0 standard input, 1 output, 2 errors) is a terminal.
bool isTerminal(int file);

/// Whether lines on the terminal behind standard error can be redrawn; false for files and for TERM=dumb or none.
bool canRedraw();

/// Colours only on a terminal that can redraw, and only where nobody objects: neither the caller (`isWanted`) nor the
/// environment, by a NO_COLOR that is not empty.
bool canColor(bool isWanted);

/// Characters in a line of the terminal behind standard error; 80 when it does not say.
int terminalWidth();

}  // namespace quorvane::cli
