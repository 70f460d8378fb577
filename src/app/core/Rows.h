// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/core/RowText.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// One folder of a table, with the values that its row gives, as a person would type them for the options of the same
/// names. Values that are empty in the row are left out.
struct Row {
  std::filesystem::path folder;
  std::vector<std::pair<std::string, std::string>> values;
};

/// A row, or why it is none, and the line on which it begins, counted from 1.
struct NumberedRow {
  std::size_t line = 0;
  Result<Row> row;
};

/// Reads a table of folders row by row: CSV with a header line, or, when the first character that is no blank is a
/// brace, one JSON object a line. Holds one row and one piece of the table at a time.
///
/// CSV is that of RFC 4180: fields in double quotes may hold commas, line ends and doubled quotes; lines end with LF or
/// CRLF; a byte-order mark is passed over, as are empty lines. Bytes of `folder` are taken as they are. JSON objects
/// have the columns as keys, with texts or numbers ([X, Y] for a center); a folder whose name is no text comes as
/// `folder_base64`, which counts before `folder`.
///
/// A row that cannot be read ends with its first line, and reading goes on behind it.
class RowReader {
 public:
  /// `columns` are the names of the values that a row may have, besides `folder`.
  RowReader(ByteSource source, std::vector<std::string> columns)
      : _text(std::move(source)), _columns(std::move(columns)) {}

  /// The next row; nullopt at the end. A failure is the end, too: the source failed, or the header names no folder, an
  /// unknown column, or one twice.
  Result<std::optional<NumberedRow>> next();

 private:
  enum class Form { Unknown, Csv, JsonLines, Ended };

  Result<Form> begin();
  Result<void> readHeader();
  Result<Row> takeCsvRow();
  Result<Row> takeJsonRow();
  void skipBlanks(std::string_view blanks);

  RowText _text;
  std::vector<std::string> _columns;
  std::vector<std::string> _header;
  Form _form = Form::Unknown;
};

}  // namespace quorvane
