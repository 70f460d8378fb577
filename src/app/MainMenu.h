// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QObject>
#include <functional>
#include <map>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;

namespace quorvane {

/// What the menus offer. Submenus count as commands: they are enabled and disabled as a whole.
enum class MenuCommand {
  Open,
  OpenRecent,
  ShowInFileManager,
  CloseFolder,
  Apply,
  Revert,
  Quit,
  Undo,
  Redo,
  Cut,
  Copy,
  Paste,
  SelectAll,
  PasteFolderPath,
  CenterLabel,
  Preferences,
  ShowFont,
  ShowColor,
  ResetTransform,
  Looks,
  SaveLook,
  ManageLooks,
  Magnify1,
  Magnify2,
  Magnify3,
  ToggleOriginalIcon,
  Help,
  Shortcuts,
  Questions,
  Forum,
  Blog,
  HomePage,
  CheckForUpdates,
  About,
};

/// The menu bar. It knows what can be chosen, not what that does: whoever listens does it.
class MainMenu : public QObject {
  Q_OBJECT
 public:
  /// Fills the window's menu bar; owned by the window.
  explicit MainMenu(QMainWindow& window);
  /// Takes an item out for good: for what this build does not have.
  void remove(MenuCommand command);

  /// Of a submenu the action that opens it.
  [[nodiscard]] QAction* action(MenuCommand command) const { return _actions.at(command); }
  /// To be filled when it is about to be shown.
  [[nodiscard]] QMenu* recentMenu() const { return _recentMenu; }
  [[nodiscard]] QMenu* looksMenu() const { return _looksMenu; }

  /// Asks of every command whether it may be chosen now. Those of disabled commands cannot be reached by keys either.
  void validate(const std::function<bool(MenuCommand)>& isValid);

  /// What is on and which magnification is chosen.
  void setFontShown(bool shown);
  void setOriginalIconShown(bool shown);
  void setMagnification(int magnification);
  void setUndoTexts(const QString& undo, const QString& redo);

  struct Shortcut {
    QString name;  ///< without access key
    QString keys;  ///< as people read them
  };
  struct ShortcutGroup {
    QString menu;
    std::vector<Shortcut> shortcuts;
  };
  [[nodiscard]] std::vector<ShortcutGroup> shortcuts() const;

 Q_SIGNALS:
  void chosen(quorvane::MenuCommand command);
  /// A menu is about to be shown: what can be chosen may depend on what has the focus.
  void opening();

 private:
  struct Row;
  void _fill(QMenu& menu, const std::vector<Row>& rows);

  QMainWindow& _window;
  std::map<MenuCommand, QAction*> _actions;
  std::vector<QMenu*> _menus;
  QMenu* _recentMenu = nullptr;
  QMenu* _looksMenu = nullptr;
};

}  // namespace quorvane
