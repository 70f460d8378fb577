// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include <QApplication>
#include <QScreen>
#include <cstdio>

#include "app/AppController.h"
#include "app/Choosers.h"
#include "app/DefaultsFrameStore.h"
#include "app/EndAtTheLatest.h"
#include "app/MainWindowLayout.h"
#include "app/QVWindow.h"
#include "app/RecentList.h"
#include "app/SheetPrompts.h"
#include "app/TerminationSignals.h"
#include "app/Translations.h"
#include "app/UpdaterFactory.h"
#include "app/WindowArguments.h"
#include "app/core/FolderWork.h"
#include "app/core/LookStore.h"
#include "app/core/SettingsTable.h"
#include "composition/view/FolderView.h"
#include "foundation/SettingsFile.h"
#include "foundation/UserDefaults.h"
#include "foundation/base/Log.h"
#include "foundation/base/Text.h"
#include "foundation/base/Version.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "library/view/BaseIconController.h"
#include "library/view/LibraryPanels.h"
#include "system/FileManagerNotices.h"
#include "system/FolderMarks.h"
#include "system/HVUtility.h"
#include "system/KindIcons.h"
#include "system/Links.h"
#include "system/Reveal.h"
#include "system/SingleInstance.h"
#include "system/Trash.h"
#include "ui/ApplicationIcon.h"
#include "ui/CaretRest.h"
#include "ui/DesktopAppearance.h"
#include "ui/FirstFrame.h"
#include "ui/SharedPanels.h"
#include "ui/Theme.h"

namespace quorvane {

namespace {

/// The controller waits for less, for what must be written. After that what hangs does not come back.
constexpr std::chrono::seconds patienceAtEnd{40};
/// For all else that is being done.
constexpr std::chrono::seconds patienceForTheRest{10};

/// What touches folders, as on the command line.
struct FolderServices {
  AppleDoubleForkStore forks;
  std::unique_ptr<KindIcons> kinds = makeDesktopKindIcons();
  StampingNotices notices;
  std::unique_ptr<FolderMetadata> metadata = makeDesktopMetadata();
  std::unique_ptr<FolderMarks> marks = makeDesktopMarks(*metadata);
  FamilyCache families;
  IconServices services{
      .forks = forks, .kinds = *kinds, .notices = notices, .families = &families, .marks = marks.get()};
};

/// Settings for which there is no place: they last as long as the run, and whoever asks is told.
class UnkeptSettings : public MemorySettings {
 public:
  explicit UnkeptSettings(Error why) : _why(std::move(why)) {}
  Result<void> settle() override { return _why; }

 private:
  Error _why;
};

/// A command line as the toolkit wants it: to be changed, and there as long as the application.
struct ToolkitArguments {
  ToolkitArguments(const char* program, const std::vector<std::string>& options) {
    texts.emplace_back(program);
    texts.insert(texts.end(), options.begin(), options.end());
    for (std::string& text : texts) words.push_back(text.data());
    count = static_cast<int>(words.size());
    words.push_back(nullptr);
  }

