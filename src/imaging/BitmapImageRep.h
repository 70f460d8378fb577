// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QTransform>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

#include "foundation/base/Bytes.h"
#include "foundation/base/Geometry.h"

class QPainter;

namespace quorvane {

/// How pixels between samples are found when a picture is drawn at another size.
enum class ImageInterpolation { Default = 0, None = 1, Low = 2, High = 3 };

/// How the samples of a bitmap lie in memory. Rows run from top to bottom; the leftmost pixel stands in the high bits
/// of a byte, and 16-bit samples have their high byte first. Grey counts from black (0) to white.
struct BitmapLayout {
  int pixelsWide = 0;
  int pixelsHigh = 0;
  int bitsPerSample = 8;        ///< 1, 2, 4, 8 or 16
  int samplesPerPixel = 4;      ///< 1 grey, 2 grey and alpha, 3 RGB, 4 RGBA
  int bitsPerPixel = 32;        ///< bitsPerSample when planar. 0 in a request: as many as the samples need.
  int bytesPerRow = 0;          ///< 0 in a request: as many as the pixels need. Per plane when planar.
  bool hasAlpha = true;         ///< one of the samples is alpha
  bool alphaFirst = false;      ///< alpha is the first sample of a pixel, not the last
  bool isPremultiplied = true;  ///< colour is multiplied by alpha
  bool isPlanar = false;        ///< one plane a sample, one after the other

  /// 8-bit RGBA, alpha last, premultiplied: what this system makes itself.
  static BitmapLayout rgba(int width, int height) { return {.pixelsWide = width, .pixelsHigh = height}; }
  bool operator==(const BitmapLayout&) const = default;
};

/// A bitmap: a layout and its bytes. A value; copies share the pixels until one is written to.
class BitmapImageRep {
 public:
  /// An empty bitmap of the standard layout, 0 x 0.
  BitmapImageRep();
  /// A copy shares the pixels but not the focus: what the original's painter draws later stays the original's.
  BitmapImageRep(const BitmapImageRep& other);
  BitmapImageRep(BitmapImageRep&&) noexcept;
  BitmapImageRep& operator=(const BitmapImageRep& other);
  BitmapImageRep& operator=(BitmapImageRep&&) noexcept;
  ~BitmapImageRep();

  /// A zero-filled bitmap of any layout; nullopt when the layout contradicts itself or is over the limits.
  static std::optional<BitmapImageRep> bitmapImageRepWithLayout(const BitmapLayout& layout);
  /// The same over given bytes (at least bytesPerRow * pixelsHigh of them, times the samples when planar).
  static std::optional<BitmapImageRep> bitmapImageRepWithLayout(const BitmapLayout& layout, Bytes pixels);

  /// A transparent 8-bit RGBA bitmap; the size is cut to whole pixels. Empty for a size that is not positive or over
  /// the limits.
  static BitmapImageRep bitmapImageRepWithSize(Size size);
  /// The decoded picture drawn into an RGBA bitmap of its pixel size; a colour space that it carries is converted to
  /// sRGB. nullopt for a null picture.
  static std::optional<BitmapImageRep> bitmapImageRepWithCGImageRef(const QImage& image);
  /// The first picture of the file; nullopt for an empty path or when it cannot be read.
  static std::optional<BitmapImageRep> bitmapImageRepWithContentsOfFile(const std::filesystem::path& path);

  [[nodiscard]] const BitmapLayout& layout() const { return _layout; }
  [[nodiscard]] int pixelsWide() const { return _layout.pixelsWide; }
  [[nodiscard]] int pixelsHigh() const { return _layout.pixelsHigh; }
  [[nodiscard]] int bitsPerSample() const { return _layout.bitsPerSample; }
  [[nodiscard]] int samplesPerPixel() const { return _layout.samplesPerPixel; }
  [[nodiscard]] int bitsPerPixel() const { return _layout.bitsPerPixel; }
  [[nodiscard]] int bytesPerRow() const { return _layout.bytesPerRow; }
  [[nodiscard]] bool isPlanar() const { return _layout.isPlanar; }
  /// True for the layout of bitmapImageRepWithSize(), whatever the length of a row.
  [[nodiscard]] bool isStandard() const;

  /// Size in points; the pixel size until setSize().
  [[nodiscard]] Size size() const { return _size; }
  void setSize(Size size) { _size = size; }

  [[nodiscard]] ByteView bitmapData() const;
  [[nodiscard]] const std::uint8_t* row(int y) const;
  /// For writing; takes a private copy of the pixels when they are shared.
  [[nodiscard]] std::uint8_t* mutableRow(int y);

  /// The pixels as a drawing-library image, ARGB32_Premultiplied. Any layout.
  [[nodiscard]] QImage toImage() const;
  /// The same picture in the standard layout (itself when it is standard).
  [[nodiscard]] BitmapImageRep toStandard() const;

  /// Draws into the bitmap until unlockFocus(): one unit a pixel, origin at the bottom left, y upwards, smooth edges. A
  /// bitmap of another layout becomes standard. The painter belongs to the bitmap and ends with unlockFocus(), which is
  /// when the pixels change. Locks nest; each begins with a painter in its first state.
  QPainter& lockFocus();
  void unlockFocus();

  /// A new standard bitmap of `size` (cut to whole pixels) with the whole of this one drawn over the background.
  [[nodiscard]] BitmapImageRep bitmapImageRepByScalingToSize(Size size, ImageInterpolation interpolation,
                                                             const std::optional<QColor>& backgroundColor) const;
  /// A new standard bitmap with this one drawn through `transform` (y upwards). Leaves `transform` inverted (one that
  /// has no inverse stays, and draws nothing). Quarter turns and mirroring at whole offsets are exact.
  [[nodiscard]] BitmapImageRep bitmapImageRepByApplyingTransform(QTransform& transform, Size size) const;
  [[nodiscard]] BitmapImageRep bitmapImageRepByRotatingClockwise() const;
  [[nodiscard]] BitmapImageRep bitmapImageRepByRotatingCounterClockwise() const;
  [[nodiscard]] BitmapImageRep bitmapImageRepByRotating180() const;

  /// 0 to 255 from the bytes at bytesPerRow * y + x * samplesPerPixel: weighted for exactly 3 samples a pixel, else
  /// the first sample (red of RGBA). That is meant. Unchecked: x and y must lie inside.
  [[nodiscard]] unsigned brightnessAtX(int x, int y) const;

 private:
  struct Focus;

  BitmapLayout _layout;
  Size _size;
  std::shared_ptr<Bytes> _pixels;
  std::unique_ptr<Focus> _focus;
};

}  // namespace quorvane
