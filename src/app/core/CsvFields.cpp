// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/CsvFields.h"

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

/// One record, character by character. Where a quote is missing, what follows is anybody's guess: the quotes are taken
/// strictly, so that a guess comes to an end soon.
class Record {
 public:
  explicit Record(RowText& text) : _text(text) {}

  Result<std::vector<std::string>> read() {
    do {
      if (_fields.size() >= limits::rowColumns)
        return Error::tooLarge("has more than " + std::to_string(limits::rowColumns) + " fields");
      _fields.emplace_back();
      TRY_VOID(_text.peek(_at) == '"' ? quoted() : plain());
    } while (_text.peek(_at) == ',' && ++_at > 0);
    if (_text.peek(_at) == '\r') ++_at;
    if (_text.peek(_at)) ++_at;
    _text.consume(_at);
    return std::move(_fields);
  }

 private:
  /// Whether the field ends here; a CR counts with the LF behind it, or at the end of the text.
  bool isEnd(std::optional<char> c) {
    return !c || *c == ',' || *c == '\n' || (*c == '\r' && _text.peek(_at + 1).value_or('\n') == '\n');
  }

  Result<void> checkLength() const {
    if (_at < limits::rowBytes) return {};
    return Error::tooLarge("is longer than " + std::to_string(limits::rowBytes) + " bytes");
  }

  Result<void> plain() {
    for (auto c = _text.peek(_at); !isEnd(c); c = _text.peek(++_at)) {
      if (*c == '"') return Error::invalidInput("a double quote stands inside a field that is not quoted");
      if (*c == '\r') return Error::invalidInput("a carriage return stands outside quotes");
      TRY_VOID(checkLength());
      _fields.back() += *c;
    }
    return {};
  }

  Result<void> quoted() {
    for (++_at;; ++_at) {
      const auto c = _text.peek(_at);
      if (!c) return Error::invalidInput("a quoted field is never closed");
      TRY_VOID(checkLength());
      if (*c == '"' && _text.peek(++_at) != '"') break;
      _fields.back() += *c;
    }
    if (isEnd(_text.peek(_at))) return {};
    return Error::invalidInput("text stands behind the closing quote of a field");
  }

  RowText& _text;
  std::size_t _at = 0;
  std::vector<std::string> _fields;
};

}  // namespace

Result<std::vector<std::string>> takeCsvRecord(RowText& text) {
  auto fields = Record(text).read();
  if (!fields) text.skipLine();
  return fields;
}

}  // namespace quorvane
