// SPDX-License-Identifier: GPL-3.0-or-later
// Looks: kept by name, shown again.
#include <QMenu>

#include "app/AppController.h"
#include "app/LooksSheets.h"
#include "app/MainMenu.h"
#include "app/QVWindow.h"
#include "app/core/EditHistory.h"
#include "app/core/LookConversion.h"
#include "app/core/LookStore.h"
#include "composition/view/FolderView.h"
#include "foundation/base/Log.h"
#include "ui/ElidedLabel.h"
#include "ui/Reasons.h"

namespace quorvane {

void AppController::_fillLooksMenu() {
  QMenu& menu = *_mainMenu->looksMenu();
  for (QAction* action : std::exchange(_lookActions, {})) delete action;
  const auto names = _services.looks ? _services.looks->names() : Result<std::vector<QString>>(std::vector<QString>());
  if (!names) logMessage("window", names.error().message());
  for (const QString& name : names ? *names : std::vector<QString>()) {
    QString shown = visibleText(name).replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction* action = menu.addAction(menu.fontMetrics().elidedText(shown, Qt::ElideMiddle, 360));
    connect(action, &QAction::triggered, this, [this, name] { applyLook(name); });
    _lookActions.push_back(action);
  }
  if (!_lookActions.empty()) return;
  _lookActions.push_back(menu.addAction(tr("No Saved Looks")));
  _lookActions.back()->setEnabled(false);
}

void AppController::saveLook() {
  const auto names = _services.looks->names();
  SaveLookSheet sheet(names ? *names : std::vector<QString>());
  if (_mainWindow->runPromptSheet(sheet) != 1) return;
  auto look = lookOf(_folderView->composition());
  if (!look) return _notice(tr("The look cannot be saved: %1").arg(reasonOf(look.error())));
  // A look is how any label looks, not what this one says.
  look->label = QString();
  std::optional<BaseReference> base;
  if (_folderView->baseIcon() && _basePicture) base = BaseReference{.path = *_basePicture, .within = {}};
  const auto saved =
      _services.looks->save(sheet.name(), {.look = *look, .labelPattern = {}, .base = {}, .others = {}}, base);
  _notice(saved ? tr("The look “%1” was saved.").arg(visibleText(sheet.name()))
                : tr("The look cannot be saved: %1").arg(reasonOf(saved.error())));
}

void AppController::manageLooks() {
  ManageLooksSheet sheet(*_services.looks);
  _mainWindow->runPromptSheet(sheet);
}

void AppController::applyLook(const QString& name) {
  const auto read = _services.looks->read(name);
  if (!read) return _notice(tr("The look cannot be used: %1").arg(reasonOf(read.error())));
  Look look = read->saved.look;
  look.label = _folderView->label().value_or(QString());
  _endSliderStep();
  _history->beginStep(EditKind::Look);
  const auto shown = showLook(look, _folderView->composition());
  if (shown && read->base && _path) _setBaseReference(*read->base);
  _history->endStep();
  if (!shown) return _notice(tr("The look cannot be used: %1").arg(reasonOf(shown.error())));
  _showValues();
}

}  // namespace quorvane
