// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

#include <atomic>
#include <csignal>
#include <cstdlib>

#include "cli/ExitCode.h"
#include "cli/SecondNotices.h"
#include "cli/Terminal.h"
#include "foundation/base/Interruption.h"
#include "foundation/base/Log.h"

namespace quorvane::cli {

namespace {

// Set by the handler, and looked at by all threads.
std::atomic<int> receivedSignal = 0;
static_assert(std::atomic<int>::is_always_lock_free);

void onSignal(int signal) {
  // The second one ends the program at once; files are never half-written, whatever moment that is.
  if (receivedSignal != 0) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
  }
  receivedSignal = signal;
  requestInterruption();
}

/// While it lives the log goes to the terminal as well, if the caller wants that.
class VerboseLog {
 public:
  VerboseLog(bool isWanted, Reporter& reporter) : _isWanted(isWanted) {
    if (!isWanted) return;
    _before = setLogSink([this, &reporter](std::string_view category, std::string_view message) {
      reporter.note(printable(std::string(category) + ": " + std::string(message)));
      if (_before) _before(category, message);
    });
  }
  ~VerboseLog() {
    if (_isWanted) setLogSink(std::move(_before));
  }
  VerboseLog(const VerboseLog&) = delete;
  VerboseLog& operator=(const VerboseLog&) = delete;

 private:
  bool _isWanted;
  LogSink _before;
};

/// File managers run in a desktop session only; elsewhere nobody needs to be told twice.
bool isInSession() {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY"})
    if (const char* value = std::getenv(variable); value != nullptr && *value != '\0') return true;
  return false;
}

}  // namespace

int pendingSignal() {
  return receivedSignal;
}

void watchSignals() {
  std::signal(SIGINT, onSignal);
  std::signal(SIGTERM, onSignal);
  // A limit on file sizes then is an ordinary write error.
  std::signal(SIGXFSZ, SIG_IGN);
}

int run(const Arguments& arguments, const IconServices& services) {
  Reporter reporter(commandName(arguments.command), arguments.form, arguments.isQuiet, arguments.isDryRun);
  const VerboseLog log(arguments.isVerbose, reporter);
  bool isRightUse = true;
  bool hasAny = true;
  SecondNotices secondNotices;
  const FolderBranding branding(services, isInSession() ? secondNotices.later() : FolderBranding::Later());
  switch (arguments.command) {
    case Command::Apply:
      isRightUse = runApply(arguments, branding, reporter);
      break;
    case Command::Revert:
    case Command::Reset:
      isRightUse = runWaysBack(arguments, branding, reporter);
      break;
    case Command::Repair:
      isRightUse = runRepair(arguments, branding, reporter);
      break;
    case Command::Verify:
      isRightUse = runVerify(arguments, branding, reporter);
      break;
    case Command::Status:
      isRightUse = runStatus(arguments, branding, reporter, hasAny);
      break;
    case Command::List:
      hasAny = runList(arguments, branding, reporter);
      break;
    case Command::Render:
      runRender(arguments, services, reporter);
      break;
    case Command::IcnsMake:
    case Command::IcnsList:
    case Command::IcnsExtract:
      runIcns(arguments, reporter);
      break;
    case Command::Sets:
    case Command::SetsAdd:
    case Command::SetsNew:
    case Command::SetsRemove:
    case Command::SetsRename:
    case Command::SetsExport:
    case Command::SetsImport:
      runSets(arguments, services, reporter);
      break;
  }
  secondNotices.finish();
  reporter.finish(pendingSignal() != 0);
  if (pendingSignal() != 0) return pendingSignal() == SIGTERM ? exitTerminated : exitInterrupted;
  if (!isRightUse) return exitWrongUse;
  if (reporter.failures() > 0) return exitFailed;
  return hasAny ? exitDone : exitNothing;
}

}  // namespace quorvane::cli
