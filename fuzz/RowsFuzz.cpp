// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdlib>
#include <string>

#include "app/core/LookValues.h"
#include "app/core/Rows.h"

using namespace quorvane;

namespace {

/// What the table gives, row by row, when it comes in pieces of so many bytes.
std::string describe(std::string_view table, std::size_t piece) {
  std::vector<std::string> columns{"base"};
  for (const std::string_view name : lookValueNames()) columns.emplace_back(name);
  std::size_t at = 0;
  const auto source = [&](std::span<char> to) -> Result<std::size_t> {
    const std::size_t count = std::min({piece, to.size(), table.size() - at});
    std::copy_n(table.begin() + static_cast<std::ptrdiff_t>(at), count, to.begin());
    at += count;
    return count;
  };
  RowReader reader(source, columns);
  std::string words;
  std::size_t lastLine = 0;
  for (auto next = reader.next();; next = reader.next()) {
    if (!next) return words + "!! " + next.error().message();
    if (!*next) return words;
    const NumberedRow& row = **next;
    if (row.line <= lastLine) std::abort();
    lastLine = row.line;
    words += std::to_string(row.line) + " ";
    if (!row.row) {
      words += row.row.error().message() + "\n";
      continue;
    }
    if (row.row->folder.empty() || row.row->folder.native().find('\0') != std::string::npos) std::abort();
    words += row.row->folder.native();
    Look look;
    for (const auto& [name, value] : row.row->values) {
      if (value.empty()) std::abort();
      const auto set = name == "base" ? Result<void>() : setLookValue(look, name, value, "");
      words += " " + name + "=" + value + (set ? "" : " (" + set.error().message() + ")");
    }
    words += "\n";
  }
}

}  // namespace

// A table, CSV or JSON lines, gives the same rows in whatever pieces it comes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  const std::string_view table(reinterpret_cast<const char*>(input), size);
  if (describe(table, 1 << 20) != describe(table, 3)) std::abort();
  return 0;
}
