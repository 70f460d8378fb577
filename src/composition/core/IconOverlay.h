// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <memory>
#include <optional>
#include <variant>

#include "foundation/base/Bytes.h"
#include "foundation/base/Geometry.h"
#include "foundation/base/Result.h"
#include "imaging/Image.h"

namespace quorvane {

/// An emblem by its name (Emblems.h).
struct OverlayEmblem {
  QString name;
  bool operator==(const OverlayEmblem&) const = default;
};

/// A character of any script: one as people count them, of several code points often.
struct OverlayEmoji {
  QString text;
  bool operator==(const OverlayEmoji&) const = default;
};

/// A picture small enough to be kept within a look, with the PNG file that it is there. A value; copies share it.
class OverlayPicture {
 public:
  /// Any picture, scaled down as far as limits::overlayPixels and limits::overlayBytes ask for.
  static Result<OverlayPicture> fromImage(const Image& image);
  /// A PNG file within these limits.
  static Result<OverlayPicture> fromPng(Bytes png);

  [[nodiscard]] const Image& image() const { return _content->image; }
  [[nodiscard]] const Bytes& png() const { return _content->png; }
  bool operator==(const OverlayPicture& other) const {
    return _content == other._content || _content->png == other._content->png;
  }

 private:
  struct Content {
    Image image;
    Bytes png;
  };
  explicit OverlayPicture(Content content) : _content(std::make_shared<const Content>(std::move(content))) {}
  std::shared_ptr<const Content> _content;
};

/// What an overlay shows; nothing as long as nothing is chosen.
using OverlayDrawing = std::variant<std::monostate, OverlayEmblem, OverlayEmoji, OverlayPicture>;

/// A drawing laid on an icon, under its label. Nothing is clamped here; what cannot be drawn is left out in drawing.
struct IconOverlay {
  /// Of a folder's front, and what fills half of it.
  static constexpr Point usualCenter{64, 58};
  static constexpr float usualSize = 52;

  OverlayDrawing drawing;
  Point center = usualCenter;   ///< on a canvas of 128 x 128 units, y upwards
  float size = usualSize;       ///< side of the square that the drawing fits into, in the same units
  float opacity = 1;            ///< 0 to 1
  std::optional<QColor> color;  ///< of emblems and characters without colours of their own; none: a shade of the icon's

  [[nodiscard]] bool hasDrawing() const { return drawing.index() != 0; }
  /// Whether the colour plays a part.
  [[nodiscard]] bool takesColor() const { return hasDrawing() && !std::holds_alternative<OverlayPicture>(drawing); }
  bool operator==(const IconOverlay&) const = default;
};

/// Fails on what is no single character, or a control.
Result<OverlayEmoji> overlayEmoji(const QString& text);

}  // namespace quorvane
