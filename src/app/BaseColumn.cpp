// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/BaseColumn.h"

#include <QDragEnterEvent>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QMimeDatabase>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/LayoutPieces.h"
#include "composition/view/DroppedFolder.h"
#include "foundation/FileManagerExtras.h"
#include "ui/ActionIcons.h"
#include "ui/HVTableView.h"

namespace quorvane {

namespace {

constexpr int thumbnailSide = 96;

/// The path of a dragged picture, judged by its name alone: it is not on the way of the pointer that files are read.
std::optional<std::filesystem::path> draggedPicture(const QMimeData& data) {
  if (data.urls().size() != 1) return std::nullopt;
  const auto path = firstLocalPath(data);
  if (!path || isDirectory(*path)) return std::nullopt;
  const QString type =
      QMimeDatabase().mimeTypeForFile(QFile::decodeName(path->c_str()), QMimeDatabase::MatchExtension).name();
  return type.startsWith(QLatin1String("image/")) ? path : std::nullopt;
}

}  // namespace

BaseColumn::BaseColumn(QWidget* parent)
    : QWidget(parent),
      _pages(new QStackedWidget),
      _baseTableView(new HVTableView),
      _customTableView(new HVTableView),
      _thumbnail(new QLabel),
      _heading(new QLabel),
      _explanation(new QLabel),
      _chooseButton(new QPushButton(tr("Choose Pict&ure…"))),
      _clearButton(new QPushButton(tr("Use Fol&der’s Icon"))) {
  setAcceptDrops(true);
  _pages->addWidget(_makeEmptyState());
  _pages->addWidget(_makeLists());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(_pages);
  connect(_chooseButton, &QPushButton::clicked, this, &BaseColumn::choosePicture);
  connect(_clearButton, &QPushButton::clicked, this, &BaseColumn::clearPicture);
  showPicture(std::nullopt);
}

QWidget* BaseColumn::_makeLists() {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins({});
  layout->setSpacing(layoutGap / 2);
  _baseTableView->setAccessibleName(tr("Built-in Icons"));
  _customTableView->setAccessibleName(tr("My Icons"));
  layout->addWidget(makeCaption(tr("&Built-in Icons"), _baseTableView));
  layout->addWidget(_baseTableView, 1);
  layout->addSpacing(layoutGap / 2);
  layout->addWidget(makeCaption(tr("My &Icons"), _customTableView));
  layout->addWidget(_customTableView, 1);
  return page;
}

QWidget* BaseColumn::_makeEmptyState() {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins({});
  layout->setSpacing(layoutGap / 2);
  layout->addWidget(makeCaption(tr("Base Picture")));
  auto* card = makeCard();
  auto* inside = new QVBoxLayout(card);
  inside->setContentsMargins(cardPadding, cardPadding, cardPadding, cardPadding);
  inside->setSpacing(10);
  for (QLabel* label : {_thumbnail, _heading, _explanation}) {
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
  }
  _thumbnail->setWordWrap(false);
  _thumbnail->setMinimumHeight(thumbnailSide);
  _thumbnail->setAccessibleName(tr("Base picture"));
  _explanation->setForegroundRole(QPalette::PlaceholderText);
  QFont strong = _heading->font();
  strong.setWeight(QFont::DemiBold);
  _heading->setFont(strong);
  inside->addStretch(2);
  inside->addWidget(_thumbnail);
  inside->addWidget(_heading);
  inside->addWidget(_explanation);
  inside->addSpacing(6);
  inside->addWidget(_chooseButton);
  inside->addWidget(_clearButton);
  inside->addStretch(3);
  layout->addWidget(card, 1);
  return page;
}

void BaseColumn::updateLists() {
  const auto hasRows = [](const HVTableView* table) { return table->model() && table->model()->rowCount() > 0; };
  _pages->setCurrentIndex(hasRows(_baseTableView) || hasRows(_customTableView) ? 1 : 0);
}

void BaseColumn::showPicture(const std::optional<Image>& picture) {
  const bool isSame = picture && _picture && picture->isSameAs(*_picture);
  if (isSame || (!picture && !_picture && !_heading->text().isEmpty())) return;
  _picture = picture;
  _heading->setText(picture ? tr("Chosen picture") : tr("The folder’s own icon"));
  _explanation->setText(
      picture ? tr("The label is drawn on this picture.")
              : tr("The label is drawn on it. To draw on something else, choose a picture or drop one here."));
  _clearButton->setVisible(picture.has_value());
  _drawPicture();
}

void BaseColumn::setPictureName(const QString& name) {
  // Long names of one word cannot be wrapped.
  _heading->setText(_heading->fontMetrics().elidedText(name, Qt::ElideMiddle, thumbnailSide * 2));
  _heading->setToolTip(name);
}

void BaseColumn::_drawPicture() {
  const double density = devicePixelRatioF();
  if (!_picture) {
    _thumbnail->setPixmap(actionIcon(QStringLiteral("look"), QPalette::PlaceholderText).pixmap(QSize(40, 40), density));
    return;
  }
  const int pixels = static_cast<int>(thumbnailSide * density);
  QImage image = _picture->rendered(pixels, pixels).toImage();
  image.setDevicePixelRatio(density);
  _thumbnail->setPixmap(QPixmap::fromImage(image));
}

void BaseColumn::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) _drawPicture();
}

void BaseColumn::_setHovered(bool hovered) {
  _hovered = hovered;
  update();
}

void BaseColumn::paintEvent(QPaintEvent* /*event*/) {
  if (!_hovered) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 12, 12);
}

void BaseColumn::dragEnterEvent(QDragEnterEvent* event) {
  const bool isTaken = draggedPicture(*event->mimeData()).has_value();
  _setHovered(isTaken);
  // All else is the window's to judge: folders may be dropped anywhere.
  if (!isTaken) return event->ignore();
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void BaseColumn::dragLeaveEvent(QDragLeaveEvent* event) {
  _setHovered(false);
  event->accept();
}

void BaseColumn::dropEvent(QDropEvent* event) {
  _setHovered(false);
  const auto path = draggedPicture(*event->mimeData());
  if (!path) return event->ignore();
  event->setDropAction(Qt::CopyAction);
  event->accept();
  // The other program waits for the end of its drag: what may show a sheet comes after.
  QMetaObject::invokeMethod(
      this, [this, path = *path] { Q_EMIT pictureDropped(path); }, Qt::QueuedConnection);
}

}  // namespace quorvane
