// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>
#include <optional>

#include "composition/view/PixelGrid.h"
#include "foundation/base/Geometry.h"
#include "imaging/Image.h"

class QPainter;

namespace quorvane {

/// Shows an image in its middle, one view unit a canvas unit, in a frame: a rounded card with a hairline, a ring while
/// it has the keyboard, and a tint while something acceptable hovers over it. All colours come from the palette.
///
/// View units are logical pixels divided by the magnification, origin at the bottom left, y upwards. The picture is
/// drawn from its best representation at the screen's own pixels, resampled once and kept until image, magnification
/// or density change. Layout direction plays no part.
class ImageView : public QWidget {
  Q_OBJECT

 public:
  static constexpr int largestMagnification = 3;

  explicit ImageView(QWidget* parent = nullptr);

  /// Shows the image; nullopt shows an empty frame.
  virtual void setImage(std::optional<Image> image);
  [[nodiscard]] const std::optional<Image>& image() const { return _image; }

  /// Logical pixels a view unit: 1 to largestMagnification; what lies outside is brought inside.
  void setMagnification(int magnification);
  [[nodiscard]] int magnification() const { return _magnification; }

  /// The view's size in view units. Its origin is (0, 0).
  [[nodiscard]] Size bounds() const;

  /// The displayed image's bottom-left corner in view units; (0, 0) without an image.
  [[nodiscard]] Point _imageOrigin() const;
  /// A point of the displayed image (canvas units) in view units.
  [[nodiscard]] Point _translatePointWrtBounds(Point point) const;

  /// Room for an icon, some margin and the frame.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void magnificationChanged(int magnification);

 protected:
  /// Draws everything. The painter is the widget's, as it begins.
  virtual void drawRect(QPainter& painter);
  /// Grid of the displayed image under that painter.
  [[nodiscard]] PixelGrid imageGrid(const QPainter& painter) const;
  [[nodiscard]] Size imageSize() const { return _image ? _image->size() : Size(); }

  void setHighlighted(bool highlighted);
  [[nodiscard]] bool isHighlighted() const { return _highlighted; }

  void paintEvent(QPaintEvent* event) override;

 private:
  void drawFrame(QPainter& painter) const;
  void drawPicture(QPainter& painter);

  std::optional<Image> _image;
  int _magnification = 1;
  bool _highlighted = false;

  struct DrawnPicture {
    std::optional<Image> image;
    QSizeF pixelSize;
    QImage pixels;
  };
  DrawnPicture _drawn;
};

}  // namespace quorvane
