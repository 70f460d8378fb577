// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

#include <csignal>
#include <cstdlib>

#include "cli/ExitCode.h"
#include "cli/SecondNotices.h"

namespace quorvane::cli {

namespace {

volatile std::sig_atomic_t receivedSignal = 0;

void onSignal(int signal) {
  // The second one ends the program at once; files are never half-written, whatever moment that is.
  if (receivedSignal != 0) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
  }
  receivedSignal = signal;
}

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
  bool hasNothing = false;
  SecondNotices secondNotices;
  const FolderBranding branding(services, isInSession() ? secondNotices.later() : FolderBranding::Later());
  switch (arguments.command) {
    case Command::Apply:
      runApply(arguments, branding, reporter);
      break;
    case Command::Revert:
    case Command::Reset:
      runWaysBack(arguments, branding, reporter);
      break;
    case Command::Repair:
      runRepair(arguments, branding, reporter);
      break;
    case Command::Verify:
      runVerify(arguments, branding, reporter);
      break;
    case Command::List:
      hasNothing = !runList(arguments, branding, reporter);
      break;
    case Command::Status:
      hasNothing = !runStatus(arguments, branding, reporter);
      break;
    case Command::Render:
      runRender(arguments, services, reporter);
      break;
    case Command::IcnsMake:
    case Command::IcnsList:
    case Command::IcnsExtract:
      runIcns(arguments, reporter);
      break;
  }
  secondNotices.finish();
  if (pendingSignal() != 0) {
    reporter.note("interrupted; " + std::to_string(reporter.successes()) + " done, " +
                  std::to_string(reporter.failures()) + " failed");
    return pendingSignal() == SIGTERM ? exitTerminated : exitInterrupted;
  }
  if (reporter.failures() > 0) return exitFailed;
  return hasNothing ? exitNothing : exitDone;
}

}  // namespace quorvane::cli
