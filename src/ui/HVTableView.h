// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

namespace quorvane {

/// How the editing of a cell ended. Return is 16 by the platform's own count.
enum class TextMovement { None = 0, Return = 16, Tab = 17, Backtab = 18, Cancel = 23 };

/// The end of editing a cell: the editor, and the key that ended it.
struct TextDidEndEditing {
  QWidget* editor = nullptr;
  TextMovement movement = TextMovement::None;
};

/// A table whose Return key, while a cell is edited, goes on to the next row, or ends editing and keeps the row and the
/// focus. Rows are selected whole. When a drag of its rows has ended it says where; it removes no rows itself.
class HVTableView : public QTableView {
  Q_OBJECT
 public:
  explicit HVTableView(QWidget* parent = nullptr);

  void setReturnKeyEndsEditing(bool ends) { _returnKeyEndsEditing = ends; }
  [[nodiscard]] bool returnKeyEndsEditing() const { return _returnKeyEndsEditing; }

 Q_SIGNALS:
  /// Rows dragged out of this table were let go at the point (of the screen, y downwards), and what was done with them.
  void tableViewDragEndedAt(HVTableView* table, const QPoint& endPoint, Qt::DropAction operation);

 protected:
  void textDidEndEditing(const TextDidEndEditing& notification);
  void draggedImageEndedAtOperation(const QPixmap& image, const QPoint& endPoint, Qt::DropAction operation);

  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  void startDrag(Qt::DropActions supportedActions) override;

 private:
  void _endEditing(const TextDidEndEditing& notification);
  [[nodiscard]] QPixmap _imageOfRows(const QModelIndexList& indexes, QPoint& hotSpot) const;

  bool _returnKeyEndsEditing = false;
};

}  // namespace quorvane
