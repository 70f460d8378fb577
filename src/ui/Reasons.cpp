// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Reasons.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>
#include <optional>
#include <utility>
#include <vector>

#include "foundation/base/Text.h"
#include "ui/ReasonTexts.h"

namespace quorvane {

namespace {

bool isLetterOrDigit(const QString& text, qsizetype at) {
  return at >= 0 && at < text.size() && text[at].isLetterOrNumber();
}

constexpr QLatin1Char quote('\'');

/// Whether a quoted name may end here: apostrophes stand within words.
bool endsName(const QString& text, qsizetype at) {
  return text[at] == quote && !isLetterOrDigit(text, at + 1);
}

/// Where the last quoted name ends, or -1.
qsizetype endOfLastName(const QString& text) {
  for (qsizetype at = text.size() - 1; at >= 0; --at)
    if (endsName(text, at)) return at;
  return -1;
}

/// Where the name that is quoted from `begin` ends, or `begin` when none is.
qsizetype endOfName(const QString& text, qsizetype begin, qsizetype last) {
  if (begin >= last || text[begin] != quote || isLetterOrDigit(text, begin - 1)) return begin;
  qsizetype at = begin + 1;
  while (!endsName(text, at)) ++at;
  return at;
}

/// The pieces between separators; a name in quotes may hold anything.
QStringList piecesOf(const QString& text, QLatin1String separator) {
  QStringList pieces;
  qsizetype begin = 0;
  // Looked for once: where many names begin and none ends, each would be followed to the end of the text.
  const qsizetype last = endOfLastName(text);
  for (qsizetype at = 0; at < text.size(); ++at) {
    at = endOfName(text, at, last);
    if (!QStringView(text).mid(at).startsWith(separator)) continue;
    pieces += text.mid(begin, at - begin);
    begin = at + separator.size();
    at = begin - 1;
  }
  return pieces += text.mid(begin);
}

/// What stands in the places between the parts, when the piece is made so.
std::optional<QStringList> valuesIn(const QString& piece, const QStringList& parts) {
  if (parts.size() == 1) return piece == parts.front() ? std::optional(QStringList()) : std::nullopt;
  if (!piece.startsWith(parts.front()) || !piece.endsWith(parts.back())) return std::nullopt;
  const qsizetype end = piece.size() - parts.back().size();
  QStringList values;
  qsizetype at = parts.front().size();
  for (qsizetype part = 1; part < parts.size(); ++part) {
    const qsizetype next = part + 1 < parts.size() ? piece.indexOf(parts[part], at) : end;
    if (next < at || next > end) return std::nullopt;
    values += piece.mid(at, next - at);
    at = next + parts[part].size();
  }
  return values;
}

struct Text {
  const char* source;
  QStringList parts;  ///< between its places
  qsizetype length;   ///< of the parts
};

const std::vector<Text>& allTexts() {
  static const std::vector<Text> all = [] {
    const QRegularExpression place(QStringLiteral("%[1-9]"));
    std::vector<Text> texts;
    for (const auto list : {reasons::ofFolders(), reasons::ofPictures(), reasons::ofLibrary(), reasons::ofOthers()})
      for (const char* source : list) {
        const QStringList parts = QString::fromLatin1(source).split(place);
        texts.push_back({source, parts, parts.join(QString()).size()});
      }
    return texts;
  }();
  return all;
}

struct Match {
  const Text* text;
  QStringList values;
};

/// The text that the piece is made of; of several the one that leaves least to its places.
std::optional<Match> matchOf(const QString& piece) {
  std::optional<Match> best;
  for (const Text& text : allTexts()) {
    if (text.length > piece.size() || (best && best->text->length >= text.length)) continue;
    if (auto values = valuesIn(piece, text.parts)) best = Match{.text = &text, .values = *std::move(values)};
  }
  return best;
}

/// In one pass, as a value may look like a place.
QString filled(const QString& text, const QStringList& values) {
  QString whole;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const int place = text[at] == QLatin1Char('%') && at + 1 < text.size() ? text[at + 1].digitValue() : -1;
    if (place < 1 || place > values.size()) {
      whole += text[at];
      continue;
    }
    whole += values[place - 1];
    ++at;
  }
  return whole;
}

std::optional<QString> translated(const QString& piece) {
  const auto match = matchOf(piece);
  if (!match) return std::nullopt;
  return filled(QCoreApplication::translate("Reasons", match->text->source), match->values);
}

QString shown(const std::string& bytes) {
  return QString::fromStdString(printable(bytes));
}

}  // namespace

QString reasonOf(const std::string& why) {
  constexpr QLatin1String afterCause(": ");
  constexpr QLatin1String nextCause("; ");
  QStringList pieces = piecesOf(shown(why), afterCause);
  for (QString& piece : pieces) {
    if (auto whole = translated(piece)) {
      piece = *std::move(whole);
      continue;
    }
    QStringList causes = piecesOf(piece, nextCause);
    for (QString& cause : causes) cause = translated(cause).value_or(cause);
    piece = causes.join(nextCause);
  }
  return pieces.join(afterCause);
}

QString reasonOf(const Error& error) {
  return reasonOf(error.why());
}

QString placedReasonOf(const Error& error) {
  if (error.where().empty()) return reasonOf(error);
  return shown(error.where().native()) + QLatin1String(": ") + reasonOf(error);
}

}  // namespace quorvane
