// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/AppServices.h"
#include "app/Outlets.h"
#include "app/core/SettingsTable.h"
#include "composition/core/IconOverlay.h"
#include "composition/core/LabelValues.h"
#include "foundation/ScratchFolder.h"
#include "foundation/base/Result.h"
#include "imaging/Image.h"
#include "ui/LabelTextField.h"
#include "ui/WindowDelegate.h"

class QAction;

namespace quorvane {

class AboutController;
class EditHistory;
class PreferenceController;
enum class MenuCommand;
struct BrandingResult;
struct LoadedFolder;
struct BaseReference;

/// The one controller of the window: takes a folder in, lets its icon be edited, writes it, puts the old one back. One
/// folder at a time; opening another replaces it.
///
/// What touches folders is done by FolderWork. Its answer is waited for a moment, without taking in what the user does;
/// from then on the window goes on painting, with its controls disabled, until the answer comes.
class AppController : public QObject, public HVWindowDelegate, public LabelTextFieldDelegate, private Outlets {
  Q_OBJECT
 public:
  using Path = std::filesystem::path;

  /// The shared controller: made by the first call, and given again by later ones for as long as anybody holds it. The
  /// first one registers the factory settings and chooses the feed of new versions.
  static std::shared_ptr<AppController> init(const AppServices& services);
  /// Null before the first init().
  static std::shared_ptr<AppController> sharedController();
  ~AppController() override;

  /// Joins the window's parts to their actions; once, before all else.
  void setOutlets(const Outlets& outlets);
  [[nodiscard]] const Outlets& outlets() const { return *this; }
  [[nodiscard]] QVWindow* mainWindow() const { return _mainWindow; }

  // Life. In this order.
  /// Places the window, without a folder.
  void awakeFromNib();
  void applicationDidFinishLaunching();
  /// Saves what is kept over runs and waits, for a bounded time, for what is being written.
  void applicationWillTerminate();
  [[nodiscard]] bool isInitialized() const { return _appInitialized; }
  /// Ends the program without asking anybody, whatever is open: who is being asked has not answered.
  void terminate();

  // Housekeeping.
  /// The address of the feed of new versions for a system of that version (see HVUtility::systemVersion).
  [[nodiscard]] QString feedAddress(std::uint32_t systemVersion) const;
  /// The program's own switch takes over from the one that the update framework would act on by itself.
  void migrateCheckAtStartup();
  /// Starts of the program including this one, counted by the first call.
  qint64 runCount();
  [[nodiscard]] static QString appName();
  void runDockTipSheet();
  void runShareOnFacebookSheet();
  void runRateOnAppStoreSheet();
  /// The path of a folder for this process's temporary files; tmpdir() makes it and gives nothing when that fails.
  [[nodiscard]] QString tmpdirString() const;
  std::optional<QString> tmpdir();
  /// True when there is no such folder afterwards.
  [[nodiscard]] bool cleanupTmpdir() const { return _scratch.cleanUp(); }

  // New versions. Without an updater these do nothing.
  [[nodiscard]] bool hasUpdater() const { return static_cast<bool>(_services.makeUpdater); }
  /// Made by the first call; nullptr in a build that has none.
  Updater* updater();
  void checkForUpdates(QObject* sender);
  /// Later when a sheet is up, and not at all when one is still up then.
  void checkForUpdatesInBackground();
  void checkForUpdatesInBackgroundLastAttempt();

  void showAboutWindow(QObject* sender);
  void showPreference(QObject* sender);
  /// Preferences take effect at the next start.
  void preferenceDidChange() {}
  [[nodiscard]] PreferenceController& preferenceController() { return *_preferenceController; }
  [[nodiscard]] AboutController* aboutController() { return _aboutController.get(); }

