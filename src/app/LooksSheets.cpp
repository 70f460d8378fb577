// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LooksSheets.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "app/LayoutPieces.h"
#include "ui/Reasons.h"
#include "ui/Tag.h"

namespace quorvane {

namespace {

// A sheet ends by the buttons among its own children, so these sheets have no boxes inside.
constexpr int done = 1;
constexpr int cancelled = 0;

QVBoxLayout* beginSheet(QWidget& sheet, const QString& title) {
  sheet.setWindowTitle(title);
  auto* layout = new QVBoxLayout(&sheet);
  layout->setContentsMargins(24, 20, 24, 20);
  layout->setSpacing(10);
  layout->addWidget(makeTitle(title));
  return layout;
}

QLabel* makeRemark() {
  auto* remark = new QLabel;
  remark->setTextFormat(Qt::PlainText);
  remark->setWordWrap(true);
  remark->setForegroundRole(QPalette::PlaceholderText);
  remark->setMinimumWidth(360);
  return remark;
}

}  // namespace

SaveLookSheet::SaveLookSheet(std::vector<QString> taken)
    : _taken(std::move(taken)), _name(new QLineEdit), _remark(makeRemark()), _save(new QPushButton(tr("&Save"))) {
  QVBoxLayout* layout = beginSheet(*this, tr("Save Look"));
  layout->addWidget(makeControlName(tr("&Name of the look"), _name));
  layout->addWidget(_name);
  layout->addWidget(_remark);
  auto* cancel = new QPushButton(tr("&Cancel"));
  setTag(*cancel, cancelled);
  setTag(*_save, done);
  _save->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cancel);
  buttons->addWidget(_save);
  layout->addSpacing(6);
  layout->addLayout(buttons);
  _name->setAccessibleName(tr("Name of the look"));
  connect(_name, &QLineEdit::textChanged, this, &SaveLookSheet::_judge);
  _judge();
  _name->setFocus();
}

QString SaveLookSheet::name() const {
  return _name->text().trimmed();
}

void SaveLookSheet::_judge() {
  const auto file = LookStore::fileName(name());
  _save->setEnabled(file.ok());
  if (name().isEmpty())
    _remark->setText(
        tr("Font, colour, effect, spacing, transform and place of the label are kept, and the chosen picture, tint and "
           "overlay."));
  else if (!file)
    _remark->setText(tr("This cannot be a name: %1").arg(reasonOf(file.error())));
  else if (std::ranges::find(_taken, name()) != _taken.end())
    _remark->setText(tr("A look of this name is there already; it will be replaced."));
  else
    _remark->clear();
}

ManageLooksSheet::ManageLooksSheet(LookStore& store)
    : _store(store),
      _list(new QListWidget),
      _remark(makeRemark()),
      _rename(new QPushButton(tr("Re&name"))),
      _removeButton(new QPushButton(tr("Re&move"))),
      _putBackButton(new QPushButton(tr("&Put Back"))) {
  QVBoxLayout* layout = beginSheet(*this, tr("Looks"));
  auto* close = new QPushButton(tr("&Close"));
  // Escape presses it as well.
  setTag(*close, cancelled);
  close->setDefault(true);
  _list->setAccessibleName(tr("Saved looks"));
  _list->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
  _list->setMinimumHeight(220);
  auto* row = new QHBoxLayout;
  row->addWidget(_list, 1);
  auto* actions = new QVBoxLayout;
  for (QPushButton* button : {_rename, _removeButton, _putBackButton}) actions->addWidget(button);
  actions->addStretch();
  row->addLayout(actions);
  layout->addLayout(row, 1);
  layout->addWidget(_remark);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(close);
  layout->addLayout(buttons);

  connect(_rename, &QPushButton::clicked, this, [this] { _list->editItem(_list->currentItem()); });
  connect(_removeButton, &QPushButton::clicked, this, &ManageLooksSheet::_remove);
  connect(_putBackButton, &QPushButton::clicked, this, &ManageLooksSheet::_putBack);
  connect(_list, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) { _renamed(*item); });
  connect(_list, &QListWidget::currentItemChanged, this, &ManageLooksSheet::_showState);
  _read();
}

void ManageLooksSheet::_read() {
  const QSignalBlocker quiet(_list);
  const QString current = _list->currentItem() ? _list->currentItem()->text() : QString();
  _list->clear();
  const auto names = _store.names();
  if (!names) _complain(names.error());
  for (const QString& name : names ? *names : std::vector<QString>()) {
    auto* item = new QListWidgetItem(name, _list);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    item->setData(Qt::UserRole, name);
    if (name == current) _list->setCurrentItem(item);
  }
  if (!_list->currentItem()) _list->setCurrentRow(0);
  if (names)
    _remark->setText(names->empty() ? tr("No looks have been saved yet. Save Look keeps the present one.") : QString());
  _showState();
}

void ManageLooksSheet::_showState() {
  const bool hasItem = _list->currentItem() != nullptr;
  _rename->setEnabled(hasItem);
  _removeButton->setEnabled(hasItem);
  _putBackButton->setEnabled(_removed.has_value());
}

void ManageLooksSheet::_complain(const Error& error) {
  _remark->setText(placedReasonOf(error));
}

void ManageLooksSheet::_remove() {
  if (!_list->currentItem()) return;
  auto removed = _store.remove(_list->currentItem()->text());
  if (!removed) return _complain(removed.error());
  _removed = std::move(*removed);
  _read();
  _remark->setText(tr("“%1” was removed.").arg(_removed->name));
}

void ManageLooksSheet::_putBack() {
  if (!_removed) return;
  const auto restored = _store.restore(*_removed);
  if (!restored) return _complain(restored.error());
  _removed.reset();
  _read();
}

void ManageLooksSheet::_renamed(QListWidgetItem& item) {
  const QString former = item.data(Qt::UserRole).toString();
  const QString name = item.text().trimmed();
  if (name == former) return _read();
  const auto renamed = _store.rename(former, name);
  _read();
  if (!renamed) _complain(renamed.error());
}

}  // namespace quorvane
