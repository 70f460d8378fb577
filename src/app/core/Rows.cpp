// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/Rows.h"

#include <algorithm>

#include "app/core/CsvFields.h"
#include "app/core/JsonRow.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"

namespace quorvane {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

Result<void> checkFolder(const Row& row) {
  const std::string& folder = row.folder.native();
  if (folder.empty()) return Error::invalidInput("the row names no folder");
  if (folder.find('\0') != std::string::npos) return Error::invalidInput("the folder's path has a zero byte");
  return {};
}

}  // namespace

void RowReader::skipBlanks(std::string_view blanks) {
  for (auto c = _text.peek(0); c && blanks.find(*c) != std::string_view::npos; c = _text.peek(0)) _text.consume(1);
}

Result<RowReader::Form> RowReader::begin() {
  const auto startsWith = [this](std::string_view mark) {
    return _text.peek(mark.size() - 1) && _text.view(mark.size()) == mark;
  };
  if (startsWith("\xFF\xFE") || startsWith("\xFE\xFF")) return Error::invalidInput("is UTF-16 text; UTF-8 is expected");
  if (startsWith(byteOrderMark)) _text.consume(byteOrderMark.size());
  skipBlanks(" \t\r\n");
  if (!_text.peek(0)) return Form::Ended;
  if (_text.peek(0) == '{') return Form::JsonLines;
  TRY_VOID(readHeader());
  return Form::Csv;
}

Result<void> RowReader::readHeader() {
  auto names = takeCsvRecord(_text);
  if (!names) return Error(names.error().kind(), "the header line: " + names.error().why());
  for (const std::string& field : *names) {
    const std::string name = trimmed(field);
    const bool isKnown = name == "folder" || std::ranges::find(_columns, name) != _columns.end();
    if (!isKnown && names->size() == 1 && name.find(';') != std::string::npos)
      return Error::invalidInput("the columns of the header line are separated by semicolons; commas are expected");
    if (!isKnown) return unknownColumn(name, _columns);
    if (std::ranges::find(_header, name) != _header.end())
      return Error::invalidInput("the column '" + name + "' is there twice");
    _header.push_back(name);
  }
  if (std::ranges::find(_header, "folder") == _header.end())
    return Error::invalidInput("the header line names no column 'folder'");
  return {};
}

Result<Row> RowReader::takeCsvRow() {
  const std::vector<std::string> fields = TRY(takeCsvRecord(_text));
  if (fields.size() != _header.size())
    return Error::invalidInput("has " + std::to_string(fields.size()) + " fields, the header line " +
                               std::to_string(_header.size()));
  Row row;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (_header[i] == "folder") {
      row.folder = fields[i];
    } else if (!fields[i].empty()) {
      row.values.emplace_back(_header[i], fields[i]);
    }
  }
  return row;
}

Result<Row> RowReader::takeJsonRow() {
  const auto length = _text.lineLength();
  if (!length) {
    _text.skipLine();
    return Error::tooLarge("is longer than " + std::to_string(limits::rowBytes) + " bytes");
  }
  auto row = rowFromJson(_text.view(*length), _columns);
  _text.skipLine();
  return row;
}

Result<std::optional<NumberedRow>> RowReader::next() {
  if (_form == Form::Unknown) {
    auto form = begin();
    if (!form || _text.failure()) _form = Form::Ended;
    if (_text.failure()) return *_text.failure();
    _form = TRY(std::move(form));
  }
  // A line of blanks is a row in CSV: a folder's name may be one. In JSON it is nothing.
  skipBlanks(_form == Form::Csv ? "\r\n" : " \t\r\n");
  std::optional<NumberedRow> taken;
  if (_form != Form::Ended && _text.peek(0)) {
    const std::size_t line = _text.line();
    Result<Row> row = _form == Form::Csv ? takeCsvRow() : takeJsonRow();
    if (row)
      if (auto checked = checkFolder(*row); !checked) row = checked.error();
    taken = NumberedRow{line, std::move(row)};
  }
  // A row that was cut off by a failure is none.
  if (!_text.failure()) return taken;
  _form = Form::Ended;
  return *_text.failure();
}

}  // namespace quorvane
