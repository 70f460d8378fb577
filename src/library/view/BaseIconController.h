// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "imaging/Image.h"
#include "library/core/IconLibrary.h"
#include "library/core/LibraryUndo.h"
#include "library/view/IconAdder.h"
#include "library/view/IconArrayController.h"
#include "library/view/IconSetArrayController.h"
#include "library/view/LibraryPrompts.h"
#include "library/view/TableDrop.h"

class QAction;
class QMimeData;

namespace quorvane {

class HVTableView;
class LibraryTableView;

/// The icon library as the window shows it: the sets of the two libraries, the icons of the selected set of each, which
/// sets were selected in the last run, the icon that is chosen as base icon, and what is dragged within and onto the
/// user's icon list.
class BaseIconController : public QObject, public TableDropDelegate {
  Q_OBJECT
 public:
  using IconSets = IconLibrary::Sets;
  using Path = std::filesystem::path;

  /// Which sets were selected, kept from one run to the next.
  struct SelectionStore {
    std::function<QList<int>(bool builtin)> read;
    std::function<void(bool builtin, const QList<int>& rows)> write;
  };

  BaseIconController(LibraryPlaces places, const LibraryServices& services, LibraryPrompts prompts,
                     SelectionStore selections, WorkQueue::Mode mode = WorkQueue::Mode::InBackground);
  ~BaseIconController() override;

  /// The icon lists of the built-in and the user's library, and the list of the user's sets. They belong to the window,
  /// and show the controllers below already.
  void setOutlets(LibraryTableView& builtinTableView, LibraryTableView& customTableView,
                  LibraryTableView& customSetTableView);
  void awakeFromNib();

  std::optional<Path> createCustomIconsFolder();
  /// Computed once.
  [[nodiscard]] const Path& customIconsPath() const { return _library.customIconsPath(); }
  [[nodiscard]] IconSets builtinIconSets() const;
  /// Reads the library; sets that are shown already keep their handles.
  [[nodiscard]] IconSets customIconSets() const;
  void setCustomIconSets(const IconSets& sets) { _library.setCustomIconSets(sets); }
  [[nodiscard]] IconSets _iconSetsInDirectory(const Path& path) const { return _library._iconSetsInDirectory(path); }

  void saveIconSetSelection() const;
  void restoreIconSetSelection();

  /// The base icon follows the list in which something was selected last.
  void tableViewSelectionDidChange(LibraryTableView& table);

  // The user's icon list.
  bool tableViewWriteRows(const LibraryTableView& table, const QList<int>& rows, QMimeData& pasteboard);
  Qt::DropAction tableViewValidateDrop(LibraryTableView& table, const QMimeData& dragged, TableDrop& proposed) override;
  bool tableViewAcceptDrop(LibraryTableView& table, const QMimeData& dragged, const TableDrop& drop) override;
  [[nodiscard]] QString tableViewRefusal(const LibraryTableView& table, const QMimeData& dragged) const override;
  void tableViewDragEndedAt(const HVTableView& table, const QPoint& endPoint, Qt::DropAction operation);
  [[nodiscard]] static bool _isValidIconAtPath(const Path& path);
  [[nodiscard]] static bool _areValidIconsAtPaths(const std::vector<Path>& paths);

  /// Between 80 and 200.
  [[nodiscard]] static double splitViewConstrainSplitPosition(double proposed, int divider = 0);
  /// Whether the item can be chosen; gives the one named "removeSelectedIcons" its title.
  bool validateMenuItem(QAction& item) const;
  /// IconArrayController::remove().
  void removeSelectedIcons() { _customIconArrayController.remove(); }
  void removeDraggedOutRows() {}

  /// Puts files or a picture of the clipboard at the end of the selected set. False when it holds none of them; why
  /// nothing can be added is said.
  bool paste(const QMimeData& pasteboard);
  /// The selected icons of the list that has a selection, as files and as a picture; null without any. The caller's.
  [[nodiscard]] QMimeData* copy() const;
  /// What the lists call the icon of a file of one of the two libraries.
  [[nodiscard]] QString shownName(const Path& path) const;
  /// Asks for a zip file or a folder and makes a set of it.
  void importSet();
  /// Asks where to, and writes the selected set as a zip file.
  void exportSelectedSet();
  /// Selects the set and, with a name, its icon.
  void select(const std::shared_ptr<IconSet>& set, const std::string& icon = {});
  /// Chooses an icon that stands in neither list, of a search for one.
  void choose(const IconRecord& icon);
  /// Takes the last change of the library back.
  void undo();
  /// Not while icons are being added: what is taken back would land among them.
  [[nodiscard]] bool canUndo() const { return _undo.canUndo() && !_adder.isBusy(); }
  [[nodiscard]] const LibraryUndo& history() const { return _undo; }
  /// For the menu: "Undo Remove Icons"; "Undo" when there is nothing to take back.
  [[nodiscard]] QString undoText() const;

  [[nodiscard]] IconSetArrayController& builtinIconSetArrayController() { return _builtinIconSetArrayController; }
  [[nodiscard]] IconArrayController& builtinIconArrayController() { return _builtinIconArrayController; }
  [[nodiscard]] IconSetArrayController& customIconSetArrayController() { return _customIconSetArrayController; }
  [[nodiscard]] IconArrayController& customIconArrayController() { return _customIconArrayController; }
  [[nodiscard]] IconAdder& adder() { return _adder; }
  [[nodiscard]] const LibraryServices& services() const { return _library.services(); }

 Q_SIGNALS:
  /// nullopt: several icons are selected. With the file that it is from.
  void baseIconChosen(const std::optional<quorvane::Image>& image, const std::filesystem::path& path);
  /// Something went wrong or was refused; a sentence.
  void failed(const QString& reason);
  /// What can be taken back has changed.
  void historyChanged();

 private:
  void _readSets(const Path& selected = {});
  [[nodiscard]] std::shared_ptr<IconSet> _targetSet() const;
  /// For the canvas, which may need it after the icon's file is gone. The same again for the same icon.
  [[nodiscard]] Image _lastingImage(const IconRecord& icon);

  LibraryPrompts _prompts;
  SelectionStore _selections;
  IconLibrary _library;
  LibraryUndo _undo;
  IconAdder _adder;
  Path _baseIconsPath;
  IconSetArrayController _builtinIconSetArrayController;
  IconArrayController _builtinIconArrayController;
  IconSetArrayController _customIconSetArrayController;
  IconArrayController _customIconArrayController;
  LibraryTableView* _builtinTableView = nullptr;
  LibraryTableView* _customTableView = nullptr;
  QList<int> _rowsToRemove;
  std::optional<std::pair<IconRecord, Image>> _lasting;
  std::vector<std::weak_ptr<IconSet>> _handles;  ///< all sets that were ever shown and that somebody still holds
};

}  // namespace quorvane
