// SPDX-License-Identifier: GPL-3.0-or-later
// quorvane-feed ADDRESS [SECONDS]: prints the feed at an https address. The exit code is a FeedOutcome; the reason of a
// failure goes to standard error. The window runs it when it looks for newer versions: so the window itself never loads
// what talks to networks, and whatever a server does to this program ends with it.
// QUORVANE_FEED_LOOPBACK=1 in the environment lets it ask servers on this machine without encryption.
#include <sys/prctl.h>
#include <sys/resource.h>

#include <QCoreApplication>
#include <csignal>
#include <cstdio>

#include "app/feed/FeedDownload.h"
#include "app/feed/ProxyChoice.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"

namespace quorvane {
namespace {

void limit(int resource, rlim_t most) {
  const rlimit both{most, most};
  setrlimit(static_cast<__rlimit_resource>(resource), &both);
}

/// A server may send headers without end.
void limitResources() {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  limit(RLIMIT_CORE, 0);
  limit(RLIMIT_CPU, 2 * feedSeconds);
#ifndef __SANITIZE_ADDRESS__
  limit(RLIMIT_DATA, rlim_t{256} << 20);
#endif
}

int fail(FeedOutcome outcome, const QString& reason) {
  std::fprintf(stderr, "%s\n", printable(reason.toStdString()).c_str());
  return static_cast<int>(outcome);
}

int run(int argc, char** argv) {
  limitResources();
  // Where a server asks who the user is, no ticket of theirs is to be found.
  qputenv("KRB5CCNAME", "FILE:/dev/null");
  qputenv("KRB5_CONFIG", "/dev/null");
  QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  bool isNumber = true;
  const int seconds = arguments.size() > 2 ? arguments[2].toInt(&isNumber) : feedSeconds;
  if (arguments.size() < 2 || arguments.size() > 3 || !isNumber || seconds < 1)
    return fail(FeedOutcome::Failed, QStringLiteral("usage: quorvane-feed ADDRESS [SECONDS]"));
  const QUrl address(arguments[1], QUrl::StrictMode);
  const auto proxy = chooseProxy(address);
  if (!proxy) return fail(FeedOutcome::Unreachable, QStringLiteral("the proxy in the environment is not understood"));

  FeedDownload download({.time = std::chrono::seconds(seconds),
                         .bytes = static_cast<qint64>(limits::feedBytes),
                         .loopbackWithoutEncryption = qEnvironmentVariable("QUORVANE_FEED_LOOPBACK") == u"1"},
                        *proxy);
  int code = static_cast<int>(FeedOutcome::Failed);
  QObject::connect(
      &download, &FeedDownload::finished, &application,
      [&](FeedOutcome outcome, const QString& reason) {
        code = outcome == FeedOutcome::Fetched ? 0 : fail(outcome, reason);
        QCoreApplication::quit();
      },
      Qt::QueuedConnection);
  QMetaObject::invokeMethod(
      &application, [&] { download.start(address); }, Qt::QueuedConnection);
  QCoreApplication::exec();
  if (code == 0) std::fwrite(download.body().constData(), 1, static_cast<std::size_t>(download.body().size()), stdout);
  // Not by returning: a name that is being looked up would be waited for.
  if (std::fflush(nullptr) != 0) code = static_cast<int>(FeedOutcome::Failed);
  std::_Exit(code);
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  return quorvane::run(argc, argv);
}
