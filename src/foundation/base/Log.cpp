// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/base/Log.h"

#include <syslog.h>

#include <utility>

namespace quorvane {

namespace {

void writeToSystemLog(std::string_view category, std::string_view message) {
  ::syslog(LOG_USER | LOG_NOTICE, "quorvane.%.*s: %.*s", static_cast<int>(category.size()), category.data(),
           static_cast<int>(message.size()), message.data());
}

LogSink& currentSink() {
  static LogSink sink = writeToSystemLog;
  return sink;
}

}  // namespace

void logMessage(std::string_view category, std::string_view message) {
  if (currentSink()) currentSink()(category, message);
}

LogSink setLogSink(LogSink sink) {
  return std::exchange(currentSink(), std::move(sink));
}

}  // namespace quorvane
