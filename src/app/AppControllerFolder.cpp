// SPDX-License-Identifier: GPL-3.0-or-later
// The folder: in, applied to, put back, and gone.
#include <QFile>
#include <QPushButton>
#include <utility>

#include "app/AppController.h"
#include "app/Drawer.h"
#include "app/QVWindow.h"
#include "app/core/ApplyFailure.h"
#include "app/core/EditHistory.h"
#include "app/core/FolderWork.h"
#include "app/core/SettingsTable.h"
#include "app/core/UserPrompts.h"
#include "composition/view/FolderView.h"
#include "foundation/UserDefaults.h"
#include "foundation/base/Log.h"
#include "ui/ElidedLabel.h"
#include "ui/HVTableView.h"
#include "ui/Reasons.h"

namespace quorvane {

void AppController::open() {
  _services.chooseFolder(*_mainWindow, [self = QPointer(this)](const Path& path) {
    if (self) self->applicationOpenFile(path);
  });
}

bool AppController::applicationOpenFile(const Path& path, const std::function<void()>& refused) {
  if (!_appInitialized || _isWriting() || _briefWaits > 0) {
    // Not a moment too soon, but not in a tight circle either.
    QTimer::singleShot(_appInitialized ? 50 : 0, this, [this, path, refused] { _openFile(path, refused); });
    return false;
  }
  _cancelLook();
  struct Answer {
    std::optional<bool> isFolder;
    bool isLate = false;
  };
  const auto answer = std::make_shared<Answer>();
  const auto take = [this, path, refused](bool isFolder) {
    if (isFolder) {
      _folderView->centerLabel();
      setPath(path);
    } else if (refused) {
      refused();
    }
    return isFolder;
  };
  const unsigned look = ++_look;
  _isLooking = true;
  _beginWork(tr("Looking at the folder…"));
  _services.work.look(path, [this, self = QPointer(this), answer, take, look](bool isFolder) {
    if (!self || look != _look) return;
    _isLooking = false;
    _endWork();
    answer->isFolder = isFolder;
    if (answer->isLate) take(isFolder);
  });
  _waitBriefly([&] { return answer->isFolder || look != _look; });
  answer->isLate = true;
  return answer->isFolder && look == _look && take(*answer->isFolder);
}

void AppController::_cancelLook() {
  ++_look;
  _services.work.cancelLook();
  if (!std::exchange(_isLooking, false)) return;
  _endWork();
}

void AppController::_cancelWork() {
  if (_isWriting()) return;
  if (_isLooking) return _cancelLook();
  _isLoading ? closeFolder() : _cancelPicture();
}

void AppController::openArgument(const Path& path, const std::function<void()>& refused) {
  applicationOpenFile(path, [this, path, refused] {
    if (refused) refused();
    std::error_code ignored;
    const QString shown = visibleText(QFile::decodeName(path.filename().c_str()));
    _notice(std::filesystem::exists(path, ignored) ? tr("“%1” is no folder.").arg(shown)
                                                   : tr("“%1” is not there.").arg(shown));
  });
}

void AppController::refuseAddress(const QString& address) {
  _notice(tr("“%1” cannot be opened: only folders on this computer can.").arg(visibleText(address.left(200))));
}

void AppController::setPath(const std::optional<Path>& path) {
  const unsigned opening = ++_opening;
  _endSliderStep();
  _services.work.cancelLoad();
  if (std::exchange(_isLoading, false)) _endWork();
  _cancelLook();
  _cancelPicture();
  _path = path;
  if (!path) {
    _pathTF->setText(QString());
    _folderView->setFolderName(QString());
    _mainWindow->setTitleSuffix(std::nullopt);
    _applyBtn->setEnabled(false);
    _revertBtn->setEnabled(false);
    _labelTF->setEnabled(false);
    Q_EMIT stateChanged();
    return;
  }
  const QString name = visibleText(QFile::decodeName(path->filename().c_str()));
  _pathTF->setText(abbreviatedPath(*path));
  _folderView->setFolderName(name);
  _mainWindow->setTitleSuffix(tr("– %1").arg(name));
  _applyBtn->setEnabled(true);
  _revertBtn->setEnabled(true);
  _labelTF->setEnabled(true);
  _labelTF->setStringValue(QString());
  _labelTF->setFocus();
  _baseTableView->clearSelection();
  _customTableView->clearSelection();

  struct Answer {
    std::optional<Result<LoadedFolder>> loaded;
    bool isLate = false;
  };
  const auto answer = std::make_shared<Answer>();
  _isLoading = true;
  _beginWork(tr("Looking at the folder…"));
  // The program may end before a disk answers.
  _services.work.load(*path, [this, self = QPointer(this), answer, opening](Result<LoadedFolder> loaded) {
    if (!self || opening != _opening) return;
    _isLoading = false;
    _endWork();
    if (answer->isLate) {
      _showLoaded(loaded);
      _setOrigIcon(loaded ? loaded->backup : std::nullopt);
      _labelTF->setFocus();
    } else {
      answer->loaded = std::move(loaded);
    }
  });
  _waitBriefly([&] { return answer->loaded || opening != _opening; });
  // Another folder came in between.
  if (opening != _opening) return;
  answer->isLate = !answer->loaded;

  _clearTintAndOverlay();
  if (answer->loaded)
    _showLoaded(*answer->loaded);
  else
    _folderView->setCurrentIcon(std::nullopt);
  setBaseIcon(std::nullopt);
  setLabel(std::nullopt);
  _setOrigIcon(answer->loaded && *answer->loaded ? (*answer->loaded)->backup : std::nullopt);
  if (_services.noteRecentFolder) _services.noteRecentFolder(*path);
  _history->clear();
}

void AppController::_showLoaded(const Result<LoadedFolder>& loaded) {
  _folderView->setCurrentIcon(loaded ? std::optional(loaded->icon) : std::nullopt);
  if (loaded) return;
  logMessage("window", loaded.error().message());
  _notice(tr("The folder cannot be looked at: %1").arg(reasonOf(loaded.error())));
}

void AppController::_setOrigIcon(const std::optional<Image>& image) {
  std::optional<Image> shown = image;
  if (shown) {
    shown->setScalesWhenResized(true);
    shown->setSize({128, 128});
  }
  _origIconView->setImage(std::move(shown));
  image ? _origIconDrawer->open() : _origIconDrawer->close();
  Q_EMIT stateChanged();
}

void AppController::apply() {
  if (isBusy()) return;
  // A copy of the values: the canvas stays free to change.
  IconComposition composition = _folderView->composition();
  composition.setListener({});
  const Path path = _path.value_or(Path());
  const auto answer = std::make_shared<std::optional<Result<BrandingResult>>>();
  _beginWork(tr("Applying the icon…"));
  _services.work.apply([composition = std::move(composition)] { return composition.canvasIconImage(); }, path,
                       [this, self = QPointer(this), path, answer](Result<BrandingResult> result) {
                         if (!self) return;
                         _endWork();
                         *answer = result;
                         // After this delivery: what follows may show a sheet.
                         QTimer::singleShot(0, this,
                                            [this, path, result = std::move(result)] { _applied(path, result); });
                       });
  _waitBriefly([&] { return answer->has_value(); });
}

void AppController::_applied(const Path& path, const Result<BrandingResult>& result) {
  if (!result) {
    logMessage("window", result.error().at(path).message());
    _services.prompts.runPromptSheetWithTitle(
        tr("Unable to Set Icon"),
        tr("The folder appears to be locked and cannot be modified.  Please "
           "unlock the folder and try again.\n\nUse the "
           "Finder's Get Info on the folder and uncheck the 'Locked' checkbox."),
        tr("OK"), {}, {}, applyFailureDetails(path, result.error(), placedReasonOf(result.error())));
    return;
  }
  for (const std::string& note : result->notes) logMessage("window", note);
  _clearTintAndOverlay();
  setBaseIcon(std::nullopt);
  setLabel(std::nullopt);
  setPath(path);
  QTimer::singleShot(0, this, &AppController::incrementUsageCount);
}

void AppController::revert() {
  if (isBusy() || !_path) return;
  const Path path = *_path;
  const auto isAnswered = std::make_shared<bool>(false);
  _beginWork(tr("Putting the former icon back…"));
  _services.work.revert(path, [this, self = QPointer(this), path, isAnswered](Result<BrandingResult> result) {
    if (!self) return;
    _endWork();
    *isAnswered = true;
    _reverted(path, result);
  });
  _waitBriefly([&] { return *isAnswered; });
}

void AppController::_reverted(const Path& path, const Result<BrandingResult>& result) {
  if (!result) logMessage("window", result.error().at(path).message());
  const bool hadBackup =
      result ? result->outcome != BrandingOutcome::NothingToRevert : _origIconView->image().has_value();
  if (!hadBackup) return;
  _clearTintAndOverlay();
  _labelTF->setStringValue(QString());
  setLabel(std::nullopt);
  const auto answer = std::make_shared<bool>(false);
  const unsigned opening = _opening;
  _isLoading = true;
  _beginWork(tr("Looking at the folder…"));
  _services.work.load(path, [this, self = QPointer(this), answer, opening](const Result<LoadedFolder>& loaded) {
    if (!self || opening != _opening) return;
    *answer = true;
    _isLoading = false;
    _endWork();
    _showLoaded(loaded);
  });
  _waitBriefly([&] { return *answer || opening != _opening; });
  if (opening != _opening) return;
  setBaseIcon(std::nullopt);
  _setOrigIcon(std::nullopt);
  _history->clear();
}

bool AppController::_isIconModified() const {
  if (!_path) return false;
  const auto& label = _folderView->label();
  const IconComposition& composition = _folderView->composition();
  return (label && !label->isEmpty()) || _folderView->baseIcon() || composition.tint() || composition.overlay();
}

void AppController::closeFolder() {
  if (_isWriting()) return;
  _baseTableView->clearSelection();
  setPath(std::nullopt);
  _labelTF->setStringValue(QString());
  _clearTintAndOverlay();
  _folderView->setCurrentIcon(std::nullopt);
  setBaseIcon(std::nullopt);
  setLabel(std::nullopt);
  _setOrigIcon(std::nullopt);
  _history->clear();
}

void AppController::showFirstStep(QWidget* /*sender*/) {
  _services.prompts.runMessageSheetWithTitle(
      tr("First thing first"),
      tr("Please drop the folder you wish to \"brand\" in the folder well.  You can also choose a folder by selecting "
         "Open in the File menu."));
}

void AppController::showFirstStep(LabelTextField& field) {
  showFirstStep(static_cast<QWidget*>(&field));
}

}  // namespace quorvane
