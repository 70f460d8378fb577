// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/PreviewStrip.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QRunnable>
#include <QToolTip>
#include <array>
#include <cmath>

#include "composition/core/IconComposition.h"
#include "composition/view/PixelGrid.h"

namespace quorvane {

namespace {

constexpr int padding = 12;
constexpr int gap = 16;
constexpr int spacing = 12;
constexpr double cornerRadius = 10;

/// Places of the icons within the smallest ground, in the order of previewSizes: the largest, then two columns that
/// stand on common lines.
constexpr std::array iconOrigins{
    QPoint(padding, padding),
    QPoint(padding + 128 + gap, padding),
    QPoint(padding + 128 + gap, padding + 128 - 48),
    QPoint(padding + 128 + gap + 64 + gap, padding + 64 - 32),
    QPoint(padding + 128 + gap + 64 + gap, padding + 64 + 12),
    QPoint(padding + 128 + gap + 64 + gap, padding + 128 - 16),
};
constexpr QSize groundSize(padding + 128 + gap + 64 + gap + 32 + padding, padding + 128 + padding);
static_assert(iconOrigins.size() == previewSizes.size());
// A narrow ground goes without the largest icon, which the canvas shows larger still.
constexpr int largestWidth = 128 + gap;
constexpr int narrowWidth = groundSize.width() - largestWidth;

// Not the palette's: they stand for the windows of file managers, light and dark, whatever ours is.
struct Ground {
  QColor color;
  QColor line;
};
const std::array<Ground, 2> groundColors{Ground{QColor(255, 255, 255), QColor(0, 0, 0, 36)},
                                         Ground{QColor(36, 38, 41), QColor(255, 255, 255, 36)}};

int hintHeight(const QWidget& widget) {
  return spacing / 2 + widget.fontMetrics().height() + 2;
}

bool fitsSideBySide(int width) {
  return width >= 2 * narrowWidth + spacing;
}

}  // namespace

PreviewStrip::PreviewStrip(IconForms forms, QWidget* parent) : QWidget(parent), _forms(std::move(forms)) {
  _pool.setMaxThreadCount(1);
  _pool.setThreadPriority(QThread::LowPriority);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  setAccessibleName(tr("Preview"));
}

PreviewStrip::~PreviewStrip() {
  _pool.waitForDone();
}

void PreviewStrip::setComposition(const IconComposition& composition) {
  const auto picture = composition.displayedImage();
  if (!picture) {
    _wanted.reset();
    _icons = {};
    setHint(QString());
    update();
    return;
  }
  PreviewSubject subject{*picture, composition.overlay(), composition.label(), composition.look(), devicePixelRatioF()};
  if (_wanted == subject) return;
  _wanted = subject;
  if (!_running) start(std::move(subject));
}

void PreviewStrip::start(PreviewSubject subject) {
  _running = std::move(subject);
  _pool.start(QRunnable::create([this, wish = *_running, forms = _forms] {
    PreviewIcons icons = makePreviewIcons(wish, forms);
    // This lives until the pool is done; should it end before the event comes, the event is dropped.
    QMetaObject::invokeMethod(
        this, [this, icons = std::move(icons)] { finished(icons); }, Qt::QueuedConnection);
  }));
}

void PreviewStrip::finished(const PreviewIcons& icons) {
  const bool isLatest = _wanted == _running;
  _running.reset();
  if (!_wanted) return;
  // Also what is no longer the latest: in a long drag there is always something newer.
  _icons = icons;
  update();
  if (!isLatest) return start(*_wanted);
  setHint(hintFor(icons.legibility));
  Q_EMIT settled();
}

void PreviewStrip::setHint(const QString& hint) {
  if (hint == _hint) return;
  _hint = hint;
  setAccessibleDescription(hint);
  update();
  Q_EMIT hintChanged(hint);
}

QString PreviewStrip::hintFor(const LabelLegibility& legibility) {
  if (legibility.isTooSmall() && legibility.isTooFaint())
    return tr("The label is too small to be read at 48 pixels and hardly stands out from the picture.");
  if (legibility.isTooSmall()) return tr("The label is too small to be read at 48 pixels.");
  if (legibility.isTooFaint()) return tr("The label hardly stands out from the picture.");
  return {};
}

int PreviewStrip::heightForWidth(int width) const {
  return (fitsSideBySide(width) ? groundSize.height() : 2 * groundSize.height() + spacing) + hintHeight(*this);
}

QSize PreviewStrip::sizeHint() const {
  const int width = 2 * groundSize.width() + spacing;
  return {width, heightForWidth(width)};
}

QSize PreviewStrip::minimumSizeHint() const {
  return {2 * narrowWidth + spacing, heightForWidth(width())};
}

std::array<QRect, 2> PreviewStrip::grounds() const {
  const int high = groundSize.height();
  if (!fitsSideBySide(width())) return {QRect(0, 0, width(), high), QRect(0, high + spacing, width(), high)};
  // An odd pixel goes into the gap.
  const int wide = (width() - spacing) / 2;
  return {QRect(0, 0, wide, high), QRect(width() - wide, 0, wide, high)};
}

std::array<QRect, previewSizes.size()> PreviewStrip::iconPlaces(const QRect& ground) {
  const bool isNarrow = ground.width() < groundSize.width();
  const int wide = isNarrow ? narrowWidth : groundSize.width();
  const QPoint left = ground.topLeft() + QPoint((ground.width() - wide) / 2 - (isNarrow ? largestWidth : 0), 0);
  std::array<QRect, previewSizes.size()> places;
  for (std::size_t i = isNarrow ? 1 : 0; i < places.size(); ++i)
    places[i] = QRect(left + iconOrigins[i], QSize(previewSizes[i], previewSizes[i]));
  return places;
}

QRect PreviewStrip::hintRect() const {
  const int top = grounds()[1].bottom() + 1 + spacing / 2;
  return {0, top, width(), fontMetrics().height() + 2};
}

void PreviewStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const std::array<QRect, 2> places = grounds();
  for (std::size_t i = 0; i < places.size(); ++i) {
    painter.setPen(groundColors[i].line);
    painter.setBrush(groundColors[i].color);
    painter.drawRoundedRect(QRectF(places[i]).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
  }
  drawIcons(painter);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(hintRect(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                   fontMetrics().elidedText(_hint, Qt::ElideRight, width()));
}

void PreviewStrip::drawIcons(QPainter& painter) {
  const double density = pixelsPerLogicalPixel(painter);
  if (_wanted && density != _wanted->density) {
    // The window came to another screen, or is drawn for one. What is there stays until there is something better.
    _wanted->density = density;
    if (!_running) start(*_wanted);
  }
  painter.save();
  enterPixels(painter);
  for (const QRect& ground : grounds()) {
    const auto places = iconPlaces(ground);
    for (std::size_t i = 0; i < places.size(); ++i) {
      const QPointF place = QPointF(places[i].topLeft()) * density;
      const double side = std::round(previewSizes[i] * density);
      if (!_icons.icons[i].isNull() && !places[i].isEmpty())
        painter.drawImage(QRectF(QPointF(place.toPoint()), QSizeF(side, side)), _icons.icons[i]);
    }
  }
  painter.restore();
}

bool PreviewStrip::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  for (const QRect& ground : grounds()) {
    for (const QRect& place : iconPlaces(ground)) {
      if (!place.contains(help->pos())) continue;
      QToolTip::showText(help->globalPos(), tr("%1 × %1 pixels").arg(locale().toString(place.width())), this, place);
      return true;
    }
  }
  if (!_hint.isEmpty() && hintRect().contains(help->pos()))
    QToolTip::showText(help->globalPos(), _hint, this, hintRect());
  else
    QToolTip::hideText();
  return true;
}

}  // namespace quorvane
