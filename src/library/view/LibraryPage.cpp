// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/LibraryPage.h"

#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QSplitter>
#include <limits>

#include "library/view/ArrayModel.h"
#include "library/view/BaseIconController.h"
#include "library/view/EmptyState.h"
#include "library/view/LibraryDelegates.h"
#include "library/view/LibraryTableView.h"
#include "library/view/LibraryTexts.h"
#include "library/view/Thumbnails.h"
#include "ui/ElidedLabel.h"
#include "ui/Texts.h"

namespace quorvane {

namespace {

/// A hairline to take hold of.
class Divider : public QSplitterHandle {
 public:
  using QSplitterHandle::QSplitterHandle;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(QRect(width() / 2, 0, 1, height()), palette().color(QPalette::Mid));
  }
};

class DividedView : public QSplitter {
 public:
  DividedView() : QSplitter(Qt::Horizontal) {
    setChildrenCollapsible(false);
    setHandleWidth(7);
  }

 protected:
  QSplitterHandle* createHandle() override { return new Divider(orientation(), this); }
};

QWidget* withFooter(QWidget* list, QHBoxLayout*& footer) {
  auto* side = new QWidget;
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins({});
  layout->setSpacing(2);
  layout->addWidget(list, 1);
  footer = new QHBoxLayout;
  footer->setContentsMargins({});
  footer->setSpacing(2);
  layout->addLayout(footer);
  return side;
}

QVariant setValue(const IconSetArrayController& sets, int row, int role) {
  const IconSet& set = *sets.objectAt(row);
  const int icons = static_cast<int>(set.icons().size());
  switch (role) {
    case Qt::DisplayRole:
      return sets.shownName(set);
    case Qt::EditRole:
      return QFile::decodeName(set.name().c_str());
    case DetailRole:
      return QLocale().toString(icons);
    case Qt::ToolTipRole:
      return plainToolTip(setValue(sets, row, Qt::AccessibleTextRole).toString());
    case Qt::AccessibleTextRole:
      return LibraryPage::tr("%1, %2").arg(sets.shownName(set), iconCount(icons));
    default:
      return {};
  }
}

QVariant iconValue(const IconArrayController& icons, int row, int role) {
  const IconRecord& icon = icons.objectAt(row);
  switch (role) {
    case Qt::DisplayRole:
      return icons.shownName(icon);
    case Qt::ToolTipRole:
      return plainToolTip(visibleText(QFile::decodeName(icon.name.c_str())));
    case IconRecordRole:
      return QVariant::fromValue(icon);
    default:
      return {};
  }
}

}  // namespace

LibraryPage::LibraryPage(Parts parts, QWidget* parent)
    : QWidget(parent),
      _sets(new LibraryTableView),
      _icons(new LibraryTableView),
      _iconDelegate(new IconDelegate(parts.thumbnails, this)),
      _emptyState(new EmptyState),
      _splitter(new DividedView) {
  IconSetArrayController& sets = parts.sets;
  IconArrayController& icons = parts.icons;
  ArrayModel::Column setColumn{.value = [&sets](int row, int role) { return setValue(sets, row, role); }};
  ArrayModel::Column iconColumn{.value = [&icons](int row, int role) { return iconValue(icons, row, role); }};
  if (parts.isEditable) {
    setColumn.setValue = [&sets](int row, const QString& name) { return sets.setName(row, name); };
    iconColumn.writeRows = [this, write = parts.writeRows](const QList<int>& rows, QMimeData& pasteboard) {
      return write(*_icons, rows, pasteboard);
    };
  }
  // A library that is only looked at selects one icon at a time.
  if (!parts.isEditable) {
    _icons->setSelectionMode(QAbstractItemView::SingleSelection);
    _sets->setSelectionMode(QAbstractItemView::SingleSelection);
  }
  (new SetDelegate(this))->drawRowsOf(*_sets);
  _iconDelegate->drawRowsOf(*_icons);
  _sets->bindController(sets, *new ArrayModel(sets, std::move(setColumn), this));
  _icons->bindController(icons, *new ArrayModel(icons, std::move(iconColumn), this));
  _icons->setEmptyState(_emptyState);

  QWidget* setSide = withFooter(_sets, _setFooter);
  setSide->setMinimumWidth(static_cast<int>(BaseIconController::splitViewConstrainSplitPosition(0)));
  setSide->setMaximumWidth(static_cast<int>(BaseIconController::splitViewConstrainSplitPosition(10000)));
  QWidget* iconSide = withFooter(_icons, _iconFooter);
  iconSide->setMinimumWidth(90);
  _splitter->addWidget(setSide);
  _splitter->addWidget(iconSide);
  _splitter->setStretchFactor(0, 0);
  _splitter->setStretchFactor(1, 1);
  if (!parts.isEditable) {
    // Nobody can make a set here: without any, what is said of that has all the room.
    const auto showSets = [this, setSide] {
      setSide->setVisible(_sets->model()->rowCount() > 0);
      setSetsWidth(_setsWidth);
    };
    connect(_sets->model(), &QAbstractItemModel::modelReset, this, showSets);
    connect(_sets->model(), &QAbstractItemModel::rowsInserted, this, showSets);
    connect(_sets->model(), &QAbstractItemModel::rowsRemoved, this, showSets);
    showSets();
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(_splitter);
  connect(_splitter, &QSplitter::splitterMoved, this, [this] {
    _setsWidth = _splitter->sizes().value(0);
    Q_EMIT setsWidthChanged(_setsWidth);
  });
  connect(&parts.thumbnails, &Thumbnails::ready, _icons->viewport(), qOverload<>(&QWidget::update));
  _updateRowHeights();
}

void LibraryPage::setIconSide(int side) {
  _iconDelegate->setSide(side);
  _updateRowHeights();
}

void LibraryPage::_updateRowHeights() {
  // What is in sight stays in sight.
  const QModelIndex top = _icons->indexAt(QPoint(4, 4));
  _sets->verticalHeader()->setDefaultSectionSize(SetDelegate::rowHeight(_sets->font()));
  _icons->verticalHeader()->setDefaultSectionSize(_iconDelegate->rowHeight(_icons->font()));
  if (top.isValid()) _icons->scrollTo(top, QAbstractItemView::PositionAtTop);
}

void LibraryPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) _updateRowHeights();
}

int LibraryPage::setsWidth() const {
  // As far as it is shown: without sets there is nothing to divide.
  const int shown = _splitter->sizes().value(0);
  return shown > 0 ? shown : _setsWidth;
}

void LibraryPage::setSetsWidth(int width) {
  const int sets = static_cast<int>(BaseIconController::splitViewConstrainSplitPosition(width));
  _setsWidth = sets;
  _splitter->setSizes({sets, std::max(0, _splitter->width() - _splitter->handleWidth() - sets)});
}

}  // namespace quorvane
