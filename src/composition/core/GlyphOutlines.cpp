// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/GlyphOutlines.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

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

}  // namespace

QPainterPath glyphOutlines(const QGlyphRun& run) {
  PathDevice device;
  QPainter painter(&device);
  painter.drawGlyphRun(QPointF(), run);
  painter.end();
  QPainterPath path = device.path();
  path.setFillRule(Qt::WindingFill);
  return path;
}

}  // namespace quorvane
