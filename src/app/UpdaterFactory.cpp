// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UpdaterFactory.h"

#ifdef QUORVANE_FEED_PROGRAM
#include <QCoreApplication>
#include <QDir>

#include "app/AppcastUpdater.h"
#include "app/FeedProcess.h"
#include "app/SheetUpdateView.h"
#include "foundation/base/Version.h"
#include "system/HVUtility.h"
#endif

namespace quorvane {

#ifdef QUORVANE_FEED_PROGRAM

namespace {

/// The updater with what it works with.
class WindowUpdater : public Updater {
 public:
  WindowUpdater(HVWindow& window, UserDefaults& defaults, AddressOpener& opener)
      : _view(window),
        _updater({.defaults = defaults,
                  .fetcher = _fetcher,
                  .view = _view,
                  .opener = opener,
                  .runningVersion = QStringLiteral(QUORVANE_VERSION),
                  .homePage = QUrl(QStringLiteral(QUORVANE_HOMEPAGE)),
                  .systemVersion = HVUtility::systemVersion()}) {}
  void checkForUpdates() override { _updater.checkForUpdates(); }
  void checkForUpdatesInBackground() override { _updater.checkForUpdatesInBackground(); }

 private:
  // Wherever the program was moved to, it lies beside it.
  FeedProcess _fetcher{
      QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/" QUORVANE_FEED_PROGRAM))};
  SheetUpdateView _view;
  AppcastUpdater _updater;
};

}  // namespace

std::function<std::unique_ptr<Updater>()> updaterFactory(HVWindow& window, UserDefaults& defaults,
                                                         AddressOpener& opener) {
  return [&window, &defaults, &opener] { return std::make_unique<WindowUpdater>(window, defaults, opener); };
}

#else

std::function<std::unique_ptr<Updater>()> updaterFactory(HVWindow&, UserDefaults&, AddressOpener&) {
  return {};
}

#endif

}  // namespace quorvane
