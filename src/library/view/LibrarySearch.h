// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <memory>
#include <vector>

#include "library/core/IconSet.h"
#include "ui/HVTableView.h"

namespace quorvane {

class BaseIconController;
class EmptyState;
class IconDelegate;
class Thumbnails;

/// The icons of both libraries whose name, or whose set's name, has all the words in it.
class LibraryFinds : public QAbstractListModel {
  Q_OBJECT
 public:
  struct Find {
    std::shared_ptr<IconSet> set;
    IconRecord icon;
    QString name;  ///< as shown
    QString setName;
    bool isBuiltin = false;
  };
  using QAbstractListModel::QAbstractListModel;

  void search(BaseIconController& controller, const QString& words);
  [[nodiscard]] const Find& at(int row) const { return _finds[static_cast<std::size_t>(row)]; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<Find> _finds;
};

/// The list of what was found. Selecting one chooses it; Return and a double click show where it is.
class LibrarySearch : public HVTableView {
  Q_OBJECT
 public:
  LibrarySearch(BaseIconController& controller, Thumbnails& thumbnails, QWidget* parent = nullptr);

  void search(const QString& words);
  void setIconSide(int side);
  [[nodiscard]] EmptyState* emptyState() const { return _emptyState; }

 Q_SIGNALS:
  void shown(const quorvane::LibraryFinds::Find& find);

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  BaseIconController& _controller;
  LibraryFinds* _finds;
  IconDelegate* _delegate;
  EmptyState* _emptyState;
};

}  // namespace quorvane
