// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/JsonRow.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

#include "app/core/LookValues.h"
#include "foundation/base/Text.h"

namespace quorvane {

namespace {

/// The value as a person would type it.
Result<std::string> typedText(const std::string& key, const QJsonValue& value) {
  switch (value.type()) {
    case QJsonValue::Null:
      return std::string();
    case QJsonValue::Double:
      return shortNumber(value.toDouble());
    case QJsonValue::String:
      // Half a surrogate pair would become another character on the way to bytes.
      if (!value.toString().isValidUtf16()) return Error::invalidInput("'" + key + "' is no whole text");
      return value.toString().toStdString();
    case QJsonValue::Array:
      if (const QJsonArray pair = value.toArray(); key.ends_with("center") && pair.size() == 2)
        return TRY(typedText("X", pair[0])) + "," + TRY(typedText("Y", pair[1]));
      [[fallthrough]];
    default:
      return Error::invalidInput("'" + key + "' takes text or a number");
  }
}

Result<std::string> decoded(const std::string& base64) {
  const auto bytes = QByteArray::fromBase64Encoding(
      QByteArray::fromStdString(base64), QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
  if (!bytes) return Error::invalidInput("'folder_base64' is no base64");
  return bytes.decoded.toStdString();
}

}  // namespace

Error unknownColumn(const std::string& name, const std::vector<std::string>& columns) {
  std::vector<std::string> known = columns;
  known.emplace_back("folder");
  const std::string nearest = nearestWord(name, known);
  return Error::invalidInput("there is no column '" + excerpt(name) + "'" +
                             (nearest.empty() ? "" : ", did you mean '" + nearest + "'?"));
}

Result<Row> rowFromJson(std::string_view json, const std::vector<std::string>& columns) {
  QJsonParseError error;
  const auto document = QJsonDocument::fromJson(QByteArray(json.data(), static_cast<qsizetype>(json.size())), &error);
  if (error.error != QJsonParseError::NoError)
    return Error::invalidInput("is no JSON: " + error.errorString().toStdString());
  if (!document.isObject()) return Error::invalidInput("is no JSON object");

  Row row;
  std::optional<std::string> base64;
  const QJsonObject object = document.object();
  for (auto item = object.begin(); item != object.end(); ++item) {
    const std::string key = item.key().toStdString();
    if (key != "folder" && key != "folder_base64" && std::ranges::find(columns, key) == columns.end())
      return unknownColumn(key, columns);
    std::string text = TRY(typedText(key, item.value()));
    if (key == "folder") {
      row.folder = std::move(text);
    } else if (key == "folder_base64") {
      base64 = std::move(text);
    } else if (!text.empty()) {
      row.values.emplace_back(key, std::move(text));
    }
  }
  if (base64) row.folder = TRY(decoded(*base64));
  return row;
}

}  // namespace quorvane
