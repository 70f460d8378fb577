// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "cli/Progress.h"
#include "foundation/base/Error.h"

namespace quorvane::cli {

enum class OutputForm { Words, Json, JsonLines };

/// Where a folder was asked for: the line of a table.
struct AskedIn {
  std::filesystem::path list;
  std::size_t line = 0;
};

/// Says what came of each folder or file: results to standard output, failures also to standard error, as words or as
/// JSON. Results are written as they come, so a run over many folders keeps none. Remarks may come from any thread, all
/// else from the one that made it.
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
  /// One item that failed; the path is the one the caller gave. A row that names none has an empty one.
  void failed(const std::filesystem::path& path, const Error& error, const std::optional<AskedIn>& in = std::nullopt);
  /// A remark for people on standard error.
  void note(const std::string& words);
  /// A remark that holds for many folders alike: said the first time only. Few of them are remembered.
  void noteOnce(const std::string& words);
  /// One name that was found and asked for by --null: raw, ended by a zero byte.
  void rawName(const std::filesystem::path& path);

  /// Whether failures are counted in red, on the terminal behind standard error; at first they are not.
  void setColor(bool hasColor) { _hasColor = hasColor; }
  /// Shows the progress of a run over many folders from now on, until something else is written and again after it.
  void showProgress(std::optional<std::size_t> total);
  void drawProgress();
  /// What done() says of folders, with the words for people: the usual outcome first. Only with these there is a sum.
  void setOutcomes(std::vector<std::pair<std::string, std::string>> words) { _outcomeWords = std::move(words); }
  /// Ends a run: an interruption is told, and how many of several folders came out how ("990 branded, 10 failed, 0
  /// unchanged in 12.3 s").
  void finish(bool isInterrupted);

  [[nodiscard]] int failures() const { return _failures; }
  [[nodiscard]] int successes() const { return _successes; }
  [[nodiscard]] bool isJson() const { return _form != OutputForm::Words; }

 private:
  using Clock = std::chrono::steady_clock;

  void writeItem(QJsonObject item);
  void writeLine(std::FILE* stream, const std::string& text);
  [[nodiscard]] double secondsSoFar() const;
  [[nodiscard]] std::string sum() const;

  std::string _command;
  OutputForm _form;
  bool _isQuiet;
  bool _isDryRun;
  int _failures = 0;
  int _successes = 0;
  bool _hasItems = false;
  bool _hasColor = false;
  std::recursive_mutex _mutex;  ///< one output at a time
  std::set<std::string> _saidOnce;
  std::vector<std::pair<std::string, std::string>> _outcomeWords;
  std::map<std::string, int> _outcomes;
  Clock::time_point _begun = Clock::now();
  std::optional<Progress> _progress;
  std::optional<std::size_t> _total;
};

/// Puts a path into a JSON object under `key`; one that is not UTF-8 also as base64 under `key`_base64.
void setPath(QJsonObject& object, const QString& key, const std::filesystem::path& path);

}  // namespace quorvane::cli
