// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "app/core/Rows.h"

namespace quorvane {

/// The row that one JSON object is, by the rules of RowReader. Fails on anything else, on unknown keys, and on values
/// that are neither text nor number.
Result<Row> rowFromJson(std::string_view json, const std::vector<std::string>& columns);

/// Words for a column that there is none of, with the nearest one there is.
Error unknownColumn(const std::string& name, const std::vector<std::string>& columns);

}  // namespace quorvane
