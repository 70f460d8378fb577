// SPDX-License-Identifier: GPL-3.0-or-later
// The icon library beside the canvas.
#include "app/AppController.h"
#include "app/BaseColumn.h"
#include "app/core/EditHistory.h"
#include "app/core/SettingsTable.h"
#include "foundation/UserDefaults.h"
#include "library/view/BaseIconController.h"
#include "library/view/LibraryPage.h"
#include "library/view/LibraryView.h"

namespace quorvane {

void AppController::_connectLibrary() {
  connect(_baseIconController, &BaseIconController::baseIconChosen, this, &AppController::_chooseFromLibrary);
  connect(_baseIconController, &BaseIconController::failed, this, &AppController::_notice);
  connect(_baseIconController, &BaseIconController::historyChanged, this, [this] {
    _isLibraryNewer = _baseIconController->history().canUndo();
    Q_EMIT stateChanged();
  });

  connect(&_baseIconController->adder(), &IconAdder::finished, this, &AppController::stateChanged);

  LibraryView& view = *_baseColumn->library();
  UserDefaults& defaults = _services.defaults;
  if (const auto side = settings::value(defaults, settings::libraryIconSide); side > 0)
    view.setIconSide(static_cast<int>(std::min<qint64>(side, 1024)));
  const auto width = settings::value(defaults, settings::librarySetsWidth);
  // The longest name of the built-in sets with its count, in fonts of any size.
  view.setSetsWidth(width > 0 ? static_cast<int>(std::min<qint64>(width, 1024))
                              : std::max(162, 8 * view.fontMetrics().height()));
  view.setLibrary(settings::value(defaults, settings::libraryShowsCustom) ? LibraryView::Custom : LibraryView::Builtin);
  // Kept once it has come to rest: a slider says so at every step.
  _libraryLayoutTimer.setSingleShot(true);
  _libraryLayoutTimer.setInterval(400);
  connect(&_libraryLayoutTimer, &QTimer::timeout, this, &AppController::_saveLibraryLayout);
  const auto changed = [this] { _libraryLayoutTimer.start(); };
  connect(&view, &LibraryView::libraryChanged, this, changed);
  connect(&view, &LibraryView::iconSideChanged, this, changed);
  connect(&view, &LibraryView::setsWidthChanged, this, changed);
}

void AppController::_saveLibraryLayout() {
  _libraryLayoutTimer.stop();
  const LibraryView& view = *_baseColumn->library();
  settings::setValue(_services.defaults, settings::libraryShowsCustom, view.library() == LibraryView::Custom);
  settings::setValue(_services.defaults, settings::libraryIconSide, qint64{view.iconSide()});
  settings::setValue(_services.defaults, settings::librarySetsWidth, qint64{view.page(view.library())->setsWidth()});
}

bool AppController::_undoesLibrary() const {
  return _baseIconController->history().canUndo() && (_isLibraryNewer || !_history->canUndo());
}

void AppController::_chooseFromLibrary(const std::optional<Image>& image, const Path& path) {
  if (image && !_path) _notice(tr("Open a folder: the label is drawn on this picture then."));
  setBaseIcon(image);
  if (!image || !_path) return;
  _basePicture = path;
  _baseColumn->setPictureName(_baseIconController->shownName(path));
}

}  // namespace quorvane
