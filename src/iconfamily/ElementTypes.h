// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>

#include "foundation/base/FourCharCode.h"

namespace quorvane {

/// How the data of an element of an icon family is to be read.
enum class ElementForm {
  Packed24,         ///< packed red, green, blue; alpha from the mask element
  Packed24Wide,     ///< the same behind four zero bytes ('it32')
  Picture,          ///< PNG or JPEG 2000, alpha inside
  PackedOrPicture,  ///< Picture, or Packed24
  ArgbOrPicture,    ///< "ARGB" and four packed channels, or Picture
  Indexed8,         ///< system colour table; alpha from the 1-bit element
  Indexed4,         ///< small colour table; alpha from the 1-bit element
  Bit1,             ///< black and white, opaque
  Bit1AndMask,      ///< black and white, then the 1-bit mask
  Mask8,            ///< one opacity byte a pixel; no picture of its own
};

/// One element type of the format: its pixel size, form, and the element that supplies its alpha.
struct ElementType {
  FourCharCode type;
  int pixelsWide;
  int pixelsHigh;
  int scale;  ///< 2: the double-resolution picture of half the size in points
  ElementForm form;
  std::optional<FourCharCode> mask;

  /// False for masks.
  [[nodiscard]] bool isPicture() const { return form != ElementForm::Mask8; }
};

/// All element types that hold pictures or masks, best form of a size first.
std::span<const ElementType> elementTypes();

/// The row of a type; null for types without pixels ('TOC ', 'name' ...) and unknown ones.
const ElementType* elementType(FourCharCode type);

/// The unpacked data forms in which elements are handed to and fetched from the store.
enum class ElementData { Argb32, Indexed8, Mask8, Bit1AndMask };

/// One of the twelve element types that this system writes.
struct WrittenElement {
  FourCharCode type;
  int pixels;
  ElementData data;
};

std::span<const WrittenElement> writtenElements();
/// Null for a type that is never written.
const WrittenElement* writtenElement(FourCharCode type);

}  // namespace quorvane
