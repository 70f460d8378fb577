// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/LibrarySearch.h"

#include <QFile>
#include <QHeaderView>
#include <algorithm>

#include "library/view/BaseIconController.h"
#include "library/view/EmptyState.h"
#include "library/view/LibraryDelegates.h"
#include "library/view/LibraryTexts.h"
#include "library/view/Thumbnails.h"
#include "ui/Texts.h"

namespace quorvane {

void LibraryFinds::search(BaseIconController& controller, const QString& words) {
  const QStringList wanted = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  beginResetModel();
  _finds.clear();
  for (const bool isBuiltin : {false, true}) {
    const auto& sets =
        isBuiltin ? controller.builtinIconSetArrayController() : controller.customIconSetArrayController();
    const auto& icons = isBuiltin ? controller.builtinIconArrayController() : controller.customIconArrayController();
    for (const auto& set : sets.arrangedObjects()) {
      const QString setName = sets.shownName(*set);
      // The command line knows a built-in icon by its English name alone.
      const QString fileSetName = QFile::decodeName(set->name().c_str());
      for (const IconRecord& icon : set->icons()) {
        const QString name = icons.shownName(icon);
        const QStringList names{name, setName, shownIconName(icon), fileSetName};
        const auto has = [&](const QString& word) {
          return std::ranges::any_of(names,
                                     [&](const QString& each) { return each.contains(word, Qt::CaseInsensitive); });
        };
        if (!wanted.isEmpty() && std::ranges::all_of(wanted, has))
          _finds.push_back({set, icon, name, setName, isBuiltin});
      }
    }
  }
  endResetModel();
}

int LibraryFinds::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_finds.size());
}

QVariant LibraryFinds::data(const QModelIndex& index, int role) const {
  const Find& find = at(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return find.name;
    case DetailRole:
      return find.setName;
    case Qt::ToolTipRole:
      return plainToolTip(data(index, Qt::AccessibleTextRole).toString());
    case Qt::AccessibleTextRole:
      return (find.isBuiltin ? tr("%1, built-in, in %2") : tr("%1, in %2")).arg(find.name, find.setName);
    case IconRecordRole:
      return QVariant::fromValue(find.icon);
    default:
      return {};
  }
}

LibrarySearch::LibrarySearch(BaseIconController& controller, Thumbnails& thumbnails, QWidget* parent)
    : HVTableView(parent),
      _controller(controller),
      _finds(new LibraryFinds(this)),
      _delegate(new IconDelegate(thumbnails, this)),
      _emptyState(new EmptyState(viewport())) {
  setAccessibleName(tr("Icons found"));
  setModel(_finds);
  _delegate->drawRowsOf(*this);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::NoFrame);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  connect(&thumbnails, &Thumbnails::ready, viewport(), qOverload<>(&QWidget::update));
  const auto show = [this](const QModelIndex& index) {
    // The list may be emptied by whoever hears it.
    const LibraryFinds::Find find = _finds->at(index.row());
    Q_EMIT shown(find);
  };
  connect(this, &QAbstractItemView::activated, this, show);
  search({});
}

void LibrarySearch::setIconSide(int side) {
  _delegate->setSide(side);
  verticalHeader()->setDefaultSectionSize(_delegate->rowHeight(font(), true));
}

void LibrarySearch::search(const QString& words) {
  _finds->search(_controller, words);
  _emptyState->setTexts(tr("Nothing found"), tr("No icon and no set is called “%1”.").arg(words), tr("Clear Search"));
  _emptyState->setGeometry(viewport()->rect());
  _emptyState->setVisible(_finds->rowCount() == 0);
}

void LibrarySearch::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  HVTableView::selectionChanged(selected, deselected);
  if (!selected.isEmpty()) _controller.choose(_finds->at(selected.indexes().front().row()).icon);
}

void LibrarySearch::resizeEvent(QResizeEvent* event) {
  HVTableView::resizeEvent(event);
  _emptyState->setGeometry(viewport()->rect());
}

}  // namespace quorvane
