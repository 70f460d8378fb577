// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>

#include "foundation/base/Error.h"

namespace quorvane::cli {

enum class OutputForm { Words, Json, JsonLines };

/// Says what came of each folder or file: results to standard output, failures also to standard error, as words or as
/// JSON. Results are written as they come, so a run over many folders keeps none.
class Reporter {
 public:
  /// Version of the shape of the JSON output. Keys are only added.
  static constexpr int schema = 1;

  Reporter(std::string command, OutputForm form, bool isQuiet, bool isDryRun);
  /// Closes the JSON object.
  ~Reporter();
  Reporter(const Reporter&) = delete;
  Reporter& operator=(const Reporter&) = delete;

  /// One item that succeeded: `outcome` is the machine's word, `words` the line for people (printable already).
  void done(const std::filesystem::path& path, const std::string& outcome, const std::string& words,
            QJsonObject details = {});
  /// One item that failed; the path is the one the caller gave.
  void failed(const std::filesystem::path& path, const Error& error);
  /// A remark for people on standard error.
  void note(const std::string& words);
  /// A remark that holds for many folders alike: said the first time only. Few of them are remembered.
  void noteOnce(const std::string& words);

  [[nodiscard]] int failures() const { return _failures; }
  [[nodiscard]] int successes() const { return _successes; }
  [[nodiscard]] bool isJson() const { return _form != OutputForm::Words; }

 private:
  void writeItem(QJsonObject item);

  std::string _command;
  OutputForm _form;
  bool _isQuiet;
  bool _isDryRun;
  int _failures = 0;
  int _successes = 0;
  bool _hasItems = false;
  std::set<std::string> _saidOnce;
};

/// Puts a path into a JSON object under `key`; one that is not UTF-8 also as base64 under `key`_base64.
void setPath(QJsonObject& object, const QString& key, const std::filesystem::path& path);

}  // namespace quorvane::cli
