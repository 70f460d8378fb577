// SPDX-License-Identifier: GPL-3.0-or-later
#include "Library.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStringList>
#include <initializer_list>
#include <utility>

#include "foundation/FileReading.h"

namespace quorvane::baseicons {

namespace {

constexpr std::size_t longestLibrary = 1 << 20;

Error fault(const QString& what) {
  return Error::invalidInput(what.toStdString());
}

Result<void> hasOnly(const QJsonObject& object, std::initializer_list<const char*> keys) {
  QStringList known;
  for (const char* key : keys) known << QLatin1String(key);
  for (const QString& key : object.keys())
    if (!known.contains(key)) return fault(QStringLiteral("\"%1\" is not known here").arg(key));
  return {};
}

Result<void> isFileName(const QString& name, QSet<QString>& taken) {
  if (name.isEmpty() || name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.')))
    return fault(QStringLiteral("\"%1\" is no name for a file").arg(name));
  if (taken.contains(name)) return fault(QStringLiteral("\"%1\" stands there twice").arg(name));
  taken.insert(name);
  return {};
}

Result<Tone> toneOf(const QJsonObject& colors, const QString& name) {
  const QJsonArray values = colors.value(name).toArray();
  if (values.size() != 3) return fault(QStringLiteral("there is no colour \"%1\"").arg(name));
  return Tone{values[0].toDouble(), values[1].toDouble(), values[2].toDouble()};
}

// An icon that is a text alone is named like its colour.
Result<IconRow> iconOf(const QJsonValue& value, const QJsonObject& set, const QJsonObject& colors) {
  QJsonObject object = value.toObject();
  if (value.isString()) object = {{QStringLiteral("name"), value}, {QStringLiteral("colour"), value}};
  TRY_VOID(hasOnly(object, {"name", "colour", "drawing", "emblem"}));
  const auto own = [&](const char* key) {
    const QString text = object.value(QLatin1String(key)).toString();
    return text.isEmpty() ? set.value(QLatin1String(key)).toString() : text;
  };
  IconRow icon{object.value(QLatin1String("name")).toString(), own("drawing"), own("emblem"), {}};
  icon.tone = TRY(toneOf(colors, own("colour")));
  icon.tone.lightness += set.value(QLatin1String("lighter")).toDouble();
  icon.tone.chroma *= set.value(QLatin1String("chroma")).toDouble(1);
  if (icon.drawing.isEmpty()) return fault(QStringLiteral("\"%1\" has no drawing").arg(icon.name));
  return icon;
}

}  // namespace

Result<std::vector<SetRow>> readLibrary(const std::filesystem::path& file) {
  const Bytes bytes = TRY(readPlainFile(file, longestLibrary));
  QJsonParseError problem;
  const auto document = QJsonDocument::fromJson(
      QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())), &problem);
  if (!document.isObject()) return fault(problem.errorString()).at(file);
  const QJsonObject root = document.object();
  const QJsonObject colors = root.value(QLatin1String("colours")).toObject();
  TRY_VOID(hasOnly(root, {"colours", "sets"}));

  std::vector<SetRow> sets;
  QSet<QString> setNames;
  for (const QJsonValue& value : root.value(QLatin1String("sets")).toArray()) {
    const QJsonObject object = value.toObject();
    TRY_VOID(hasOnly(object, {"name", "drawing", "colour", "emblem", "lighter", "chroma", "icons"}));
    SetRow set{object.value(QLatin1String("name")).toString(), {}};
    TRY_VOID(isFileName(set.name, setNames));
    QSet<QString> iconNames;
    for (const QJsonValue& icon : object.value(QLatin1String("icons")).toArray()) {
      set.icons.push_back(TRY(iconOf(icon, object, colors)));
      TRY_VOID(isFileName(set.icons.back().name, iconNames));
    }
    sets.push_back(std::move(set));
  }
  return sets;
}

}  // namespace quorvane::baseicons
