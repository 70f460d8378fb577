// SPDX-License-Identifier: GPL-3.0-or-later
// The old text form: ( array ), { key = value; }, <data>, "quoted" and plain strings, comments as in C.
#include <algorithm>
#include <optional>

#include "foundation/plist/Collected.h"
#include "foundation/plist/NextStepEncoding.h"
#include "foundation/plist/PropertyList.h"
#include "foundation/plist/Unicode.h"

namespace quorvane::plist {

namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";

bool isPlain(char each) {
  return (each >= 'a' && each <= 'z') || (each >= 'A' && each <= 'Z') || (each >= '0' && each <= '9') ||
         std::string_view("_$/:.-+").find(each) != std::string_view::npos || (each & 0x80) != 0;
}

std::optional<unsigned> digitOf(char each, unsigned base) {
  unsigned digit = 99;
  if (each >= '0' && each <= '9') digit = static_cast<unsigned>(each - '0');
  if (each >= 'a' && each <= 'f') digit = static_cast<unsigned>(each - 'a') + 10;
  if (each >= 'A' && each <= 'F') digit = static_cast<unsigned>(each - 'A') + 10;
  return digit < base ? std::optional(digit) : std::nullopt;
}

class Reader {
 public:
  explicit Reader(std::string_view text) : _text(text) {}

  Result<std::vector<std::string>> read() {
    TRY_VOID(skipBlanks());
    if (peek() != '(') return _at == _text.size() ? noPropertyList("it is empty") : noArray();
    ++_at;
    _open.push_back(Expected::ItemOrEnd);
    while (!_open.empty()) {
      TRY_VOID(skipBlanks());
      if (_at == _text.size()) return noPropertyList("it ends too early");
      TRY_VOID(step());
    }
    TRY_VOID(skipBlanks());
    if (_at != _text.size()) return noPropertyList("something follows its end");
    return std::move(_strings).take();
  }

 private:
  /// What comes next in an array or a dictionary.
  enum class Expected { ItemOrEnd, CommaOrEnd, KeyOrEnd, Equals, Value, SemicolonOrEnd };

  [[nodiscard]] char peek() const { return _at < _text.size() ? _text[_at] : '\0'; }
  [[nodiscard]] Error unexpected() const { return noPropertyList("byte " + std::to_string(_at) + " is out of place"); }

  Result<void> skipBlanks() {
    for (;;) {
      _at = std::min(_text.find_first_not_of(blanks, _at), _text.size());
      const std::string_view rest = _text.substr(_at);
      if (rest.starts_with("//")) {
        _at = std::min(_text.find_first_of("\r\n", _at), _text.size());
      } else if (rest.starts_with("/*")) {
        const std::size_t end = _text.find("*/", _at + 2);
        if (end == std::string_view::npos) return noPropertyList("a comment has no end");
        _at = end + 2;
      } else {
        return {};
      }
    }
  }

  /// Takes what comes next, in whatever is innermost.
  Result<void> step() {
    Expected& expected = _open.back();
    switch (expected) {
      case Expected::ItemOrEnd:
        if (takes(')')) return close();
        expected = Expected::CommaOrEnd;
        return value();
      case Expected::CommaOrEnd:
        if (takes(')')) return close();
        expected = Expected::ItemOrEnd;
        break;
      case Expected::KeyOrEnd:
        if (takes('}')) return close();
        expected = Expected::Equals;
        return string().ok() ? Result<void>() : unexpected();
      case Expected::Equals:
        // A key alone stands for itself.
        if (takes(';')) return expected = Expected::KeyOrEnd, Result<void>();
        expected = Expected::Value;
        return takes('=') ? Result<void>() : unexpected();
      case Expected::Value:
        expected = Expected::SemicolonOrEnd;
        return value();
      case Expected::SemicolonOrEnd:
        if (takes('}')) return close();
        expected = Expected::KeyOrEnd;
        return takes(';') ? Result<void>() : unexpected();
    }
    return takes(',') ? Result<void>() : unexpected();
  }

  bool takes(char wanted) {
    if (peek() != wanted || _at == _text.size()) return false;
    ++_at;
    return true;
  }

  Result<void> close() {
    _open.pop_back();
    return {};
  }

  Result<void> value() {
    if (takes('(')) return open(Expected::ItemOrEnd);
    if (takes('{')) return open(Expected::KeyOrEnd);
    if (takes('<')) {
      const std::size_t end = _text.find('>', _at);
      if (end == std::string_view::npos) return noPropertyList("data have no end");
      _at = end + 1;
      return {};
    }
    const bool isWanted = _open.size() == 1;
    std::string text = TRY(string());
    return isWanted ? _strings.add(std::move(text)) : Result<void>();
  }

  Result<void> open(Expected first) {
    if (_open.size() == static_cast<std::size_t>(limits::propertyListDepth)) return nestedTooDeep();
    _open.push_back(first);
    return {};
  }

  Result<std::string> string() {
    const char quote = peek();
    if (quote == '"' || quote == '\'') return quoted(quote);
    const std::size_t begin = _at;
    while (_at < _text.size() && isPlain(_text[_at])) ++_at;
    if (_at == begin) return unexpected();
    return std::string(_text.substr(begin, _at - begin));
  }

  Result<std::string> quoted(char quote) {
    std::string text;
    Utf16Joiner joiner(text);
    for (++_at; _at < _text.size();) {
      const char each = _text[_at++];
      if (each == '\\' && _at < _text.size()) {
        escaped(text, joiner);
        continue;
      }
      joiner.finish();
      if (each == quote) return text;
      text += each;
    }
    return noPropertyList("a string has no end");
  }

  /// What follows a backslash; there is at least one byte.
  void escaped(std::string& text, Utf16Joiner& joiner) {
    const char each = _text[_at];
    if (digitOf(each, 8)) return joiner.add(fromNextStep(static_cast<unsigned char>(number(8, 3))));
    ++_at;
    if ((each == 'U' || each == 'u') && digitOf(peek(), 16)) return joiner.add(static_cast<char16_t>(number(16, 4)));
    joiner.finish();
    constexpr std::string_view letters = "abfnrtv";
    constexpr std::string_view meant = "\a\b\f\n\r\t\v";
    const std::size_t letter = letters.find(each);
    text += letter == std::string_view::npos ? each : meant[letter];
  }

  unsigned number(unsigned base, int digits) {
    unsigned result = 0;
    for (; digits > 0 && _at < _text.size(); --digits, ++_at) {
      const auto digit = digitOf(_text[_at], base);
      if (!digit) break;
      result = result * base + *digit;
    }
    return result;
  }

  std::string_view _text;
  std::size_t _at = 0;
  std::vector<Expected> _open;  ///< one for each array and dictionary that is open
  Collected _strings;
};

/// The text as UTF-8, without a byte-order mark.
std::string decoded(ByteView bytes) {
  const auto begins = [&](std::initializer_list<std::uint8_t> mark) {
    return bytes.size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
  };
  if (begins({0xFF, 0xFE})) return fromUtf16(bytes.subspan(2), true);
  if (begins({0xFE, 0xFF})) return fromUtf16(bytes.subspan(2), false);
  return wellFormed(begins({0xEF, 0xBB, 0xBF}) ? bytes.subspan(3) : bytes);
}

}  // namespace

Result<std::vector<std::string>> readText(ByteView bytes) {
  if (bytes.size() > limits::propertyListBytes) return Error::tooLarge("a property list that is too long");
  const std::string text = decoded(bytes);
  return Reader(text).read();
}

}  // namespace quorvane::plist
