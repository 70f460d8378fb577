// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "app/core/RowText.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Takes one record of CSV (RFC 4180, line ends LF or CRLF) from the text: its fields, one at least. Raw bytes.
/// A malformed record fails, and only its first line is taken. Fails without taking anything at the end of the text.
Result<std::vector<std::string>> takeCsvRecord(RowText& text);

}  // namespace quorvane
