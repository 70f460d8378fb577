// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <optional>

#include "app/core/LookStore.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace quorvane {

/// Asks for the name of a look to save, as a sheet's content. It ends with 1 when a name that can be kept was given.
class SaveLookSheet : public QWidget {
  Q_OBJECT
 public:
  /// The names that are taken: saving under one replaces that look, which is said.
  explicit SaveLookSheet(std::vector<QString> taken);
  [[nodiscard]] QString name() const;

 private:
  void _judge();

  std::vector<QString> _taken;
  QLineEdit* _name;
  QLabel* _remark;
  QPushButton* _save;
};

/// The saved looks, to be renamed and removed, as a sheet's content. All is done at once; the last removal can be taken
/// back while the sheet is up. The store must outlive it.
class ManageLooksSheet : public QWidget {
  Q_OBJECT
 public:
  explicit ManageLooksSheet(LookStore& store);

 private:
  void _read();
  void _remove();
  void _putBack();
  void _renamed(QListWidgetItem& item);
  void _showState();
  void _complain(const Error& error);

  LookStore& _store;
  QListWidget* _list;
  QLabel* _remark;
  QPushButton* _rename;
  QPushButton* _removeButton;
  QPushButton* _putBackButton;
  std::optional<LookStore::Removed> _removed;
};

}  // namespace quorvane
