// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>
#include <array>
#include <functional>
#include <optional>

#include "composition/core/IconOverlay.h"
#include "composition/core/LabelLegibility.h"
#include "composition/core/LabelValues.h"
#include "imaging/Image.h"

namespace quorvane {

/// Sides of the icons in a preview, in logical pixels.
inline constexpr std::array previewSizes{128, 64, 48, 32, 24, 16};

/// Makes of the composed icon the forms that would be written. Called in another thread than it is given in, by one at
/// a time.
using IconForms = std::function<Image(const Image& composed)>;

/// What previews are made of: values only.
struct PreviewSubject {
  Image picture;
  std::optional<IconOverlay> overlay;
  std::optional<QString> label;
  LabelLook look;
  double density = 1;  ///< pixels a logical pixel
  bool operator==(const PreviewSubject& other) const;
};

struct PreviewIcons {
  std::array<QImage, previewSizes.size()> icons;  ///< in the order of previewSizes, density not set
  LabelLegibility legibility;
};

/// Composes the icon, has its forms made (without a function: it is the only form), and draws each size from the form
/// that file managers would take. Some tens of milliseconds.
[[nodiscard]] PreviewIcons makePreviewIcons(const PreviewSubject& subject, const IconForms& forms);

}  // namespace quorvane
