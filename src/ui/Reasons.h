// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "foundation/base/Error.h"

namespace quorvane {

/// Why it failed, in the user's language, as far as the program has that (ui/ReasonTexts.h); the rest stays as it is.
/// One line of plain text; what could drive a terminal or turn text is shown as printable() shows it.
QString reasonOf(const Error& error);
/// The same of the words alone: pieces joined by ": ".
QString reasonOf(const std::string& why);

/// Where it failed, when the error says so, and why: "PATH: reason".
QString placedReasonOf(const Error& error);

}  // namespace quorvane
