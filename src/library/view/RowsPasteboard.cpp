// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/RowsPasteboard.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

namespace quorvane {

namespace {

QString thisProcess() {
  static const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
  return name;
}

}  // namespace

void setRows(QMimeData& pasteboard, const QList<int>& rows) {
  QJsonArray numbers;
  for (const int row : rows) numbers.append(row);
  const QJsonObject payload{{QStringLiteral("list"), thisProcess()}, {QStringLiteral("rows"), numbers}};
  pasteboard.setData(rowsPboardType, QJsonDocument(payload).toJson(QJsonDocument::Compact));
}

std::optional<IndexSet> rowsOf(const QMimeData& pasteboard) {
  const QJsonObject payload = QJsonDocument::fromJson(pasteboard.data(rowsPboardType)).object();
  if (payload.value(QStringLiteral("list")).toString() != thisProcess()) return std::nullopt;
  QList<int> rows;
  for (const auto& number : payload.value(QStringLiteral("rows")).toArray()) rows.push_back(number.toInt(-1));
  return IndexSet::indexSetWithArray(rows);
}

}  // namespace quorvane
