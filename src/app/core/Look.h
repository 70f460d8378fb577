// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <optional>
#include <string>

#include "composition/core/IconOverlay.h"
#include "composition/core/LabelValues.h"
#include "foundation/base/Geometry.h"
#include "foundation/base/Result.h"
#include "imaging/Image.h"

namespace quorvane {

/// Everything that makes up a branded icon save the picture it is drawn on, in the words that people choose it by.
/// The overlay's other values may be given before its drawing is: without one it is not drawn.
struct Look {
  QString label;         ///< null: no label
  std::string fontName;  ///< family, or family and style; empty: the system font, bold where it can be
  /// On a canvas of 128 units; the label shrinks until it fits the icon. None: as large as fits the front of a folder.
  std::optional<double> fontSize;
  QColor color = Qt::black;
  int effectTag = 0;  ///< EffectPresets.h
  float lineSpacingFactor = 1;
  Point labelCenter{64, 64};
  float shearFactor = 0;
  float rotation = 0;
  float opacity = 1;
  std::optional<QColor> tint;
  IconOverlay overlay;
};

/// The font of a name: a family, or a family followed by one of its styles, whatever the letters' case. Empty gives the
/// system font, bold where it can be: thin strokes do not survive small icons. Fails on a name that no installed font
/// has. Needs a QGuiApplication.
Result<LabelFont> labelFontNamed(const std::string& name, double size);

/// The label drawn on the picture, which has no fewer than 512 pixels a side then. Needs a QGuiApplication.
Result<Image> composeIcon(const Look& look, const Image& base);

}  // namespace quorvane
