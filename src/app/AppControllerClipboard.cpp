// SPDX-License-Identifier: GPL-3.0-or-later
// The clipboard.
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>

#include "app/AppController.h"
#include "app/BaseColumn.h"
#include "app/MainMenu.h"
#include "composition/view/FolderView.h"
#include "library/view/BaseIconController.h"
#include "library/view/LibraryView.h"
#include "ui/LocalPath.h"

namespace quorvane {

namespace {

bool isTextField(const QWidget* focus) {
  return qobject_cast<const QLineEdit*>(focus) || qobject_cast<const QPlainTextEdit*>(focus);
}

}  // namespace

void AppController::_watchFocus(const std::function<void()>& validate) {
  // Keys reach what is enabled only, and for the clipboard that depends on the focus.
  connect(qApp, &QApplication::focusChanged, this, [this, validate](QWidget* /*former*/, QWidget* now) {
    // Menus take it while they are gone through by keys; what they do is meant for who had it.
    if (!now || qobject_cast<QMenuBar*>(now) || qobject_cast<QMenu*>(now)) return;
    _lastFocus = now;
    validate();
  });
}

QWidget* AppController::_editFocus() const {
  return _lastFocus && _lastFocus->isVisible() && _lastFocus->isEnabled() ? _lastFocus.data() : nullptr;
}

bool AppController::_canEdit(MenuCommand command) const {
  const QWidget* focus = _editFocus();
  if (isTextField(focus)) return true;
  if (command == MenuCommand::Cut) return false;
  // Without icons of the library, what is copied is the picture on the canvas.
  return _baseColumn->library()->isList(focus) || (command == MenuCommand::Copy && _path);
}

void AppController::_edit(MenuCommand command) {
  QWidget* focus = _editFocus();
  const bool isText = isTextField(focus);
  if (!isText && _baseColumn->library()->isList(focus)) return _editLibrary(command);
  if (!isText) {
    // The icon as it would be written, for other programs.
    if (command != MenuCommand::Copy) return;
    const auto icon = _folderView->composition().canvasIconImage();
    const auto bitmap = icon ? icon->bitmapForPixels(512, 512) : std::nullopt;
    if (bitmap) QApplication::clipboard()->setImage(bitmap->toImage());
    return;
  }
  const char* slot = command == MenuCommand::Cut     ? "cut"
                     : command == MenuCommand::Copy  ? "copy"
                     : command == MenuCommand::Paste ? "paste"
                                                     : "selectAll";
  QMetaObject::invokeMethod(focus, slot);
}

void AppController::_editLibrary(MenuCommand command) {
  QClipboard& clipboard = *QApplication::clipboard();
  if (command == MenuCommand::Paste) {
    if (!clipboard.mimeData() || !_baseIconController->paste(*clipboard.mimeData())) return;
    _baseColumn->library()->setLibrary(LibraryView::Custom);
  } else if (command == MenuCommand::SelectAll) {
    if (auto* table = qobject_cast<QAbstractItemView*>(_editFocus())) table->selectAll();
  } else if (command == MenuCommand::Copy) {
    if (QMimeData* copied = _baseIconController->copy()) clipboard.setMimeData(copied);
  }
}

void AppController::pasteFolderPath() {
  const QMimeData* data = QApplication::clipboard()->mimeData();
  std::optional<Path> path = data ? firstLocalPath(*data) : std::nullopt;
  if (!path && data && data->hasText()) {
    QString text = data->text().trimmed();
    if (text == QLatin1String("~") || text.startsWith(QLatin1String("~/"))) text.replace(0, 1, QDir::homePath());
    const QUrl address(text);
    path = address.isLocalFile() ? localPath(address) : std::optional<Path>(QFile::encodeName(text).toStdString());
    if (path && !path->is_absolute()) path.reset();
  }
  const auto refuse = [this] { _notice(tr("The clipboard holds no path of a folder.")); };
  if (!path) return refuse();
  applicationOpenFile(*path, refuse);
}

}  // namespace quorvane
