// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include "foundation/base/FourCharCode.h"
#include "support/TemporaryFolder.h"

namespace quorvane::test {

/// Where foreign files and the tools that check ours are looked for; it need not exist.
inline std::filesystem::path sharedFolder() {
  const char* told = std::getenv("QUORVANE_SHARED");
  return told != nullptr ? told : QUORVANE_SHARED;
}

/// What another reader found in each file of the corpus "icns", by the file's name; empty without a corpus.
inline QJsonObject expectedOfIcns() {
  const std::filesystem::path file = sharedFolder() / "corpus/icns-expected.json";
  if (!std::filesystem::exists(file)) return {};
  const Bytes text = readFile(file);
  return QJsonDocument::fromJson(QByteArray(reinterpret_cast<const char*>(text.data()), qsizetype(text.size())))
      .object();
}

inline FourCharCode codeOf(const QString& type) {
  std::uint32_t code = 0;
  for (const QChar letter : type) code = code << 8 | letter.unicode();
  return FourCharCode(code);
}

}  // namespace quorvane::test
