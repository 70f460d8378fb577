// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

#include "imaging/Image.h"
#include "imaging/OkLab.h"

namespace quorvane {

/// The colour that most of a picture's body has.
struct BodyColor {
  OkLab color;
  /// 0 for a picture of greys, 1 for one whose body is plainly coloured.
  float colorfulness = 0;

  /// Pixels count by their alpha. Of a picture that is partly coloured (a folder with white paper in it) the coloured
  /// part is the body; of one with but a spot of colour the grey is.
  static BodyColor of(const BitmapImageRep& bitmap);
};

/// How colours change under a tint. The body's colour becomes the tint's, black stays black and white white, and
/// between them lightness rises as before, with the steps near the body kept, so that shading neither drowns nor
/// glares. Hues turn by as much as the body's, those beside it ending somewhat closer to it; chroma grows with it. What
/// is grey in a coloured picture stays as it is, and so do colours far from the body's. A picture of greys takes the
/// tint's colour by lightness; where its body is paper, white goes with the body.
///
/// The tint's alpha is its strength. Of tints next to black or white the lightness is not taken to the end: there would
/// be no shading left.
class TintMap {
 public:
  TintMap(const BodyColor& body, const QColor& tint);

  /// The tinted colour, which a screen can show.
  [[nodiscard]] OkLab operator()(const OkLab& color) const;

 private:
  struct Curve {
    float from = 0.5F;  ///< the body's lightness
    float to = 0.5F;    ///< the tint's
    float white = 1;    ///< what white becomes
    float belowSlope = 1;
    float aboveSlope = 1;
    [[nodiscard]] float operator()(float lightness) const;
  };

  [[nodiscard]] OkLab coloredPart(const OkLab& color) const;
  [[nodiscard]] OkLab greyPart(const OkLab& color) const;

  BodyColor _body;
  OkLab _tint;
  float _strength = 1;
  Curve _curve;
  float _bodyChroma = 0;
};

/// The bitmap recoloured: a standard one of the same sizes, whatever the layout was. Alpha stays to the letter.
BitmapImageRep tinted(const BitmapImageRep& bitmap, const TintMap& map);

/// The image recoloured; every representation by the same body colour. Each is made when it is first asked for.
Image tinted(const Image& image, const QColor& tint);

}  // namespace quorvane
