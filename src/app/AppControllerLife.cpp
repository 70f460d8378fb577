// SPDX-License-Identifier: GPL-3.0-or-later
// What goes on beside the work on folders: prompts, new versions, the other windows, temporary files.
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTimer>
#include <algorithm>
#include <limits>

#include "app/AboutController.h"
#include "app/AppController.h"
#include "app/PreferenceController.h"
#include "app/QVWindow.h"
#include "app/core/UserPrompts.h"
#include "composition/view/FolderView.h"
#include "foundation/UserDefaults.h"
#include "ui/HVColorWell.h"
#include "ui/Reasons.h"
#include "ui/SharedPanels.h"
#include "ui/Texts.h"

namespace quorvane {

namespace {

/// After that, a background check is tried once more.
constexpr std::chrono::milliseconds retryDelay{2000};

}  // namespace

QString AppController::feedAddress(std::uint32_t systemVersion) const {
  const char* feed = systemVersion < 0x1060   ? "appcast-105.xml"
                     : systemVersion < 0x1070 ? "appcast-106.xml"
                     : systemVersion < 0x1080 ? "appcast-107.xml"
                                              : "appcast-108.xml";
  return _services.feedFolder + QLatin1String(feed);
}

void AppController::migrateCheckAtStartup() {
  if (settings::value(_services.defaults, settings::frameworkChecksAtStartup))
    settings::setValue(_services.defaults, settings::checkAtStartup, true);
  settings::setValue(_services.defaults, settings::frameworkChecksAtStartup, false);
}

qint64 AppController::runCount() {
  if (_runCount) return *_runCount;
  // Somebody may have edited the file.
  const qint64 former = settings::value(_services.defaults, settings::launchCount);
  _runCount = std::clamp<qint64>(former, 0, std::numeric_limits<qint64>::max() - 1) + 1;
  settings::setValue(_services.defaults, settings::launchCount, *_runCount);
  return *_runCount;
}

QString AppController::appName() {
  return QCoreApplication::applicationName();
}

void AppController::terminate() {
  _isTerminating = true;
  _preferenceController->cancelForTermination();
  _mainWindow->cancelSheets();
  // Those who waited for an answer get to know first. Closing saves the frame.
  QTimer::singleShot(0, _mainWindow, [this] {
    if (!_mainWindow->close()) Q_EMIT terminateRequested();
  });
}

void AppController::incrementUsageCount() {
  const qint64 count = _services.defaults.incrementIntegerForKey(settings::usageCount.name);
  if (count == 1) {
    runDockTipSheet();
  } else if (count % 10 == 5) {
    runShareOnFacebookSheet();
  }
}

void AppController::runDockTipSheet() {
  if (!settings::value(_services.defaults, settings::showDockTip)) return;
  const int answer = _services.prompts.runPromptSheetWithTitle(
      tr("Important Dock Tip"),
      tr("Congratulations!  You've just branded your first folder.\n\nOn Mac OS X 10.5 and later, a folder is shown in "
         "the Dock as a Stack by default.  In order to see the folder icon you've just made, ctrl-click on it in the "
         "Dock to get the contextual menu.  Then select Folder under the 'Display as' option."),
      tr("OK"), tr("More Information"));
  if (answer == UserPrompts::alternateReturn) _visitPage(QStringLiteral("quorvane/faq/"));
  settings::setValue(_services.defaults, settings::showDockTip, false);
}

void AppController::_askFavour(const settings::Key<bool>& key, const QString& title, const QString& message,
                               const QString& defaultButton, const QString& page) {
  if (!settings::value(_services.defaults, key) || _services.prompts.hasSheet()) return;
  const int answer =
      _services.prompts.runPromptSheetWithTitle(title, filled(message, {appName()}), filled(defaultButton, {appName()}),
                                                tr("Maybe next time"), tr("Don't ask again"));
  // The end of the session is no answer.
  if (answer == UserPrompts::alternateReturn || _isTerminating) return;
  if (answer == UserPrompts::defaultReturn) _visitPage(filled(page, {appName().toLower()}));
  settings::setValue(_services.defaults, key, false);
}

void AppController::runShareOnFacebookSheet() {
  _askFavour(settings::askToShareOnFacebook, tr("Share on Facebook"),
             tr("As an independent developer, our single greatest challenge is getting the word out.  Please consider "
                "taking a minute to share %@ on your Facebook and help spread the word.\n\nThank you!"),
             tr("Share on Facebook"), QStringLiteral("%@/fb/"));
}

void AppController::runRateOnAppStoreSheet() {
  _askFavour(settings::askToRateOnAppStore, tr("We Need Your Help!"),
             tr("As an indie developer, our biggest challenge is getting the word out.  Please take a minute to rate "
                "%@ on the App Store and help spread the word.\n\nThank you!"),
             tr("Rate %@"), QStringLiteral("%@/mas/"));
}

void AppController::_visitPage(const QString& page) {
  if (_services.visitPage && !_services.visitPage(page)) _notice(tr("No program was found that opens web pages."));
}

std::filesystem::path AppController::_scratchPath() {
  return ScratchFolder::temporaryDirectory().string() + QUORVANE_DEVELOPER_ID "." +
         QFile::encodeName(appName()).toStdString() + "-" + std::to_string(::getpid());
}

QString AppController::tmpdirString() const {
  return QFile::decodeName(_scratch.path().c_str());
}

std::optional<QString> AppController::tmpdir() {
  const auto& made = _scratch.make();
  return made ? std::optional(QFile::decodeName(made->c_str())) : std::nullopt;
}

Updater* AppController::updater() {
  if (!_updater && _services.makeUpdater) _updater = _services.makeUpdater();
  return _updater.get();
}

void AppController::checkForUpdates(QObject* /*sender*/) {
  if (Updater* asked = updater()) asked->checkForUpdates();
}

void AppController::checkForUpdatesInBackground() {
  if (_services.prompts.hasSheet()) {
    QTimer::singleShot(retryDelay, this, &AppController::checkForUpdatesInBackgroundLastAttempt);
    return;
  }
  if (Updater* asked = updater()) asked->checkForUpdatesInBackground();
}

void AppController::checkForUpdatesInBackgroundLastAttempt() {
  if (_services.prompts.hasSheet()) return;
  if (Updater* asked = updater()) asked->checkForUpdatesInBackground();
}

void AppController::showAboutWindow(QObject* /*sender*/) {
  if (!_aboutController) {
    std::function<void()> writeToMaker;
    if (_services.writeToMaker)
      writeToMaker = [this] {
        if (!_services.writeToMaker()) _notice(tr("No program was found that writes mail."));
      };
    _aboutController = std::make_unique<AboutController>(AboutController::Actions{
        .writeToMaker = writeToMaker, .visitPage = [this](const QString& page) { _visitPage(page); }});
  }
  _aboutController->showWindow(_mainWindow);
}

void AppController::showPreference(QObject* /*sender*/) {
  // Chosen once more, by an assistive tool: a sheet may have the panels.
  if (_preferenceController->isModal()) return _preferenceController->showWindow(_mainWindow);
  ColorPanel& colors = _services.panels.colorPanel();
  FontPanel& fonts = _services.panels.fontPanel();
  colors.close();
  fonts.close();
  _preferenceController->showWindow(_mainWindow);
  // The panels were lent for other values; where they show the label's again, a change of one thing keeps the rest.
  const LabelFont font = _folderView->font();
  fonts.setPanelFont(font.family, font.style, font.size);
  colors.setColor(_colorWell->color());
  if (const auto kept = _services.defaults.synchronize(); !kept)
    _notice(tr("The settings cannot be kept: %1").arg(reasonOf(kept.error())));
}

}  // namespace quorvane
