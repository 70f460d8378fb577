// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Reporter.h"

#include <QJsonDocument>
#include <utility>

#include "cli/Terminal.h"

namespace quorvane::cli {

namespace {

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

void Reporter::writeLine(std::FILE* stream, const std::string& text) {
  const std::lock_guard lock(_mutex);
  if (_progress) _progress->clear();
  std::fwrite(text.data(), 1, text.size(), stream);
  std::fputc('\n', stream);
  std::fflush(stream);
}

double Reporter::secondsSoFar() const {
  return std::chrono::duration<double>(Clock::now() - _begun).count();
}

void Reporter::writeItem(QJsonObject item) {
  const std::lock_guard lock(_mutex);
  if (_progress) _progress->clear();
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
  ++_outcomes[outcome];
  if (isJson()) {
    setPath(details, QStringLiteral("path"), path);
    details[QLatin1String("outcome")] = text(outcome);
    writeItem(std::move(details));
  } else if (!_isQuiet) {
    writeLine(stdout, (_isDryRun ? "[dry run] " : "") + words);
  }
}

void Reporter::failed(const std::filesystem::path& path, const Error& error, const std::optional<AskedIn>& in) {
  ++_failures;
  // The path that the caller gave is named, and the resolved one of the item at fault where that tells more.
  const std::string given = path.string();
  const bool isNamed = error.where().string().starts_with(given);
  const std::string list = in ? in->list.string() + ", line " + std::to_string(in->line) + ": " : "";
  writeLine(stderr,
            "quorvane: " + printable(list + (isNamed ? error.at(path).message() : given + ": " + error.message())));
  if (!isJson()) return;
  QJsonObject item;
  if (in) item[QLatin1String("line")] = static_cast<qint64>(in->line);
  setPath(item, QStringLiteral("path"), path.empty() && in ? in->list : path);
  item[QLatin1String("outcome")] = QLatin1String("failed");
  item[QLatin1String("reason")] = text(printable(error.why()));
  if (!error.where().empty()) setPath(item, QStringLiteral("where"), error.where());
  writeItem(std::move(item));
}

void Reporter::note(const std::string& words) {
  if (!_isQuiet) writeLine(stderr, "quorvane: " + words);
}

void Reporter::noteOnce(const std::string& words) {
  const std::lock_guard lock(_mutex);
  constexpr std::size_t most = 64;
  if (_saidOnce.size() < most && _saidOnce.insert(words).second) note(words);
}

void Reporter::rawName(const std::filesystem::path& path) {
  const std::lock_guard lock(_mutex);
  ++_successes;
  const std::string& name = path.native();
  std::fwrite(name.data(), 1, name.size() + 1, stdout);
  std::fflush(stdout);
}

void Reporter::showProgress(std::optional<std::size_t> total) {
  _total = total;
  _progress.emplace(_hasColor);
}

void Reporter::drawProgress() {
  if (!_progress) return;
  const std::lock_guard lock(_mutex);
  _progress->draw({.done = static_cast<std::size_t>(_successes) + static_cast<std::size_t>(_failures),
                   .failed = static_cast<std::size_t>(_failures),
                   .total = _total,
                   .seconds = secondsSoFar()});
}

void Reporter::finish(bool isInterrupted) {
  if (_progress) _progress->clear();
  _progress.reset();
  const bool hasSum = !_outcomeWords.empty() && _successes + _failures > 1;
  const std::string words = hasSum ? sum()
                            : isInterrupted
                                ? std::to_string(_successes) + " done, " + std::to_string(_failures) + " failed"
                                : "";
  if (!words.empty()) note((isInterrupted ? "interrupted; " : "") + words);
}

std::string Reporter::sum() const {
  std::vector<std::string> parts;
  for (const auto& [outcome, word] : _outcomeWords) {
    const auto found = _outcomes.find(outcome);
    parts.push_back(std::to_string(found == _outcomes.end() ? 0 : found->second) + " " + word);
  }
  parts.insert(parts.begin() + 1, failureCount(static_cast<std::size_t>(_failures), _hasColor));
  std::string words = _isDryRun ? "[dry run] " : "";
  for (std::size_t i = 0; i < parts.size(); ++i) words += (i == 0 ? "" : ", ") + parts[i];
  return words + " in " + durationInWords(secondsSoFar());
}

}  // namespace quorvane::cli
