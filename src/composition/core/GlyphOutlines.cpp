// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/GlyphOutlines.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <algorithm>

namespace quorvane {

namespace {

/// Draws nothing and keeps every path it is asked to draw: for an engine without text of its own, a painter turns
/// glyphs into paths.
class PathKeeper : public QPaintEngine {
 public:
  PathKeeper() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState&) override {}
  void drawPath(const QPainterPath& path) override { _path.addPath(path); }
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {}
  [[nodiscard]] Type type() const override { return User; }

  [[nodiscard]] const QPainterPath& path() const { return _path; }

 private:
  QPainterPath _path;
};

class PathDevice : public QPaintDevice {
 public:
  [[nodiscard]] QPaintEngine* paintEngine() const override { return &_keeper; }
  [[nodiscard]] const QPainterPath& path() const { return _keeper.path(); }

 protected:
  [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth:
      case PdmHeight:
        return 1 << 20;  // nothing lies outside
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
      default:
        return 1;
    }
  }

 private:
  mutable PathKeeper _keeper;
};

// Every pair of contours is compared, so long runs go in pieces.
constexpr qsizetype glyphsAtOnce = 32;

struct Contour {
  int firstElement = 0;
  int endElement = 0;
  QRectF box;
  std::size_t part = 0;  ///< the lowest number of a contour that it belongs together with
};

std::vector<Contour> contoursOf(const QPainterPath& path) {
  std::vector<Contour> contours;
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::Element& element = path.elementAt(i);
    if (element.isMoveTo() || contours.empty()) {
      contours.push_back({i, i, QRectF(element.x, element.y, 0, 0), contours.size()});
    }
    Contour& contour = contours.back();
    contour.endElement = i + 1;
    contour.box.setCoords(std::min(contour.box.left(), element.x), std::min(contour.box.top(), element.y),
                          std::max(contour.box.right(), element.x), std::max(contour.box.bottom(), element.y));
  }
  return contours;
}

/// Contours whose boxes lie apart do not change each other's winding; all others get the same part.
void joinContours(std::vector<Contour>& contours) {
  const auto meet = [](const QRectF& a, const QRectF& b) {
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
  };
  for (std::size_t i = 0; i < contours.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      if (contours[k].part == contours[i].part || !meet(contours[i].box, contours[k].box)) continue;
      const std::size_t kept = std::min(contours[i].part, contours[k].part);
      const std::size_t gone = std::max(contours[i].part, contours[k].part);
      for (std::size_t m = 0; m <= i; ++m) {
        if (contours[m].part == gone) contours[m].part = kept;
      }
    }
  }
}

void appendContour(QPainterPath& path, const QPainterPath& from, const Contour& contour) {
  for (int i = contour.firstElement; i < contour.endElement; ++i) {
    const QPainterPath::Element& element = from.elementAt(i);
    switch (element.type) {
      case QPainterPath::MoveToElement:
        path.moveTo(element);
        break;
      case QPainterPath::LineToElement:
        path.lineTo(element);
        break;
      case QPainterPath::CurveToElement:
        path.cubicTo(element, from.elementAt(i + 1), from.elementAt(i + 2));
        break;
      case QPainterPath::CurveToDataElement:
        break;  // taken with the element before
    }
  }
}

void appendOutlines(std::vector<QPainterPath>& outlines, const QGlyphRun& run) {
  PathDevice device;
  QPainter painter(&device);
  painter.drawGlyphRun(QPointF(), run);
  painter.end();
  const QPainterPath& whole = device.path();

  std::vector<Contour> contours = contoursOf(whole);
  joinContours(contours);
  std::vector<QPainterPath> parts(contours.size());
  for (const Contour& contour : contours) appendContour(parts[contour.part], whole, contour);
  for (QPainterPath& part : parts) {
    if (part.isEmpty()) continue;
    part.setFillRule(Qt::WindingFill);
    outlines.push_back(std::move(part));
  }
}

}  // namespace

std::vector<QPainterPath> glyphOutlines(const QGlyphRun& run) {
  std::vector<QPainterPath> outlines;
  const QList<quint32> indexes = run.glyphIndexes();
  const QList<QPointF> positions = run.positions();
  for (qsizetype start = 0; start < indexes.size(); start += glyphsAtOnce) {
    QGlyphRun piece;
    piece.setRawFont(run.rawFont());
    piece.setGlyphIndexes(indexes.mid(start, glyphsAtOnce));
    piece.setPositions(positions.mid(start, glyphsAtOnce));
    appendOutlines(outlines, piece);
  }
  return outlines;
}

}  // namespace quorvane
