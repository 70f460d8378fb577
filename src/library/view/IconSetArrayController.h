// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>

#include "library/core/IconSet.h"
#include "library/view/ArrayController.h"
#include "library/view/TableDrop.h"

namespace quorvane {

class IconAdder;
class IconArrayController;
class IconLibrary;
class LibraryUndo;
struct LibraryPrompts;

inline bool sameObject(const std::shared_ptr<IconSet>& a, const std::shared_ptr<IconSet>& b) {
  return a == b || (a && b && a->path() == b->path());
}

/// The sets of a library. Of the user's: adds and removes them, and takes icons that are dragged onto a set, and
/// folders of pictures and zip files as new sets.
class IconSetArrayController : public ArrayController<std::shared_ptr<IconSet>>, public TableDropDelegate {
  Q_OBJECT
 public:
  /// For the built-in sets, which are only looked at: nothing is given.
  IconSetArrayController();
  IconSetArrayController(const IconLibrary& library, LibraryUndo& undo, const LibraryPrompts& prompts,
                         IconAdder& adder);
  ~IconSetArrayController() override;

  /// The table that shows the sets, and the icons of the selected one.
  void setOutlets(LibraryTableView& tableView, IconArrayController& iconArrayController);
  void awakeFromNib();

  /// Makes a set, and lets its name be edited at once.
  void add();
  /// Removes the selected sets that hold no icons, and says of the others that they stay. The row taken off the list is
  /// the first one; the list is right again when it is read the next time.
  void remove();
  [[nodiscard]] std::filesystem::path pathToNewSet() const;
  void editNewlyInsertedRow();
  [[nodiscard]] std::filesystem::path customIconsPath() const;
  /// The name typed for the set of a row. False when nothing is changed.
  bool setName(int row, const QString& name);

  /// A zip file, or a folder of pictures, becomes a set, which is then selected.
  void importSet(const std::filesystem::path& fileOrFolder);
  /// The set as one zip file.
  void exportSet(const std::shared_ptr<IconSet>& set, const std::filesystem::path& toFile);

  Qt::DropAction tableViewValidateDrop(LibraryTableView& table, const QMimeData& dragged, TableDrop& proposed) override;
  bool tableViewAcceptDrop(LibraryTableView& table, const QMimeData& dragged, const TableDrop& drop) override;
  [[nodiscard]] QString tableViewRefusal(const LibraryTableView& table, const QMimeData& dragged) const override;

  /// The drag that moved icons here, if one did, is over, and so is the step of the history.
  void endMove();

  /// What the list calls a set: as visible text, a built-in one in the user's language.
  [[nodiscard]] QString shownName(const IconSet& set) const;

 Q_SIGNALS:
  /// Something went wrong; a sentence.
  void failed(const QString& reason);
  /// The library has a set that is not in the list; its path.
  void setsChanged(const std::filesystem::path& newSet);

 private:
  const IconLibrary* _library = nullptr;
  LibraryUndo* _undo = nullptr;
  const LibraryPrompts* _prompts = nullptr;
  IconAdder* _adder = nullptr;
  IconArrayController* _iconArrayController = nullptr;
  LibraryTableView* _tableView = nullptr;
  bool _isMoving = false;
};

}  // namespace quorvane
