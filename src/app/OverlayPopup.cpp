// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OverlayPopup.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/LayoutPieces.h"
#include "app/OverlayPixmap.h"
#include "composition/core/Emblems.h"

namespace quorvane {

namespace {

constexpr int drawingSide = 24;
constexpr int cellSide = 40;
constexpr int columns = 8;
constexpr int visibleRows = 6;

}  // namespace

OverlayPopup::OverlayPopup(QWidget* parent)
    : QFrame(parent, Qt::Popup), _search(new QLineEdit), _grid(new QListWidget), _emoji(new QLineEdit) {
  setFrameShape(QFrame::StyledPanel);
  setAccessibleName(tr("Choose an overlay"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(layoutGap, layoutGap, layoutGap, layoutGap);
  layout->setSpacing(layoutGap / 2 + 2);

  _search->setPlaceholderText(tr("Search emblems"));
  _search->setAccessibleName(tr("Search emblems"));
  _search->setClearButtonEnabled(true);
  _search->installEventFilter(this);
  layout->addWidget(_search);

  _grid->setViewMode(QListView::IconMode);
  _grid->setMovement(QListView::Static);
  _grid->setResizeMode(QListView::Adjust);
  _grid->setUniformItemSizes(true);
  _grid->setIconSize({drawingSide, drawingSide});
  _grid->setGridSize({cellSide, cellSide});
  _grid->setFrameShape(QFrame::NoFrame);
  _grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  _grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  _grid->setFixedSize(columns * cellSide + 20, visibleRows * cellSide + 4);
  _grid->setAccessibleName(tr("Emblems"));
  layout->addWidget(_grid);

  auto* others = new QHBoxLayout;
  others->setSpacing(layoutGap / 2);
  _emoji->setPlaceholderText(tr("Emoji or letter"));
  _emoji->setAccessibleName(tr("Emoji or letter"));
  auto* picture = new QPushButton(tr("Picture File…"));
  others->addWidget(_emoji, 1);
  others->addWidget(picture);
  layout->addLayout(others);

  _fill();
  connect(_search, &QLineEdit::textChanged, this, &OverlayPopup::_fill);
  const auto choose = [this](const QListWidgetItem* item) {
    if (item) _choose(OverlayEmblem{item->data(Qt::UserRole).toString()});
  };
  connect(_grid, &QListWidget::itemClicked, this, choose);
  connect(_grid, &QListWidget::itemActivated, this, choose);
  connect(_search, &QLineEdit::returnPressed, this, [this, choose] {
    if (_grid->count() > 0) choose(_grid->currentItem() ? _grid->currentItem() : _grid->item(0));
  });
  connect(_emoji, &QLineEdit::returnPressed, this, [this] {
    if (const auto emoji = overlayEmoji(_emoji->text().trimmed())) _choose(*emoji);
  });
  connect(_emoji, &QLineEdit::textEdited, this, [this](const QString& text) {
    // A letter may be the first of several keys that make one; an emoji comes whole.
    const auto emoji = overlayEmoji(text.trimmed());
    if (emoji && text.front().isSurrogate()) _choose(*emoji);
  });
  connect(picture, &QPushButton::clicked, this, [this] {
    close();
    Q_EMIT pictureWanted();
  });
  _search->setFocus();
}

void OverlayPopup::_fill() {
  _grid->clear();
  for (const Emblem& emblem : emblems()) {
    const QString title = QCoreApplication::translate("Emblems", emblem.title.toUtf8().constData());
    const QString wanted = _search->text().trimmed();
    if (!emblem.matches(wanted) && !title.contains(wanted, Qt::CaseInsensitive)) continue;
    auto* item = new QListWidgetItem(
        overlayPixmap(OverlayEmblem{emblem.name}, drawingSide, palette().color(QPalette::Text), devicePixelRatioF()),
        QString(), _grid);
    item->setData(Qt::UserRole, emblem.name);
    item->setData(Qt::AccessibleTextRole, title);
    item->setToolTip(title);
    item->setSizeHint({cellSide, cellSide});
  }
}

void OverlayPopup::_choose(const OverlayDrawing& drawing) {
  const OverlayDrawing kept = drawing;
  close();
  Q_EMIT chosen(kept);
}

bool OverlayPopup::eventFilter(QObject* watched, QEvent* event) {
  // From the field down into what it found.
  if (watched == _search && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down && _grid->count() > 0) {
    _grid->setFocus();
    _grid->setCurrentRow(0);
    return true;
  }
  return QFrame::eventFilter(watched, event);
}

}  // namespace quorvane
