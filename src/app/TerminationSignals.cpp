// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <cerrno>
#include <csignal>

namespace quorvane {

namespace {

// A handler may do little more than write.
int pipeEnds[2] = {-1, -1};

void handle(int /*signal*/) {
  const int code = errno;
  const char byte = 0;
  static_cast<void>(!::write(pipeEnds[1], &byte, 1));
  errno = code;
}

constexpr int signals_[] = {SIGTERM, SIGINT, SIGHUP};

}  // namespace

TerminationSignals::TerminationSignals() {
  QCoreApplication::instance()->installEventFilter(this);
  if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] {
    char bytes[16];
    static_cast<void>(!::read(pipeEnds[0], bytes, sizeof bytes));
    Q_EMIT received();
  });
  struct sigaction action = {};
  action.sa_handler = handle;
  action.sa_flags = SA_RESTART;
  for (const int signal : signals_) ::sigaction(signal, &action, nullptr);
}

TerminationSignals::~TerminationSignals() {
  for (const int signal : signals_) ::signal(signal, SIG_DFL);
  for (int& end : pipeEnds) {
    if (end >= 0) ::close(end);
    end = -1;
  }
}

bool TerminationSignals::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Quit || watched != QCoreApplication::instance())
    return QObject::eventFilter(watched, event);
  // The application would ask every window, and stay when a sheet on one wants an answer first.
  Q_EMIT received();
  return true;
}

}  // namespace quorvane
