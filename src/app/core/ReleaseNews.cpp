// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/ReleaseNews.h"

#include <QStringList>
#include <algorithm>

#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"

namespace quorvane {

namespace {

// Qt's own reader of HTML opens files that a text names, and its time grows with the square of how deep tags nest.

bool isAsciiLetter(QChar c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isOneOf(const QString& name, std::initializer_list<const char16_t*> names) {
  return std::ranges::any_of(names, [&](const char16_t* known) { return name == QStringView(known); });
}

bool isTagAt(QStringView text, qsizetype at) {
  if (at + 1 >= text.size() || text[at] != u'<') return false;
  const QChar next = text[at + 1];
  if (next == u'/') return at + 2 < text.size() && isAsciiLetter(text[at + 2]);
  return isAsciiLetter(next) || next == u'!' || next == u'?';
}

/// What "&name;" stands for; empty: nothing that is known.
QString namedCharacter(QStringView name) {
  struct Entity {
    QStringView name;
    char16_t character;
  };
  static constexpr Entity known[] = {
      {u"amp", u'&'},         {u"lt", u'<'},         {u"gt", u'>'},          {u"quot", u'"'},
      {u"apos", u'\''},       {u"nbsp", u' '},       {u"hellip", u'\u2026'}, {u"ndash", u'\u2013'},
      {u"mdash", u'\u2014'},  {u"lsquo", u'\u2018'}, {u"rsquo", u'\u2019'},  {u"ldquo", u'\u201C'},
      {u"rdquo", u'\u201D'},  {u"laquo", u'\u00AB'}, {u"raquo", u'\u00BB'},  {u"bull", u'\u2022'},
      {u"middot", u'\u00B7'}, {u"copy", u'\u00A9'},  {u"reg", u'\u00AE'},    {u"trade", u'\u2122'},
      {u"times", u'\u00D7'},  {u"rarr", u'\u2192'}};
  for (const Entity& entity : known)
    if (name == entity.name) return QChar(entity.character);
  if (!name.startsWith(u'#')) return {};
  const bool isHex = name.size() > 1 && name[1].toLower() == u'x';
  bool isNumber = false;
  const char32_t code = name.mid(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
  if (!isNumber) return {};
  if (code == 0 || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) return QChar(QChar::ReplacementCharacter);
  return QString::fromUcs4(&code, 1);
}

/// Goes once over the text, from front to back.
class Stripper {
 public:
  explicit Stripper(QStringView text) : _text(text) {
    for (qsizetype i = 0; i < text.size() && !_isMarkup; ++i) _isMarkup = isTagAt(text, i);
  }

  /// A little more than is wanted of what is long.
  QString strip() {
    while (_at < _text.size() && _shown.size() <= static_cast<qsizetype>(limits::newsCharacters)) {
      const QChar c = _text[_at];
      if (_isMarkup && isTagAt(_text, _at)) {
        skipTag();
      } else if (c == u'&') {
        addEntity();
      } else {
        add(c);
        ++_at;
      }
    }
    return _shown;
  }

 private:
  void add(QChar c) {
    if (c == u'\n' && !_isMarkup) {
      _breaks = std::min(_breaks + 1, 2);
      _isSpacePending = false;
    } else if (c.isSpace()) {
      _isSpacePending = true;
    } else {
      // Breaks and spaces wait for something to stand between.
      if (_breaks > 0 && !_shown.isEmpty()) {
        _shown += QString(_breaks, u'\n');
      } else if (_isSpacePending && !_shown.isEmpty()) {
        _shown += u' ';
      }
      if (_isItem) _shown += QStringLiteral("• ");
      _shown += c;
      _breaks = 0;
      _isSpacePending = _isItem = false;
    }
  }

  void addEntity() {
    const qsizetype end = _text.mid(_at, 12).indexOf(u';');
    const QString character = end > 0 ? namedCharacter(_text.mid(_at + 1, end - 1)) : QString();
    if (character.isEmpty()) return add(_text[_at++]);
    for (const QChar c : character) add(c);
    _at += end + 1;
  }

  void skipTag() {
    if (_text.mid(_at).startsWith(u"<!--")) return skipBehind(QStringLiteral("-->"), _at + 4);
    const bool isEnd = _text[_at + 1] == u'/';
    qsizetype end = _at + (isEnd ? 2 : 1);
    const qsizetype first = end;
    while (end < _text.size() && end - first < 16 && _text[end].isLetterOrNumber()) ++end;
    const QString name = _text.mid(first, end - first).toString().toLower();
    // A ">" between quotes does not end it.
    QChar quote;
    for (; end < _text.size() && (!quote.isNull() || _text[end] != u'>'); ++end) {
      if (!quote.isNull()) {
        if (_text[end] == quote) quote = QChar();
      } else if (_text[end] == u'"' || _text[end] == u'\'') {
        quote = _text[end];
      }
    }
    _at = std::min(end + 1, _text.size());
    if (!isEnd && isOneOf(name, {u"script", u"style", u"title", u"head"})) {
      skipBehind(QStringLiteral("</") + name + u'>', _at);
    } else {
      breakFor(name, isEnd);
    }
  }

  /// Without such an end all the rest belongs to it.
  void skipBehind(const QString& end, qsizetype from) {
    const qsizetype found = _text.indexOf(end, from, Qt::CaseInsensitive);
    _at = found < 0 ? _text.size() : found + end.size();
  }

  void breakFor(const QString& name, bool isEnd) {
    if (name == u"br") {
      _breaks = std::min(_breaks + 1, 2);
    } else if (isOneOf(name,
                       {u"p", u"h1", u"h2", u"h3", u"h4", u"h5", u"h6", u"table", u"pre", u"hr", u"blockquote"})) {
      _breaks = 2;
    } else if (isOneOf(name, {u"li", u"ul", u"ol", u"tr", u"div", u"dl", u"dt", u"dd", u"section", u"article"})) {
      _breaks = std::max(_breaks, 1);
      if (name == u"li") _isItem = !isEnd;
    } else if (isOneOf(name, {u"td", u"th", u"img"})) {
      _isSpacePending = true;
    }
  }

  QStringView _text;
  bool _isMarkup = false;
  qsizetype _at = 0;
  QString _shown;
  int _breaks = 0;  ///< 1: the next character begins a line, 2: a paragraph
  bool _isSpacePending = false;
  bool _isItem = false;  ///< it begins an item of a list
};

/// At most so many characters, no half ones.
QString cut(const QString& text, qsizetype most) {
  if (text.size() <= most) return text;
  return text.left(text[most - 1].isHighSurrogate() ? most - 1 : most) + u'…';
}

QString visible(const QString& line) {
  return QString::fromStdString(printable(line.toStdString()));
}

}  // namespace

QString plainNews(const QString& description) {
  QStringList lines = cut(Stripper(description).strip(), limits::newsCharacters).split(u'\n');
  if (lines.size() > static_cast<qsizetype>(limits::newsLines)) {
    lines.resize(limits::newsLines);
    lines += QStringLiteral("…");
  }
  std::ranges::transform(lines, lines.begin(), visible);
  return lines.join(u'\n');
}

QString plainLine(const QString& text, qsizetype most) {
  return visible(cut(text.simplified(), most));
}

}  // namespace quorvane
