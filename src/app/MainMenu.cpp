// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainMenu.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <optional>

#include "ui/ActionIcons.h"
#include "ui/Texts.h"

namespace quorvane {

/// One item; without a command a line between items.
struct MainMenu::Row {
  std::optional<MenuCommand> command = {};
  QString text = {};
  QList<QKeySequence> keys = {};
  const char* icon = nullptr;
  QMenu** submenu = nullptr;
};

MainMenu::MainMenu(QMainWindow& window) : QObject(&window), _window(window) {
  using C = MenuCommand;
  using K = QKeySequence;
  const Row line{};
  const auto addMenu = [this](const QString& title, const std::vector<Row>& rows) {
    _menus.push_back(_window.menuBar()->addMenu(title));
    _fill(*_menus.back(), rows);
    connect(_menus.back(), &QMenu::aboutToShow, this, &MainMenu::opening);
  };
  addMenu(tr("&File"),
          {{C::Open, tr("&Open…"), K::keyBindings(K::Open), "open"},
           {C::OpenRecent, tr("Open Re&cent"), {}, nullptr, &_recentMenu},
           {C::ShowInFileManager, tr("Show in File &Manager"), {K(Qt::CTRL | Qt::SHIFT | Qt::Key_O)}, "reveal"},
           line,
           {C::Apply, tr("&Apply"), {K(Qt::CTRL | Qt::Key_Return), K(Qt::CTRL | Qt::Key_Enter)}, "apply"},
           {C::Revert, tr("&Revert"), {K(Qt::CTRL | Qt::Key_R)}, "revert"},
           line,
           {C::Library, tr("Icon Li&brary"), {}, nullptr, &_libraryMenu},
           line,
           {C::CloseFolder, tr("C&lose Folder"), {K(Qt::CTRL | Qt::Key_W)}, "close"},
           {C::Quit, tr("&Quit"), {K(Qt::CTRL | Qt::Key_Q)}}});
  addMenu(tr("&Edit"), {{C::Undo, tr("Undo"), {K(Qt::CTRL | Qt::Key_Z)}, "undo"},
                        {C::Redo, tr("Redo"), {K(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), K(Qt::CTRL | Qt::Key_Y)}, "redo"},
                        line,
                        {C::Cut, tr("Cu&t"), {K(Qt::CTRL | Qt::Key_X)}},
                        {C::Copy, tr("&Copy"), {K(Qt::CTRL | Qt::Key_C)}, "copy"},
                        {C::Paste, tr("&Paste"), {K(Qt::CTRL | Qt::Key_V)}},
                        {C::SelectAll, tr("Select &All"), {K(Qt::CTRL | Qt::Key_A)}},
                        line,
                        {C::PasteFolderPath, tr("Paste &Folder Path"), {K(Qt::CTRL | Qt::SHIFT | Qt::Key_V)}},
                        {C::CenterLabel, tr("C&entre Label"), {K(Qt::CTRL | Qt::Key_Period)}, "center"},
                        line,
                        {C::Preferences, tr("Prefere&nces…"), {K(Qt::CTRL | Qt::Key_Comma)}, "settings"}});
  addMenu(tr("St&yle"), {{C::ShowFont, tr("&Font"), {K(Qt::CTRL | Qt::Key_T)}, "font"},
                         {C::ShowColor, tr("&Colour…"), {K(Qt::CTRL | Qt::SHIFT | Qt::Key_C)}},
                         line,
                         {C::ResetTransform, tr("&Reset Transform"), {}, "reset"},
                         line,
                         {C::Looks, tr("&Looks"), {}, "look", &_looksMenu}});
  addMenu(tr("Vie&w"), {{C::Magnify1, tr("Canvas &1×"), {K(Qt::CTRL | Qt::Key_1)}},
                        {C::Magnify2, tr("Canvas &2×"), {K(Qt::CTRL | Qt::Key_2)}},
                        {C::Magnify3, tr("Canvas &3×"), {K(Qt::CTRL | Qt::Key_3)}},
                        line,
                        {C::ToggleOriginalIcon, tr("&Original Icon"), {K(Qt::CTRL | Qt::Key_I)}}});
  addMenu(tr("&Help"), {{C::Help, tr("Quorvane &Help"), K::keyBindings(K::HelpContents), "help"},
                        {C::Shortcuts, tr("&Keyboard Shortcuts"), {K(Qt::CTRL | Qt::Key_Question)}},
                        line,
                        {C::Questions, tr("Frequently Asked &Questions")},
                        {C::Forum, tr("&Forum")},
                        {C::Blog, tr("&Blog")},
                        {C::HomePage, tr("Home &Page")},
                        line,
                        {C::CheckForUpdates, tr("Check for &Updates…")},
                        {C::About, tr("&About Quorvane")}});
  // What is in the looks' submenu before the looks themselves.
  _fill(*_looksMenu, {{C::SaveLook, tr("&Save Look…"), {K(Qt::CTRL | Qt::Key_S)}, "save"},
                      {C::ManageLooks, tr("&Manage Looks…")},
                      line});
  _fill(*_libraryMenu, {{C::FindIcon, tr("&Find Icon"), K::keyBindings(K::Find), "search"},
                        line,
                        {C::AddIcon, tr("&Add Icon…"), {K(Qt::CTRL | Qt::SHIFT | Qt::Key_A)}, "add"},
                        {C::RemoveSelectedIcons, tr("Remove Selected Icon")},
                        line,
                        {C::NewSet, tr("&New Set"), {K(Qt::CTRL | Qt::Key_N)}},
                        {C::RenameSet, tr("Rena&me Set"), {K(Qt::Key_F2)}},
                        {C::RemoveSet, tr("&Remove Set")},
                        line,
                        {C::ImportSet, tr("&Import Set…")},
                        {C::ExportSet, tr("&Export Set…")}});
  auto* magnifications = new QActionGroup(this);
  for (const C command : {C::Magnify1, C::Magnify2, C::Magnify3}) magnifications->addAction(action(command));
  for (const C command : {C::Magnify1, C::Magnify2, C::Magnify3, C::ShowFont, C::ToggleOriginalIcon})
    action(command)->setCheckable(true);
  // The toolkit leaves the usual key for the menu bar to us.
  auto* menus = new QShortcut(QKeySequence(Qt::Key_F10), &_window);
  connect(menus, &QShortcut::activated, this,
          [this] { _window.menuBar()->setActiveAction(_menus.front()->menuAction()); });
  action(C::Quit)->setMenuRole(QAction::QuitRole);
  action(C::Preferences)->setMenuRole(QAction::PreferencesRole);
  action(C::About)->setMenuRole(QAction::AboutRole);
}

void MainMenu::remove(MenuCommand command) {
  const auto found = _actions.find(command);
  if (found == _actions.end()) return;
  delete found->second;
  _actions.erase(found);
}

void MainMenu::_fill(QMenu& menu, const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    if (!row.command) {
      menu.addSeparator();
      continue;
    }
    QAction* action = nullptr;
    if (row.submenu) {
      *row.submenu = menu.addMenu(row.text);
      action = (*row.submenu)->menuAction();
    } else {
      action = menu.addAction(row.text);
      connect(action, &QAction::triggered, this, [this, command = *row.command] { Q_EMIT chosen(command); });
    }
    if (row.icon) action->setIcon(actionIcon(QLatin1String(row.icon), QPalette::Text));
    // Some change their words as time goes by; this is what they are called in lists.
    action->setProperty("plainName", withoutAccessKey(row.text));
    action->setShortcuts(row.keys);
    _actions[*row.command] = action;
  }
}

