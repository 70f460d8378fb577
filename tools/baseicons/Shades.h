// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <optional>

namespace quorvane::baseicons {

/// A colour by how it is seen: lightness 0 to 100, chroma from 0 (grey) to about 0.3, hue in degrees (OKLab's cylinder,
/// in which equal steps of lightness look equal in every hue).
struct Tone {
  double lightness = 0;
  double chroma = 0;
  double hue = 0;
};

/// The colour in sRGB; chroma is taken back until it fits.
QColor toColor(const Tone& tone);

/// The colour that a drawing asks for, seen from the icon's own: "+8" or "-12" points of lightness away from it ("0" is
/// the colour itself; a light colour goes up in smaller steps), "=40" at that lightness; then "cNN" for that percentage
/// of its chroma. A darker shade of a warm hue turns redder, as things do in shade. nullopt for any other text.
std::optional<QColor> shade(const Tone& base, const QString& wish);

}  // namespace quorvane::baseicons
