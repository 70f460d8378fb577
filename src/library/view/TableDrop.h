// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <Qt>

class QMimeData;

namespace quorvane {

class LibraryTableView;

/// Where something that is dragged over a table would go.
struct TableDrop {
  enum class Operation { On, Above };
  int row = -1;  ///< Above: the row that it comes before, the number of rows for the end. Below 0: the end
  Operation operation = Operation::Above;

  bool operator==(const TableDrop&) const = default;
};

/// Judges and takes what is dragged onto a table.
class TableDropDelegate {
 public:
  virtual ~TableDropDelegate() = default;

  /// What would be done with it there; Qt::IgnoreAction refuses it. May lead the drop elsewhere. The operation that
  /// tells nobody to do anything is Qt::CopyAction, as for a copy: a move makes whoever sent it remove it.
  virtual Qt::DropAction tableViewValidateDrop(LibraryTableView& table, const QMimeData& dragged,
                                               TableDrop& proposed) = 0;
  /// Takes what was let go where it was last validated.
  virtual bool tableViewAcceptDrop(LibraryTableView& table, const QMimeData& dragged, const TableDrop& drop) = 0;
  /// Why the table takes none of it, in a sentence; empty when there is nothing to say.
  [[nodiscard]] virtual QString tableViewRefusal(const LibraryTableView& table, const QMimeData& dragged) const = 0;
};

}  // namespace quorvane
