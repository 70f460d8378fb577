// SPDX-License-Identifier: GPL-3.0-or-later
// Making the controller, its start and its end.
#include "app/AppController.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QPushButton>

#include "app/AboutController.h"
#include "app/BusyIndicator.h"
#include "app/MainMenu.h"
#include "app/NoticeLabel.h"
#include "app/PreferenceController.h"
#include "app/QVWindow.h"
#include "app/core/EditHistory.h"
#include "app/core/FolderWork.h"
#include "app/core/SettingsTable.h"
#include "composition/view/DroppedFolder.h"
#include "composition/view/FolderView.h"
#include "composition/view/ImageView.h"
#include "composition/view/PreviewStrip.h"
#include "foundation/UserDefaults.h"
#include "library/view/BaseIconController.h"
#include "system/HVUtility.h"
#include "ui/HVTableView.h"
#include "ui/PopUpButton.h"
#include "ui/SharedPanels.h"
#include "ui/Slider.h"

namespace quorvane {

namespace {

/// Short enough not to be felt; most folders have answered by then.
constexpr int briefly = 100;
/// A disk that takes longer at the end of the program will hardly answer at all.
constexpr std::chrono::seconds patienceAtEnd{30};

std::weak_ptr<AppController>& shared() {
  static std::weak_ptr<AppController> controller;
  return controller;
}

}  // namespace

std::shared_ptr<AppController> AppController::init(const AppServices& services) {
  if (auto controller = sharedController()) return controller;
  std::shared_ptr<AppController> controller(new AppController(services));
  shared() = controller;
  controller->_init();
  return controller;
}

std::shared_ptr<AppController> AppController::sharedController() {
  return shared().lock();
}

AppController::AppController(const AppServices& services) : _services(services), _scratch(_scratchPath()) {
  _busyTimer.setSingleShot(true);
  _busyTimer.setInterval(briefly);
  connect(&_busyTimer, &QTimer::timeout, this, &AppController::_showBusy);
}

AppController::~AppController() {
  // The windows that go with it move the focus.
  QObject::disconnect(qApp, nullptr, this, nullptr);
}

void AppController::_init() {
  _appInitialized = false;
  _preferenceController =
      std::make_unique<PreferenceController>(*this, _services.defaults, _services.panels, hasUpdater());
  _services.defaults.registerDefaults(PreferenceController::factoryDefaults());
  settings::setValue(_services.defaults, settings::feedAddress, feedAddress(HVUtility::systemVersion()));
  _ignoreChangeColor = false;
  // The first table of a process sets up what all of them share; nothing keeps it.
  static_cast<void>(HVTableView());
}

void AppController::setOutlets(const Outlets& outlets) {
  static_cast<Outlets&>(*this) = outlets;
  _history = std::make_unique<EditHistory>(_folderView->composition());
  _history->setListener([this] {
    _isLibraryNewer = false;
    Q_EMIT stateChanged();
  });
  _mainWindow->setDelegate(this);
  _labelTF->setDelegate(this);
  _connectControls();
  _connectLibrary();
}

void AppController::awakeFromNib() {
  _baseIconController->awakeFromNib();
  const bool isRemembered = _mainWindow->setFrameAutosaveName(settings::mainWindowAutosaveName);
  if (!isRemembered || settings::value(_services.defaults, settings::launchCount) == 0) _mainWindow->center();
  migrateCheckAtStartup();
  setPath(std::nullopt);
}

void AppController::applicationDidFinishLaunching() {
  _initColorPanel();
  _initFontPanel();
  _folderView->setImage(std::nullopt);
  _folderView->setLineSpacing(static_cast<float>(_lineSpacingSlider->value()));
  _effectPopUp->setAutoenablesItems(false);
  for (int item = 0; item < _effectPopUp->count(); ++item)
    _effectPopUp->setItemEnabled(item, _effectPopUp->tagAt(item) >= 0);
  _baseIconController->restoreIconSetSelection();
  _services.defaults.incrementIntegerForKey(settings::launchCount.name);
  if (settings::value(_services.defaults, settings::checkAtStartup)) checkForUpdatesInBackground();
  _history->clear();
  _appInitialized = true;
  Q_EMIT stateChanged();
}

void AppController::applicationWillTerminate() {
  _baseIconController->saveIconSetSelection();
  if (_libraryLayoutTimer.isActive()) _saveLibraryLayout();
  // Their places are kept as they go.
  _services.panels.colorPanel().hidePanel();
  _services.panels.fontPanel().hidePanel();
  _services.work.finish(patienceAtEnd);
  static_cast<void>(_services.defaults.synchronize());
}

bool AppController::windowShouldClose(HVWindow& window) {
  if (&window != _mainWindow) return true;
  _isTerminating = true;
  Q_EMIT terminateRequested();
  return true;
}

void AppController::_notice(const QString& words) {
  _noticeLabel->notice(words);
}

QString AppController::_readingWords() {
  return tr("Reading the picture…");
}

void AppController::_beginWork(const QString& words) {
  _busyWords = words;
  ++_busyCount;
  if (!_busyTimer.isActive()) _busyTimer.start();
  Q_EMIT stateChanged();
}

void AppController::_showBusy() {
  _busyIndicator->begin(_busyWords, !_isWriting());
  if (_isReading && _busyCount == 1) {
    _applyBtn->setEnabled(false);
    _revertBtn->setEnabled(false);
  } else if (_content.front()->isEnabled()) {
    // Else it would wander from part to part. A sheet keeps it.
    QWidget* focus = _mainWindow->focusWidget();
    _focusBeforeWork = focus && _mainWindow->centralWidget()->isAncestorOf(focus) ? focus : nullptr;
    if (_focusBeforeWork) _focusBeforeWork->clearFocus();
    for (QWidget* part : _content) part->setEnabled(false);
  }
  Q_EMIT stateChanged();
}

void AppController::_endWork() {
  --_busyCount;
  if (_busyCount > int{_isReading}) return;
  if (!_content.front()->isEnabled()) {
    for (QWidget* part : _content) part->setEnabled(true);
    if (_focusBeforeWork) _focusBeforeWork->setFocus();
  }
  if (_busyCount > 0) {
    _busyWords = _readingWords();
    return _busyTimer.start();
  }
  _busyTimer.stop();
  _busyIndicator->end();
  Q_EMIT stateChanged();
}

void AppController::_waitBriefly(const std::function<bool()>& done) {
  if (done()) return;
  ++_briefWaits;
  QEventLoop loop;
  QTimer end;
  end.setSingleShot(true);
  connect(&end, &QTimer::timeout, &loop, &QEventLoop::quit);
  end.start(briefly);
  while (!done() && end.isActive())
    loop.processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
  --_briefWaits;
}

QString abbreviatedPath(const std::filesystem::path& path) {
  const QString whole = QFile::decodeName(path.c_str());
  const QString home = QDir::homePath();
  if (whole == home) return QStringLiteral("~");
  if (home != QLatin1String("/") && whole.startsWith(home + QLatin1Char('/')))
    return QLatin1Char('~') + whole.mid(home.size());
  return whole;
}

}  // namespace quorvane
