// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <functional>

class QMimeData;

namespace quorvane {

class ArrayControllerBase;

/// The rows of a list controller as a table of one column.
class ArrayModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  struct Column {
    std::function<QVariant(int row, int role)> value;
    /// Takes the text that was typed; null: the column cannot be edited.
    std::function<bool(int row, const QString& text)> setValue = {};
    /// Puts the rows on the pasteboard of a drag; false: no drag starts. Null: rows cannot be dragged.
    std::function<bool(const QList<int>& rows, QMimeData& pasteboard)> writeRows = {};
  };

  /// The controller must live as long.
  ArrayModel(ArrayControllerBase& controller, Column column, QObject* parent = nullptr);

  [[nodiscard]] ArrayControllerBase& controller() const { return _controller; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] Qt::DropActions supportedDragActions() const override;
  /// Null when nothing can be dragged.
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;

 private:
  ArrayControllerBase& _controller;
  Column _column;
};

}  // namespace quorvane
