// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

#include "composition/core/IconComposition.h"

namespace quorvane {

/// What an edit changed.
enum class EditKind {
  Label,
  Position,
  Font,
  FontSize,
  Color,
  Effect,
  LineSpacing,
  Shear,
  Rotation,
  Opacity,
  BaseIcon,
  Tint,
  Overlay,  ///< chosen, taken away, or several of its values at once
  OverlayPosition,
  OverlaySize,
  OverlayOpacity,
  OverlayColor,
  Transform,  ///< shear and rotation at once
  Look,       ///< several values at once
};

/// All that the user edits of a composition: everything save the folder's own icon. Pictures are shared, not copied.
struct EditedValues {
  std::optional<QString> label;
  std::optional<Image> baseIcon;
  std::optional<QColor> tint;
  std::optional<IconOverlay> overlay;
  LabelLook look;

  static EditedValues of(const IconComposition& composition);
  /// Sets what is different there, and nothing else.
  void applyTo(IconComposition& composition) const;
};

/// What is different in both; nullopt when nothing is. No label and an empty one are the same, as they look the same.
std::optional<EditKind> editBetween(const EditedValues& before, const EditedValues& after);

}  // namespace quorvane