  std::vector<std::string> texts;
  std::vector<char*> words;
  int count = 0;
};

std::unique_ptr<SettingsStorage> openSettings() {
  auto path = SettingsFile::usualPath();
  if (path) return std::make_unique<SettingsFile>(*path);
  return std::make_unique<UnkeptSettings>(path.error());
}

}  // namespace

int runApplication(int argc, char** argv) {
  const WindowArguments arguments =
      parseWindowArguments(std::vector<std::string>(argv + std::min(argc, 1), argv + argc));
  if (arguments.words) {
    std::fputs(arguments.words->c_str(), arguments.exitCode == 0 ? stdout : stderr);
    return arguments.exitCode;
  }

  if (!arguments.namesDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") &&
      qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
    std::fputs(
        "quorvane-window: there is no display to open the window on\nFor scripts there is the command \"quorvane\".\n",
        stderr);
    return 1;
  }
  const auto systemServices = makeDesktopServices();
  HVUtility::setServices(systemServices.get());
  // It would take a folder behind "--" for an option of its own.
  ToolkitArguments forToolkit(argc > 0 ? argv[0] : "quorvane-window", arguments.toolkitOptions);
  QApplication application(forToolkit.count, forToolkit.words.data());
  QCoreApplication::setApplicationName(QStringLiteral("Quorvane"));
  QCoreApplication::setApplicationVersion(QStringLiteral(QUORVANE_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral(QUORVANE_APP_ID));
  // The panels are windows too: the main one alone decides.
  QGuiApplication::setQuitOnLastWindowClosed(false);

  const OpenRequest request = OpenRequest::fromArguments(arguments.folders);
  std::optional<SingleInstance> instance(std::in_place, QStringLiteral(QUORVANE_APP_ID));
  if (instance->start(request) == SingleInstance::Role::Second) return 0;

  const Translations translations(QLocale::system().uiLanguages());
  DesktopAppearance appearance;
  appearance.start();
  Theme theme(&appearance);
  theme.prepare();
  const CaretRest caretRest;

  const auto storage = openSettings();
  UserDefaults defaults(*storage);
  FolderServices folders;
  FolderWork work(folders.services);
  DefaultsFrameStore frames(defaults);
  SharedPanels panels;
  panels.setFrameStore(&frames);
  const auto trash = makeDesktopTrash();
  const LibraryServices libraryServices{.icons = folders.services, .trash = trash.get()};
  // Made below, as it asks by sheets on the window; but it outlives the lists in the window.
  std::optional<BaseIconController> library;
  QVWindow window(defaults);
  window.setFrameStore(&frames);
  SheetPrompts prompts(window);

  std::optional<SharedRecentList> sharedRecent;
  if (auto file = SharedRecentList::usualFile()) {
    sharedRecent.emplace(*file, recentlist::Application{.name = "Quorvane", .exec = "quorvane-window %u"});
  }
  RecentList recent(defaults, std::move(sharedRecent));
  // What is missing is known by the time that the menu is opened.
  static_cast<void>(recent.folders());
  const auto lookFolder = LookStore::usualFolder();
  std::optional<LookStore> looks;
  if (lookFolder) looks.emplace(*lookFolder);
  const auto revealWays = makeDesktopRevealWays();
  DesktopAddressOpener opener;
  Reveal reveal(*revealWays, opener);
  HVWebsite website(QStringLiteral(QUORVANE_HOMEPAGE), opener);

  const auto selectionKey = [](bool isBuiltin) {
    return isBuiltin ? settings::builtinIconSetSelection : settings::customIconSetSelection;
  };
  library.emplace(
      LibraryPlaces::usual(), libraryServices, sheetLibraryPrompts(window, libraryServices),
      BaseIconController::SelectionStore{
          .read = [&](bool isBuiltin) { return settings::value(defaults, selectionKey(isBuiltin)); },
          .write = [&](bool isBuiltin,
                       const QList<int>& rows) { settings::setValue(defaults, selectionKey(isBuiltin), rows); }});

  const auto controller =
      AppController::init({.defaults = defaults,
                           .prompts = prompts,
                           .panels = panels,
                           .work = work,
                           .looks = looks ? &*looks : nullptr,
                           .chooseFolder = chooseFolder,
                           .choosePicture = choosePicture,
                           .noteRecentFolder = [&](const auto& folder) { recent.add(folder); },
                           .recentFolders = [&] { return recent.folders(); },
                           .clearRecentFolders = [&] { recent.clear(); },
                           .removeRecentFolder = [&](const std::filesystem::path& folder) { recent.remove(folder); },
                           .revealInFileManager = [&](const auto& folder) { reveal.show(folder); },
                           .visitPage = [&](const QString& page) { return website.visitPage(page); },
                           .writeToMaker = [&] { return opener.open(QUrl(QStringLiteral("mailto:" QUORVANE_MAIL))); },
                           .feedFolder = QStringLiteral(QUORVANE_PRODUCT_FOLDER),
                           .makeUpdater = updaterFactory(window, defaults, opener)});
  controller->setOutlets(layOutMainWindow(window, panels, *library));
  theme.apply();
  window.setOutlets(controller->outlets()._folderView, controller.get());
  // Not quit(): that would ask every window once more.
  QObject::connect(
      controller.get(), &AppController::terminateRequested, &application, [] { QCoreApplication::exit(0); },
      Qt::QueuedConnection);
  TerminationSignals signals_;
  QObject::connect(&signals_, &TerminationSignals::received, controller.get(), &AppController::terminate);

  // A small screen takes a smaller window, as far as there is one; the rest is for the window's frame.
  window.resize(window.size().boundedTo(window.screen()->availableSize() - QSize(16, 48)));
  controller->awakeFromNib();
  controller->outlets()._folderView->awakeFromNib(settings::startFont(defaults));
  // To search the theme for it takes a tenth of the start, and the desktop has it from the program's entry anyway.
  afterFirstFrame(window, [] { QGuiApplication::setWindowIcon(applicationIcon(QStringLiteral(QUORVANE_APP_ID))); });
  window.show();
  const auto open = [&](const OpenRequest& wish, const std::function<void(const std::filesystem::path&)>& refused) {
    for (const auto& folder : wish.paths) controller->openArgument(folder, [refused, folder] { refused(folder); });
    for (const auto& address : wish.otherAddresses) controller->refuseAddress(QString::fromStdString(address));
  };
  // Who started it from a terminal looks there.
  open(request, [](const auto& path) {
    std::fprintf(stderr, "quorvane-window: %s: this is no folder\n", printable(path).c_str());
  });
  instance->setHandler([&](const OpenRequest& wish) {
    // What the desktop gave the other process lets this window come to the front.
    if (!wish.activationToken.empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(wish.activationToken));
    window.bringToFront();
    // What has to be answered first stays in front of it.
    if (QWidget* modal = QApplication::activeModalWidget()) {
      modal->raise();
      modal->activateWindow();
    }
    open(wish, [](const auto&) {});
  });
  QTimer::singleShot(0, controller.get(), &AppController::applicationDidFinishLaunching);
  const int code = QApplication::exec();
  // What is left to do may take its time. Whoever starts the program meanwhile gets a window of their own.
  instance.reset();
  endAtTheLatest(patienceAtEnd, code);
  controller->applicationWillTerminate();
  endAtTheLatest(patienceForTheRest, code);
  return code;
}

}  // namespace quorvane
