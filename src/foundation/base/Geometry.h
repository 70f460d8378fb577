// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvane {

/// A point in canvas units (or pixels, where said), y upwards. 32-bit floats: what the canvas computes with.
struct Point {
  float x = 0;
  float y = 0;
  bool operator==(const Point&) const = default;
};

/// A width and a height in canvas units (or pixels, where said).
struct Size {
  float width = 0;
  float height = 0;
  bool operator==(const Size&) const = default;
};

/// A rectangle; `origin` is the bottom-left corner.
struct Rect {
  Point origin;
  Size size;
  bool operator==(const Rect&) const = default;
};

}  // namespace quorvane
