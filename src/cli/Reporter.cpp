// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Reporter.h"

#include <QJsonDocument>
#include <utility>

#include "cli/Terminal.h"

namespace quorvane::cli {

namespace {

void writeLine(std::FILE* stream, const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stream);
  std::fputc('\n', stream);
  std::fflush(stream);
}

QString text(const std::string& words) {
  return QString::fromStdString(words);
}

}  // namespace

void setPath(QJsonObject& object, const QString& key, const std::filesystem::path& path) {
  const std::string& bytes = path.native();
  object[key] = text(isUtf8(bytes) ? bytes : printable(path));
  if (!isUtf8(bytes))
    object[key + QLatin1String("_base64")] = QString::fromLatin1(QByteArray::fromStdString(bytes).toBase64());
}

Reporter::Reporter(std::string command, OutputForm form, bool isQuiet, bool isDryRun)
    : _command(std::move(command)), _form(form), _isQuiet(isQuiet), _isDryRun(isDryRun) {
  if (_form == OutputForm::Json) {
    std::printf("{\"schema\": %d, \"command\": \"%s\", \"dry_run\": %s, \"results\": [", schema, _command.c_str(),
                _isDryRun ? "true" : "false");
  }
}

Reporter::~Reporter() {
  if (_form == OutputForm::Json)
    std::printf("%s], \"succeeded\": %d, \"failed\": %d}\n", _hasItems ? "\n" : "", _successes, _failures);
  std::fflush(stdout);
}

void Reporter::writeItem(QJsonObject item) {
  if (_form == OutputForm::JsonLines) {
    item[QLatin1String("schema")] = schema;
    item[QLatin1String("command")] = text(_command);
    if (_isDryRun) item[QLatin1String("dry_run")] = true;
  } else {
    std::fputs(_hasItems ? ",\n  " : "\n  ", stdout);
  }
  _hasItems = true;
  const QByteArray json = QJsonDocument(item).toJson(QJsonDocument::Compact);
  std::fwrite(json.constData(), 1, static_cast<std::size_t>(json.size()), stdout);
  if (_form == OutputForm::JsonLines) std::fputc('\n', stdout);
  std::fflush(stdout);
}

void Reporter::done(const std::filesystem::path& path, const std::string& outcome, const std::string& words,
                    QJsonObject details) {
  ++_successes;
  if (isJson()) {
    setPath(details, QStringLiteral("path"), path);
    details[QLatin1String("outcome")] = text(outcome);
    writeItem(std::move(details));
  } else if (!_isQuiet) {
    writeLine(stdout, (_isDryRun ? "[dry run] " : "") + words);
  }
}

void Reporter::failed(const std::filesystem::path& path, const Error& error) {
  ++_failures;
  // The path that the caller gave is named, and the resolved one of the item at fault where that tells more.
  const std::string given = path.string();
  const bool isNamed = error.where().string().starts_with(given);
  writeLine(stderr, "quorvane: " + printable(isNamed ? error.at(path).message() : given + ": " + error.message()));
  if (!isJson()) return;
  QJsonObject item;
  setPath(item, QStringLiteral("path"), path);
  item[QLatin1String("outcome")] = QLatin1String("failed");
  item[QLatin1String("reason")] = text(printable(error.why()));
  if (!error.where().empty()) setPath(item, QStringLiteral("where"), error.where());
  writeItem(std::move(item));
}

void Reporter::note(const std::string& words) {
  if (!_isQuiet) writeLine(stderr, "quorvane: " + words);
}

void Reporter::noteOnce(const std::string& words) {
  constexpr std::size_t most = 64;
  if (_saidOnce.size() < most && _saidOnce.insert(words).second) note(words);
}

}  // namespace quorvane::cli
