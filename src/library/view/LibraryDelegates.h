// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

#include "library/core/IconRecord.h"

class QTableView;

namespace quorvane {

class Thumbnails;

/// What rows of icons and sets give besides their texts.
enum LibraryRole {
  IconRecordRole = Qt::UserRole,  ///< an IconRecord
  DetailRole,                     ///< a second, muted text
};

/// Draws a row with its state behind it: chosen, under the pointer.
class LibraryRowDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  /// Becomes the table's delegate, and the only one to draw what is behind its rows.
  void drawRowsOf(QTableView& table);
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

 protected:
  static void drawGround(QPainter& painter, const QStyleOptionViewItem& option);
  /// One line in the palette's colour of the role, shortened in the middle.
  static void drawText(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place, const QString& text,
                       QPalette::ColorRole role, Qt::Alignment alignment);
};

/// A set: its name, and how many icons it has where there is room.
class SetDelegate : public LibraryRowDelegate {
  Q_OBJECT
 public:
  using LibraryRowDelegate::LibraryRowDelegate;
  [[nodiscard]] static int rowHeight(const QFont& font);
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// An icon: its picture with the name under it, or beside it when the pictures are small.
class IconDelegate : public LibraryRowDelegate {
  Q_OBJECT
 public:
  static constexpr int smallestSide = 32;
  static constexpr int largestSide = 128;

  explicit IconDelegate(Thumbnails& thumbnails, QObject* parent = nullptr);
  /// Of the picture, in logical pixels.
  void setSide(int side) { _side = side; }
  /// Of every row; with a detail one has two lines.
  [[nodiscard]] int rowHeight(const QFont& font, bool hasDetail = false) const;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  [[nodiscard]] bool _isBeside() const { return _side < 48; }
  void _drawPicture(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place,
                    const IconRecord& record) const;

  Thumbnails& _thumbnails;
  int _side = 64;
};

}  // namespace quorvane
