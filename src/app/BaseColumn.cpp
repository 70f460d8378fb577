// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/BaseColumn.h"

#include <QDragEnterEvent>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QMimeDatabase>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/LayoutPieces.h"
#include "foundation/FileManagerExtras.h"
#include "library/view/LibraryView.h"
#include "ui/ActionIcons.h"
#include "ui/ElidedLabel.h"
#include "ui/LocalPath.h"

namespace quorvane {

namespace {

constexpr int thumbnailSide = 48;

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

/// The card of the chosen picture, on which another one may be dropped.
class BaseColumn::PictureCard : public QFrame {
 public:
  explicit PictureCard(BaseColumn& column) : _column(column) {
    setProperty("card", true);
    setAcceptDrops(true);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QFrame::paintEvent(event);
    if (!_isHovered) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 12, 12);
  }

  void dragEnterEvent(QDragEnterEvent* event) override {
    const bool isTaken = draggedPicture(*event->mimeData()).has_value();
    _setHovered(isTaken);
    // All else is the window's to judge: folders may be dropped anywhere.
    if (!isTaken) return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
  }

  void dragLeaveEvent(QDragLeaveEvent* event) override {
    _setHovered(false);
    event->accept();
  }

  void dropEvent(QDropEvent* event) override {
    _setHovered(false);
    const auto path = draggedPicture(*event->mimeData());
    if (!path) return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The other program waits for the end of its drag: what may show a sheet comes after.
    const auto tell = [column = &_column, path = *path] { Q_EMIT column->pictureDropped(path); };
    QMetaObject::invokeMethod(&_column, tell, Qt::QueuedConnection);
  }

 private:
  void _setHovered(bool isHovered) {
    _isHovered = isHovered;
    update();
  }

  BaseColumn& _column;
  bool _isHovered = false;
};

BaseColumn::BaseColumn(BaseIconController& library, QWidget* parent)
    : QWidget(parent),
      _card(new PictureCard(*this)),
      _thumbnail(new QLabel),
      _heading(new ElidedLabel),
      _chooseButton(new QPushButton(tr("Choose Pict&ure…"))),
      _clearButton(new QToolButton),
      _tintSlot(new QWidget),
      _library(new LibraryView(library)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(layoutGap / 2);
  layout->addWidget(makeCaption(tr("Base Picture")));
  layout->addWidget(_makeCard());
  auto* tint = new QVBoxLayout(_tintSlot);
  tint->setContentsMargins({});
  layout->addWidget(_tintSlot);
  layout->addSpacing(layoutGap / 2);
  layout->addWidget(_library, 1);
  connect(_chooseButton, &QPushButton::clicked, this, &BaseColumn::choosePicture);
  connect(_clearButton, &QToolButton::clicked, this, &BaseColumn::clearPicture);
  showPicture(std::nullopt);
}

QWidget* BaseColumn::_makeCard() {
  auto* inside = new QHBoxLayout(_card);
  inside->setContentsMargins(10, 8, 10, 8);
  inside->setSpacing(12);
  _thumbnail->setFixedSize(thumbnailSide, thumbnailSide);
  _thumbnail->setAlignment(Qt::AlignCenter);
  _thumbnail->setAccessibleName(tr("Base picture"));
  QFont strong = _heading->font();
  strong.setWeight(QFont::DemiBold);
  _heading->setFont(strong);
  _chooseButton->setToolTip(tr("Any picture file, also one that is in no set"));
  _clearButton->setIcon(actionIcon(QStringLiteral("revert")));
  _clearButton->setToolTip(tr("Use Folder’s Icon"));
  _clearButton->setAccessibleName(tr("Use Folder’s Icon"));
  auto* texts = new QVBoxLayout;
  texts->setSpacing(4);
  texts->addStretch();
  texts->addWidget(_heading);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(6);
  buttons->addWidget(_chooseButton, 1);
  buttons->addWidget(_clearButton);
  texts->addLayout(buttons);
  texts->addStretch();
  inside->addWidget(_thumbnail);
  inside->addLayout(texts, 1);
  return _card;
}

QWidget* BaseColumn::pictureCard() const {
  return _card;
}

QList<QWidget*> BaseColumn::tabOrder() const {
  return QList<QWidget*>{_chooseButton, _clearButton} + _library->tabOrder();
}

void BaseColumn::showPicture(const std::optional<Image>& picture) {
  const bool isSame = picture && _picture && picture->isSameAs(*_picture);
  if (isSame || (!picture && !_picture && !_heading->text().isEmpty())) return;
  _picture = picture;
  _heading->setText(picture ? tr("Chosen picture") : tr("The folder’s own icon"));
  _card->setToolTip(
      picture ? tr("The label is drawn on this picture.")
              : tr("The label is drawn on it. To draw on something else, choose a picture or drop one here."));
  _heading->setAccessibleName(_heading->text());
  _clearButton->setVisible(picture.has_value());
  _drawPicture();
}

void BaseColumn::setPictureName(const QString& name) {
  _heading->setText(name);
  _heading->setAccessibleName(name);
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

}  // namespace quorvane
