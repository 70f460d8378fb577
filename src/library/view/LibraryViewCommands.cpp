// SPDX-License-Identifier: GPL-3.0-or-later
// What can be done with the user's library, and what the lists say while they are empty.
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

#include "library/view/BaseIconController.h"
#include "library/view/EmptyState.h"
#include "library/view/LibraryPage.h"
#include "library/view/LibraryTableView.h"
#include "library/view/LibraryView.h"

namespace quorvane {

bool LibraryView::isAvailable(LibraryCommand command) const {
  const auto& sets = _controller.customIconSetArrayController();
  const auto& icons = _controller.customIconArrayController();
  switch (command) {
    case LibraryCommand::RenameSet:
    case LibraryCommand::ExportSet:
      return sets.selectionIndexes().count() == 1;
    case LibraryCommand::RemoveSet:
      return sets.canRemove();
    case LibraryCommand::AddIcon:
      return icons.canAdd();
    case LibraryCommand::RemoveSelectedIcons:
      return icons.canRemove();
    case LibraryCommand::NewSet:
    case LibraryCommand::ImportSet:
    case LibraryCommand::Find:
      break;
  }
  return true;
}

void LibraryView::perform(LibraryCommand command) {
  if (!isAvailable(command)) return;
  if (command == LibraryCommand::Find) {
    _searchField->setFocus(Qt::ShortcutFocusReason);
    return _searchField->selectAll();
  }
  setLibrary(Custom);
  auto& sets = _controller.customIconSetArrayController();
  switch (command) {
    case LibraryCommand::NewSet:
      return sets.add();
    case LibraryCommand::RenameSet:
      return sets.editNewlyInsertedRow();
    case LibraryCommand::RemoveSet:
      return sets.remove();
    case LibraryCommand::ImportSet:
      return _controller.importSet();
    case LibraryCommand::ExportSet:
      return _controller.exportSelectedSet();
    case LibraryCommand::AddIcon:
      return _controller.customIconArrayController().add();
    case LibraryCommand::RemoveSelectedIcons:
      return _controller.removeSelectedIcons();
    case LibraryCommand::Find:
      break;
  }
}

QAction* LibraryView::_addAction(QMenu& menu, LibraryCommand command) {
  const auto text = [&] {
    switch (command) {
      case LibraryCommand::NewSet:
        return tr("&New Set");
      case LibraryCommand::RenameSet:
        return tr("Rena&me Set");
      case LibraryCommand::RemoveSet:
        return tr("&Remove Set");
      case LibraryCommand::ImportSet:
        return tr("&Import Set…");
      case LibraryCommand::ExportSet:
        return tr("&Export Set…");
      case LibraryCommand::AddIcon:
        return tr("&Add Icon…");
      case LibraryCommand::RemoveSelectedIcons:
        return tr("Remove Selected Icon");
      case LibraryCommand::Find:
        return tr("&Find Icon");
    }
    return QString();
  };
  QAction* action = menu.addAction(text());
  if (command == LibraryCommand::RemoveSelectedIcons) action->setObjectName(QStringLiteral("removeSelectedIcons"));
  action->setEnabled(isAvailable(command) && _controller.validateMenuItem(*action));
  connect(action, &QAction::triggered, this, [this, command] { perform(command); });
  return action;
}

void LibraryView::_showContextMenu(LibraryTableView& table, const QPoint& place) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  using C = LibraryCommand;
  const bool isOfSets = &table == _customPage->setTableView();
  const auto add = [&](std::initializer_list<C> commands) {
    for (const C command : commands) _addAction(*menu, command);
  };
  if (isOfSets) {
    add({C::NewSet, C::RenameSet, C::RemoveSet});
    menu->addSeparator();
    add({C::ImportSet, C::ExportSet});
  } else {
    add({C::AddIcon, C::RemoveSelectedIcons});
  }
  menu->addSeparator();
  QAction* undo = menu->addAction(_controller.undoText());
  undo->setEnabled(_controller.history().canUndo());
  connect(undo, &QAction::triggered, &_controller, &BaseIconController::undo);
  menu->popup(table.viewport()->mapToGlobal(place));
}

void LibraryView::_updateEmptyStates() {
  _builtinPage->emptyState()->setTexts(tr("No built-in icons"),
                                       tr("They are not installed. Sets of your own can be made under My Icons."),
                                       tr("Show My Icons"));
  const int sets = _controller.customIconSetArrayController().selectionIndexes().count();
  EmptyState& state = *_customPage->emptyState();
  if (sets > 1)
    state.setTexts(tr("%n sets are selected", nullptr, sets), tr("Select one to see its icons."));
  else if (sets == 0)
    state.setTexts(tr("No sets"), tr("The folder of your icons cannot be written."));
  else
    state.setTexts(tr("No icons in this set"), tr("Drop pictures, icon files or folders here."), tr("Add…"));
}

void LibraryView::_updateButtons() {
  for (const auto& [button, command] : _buttons) button->setEnabled(isAvailable(command));
  Q_EMIT availabilityChanged();
}

}  // namespace quorvane
