// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/LibraryDelegates.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPainter>
#include <QTableView>
#include <algorithm>
#include <cmath>

#include "library/view/Thumbnails.h"

namespace quorvane {

namespace {

constexpr int margin = 6;

QPalette::ColorGroup groupOf(const QStyleOptionViewItem& option) {
  return option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
}

QRect mirrored(const QStyleOptionViewItem& option, const QRect& place) {
  return QStyle::visualRect(option.direction, option.rect, place);
}

}  // namespace

void LibraryRowDelegate::drawRowsOf(QTableView& table) {
  table.setItemDelegate(this);
  table.setMouseTracking(true);
  // The one column is as narrow as the table.
  table.horizontalHeader()->setMinimumSectionSize(1);
  table.horizontalHeader()->setStretchLastSection(false);
  table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table.viewport()->setAttribute(Qt::WA_Hover);
  // The style fills selected rows before a delegate is asked; this keeps it from being seen.
  QPalette palette;
  palette.setColor(QPalette::All, QPalette::Highlight, Qt::transparent);
  table.setPalette(palette);
}

void LibraryRowDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                              const QModelIndex& /*index*/) const {
  editor->setGeometry(option.rect);
}

void LibraryRowDelegate::drawGround(QPainter& painter, const QStyleOptionViewItem& option) {
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
  const bool isFocused = option.state.testFlag(QStyle::State_HasFocus);
  if (!isSelected && !isHovered && !isFocused) return;
  const QRectF place = QRectF(option.rect).adjusted(3, 1.5, -3, -1.5);
  // Of the application: the table's own is taken, see drawRowsOf().
  const QColor accent = QGuiApplication::palette().color(groupOf(option), QPalette::Highlight);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  if (isSelected) {
    QColor tint = accent;
    tint.setAlphaF(0.16F);
    painter.setBrush(tint);
    painter.setPen(QPen(accent, isFocused ? 2 : 1));
  } else {
    painter.setBrush(isHovered ? option.palette.brush(QPalette::AlternateBase) : Qt::NoBrush);
    if (isFocused) painter.setPen(QPen(accent, 1, Qt::DashLine));
  }
  painter.drawRoundedRect(place, 7, 7);
}

void LibraryRowDelegate::drawText(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place,
                                  const QString& text, QPalette::ColorRole role, Qt::Alignment alignment) {
  painter.setFont(option.font);
  painter.setPen(option.palette.color(groupOf(option), role));
  painter.drawText(place, static_cast<int>(QStyle::visualAlignment(option.direction, alignment) | Qt::TextSingleLine),
                   option.fontMetrics.elidedText(text, Qt::ElideRight, place.width()));
}

int SetDelegate::rowHeight(const QFont& font) {
  return std::max(30, QFontMetrics(font).height() + 14);
}

void SetDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  painter->save();
  drawGround(*painter, option);
  const QString name = index.data(Qt::DisplayRole).toString();
  const QString detail = index.data(DetailRole).toString();
  QRect place = option.rect.adjusted(margin + 5, 0, -margin - 5, 0);
  const int detailWidth = option.fontMetrics.horizontalAdvance(detail) + margin;
  // The name has the right of way.
  if (!detail.isEmpty() && option.fontMetrics.horizontalAdvance(name) + detailWidth <= place.width()) {
    const QRect right(place.right() - detailWidth + 1, place.top(), detailWidth, place.height());
    drawText(*painter, option, mirrored(option, right), detail, QPalette::PlaceholderText,
             Qt::AlignTrailing | Qt::AlignVCenter);
    place.setRight(right.left() - 1);
  }
  drawText(*painter, option, mirrored(option, place), name, QPalette::Text, Qt::AlignLeading | Qt::AlignVCenter);
  painter->restore();
}

IconDelegate::IconDelegate(Thumbnails& thumbnails, QObject* parent)
    : LibraryRowDelegate(parent), _thumbnails(thumbnails) {}

int IconDelegate::rowHeight(const QFont& font, bool hasDetail) const {
  const int texts = QFontMetrics(font).height() * (hasDetail ? 2 : 1);
  return _isBeside() ? std::max(_side, texts) + 2 * margin : _side + texts + 2 * margin + 4;
}

void IconDelegate::_drawPicture(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place,
                                const IconRecord& record) const {
  const double density = painter.device()->devicePixelRatioF();
  const int side = std::min(place.width(), place.height());
  const auto picture = _thumbnails.picture(record, static_cast<int>(std::lround(side * density)));
  if (picture && !picture->isNull()) {
    const QSizeF size = QSizeF(picture->size()) / density;
    const QPointF corner(place.center().x() + 0.5 - size.width() / 2, place.center().y() + 0.5 - size.height() / 2);
    // On whole pixels, or it would be blurred.
    const QPointF snapped(std::round(corner.x() * density) / density, std::round(corner.y() * density) / density);
    return painter.drawImage(QRectF(snapped, size), *picture);
  }
  QColor ground = option.palette.color(QPalette::Midlight);
  ground.setAlphaF(0.5F);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  QRectF square(0, 0, side * 0.75, side * 0.75);
  square.moveCenter(QRectF(place).center());
  painter.drawRoundedRect(square, side * 0.14, side * 0.14);
}

void IconDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  painter->save();
  drawGround(*painter, option);
  const QString name = index.data(Qt::DisplayRole).toString();
  const QString detail = index.data(DetailRole).toString();
  const auto record = index.data(IconRecordRole).value<IconRecord>();
  const QRect inside = option.rect.adjusted(margin + 2, margin, -margin - 2, -margin);
  const int line = option.fontMetrics.height();
  const int lines = detail.isEmpty() ? 1 : 2;
  QRect picture(inside.left(), inside.top(), inside.width(), _side);
  QRect text(inside.left(), inside.bottom() + 1 - lines * line, inside.width(), line);
  Qt::Alignment alignment = Qt::AlignCenter;
  if (_isBeside()) {
    picture = QRect(inside.left(), inside.top(), _side, inside.height());
    text = QRect(picture.right() + 9, inside.center().y() + 1 - lines * line / 2,
                 std::max(0, inside.right() - picture.right() - 9), line);
    alignment = Qt::AlignLeading | Qt::AlignVCenter;
  }
  _drawPicture(*painter, option, mirrored(option, picture), record);
  drawText(*painter, option, mirrored(option, text), name, QPalette::Text, alignment);
  if (lines > 1) {
    drawText(*painter, option, mirrored(option, text.translated(0, line)), detail, QPalette::PlaceholderText,
             alignment);
  }
  painter->restore();
}

}  // namespace quorvane