  // The folder.
  void open();
  /// Opens the folder. False for what is no folder, and when it is opened later: before the launch is over, and while
  /// the disk does not answer. A later call replaces one that waits for its disk. `refused` is told when there is no
  /// folder at the path, be it later.
  bool applicationOpenFile(const Path& path, const std::function<void()>& refused = {});
  void _openFile(const Path& path, const std::function<void()>& refused = {}) { applicationOpenFile(path, refused); }
  /// What the program was started with: says why it cannot be opened when it cannot, and tells `refused`.
  void openArgument(const Path& path, const std::function<void()>& refused = {});
  /// The same with the address of what lies elsewhere, which never can.
  void refuseAddress(const QString& address);
  /// Makes a folder the current one. nullopt: none; the canvas, the tables and the drawer are left alone.
  void setPath(const std::optional<Path>& path);
  [[nodiscard]] const std::optional<Path>& path() const { return _path; }
  void _setOrigIcon(const std::optional<Image>& image);
  void apply();
  void revert();
  /// There is something to apply.
  [[nodiscard]] bool _isIconModified() const;
  void closeFolder();
  void showFirstStep(QWidget* sender);
  /// Counts a successful apply; the first one and some later ones lead to a question.
  void incrementUsageCount();
  /// Whether the answer to something that touches the folder is still to come.
  [[nodiscard]] bool isBusy() const { return _busyCount > 0; }

  // Editing. Actions take the control that sends them.
  void setColor(const QColor& color);
  void setFontSize(Slider& sender);
  void setFont(const LabelFont& font);
  void showFont(QPushButton& sender);
  void setLineSpacing(Slider& sender);
  void setEffect(PopUpButton& sender);
  void _setEffect(int tag);
  void setShearFactor(Slider& sender);
  void setRotation(Slider& sender);
  void setOpacity(Slider& sender);
  void resetTransform();
  void setBaseIcon(const std::optional<Image>& image);
  void setLabel(const std::optional<QString>& label);
  void setIgnoreChangeColor(bool ignore) { _ignoreChangeColor = ignore; }
  void _initColorPanel();
  void _initFontPanel();
  void centerLabel();
  void undo();
  void redo();
  // Looks. They need a store.
  void saveLook();
  void manageLooks();
  /// Everything but what the label says, as one step.
  void applyLook(const QString& name);

  // Tint and overlay.
  /// nullopt: none. Needs a folder, as all of these do.
  void setTint(const std::optional<QColor>& tint);
  /// Another drawing in the place of the one that is there; the first one where overlays usually stand.
  void setOverlayDrawing(const OverlayDrawing& drawing);
  void removeOverlay();
  void setOverlaySize(Slider& sender);
  void setOverlayOpacity(Slider& sender);
  /// nullopt: the one that suits the picture.
  void setOverlayColor(const std::optional<QColor>& color);
  /// Any picture file as the overlay.
  void chooseOverlayPicture();
  /// Reads it and shows it, be it later, as setBasePicture().
  void setOverlayPicture(const Path& path);

  /// Any picture file as the base icon; without a folder the first step is shown.
  void chooseBasePicture();
  /// Reads it and shows it, be it later; another picture, or another folder, replaces one that has not been read yet.
  void setBasePicture(const Path& path);

  // Menus.
  [[nodiscard]] bool validateMenuItem(MenuCommand command) const;
  /// Does what a menu item stands for.
  void perform(MenuCommand command);
  void help(int tag);
  void pasteFolderPath();
  void showInFileManager();
  [[nodiscard]] EditHistory& history() { return *_history; }

  // LabelTextFieldDelegate
  void showFirstStep(LabelTextField& field) override;
  void controlTextDidChange(LabelTextField& field) override;
  bool controlTextViewDoCommandBySelector(LabelTextField& control, LabelTextField& textView,
                                          TextCommand command) override;
  // HVWindowDelegate
  bool windowShouldClose(HVWindow& window) override;
  /// Of the shared font panel: the font button goes off.
  void fontPanelWillClose();

 Q_SIGNALS:
  /// Whatever menus and such show may have changed.
  void stateChanged();
  /// The main window closes: the application ends.
  void terminateRequested();

 protected:
  /// Undo and redo of the label field are those of the window.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit AppController(const AppServices& services);
  void _init();
  void _visitPage(const QString& page);
  /// A question that asks a favour, once or until the user has had enough: each answer but "later" ends it.
  void _askFavour(const settings::Key<bool>& key, const QString& title, const QString& message,
                  const QString& defaultButton, const QString& page);

