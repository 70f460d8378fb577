// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>
#include <memory>

#include "app/AppController.h"
#include "app/BaseColumn.h"
#include "app/DefaultsFrameStore.h"
#include "app/Drawer.h"
#include "app/MainMenu.h"
#include "app/MainWindowLayout.h"
#include "app/PreferenceController.h"
#include "app/QVWindow.h"
#include "app/core/EditHistory.h"
#include "app/core/FolderWork.h"
#include "app/core/LookStore.h"
#include "app/core/ScriptedPrompts.h"
#include "app/core/SettingsTable.h"
#include "composition/view/FolderView.h"
#include "library/view/BaseIconController.h"
#include "library/view/LibraryView.h"
#include "support/BrandingFixture.h"
#include "support/TemporaryFolder.h"
#include "system/Trash.h"
#include "ui/ElidedLabel.h"
#include "ui/PopUpButton.h"
#include "ui/SharedPanels.h"
#include "ui/Slider.h"

namespace quorvane::test {

/// The whole window on a folder of its own: the real parts, save that prompts are answered from a script, choosers give
/// what they are told to, settings are in memory, and folders are worked on within the call unless asked otherwise.
struct TestWindow {
  struct Options {
    WorkQueue::Mode mode = WorkQueue::Mode::AtOnce;
    UserPrompts* prompts = nullptr;         ///< in place of the scripted ones
    FileManagerNotices* notices = nullptr;  ///< in place of the recording ones
    KindIcons* kinds = nullptr;             ///< in place of the program's own
    std::function<Result<Image>(const BaseReference&)> readPicture = readBasePicture;
    std::function<void(UserDefaults&)> arrangeSettings = {};  ///< as former runs have left them
    bool hasUpdater = true;
  };
  /// Notes what it is asked for: "check", "background".
  struct RecordingUpdater : Updater {
    explicit RecordingUpdater(std::vector<std::string>& asked) : heard(asked) {}
    void checkForUpdates() override { heard.emplace_back("check"); }
    void checkForUpdatesInBackground() override { heard.emplace_back("background"); }
    std::vector<std::string>& heard;
  };

  TestWindow() : TestWindow(Options()) {}
  explicit TestWindow(const Options& options)
      : services{.forks = forks,
                 .kinds = options.kinds ? *options.kinds : kinds,
                 .notices = options.notices ? *options.notices : notices,
                 .families = nullptr,
                 .marks = marks.get()},
        work(services, options.mode),
        library(
            {.builtin = tree / "BaseIcons", .custom = tree / "Icons", .former = {}}, libraryServices,
            scriptedLibraryPrompts(),
            {.read = [this](bool isBuiltin) { return savedSelections[isBuiltin ? 0 : 1]; },
             .write = [this](bool isBuiltin, const QList<int>& rows) { savedSelections[isBuiltin ? 0 : 1] = rows; }},
            WorkQueue::Mode::AtOnce),
        window(defaults) {
    std::filesystem::create_directory(folder);
    if (options.arrangeSettings) options.arrangeSettings(defaults);
    window.setFrameStore(&frames);
    const auto choose = [this](QWidget&, const std::function<void(const std::filesystem::path&)>& chosen) {
      if (choice) chosen(*choice);
    };
    const std::function<std::unique_ptr<Updater>()> makeUpdater = [this] {
      ++updaters;
      return std::make_unique<RecordingUpdater>(asked);
    };
    controller = AppController::init(
        {.defaults = defaults,
         .prompts = options.prompts ? *options.prompts : prompts,
         .panels = panels,
         .work = work,
         .looks = &looks,
         .readPicture = options.readPicture,
         .chooseFolder = choose,
         .choosePicture = choose,
         .recentFolders = [this] { return recent; },
         .clearRecentFolders = [this] { recent.clear(); },
         .removeRecentFolder =
             [this](const auto& path) { std::erase_if(recent, [&](const auto& each) { return each.path == path; }); },
         .revealInFileManager = [this](const auto& path) { revealed.push_back(path); },
         .visitPage = [this](const QString& page) { return pages.push_back(page.toStdString()), hasOpener; },
         .writeToMaker = [this] { return pages.emplace_back("mail"), hasOpener; },
         .feedFolder = QStringLiteral("https://maker.test/product/"),
         .makeUpdater = options.hasUpdater ? makeUpdater : nullptr});
    controller->setOutlets(layOutMainWindow(window, panels, library));
    window.setOutlets(controller->outlets()._folderView, controller.get());
  }

  void launch() {
    controller->awakeFromNib();
    ui()._folderView->awakeFromNib(LabelFont{QStringLiteral("DejaVu Sans"), QStringLiteral("Bold"), 30});
    controller->applicationDidFinishLaunching();
    controller->setFont({QStringLiteral("DejaVu Sans"), QStringLiteral("Bold"), 30});
    controller->history().clear();
    window.show();
    window.activateWindow();
  }

  /// The library asks as the rest does.
  LibraryPrompts scriptedLibraryPrompts() {
    const auto choose = [this] { return choice; };
    return {.message = [this](const QString& title,
                              const QString& message) { prompts.runMessageSheetWithTitle(title, message); },
            .prompt = [this](const QString& title, const QString& message, const QString& yes,
                             const QString& no) { return prompts.runPromptSheetWithTitle(title, message, yes, no); },
            .chooseIcon = choose,
            .chooseSetToImport = choose,
            .chooseExportPlace = [choose](const QString&) { return choose(); }};
  }

  [[nodiscard]] const Outlets& ui() const { return controller->outlets(); }
  [[nodiscard]] bool hasBackup() const { return std::filesystem::exists(folder / FolderBranding::backupName); }

  TemporaryFolder tree;
  std::filesystem::path folder = std::filesystem::canonical(tree.path()) / "Invoices";
  AppleDoubleForkStore forks;
  OwnKindIcons kinds;
  RecordingNotices notices;
  MemoryMetadata metadata;
  std::unique_ptr<FolderMarks> marks = makeDesktopMarks(metadata);
  IconServices services;
  MemorySettings storage;
  UserDefaults defaults{storage};
  LookStore looks{tree / "looks"};
  DefaultsFrameStore frames{defaults};
  ScriptedPrompts prompts;
  std::optional<std::filesystem::path> choice;
  std::vector<RecentFolder> recent;
  std::vector<std::filesystem::path> revealed;
  std::vector<std::string> pages;
  bool hasOpener = true;           ///< whether anything opens pages
  int updaters = 0;                ///< made
  std::vector<std::string> asked;  ///< of them
  SharedPanels panels;
  FolderWork work;
  FolderTrash trash{tree.path()};
  LibraryServices libraryServices{.icons = services, .trash = &trash};
  std::vector<QList<int>> savedSelections{{}, {}};
  BaseIconController library;
  QVWindow window;
  std::shared_ptr<AppController> controller;
};

}  // namespace quorvane::test
