// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <optional>

#include "library/view/TableDrop.h"
#include "ui/HVTableView.h"
#include "ui/RefusedDropWatch.h"

namespace quorvane {

class ArrayControllerBase;

/// A table that shows a list controller: its selection and the controller's are always the same. Its delegate judges
/// what is dragged onto it; the place is marked.
class LibraryTableView : public HVTableView {
  Q_OBJECT
 public:
  explicit LibraryTableView(QWidget* parent = nullptr);

  /// Shows the model of a controller. Both must live as long as the table shows them.
  void bindController(ArrayControllerBase& controller, QAbstractItemModel& model);

  /// Types of data that the delegate is asked about; all others are refused. QMimeData's own picture type counts as
  /// "application/x-qt-image".
  void registerForDraggedTypes(const QStringList& types) { _draggedTypes = types; }
  [[nodiscard]] const QStringList& draggedTypes() const { return _draggedTypes; }
  /// Not owned.
  void setDropDelegate(TableDropDelegate* delegate) { _delegate = delegate; }
  /// Whether drops are proposed on rows at all, or only between them.
  void setProposesDropsOnRows(bool proposes) { _proposesOnRows = proposes; }

  /// The row that was selected last, or another one when it is not selected any more; -1 without a selection.
  [[nodiscard]] int selectedRow() const;
  [[nodiscard]] int numberOfSelectedRows() const;

  /// Tells the number of rows anew.
  void noteNumberOfRowsChanged();

  /// A widget that is shown in the middle of the table while it has no rows.
  void setEmptyState(QWidget* state);

 Q_SIGNALS:
  /// Other rows are selected, and the controller knows.
  void tableViewSelectionDidChange(LibraryTableView* table);
  void deletePressed();
  /// The reason is a sentence.
  void dropRefused(const QString& reason);

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] TableDrop _dropAt(const QPoint& place) const;
  [[nodiscard]] bool _offersDraggedTypes(const QMimeData& dragged) const;
  /// Asks the delegate, and marks the place.
  Qt::DropAction _judge(const QDropEvent& event);
  void _mark(const std::optional<TableDrop>& drop);
  void _showControllersSelection();
  void _updateEmptyState();

  ArrayControllerBase* _controller = nullptr;
  TableDropDelegate* _delegate = nullptr;
  QStringList _draggedTypes;
  bool _proposesOnRows = true;
  bool _isShowingSelection = false;
  std::optional<TableDrop> _marked;
  QWidget* _emptyState = nullptr;
  RefusedDropWatch _refused;
};

}  // namespace quorvane