void MainMenu::validate(const std::function<bool(MenuCommand)>& isValid) {
  for (const auto& [command, action] : _actions) action->setEnabled(isValid(command));
}

void MainMenu::setFontShown(bool shown) {
  action(MenuCommand::ShowFont)->setChecked(shown);
}

void MainMenu::setOriginalIconShown(bool shown) {
  action(MenuCommand::ToggleOriginalIcon)->setChecked(shown);
}

void MainMenu::setMagnification(int magnification) {
  static constexpr MenuCommand commands[] = {MenuCommand::Magnify1, MenuCommand::Magnify2, MenuCommand::Magnify3};
  if (magnification >= 1 && magnification <= 3) action(commands[magnification - 1])->setChecked(true);
}

void MainMenu::setUndoTexts(const QString& undo, const QString& redo) {
  action(MenuCommand::Undo)->setText(undo);
  action(MenuCommand::Redo)->setText(redo);
}

std::vector<MainMenu::ShortcutGroup> MainMenu::shortcuts() const {
  std::vector<ShortcutGroup> groups;
  for (const QMenu* menu : _menus) {
    ShortcutGroup group{withoutAccessKey(menu->title()), {}};
    const auto add = [&](const QAction* action) {
      if (!action->shortcut().isEmpty())
        group.shortcuts.push_back(
            {action->property("plainName").toString(), action->shortcut().toString(QKeySequence::NativeText)});
    };
    for (const QAction* action : menu->actions()) {
      add(action);
      if (action->menu() != _looksMenu && action->menu() != _libraryMenu) continue;
      for (const QAction* inner : action->menu()->actions()) add(inner);
    }
    if (!group.shortcuts.empty()) groups.push_back(std::move(group));
  }
  return groups;
}

}  // namespace quorvane
