// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/LabelPattern.h"

#include <algorithm>
#include <string>

#include "app/core/LookValues.h"
#include "foundation/base/Text.h"

namespace quorvane {

namespace {

bool isPlaceholderLetter(QChar letter) {
  return (letter >= u'a' && letter <= u'z') || letter == u'-' || letter == u'_';
}

/// The word of a placeholder that begins at `start`, behind the brace; empty when there is none.
QString placeholderAt(const QString& pattern, qsizetype start) {
  qsizetype end = start;
  while (end < pattern.size() && isPlaceholderLetter(pattern[end])) ++end;
  return end < pattern.size() && pattern[end] == u'}' ? pattern.mid(start, end - start) : QString();
}

}  // namespace

QString patternOf(const QString& text) {
  QString pattern = text;
  return pattern.replace(QLatin1String("{"), QLatin1String("{{"));
}

Result<QString> labelOf(const QString& pattern, const std::function<Result<QString>()>& name) {
  if (pattern.isNull()) return QString();
  QString label = QLatin1String("");
  std::optional<QString> known;
  for (qsizetype i = 0; i < pattern.size(); ++i) {
    if (pattern[i] != u'{') {
      label += pattern[i];
    } else if (i + 1 < pattern.size() && pattern[i + 1] == u'{') {
      label += pattern[i++];
    } else if (const QString word = placeholderAt(pattern, i + 1); word.isEmpty()) {
      label += pattern[i];
    } else if (word == QLatin1String("name")) {
      if (!known) known = TRY(name());
      label += *known;
      i += word.size() + 1;
    } else {
      return Error::invalidInput("there is no placeholder {" + word.toStdString() +
                                 "} for labels, only {name}; a brace itself is written {{");
    }
  }
  TRY_VOID(checkLabel(label));
  return label;
}

Result<QString> folderName(const std::filesystem::path& folder) {
  std::error_code ignored;
  const std::filesystem::path whole = std::filesystem::canonical(folder, ignored);
  const std::string name = whole.filename().string();
  if (name.empty() || !isUtf8(name)) return Error::invalidInput("the folder's name is no text to label it with");
  return QString::fromStdString(name);
}

}  // namespace quorvane
