// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/Emblems.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

// A static library's resources are registered by hand, outside any namespace.
static void registerEmblems() {
  Q_INIT_RESOURCE(emblems);
}

namespace quorvane {

namespace {

// Where the drawings for 16 pixels are the clearer ones.
constexpr double fewestSmallPixels = 13.5;
constexpr double mostSmallPixels = 18.5;

QByteArray resource(const QString& name) {
  registerEmblems();
  QFile file(QStringLiteral(":/emblems/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<Emblem> readList() {
  std::vector<Emblem> list;
  const QJsonArray entries = QJsonDocument::fromJson(resource(QStringLiteral("emblems.json"))).array();
  for (const QJsonValue& entry : entries) {
    Emblem emblem{entry[QLatin1String("name")].toString(), entry[QLatin1String("title")].toString(), {}};
    for (const QJsonValue& keyword : entry[QLatin1String("keywords")].toArray()) emblem.keywords << keyword.toString();
    list.push_back(std::move(emblem));
  }
  return list;
}

}  // namespace

bool Emblem::matches(const QString& text) const {
  const auto holds = [&](const QString& words) { return words.contains(text, Qt::CaseInsensitive); };
  return holds(name) || holds(title) || std::ranges::any_of(keywords, holds);
}

const std::vector<Emblem>& emblems() {
  static const std::vector<Emblem> list = readList();
  return list;
}

const Emblem* emblemNamed(const QString& name) {
  const auto found = std::ranges::find(emblems(), name, &Emblem::name);
  return found != emblems().end() ? &*found : nullptr;
}

QByteArray emblemDrawing(const QString& name, double pixels) {
  // Names come from looks of others: only those of the list lead anywhere.
  if (emblemNamed(name) == nullptr) return {};
  if (pixels >= fewestSmallPixels && pixels <= mostSmallPixels)
    if (QByteArray drawing = resource(name + QLatin1String("-16.svg")); !drawing.isEmpty()) return drawing;
  return resource(name + QLatin1String(".svg"));
}

}  // namespace quorvane
