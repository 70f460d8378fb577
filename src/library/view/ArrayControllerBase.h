// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include "library/view/IndexSet.h"

namespace quorvane {

/// What a list controller is whatever its objects are: rows, of which some are selected. Tables show it through an
/// ArrayModel. Belongs to one thread.
class ArrayControllerBase : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

  [[nodiscard]] virtual int count() const = 0;

  [[nodiscard]] const IndexSet& selectionIndexes() const { return _selection; }
  /// The first selected row; -1 when there is none.
  [[nodiscard]] int selectionIndex() const { return _selection.firstIndex(); }
  /// Rows that are not there are left out. An empty selection that is to be avoided becomes the present one, or the
  /// first row.
  void setSelectionIndexes(const IndexSet& indexes);

  /// Whether a row is selected whenever there are rows. Off at first.
  void setAvoidsEmptySelection(bool avoids);
  /// Whether a new object is selected, and alone. On at first.
  void setSelectsInsertedObjects(bool selects) { _selectsInsertedObjects = selects; }

  /// Whether there is a content that can be added to.
  [[nodiscard]] bool canAdd() const { return _hasContent; }
  /// Whether something is selected that could be removed.
  [[nodiscard]] bool canRemove() const { return _hasContent && !_selection.isEmpty(); }
  /// Between the announcement of a change of rows and its end.
  [[nodiscard]] bool isChanging() const { return _changing > 0; }

 Q_SIGNALS:
  void rowsWillBeInserted(int first, int last);
  void rowsInserted();
  void rowsWillBeRemoved(int first, int last);
  void rowsRemoved();
  /// `to` as rows are counted before the move, and never `from` or the row after it.
  void rowWillMove(int from, int to);
  void rowMoved();
  void willReset();
  void didReset();
  void rowChanged(int row);
  /// Other rows, or the same rows of other objects, are selected. Comes after what changed them.
  void selectionChanged();
  /// After any change of the objects or of canAdd().
  void contentChanged();

 protected:
  /// The rows for which nothing else was asked, as they are after a change that made the selection what it is given.
  void _settleSelection(IndexSet indexes, bool isOther = false);

  IndexSet _selection;
  bool _avoidsEmptySelection = false;
  bool _selectsInsertedObjects = true;
  bool _hasContent = false;
  int _changing = 0;
};

}  // namespace quorvane