  void _connectControls();
  void _connectSlider(Slider& slider, void (AppController::*action)(Slider&));
  void _updateApplyButton();
  void _updateFontToolTip();
  /// The controls show the canvas's values; sends no actions.
  void _showValues();
  void _canvasChanged();
  void _showLoaded(const Result<LoadedFolder>& loaded);
  void _applied(const Path& path, const Result<BrandingResult>& result);
  void _reverted(const Path& path, const Result<BrandingResult>& result);
  void _notice(const QString& words);
  void _connectMenu();
  void _fillRecentMenu();
  void _fillLooksMenu();
  void _setBaseReference(const BaseReference& reference);
  void _showBaseReference(const BaseReference& reference, const Result<Image>& picture);
  /// Reads a picture in another thread and has it shown, be it later.
  void _readPicture(const std::function<Result<Image>()>& read, const std::function<void(const Result<Image>&)>& show);
  void _connectTintAndOverlay();
  void _showTintAndOverlay();
  void _clearTintAndOverlay();
  void _changeOverlay(const std::function<void(IconOverlay&)>& change);
  /// Whether the colour panel's colours go to another well than the label's.
  [[nodiscard]] bool _isOtherWellActive() const;
  void _cancelLook();
  void _cancelPicture();
  void _endReading();
  /// Whoever the Edit menu is about.
  [[nodiscard]] QWidget* _editFocus() const;
  /// Whether cut, copy, paste or select all would do anything.
  [[nodiscard]] bool _canEdit(MenuCommand command) const;
  void _watchFocus(const std::function<void()>& validate);
  /// Cut, copy and the like go to the text that has the focus; copy goes to the canvas otherwise.
  void _edit(MenuCommand command);
  /// The same while the focus is on the library's lists.
  void _editLibrary(MenuCommand command);
  /// Whether undoing now is undoing what was done to the library: it was done last.
  [[nodiscard]] bool _undoesLibrary() const;
  void _connectLibrary();
  void _saveLibraryLayout();
  void _chooseFromLibrary(const std::optional<Image>& image, const Path& path);
  void _endSliderStep();

  static Path _scratchPath();
  static QString _readingWords();
  /// Busy from here until _endWork(); after a moment the window shows it.
  void _beginWork(const QString& words);
  /// Busy with more than looking: nothing may come between.
  [[nodiscard]] bool _isWriting() const { return _busyCount > int{_isLooking} + int{_isLoading} + int{_isReading}; }
  /// The window shows what is being waited for. Only while a picture is read may the label be changed on.
  void _showBusy();
  void _endWork();
  /// Gives up what only looks at a folder or reads a picture.
  void _cancelWork();
  /// A folder of the recent ones cannot be opened: asks whether it stays in the list.
  void _missesRecent(const Path& folder);
  /// Takes in everything but what the user does until `done` says so, for a moment at most.
  void _waitBriefly(const std::function<bool()>& done);

  AppServices _services;
  std::unique_ptr<PreferenceController> _preferenceController;
  std::unique_ptr<AboutController> _aboutController;
  std::unique_ptr<Updater> _updater;
  ScratchFolder _scratch;
  std::optional<qint64> _runCount;
  bool _isTerminating = false;
  std::unique_ptr<EditHistory> _history;
  std::optional<Path> _path;
  bool _appInitialized = false;
  bool _ignoreChangeColor = false;
  bool _isLooking = false;  ///< whether there is a folder at the path to open
  bool _isLoading = false;  ///< what the folder shows
  bool _isReading = false;  ///< a base picture
  bool _hasTintOrOverlay = false;
  int _briefWaits = 0;  ///< how many calls of _waitBriefly() are under way
  // Each counts the calls of the like, to tell one from a later one.
  unsigned _look = 0;     ///< applicationOpenFile()
  unsigned _opening = 0;  ///< setPath()
  unsigned _reading = 0;  ///< _setBaseReference()
  int _busyCount = 0;
  bool _isLibraryNewer = false;  ///< the last change was one of the library, not of the label
  QString _busyWords;
  QTimer _busyTimer;
  QTimer _libraryLayoutTimer;
  QPointer<QWidget> _focusBeforeWork;
  QPointer<QWidget> _lastFocus;        ///< of what is no menu
  std::optional<Path> _basePicture;    ///< the file that the base icon was read from, when it was one
  std::vector<QAction*> _lookActions;  ///< in the menu
  Slider* _heldSlider = nullptr;       ///< whose run of changes is one step of the history
};

/// The path as people read it: the home folder shortened to "~".
QString abbreviatedPath(const std::filesystem::path& path);

}  // namespace quorvane
