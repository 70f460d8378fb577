// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

#include <csignal>

#include "cli/ExitCode.h"

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

}  // namespace

int pendingSignal() { return receivedSignal; }

void watchSignals() {
  std::signal(SIGINT, onSignal);
  std::signal(SIGTERM, onSignal);
  // A limit on file sizes then is an ordinary write error.
  std::signal(SIGXFSZ, SIG_IGN);
}

int run(const Arguments& arguments, const IconServices& services) {
  Reporter reporter(commandName(arguments.command), arguments.form, arguments.isQuiet, arguments.isDryRun);
  bool hasNothing = false;
  switch (arguments.command) {
    case Command::Apply:
      runApply(arguments, services, reporter);
      break;
    case Command::Revert:
    case Command::Reset:
      runWaysBack(arguments, services, reporter);
      break;
    case Command::Status:
      hasNothing = !runStatus(arguments, services, reporter);
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
  if (pendingSignal() != 0) {
    reporter.note("interrupted; " + std::to_string(reporter.successes()) + " done, " +
                  std::to_string(reporter.failures()) + " failed");
    return pendingSignal() == SIGTERM ? exitTerminated : exitInterrupted;
  }
  if (reporter.failures() > 0) return exitFailed;
  return hasNothing ? exitNothing : exitDone;
}

}  // namespace quorvane::cli
