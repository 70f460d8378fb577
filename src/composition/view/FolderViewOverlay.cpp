// SPDX-License-Identifier: GPL-3.0-or-later
// The overlay: what of it lies under the mouse, and moving it.
#include <QCoreApplication>
#include <QLocale>
#include <cmath>
#include <utility>

#include "composition/core/Emblems.h"
#include "composition/core/LabelGeometry.h"
#include "composition/view/FolderView.h"

namespace quorvane {

namespace {

// How far from its ink something can still be taken hold of, in logical pixels.
constexpr double grip = 3;
// Less alpha than this is not seen.
constexpr int leastSeen = 24;

bool isSeenNear(const LabelLayer& layer, QPointF place, double density) {
  if (layer.pixels.isNull()) return false;
  const double reach = std::max(1.0, grip * density);
  const QRect near = QRectF(place.x() * density - reach, place.y() * density - reach, 2 * reach, 2 * reach)
                         .toAlignedRect()
                         .translated(-layer.topLeft) &
                     layer.pixels.rect();
  for (int y = near.top(); y <= near.bottom(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(layer.pixels.constScanLine(y));
    for (int x = near.left(); x <= near.right(); ++x)
      if (qAlpha(row[x]) >= leastSeen) return true;
  }
  return false;
}

}  // namespace

bool FolderView::isOverlayAt(QPointF place) const {
  return _drawnOverlay && isSeenNear(_drawnOverlay->layer, place, _drawnDensity) &&
         !isSeenNear(_drawnLabel, place, _drawnDensity);
}

void FolderView::setOverlaySelected(bool selected) {
  selected = selected && hasOverlay();
  if (selected == _overlaySelected) return;
  finishKeyMoves();
  _overlaySelected = selected;
  tellAssistiveTechnology();
  update();
}

void FolderView::setOverlayCenter(Point center) {
  if (!_composition.overlay()) return;
  IconOverlay moved = *_composition.overlay();
  moved.center = center;
  _composition.setOverlay(std::move(moved));
}

void FolderView::overlayDown(QPointF place) {
  finishKeyMoves();
  _overlayDrag = {place, _composition.overlay()->center};
  resetCursorRects();
}

void FolderView::overlayDragged(QPointF place) {
  if (_overlayDrag->isCancelled) return;
  const QPointF by = (place - _overlayDrag->start) / magnification();
  const Point center = _overlayDrag->center;
  setOverlayCenter({center.x + static_cast<float>(by.x()), center.y - static_cast<float>(by.y())});
}

void FolderView::overlayUp() {
  const auto drag = std::exchange(_overlayDrag, std::nullopt);
  resetCursorRects();
  update();
  if (!drag->isCancelled) tellOverlayMove(drag->center);
}

void FolderView::tellOverlayMove(Point from) {
  if (!_composition.overlay() || _composition.overlay()->center == from) return;
  tellAssistiveTechnology();
  Q_EMIT overlayMoved(from, _composition.overlay()->center);
}

QString FolderView::overlayDescription() const {
  if (!hasOverlay()) return {};
  const IconOverlay& overlay = *_composition.overlay();
  QString what = tr("picture");
  if (const auto* emblem = std::get_if<OverlayEmblem>(&overlay.drawing)) {
    const Emblem* known = emblemNamed(emblem->name);
    what = known ? QCoreApplication::translate("Emblems", known->title.toUtf8().constData()) : emblem->name;
  } else if (const auto* emoji = std::get_if<OverlayEmoji>(&overlay.drawing)) {
    what = emoji->text;
  }
  QString text = _overlaySelected ? tr(", overlay “%what” selected, %x from the left and %y from the bottom")
                                  : tr(", overlay “%what”, %x from the left and %y from the bottom");
  text.replace(QLatin1String("%x"), locale().toString(qRound(overlay.center.x)));
  text.replace(QLatin1String("%y"), locale().toString(qRound(overlay.center.y)));
  text.replace(QLatin1String("%what"), what);
  return text;
}

}  // namespace quorvane
