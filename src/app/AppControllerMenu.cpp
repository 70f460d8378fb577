// SPDX-License-Identifier: GPL-3.0-or-later
// What the menus do.
#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <algorithm>

#include "app/AppController.h"
#include "app/BaseColumn.h"
#include "app/Drawer.h"
#include "app/MainMenu.h"
#include "app/QVWindow.h"
#include "app/ShortcutsSheet.h"
#include "app/core/EditHistory.h"
#include "app/core/SettingsTable.h"
#include "app/core/UserPrompts.h"
#include "composition/view/FolderView.h"
#include "library/view/BaseIconController.h"
#include "library/view/LibraryView.h"
#include "ui/ElidedLabel.h"
#include "ui/HVColorWell.h"
#include "ui/SharedPanels.h"

namespace quorvane {

namespace {

std::optional<LibraryCommand> libraryCommand(MenuCommand command) {
  switch (command) {
    case MenuCommand::NewSet:
      return LibraryCommand::NewSet;
    case MenuCommand::RenameSet:
      return LibraryCommand::RenameSet;
    case MenuCommand::RemoveSet:
      return LibraryCommand::RemoveSet;
    case MenuCommand::ImportSet:
      return LibraryCommand::ImportSet;
    case MenuCommand::ExportSet:
      return LibraryCommand::ExportSet;
    case MenuCommand::AddIcon:
      return LibraryCommand::AddIcon;
    case MenuCommand::RemoveSelectedIcons:
      return LibraryCommand::RemoveSelectedIcons;
    case MenuCommand::FindIcon:
      return LibraryCommand::Find;
    default:
      return std::nullopt;
  }
}

bool waitsForAnswer(MenuCommand command) {
  switch (command) {
    case MenuCommand::SaveLook:
    case MenuCommand::ManageLooks:
    case MenuCommand::Shortcuts:
    case MenuCommand::Preferences:
      return true;
    default:
      return false;
  }
}

}  // namespace

void AppController::_connectMenu() {
  connect(_mainMenu, &MainMenu::chosen, this, [this](MenuCommand command) {
    if (!waitsForAnswer(command)) return perform(command);
    // Assistive tools choose by a call, and whoever calls must not wait for the answer.
    QTimer::singleShot(0, this, [this, command] { perform(command); });
  });
  if (!hasUpdater()) _mainMenu->remove(MenuCommand::CheckForUpdates);
  const auto validate = [this] {
    _mainMenu->validate([this](MenuCommand command) { return validateMenuItem(command); });
  };
  connect(_mainMenu, &MainMenu::opening, this, validate);
  _watchFocus(validate);
  connect(this, &AppController::stateChanged, _mainMenu, [this, validate] {
    validate();
    _mainMenu->setUndoTexts(_undoesLibrary() ? _baseIconController->undoText() : _history->undoText(),
                            _history->redoText());
    _mainMenu->setOriginalIconShown(_origIconDrawer->isOpen());
  });
  connect(_origIconDrawer, &Drawer::openChanged, this, &AppController::stateChanged);
  connect(_fontBtn, &QPushButton::toggled, _mainMenu, &MainMenu::setFontShown);
  if (const auto kept = settings::value(_services.defaults, settings::canvasMagnification); kept > 0)
    _folderView->setMagnification(static_cast<int>(std::min<qint64>(kept, 99)));
  connect(_folderView, &ImageView::magnificationChanged, this, [this](int magnification) {
    settings::setValue(_services.defaults, settings::canvasMagnification, qint64{magnification});
    _mainMenu->setMagnification(magnification);
    _mainWindow->growBy(_folderView->minimumSizeHint() - _folderView->size());
  });
  _mainMenu->setMagnification(_folderView->magnification());
  _mainMenu->action(MenuCommand::RemoveSelectedIcons)->setObjectName(QStringLiteral("removeSelectedIcons"));
  connect(_baseColumn->library(), &LibraryView::availabilityChanged, this, &AppController::stateChanged);
  connect(_mainMenu->recentMenu(), &QMenu::aboutToShow, this, &AppController::_fillRecentMenu);
  connect(_mainMenu->looksMenu(), &QMenu::aboutToShow, this, &AppController::_fillLooksMenu);
}

bool AppController::validateMenuItem(MenuCommand command) const {
  const bool isIdle = !isBusy();
  switch (command) {
    case MenuCommand::Apply:
      return isIdle && _isIconModified() && !_isLoading;
    case MenuCommand::Revert:
      return isIdle && _origIconView->image().has_value();
    case MenuCommand::ToggleOriginalIcon:
      return _origIconView->image().has_value();
    case MenuCommand::Undo:
      return isIdle && (_undoesLibrary() ? _baseIconController->canUndo() : _history->canUndo());
    case MenuCommand::Redo:
      return isIdle && _history->canRedo();
    case MenuCommand::RemoveSelectedIcons:
      return _baseIconController->validateMenuItem(*_mainMenu->action(command));
    case MenuCommand::RenameSet:
    case MenuCommand::RemoveSet:
    case MenuCommand::ExportSet:
    case MenuCommand::AddIcon:
      return _baseColumn->library()->isAvailable(*libraryCommand(command));
    case MenuCommand::ShowInFileManager:
      return _path && _services.revealInFileManager;
    case MenuCommand::SaveLook:
    case MenuCommand::ManageLooks:
    case MenuCommand::Looks:
      return _services.looks != nullptr;
    case MenuCommand::Cut:
    case MenuCommand::Copy:
    case MenuCommand::Paste:
    case MenuCommand::SelectAll:
      return _canEdit(command);
    case MenuCommand::OpenRecent:
      return !_isWriting() && _services.recentFolders;
    case MenuCommand::Open:
    case MenuCommand::CloseFolder:
    case MenuCommand::PasteFolderPath:
      return !_isWriting();
    default:
      return true;
  }
}

void AppController::help(int tag) {
  struct Page {
    int tag;
    const char* path;
  };
  static constexpr Page pages[] = {{0, "/quorvane/help/"}, {2, "forum"},        {3, "blog"},        {4, ""},
                                   {5, "quorvane/faq/"},   {6, "quorvane/fb/"}, {7, "quorvane/mu/"}};
  for (const Page& page : pages) {
    if (page.tag == tag) _visitPage(QLatin1String(page.path));
  }
}

void AppController::showInFileManager() {
  if (_path && _services.revealInFileManager) _services.revealInFileManager(*_path);
}

void AppController::perform(MenuCommand command) {
  if (const auto ofLibrary = libraryCommand(command)) return _baseColumn->library()->perform(*ofLibrary);
  switch (command) {
    case MenuCommand::Open:
      return open();
    case MenuCommand::ShowInFileManager:
      return showInFileManager();
    case MenuCommand::CloseFolder:
      return closeFolder();
    case MenuCommand::Apply:
      return apply();
    case MenuCommand::Revert:
      return revert();
    case MenuCommand::Quit:
      return static_cast<void>(_mainWindow->close());
    case MenuCommand::Undo:
      return _undoesLibrary() ? _baseIconController->undo() : undo();
    case MenuCommand::Redo:
      return redo();
    case MenuCommand::Cut:
    case MenuCommand::Copy:
    case MenuCommand::Paste:
    case MenuCommand::SelectAll:
      return _edit(command);
    case MenuCommand::PasteFolderPath:
      return pasteFolderPath();
    case MenuCommand::CenterLabel:
      return centerLabel();
    case MenuCommand::ShowFont:
      _fontBtn->toggle();
      return showFont(*_fontBtn);
    case MenuCommand::ShowColor:
      return _services.panels.colorPanel().showPanel();
    case MenuCommand::SaveLook:
      return saveLook();
    case MenuCommand::ManageLooks:
      return manageLooks();
    case MenuCommand::ResetTransform:
      return resetTransform();
    case MenuCommand::Magnify1:
      return _folderView->setMagnification(1);
    case MenuCommand::Magnify2:
      return _folderView->setMagnification(2);
    case MenuCommand::Magnify3:
      return _folderView->setMagnification(3);
    case MenuCommand::ToggleOriginalIcon:
      return _origIconDrawer->isOpen() ? _origIconDrawer->close() : _origIconDrawer->open();
    case MenuCommand::Shortcuts: {
      ShortcutsSheet sheet(*_mainMenu);
      _mainWindow->runPromptSheet(sheet);
      return;
    }
    case MenuCommand::Help:
      return help(0);
    case MenuCommand::Forum:
      return help(2);
    case MenuCommand::Blog:
      return help(3);
    case MenuCommand::HomePage:
      return help(4);
    case MenuCommand::Questions:
      return help(5);
    case MenuCommand::Preferences:
      return showPreference(_mainMenu);
    case MenuCommand::CheckForUpdates:
      return checkForUpdates(_mainMenu);
    case MenuCommand::About:
      return showAboutWindow(_mainMenu);
    default:
      return;
  }
}

void AppController::_missesRecent(const Path& folder) {
  // A slow disk may say so while something else is asked.
  if (!_services.removeRecentFolder || _services.prompts.hasSheet())
    return _notice(tr("The folder is not there any more."));
  const QString name = visibleText(QFile::decodeName(folder.filename().c_str()));
  // Escape is the alternate button: it removes nothing.
  const int answer = _services.prompts.runPromptSheetWithTitle(
      tr("“%1” Is Missing").arg(name),
      tr("The folder is not there any more, or the disk that it lies on is away:\n\n%1")
          .arg(visibleText(abbreviatedPath(folder))),
      tr("Remove from List"), tr("Keep in List"));
  if (answer == UserPrompts::defaultReturn) _services.removeRecentFolder(folder);
}

void AppController::_fillRecentMenu() {
  QMenu& menu = *_mainMenu->recentMenu();
  menu.clear();
  const auto folders = _services.recentFolders ? _services.recentFolders() : std::vector<RecentFolder>();
  for (const auto& folder : folders) {
    QString shown = visibleText(abbreviatedPath(folder.path)).replace(QLatin1Char('&'), QLatin1String("&&"));
    shown = menu.fontMetrics().elidedText(shown, Qt::ElideMiddle, 480);
    QAction* action = menu.addAction(folder.isMissing ? tr("%1 (missing)").arg(shown) : shown);
    action->setEnabled(!folder.isMissing || _services.removeRecentFolder);
    // It may be back, on a disk that was away.
    connect(action, &QAction::triggered, this, [this, path = folder.path] {
      // A question that waits for its answer is asked when the menu is through with its choice.
      applicationOpenFile(path, [this, path] { QTimer::singleShot(0, this, [this, path] { _missesRecent(path); }); });
    });
  }
  if (folders.empty()) menu.addAction(tr("No Recent Folders"))->setEnabled(false);
  menu.addSeparator();
  QAction* clear = menu.addAction(tr("&Clear List"));
  clear->setEnabled(!folders.empty());
  connect(clear, &QAction::triggered, this, [this] { _services.clearRecentFolders(); });
}

}  // namespace quorvane
