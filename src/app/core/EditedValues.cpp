// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/EditedValues.h"

namespace quorvane {

namespace {

bool isSame(const std::optional<Image>& a, const std::optional<Image>& b) {
  return a && b ? a->isSameAs(*b) : a.has_value() == b.has_value();
}

bool isSame(const std::optional<QString>& a, const std::optional<QString>& b) {
  return a.value_or(QString()) == b.value_or(QString());
}

bool isSizeAlone(const std::optional<LabelFont>& a, const std::optional<LabelFont>& b) {
  return a && b && a->withSize(b->size) == *b;
}

/// What of an overlay is different.
EditKind overlayEdit(const std::optional<IconOverlay>& a, const std::optional<IconOverlay>& b) {
  if (!a || !b) return EditKind::Overlay;
  IconOverlay changed = *a;
  const auto isAll = [&](EditKind kind) { return changed == *b ? std::optional(kind) : std::nullopt; };
  changed.center = b->center;
  if (const auto kind = isAll(EditKind::OverlayPosition)) return *kind;
  changed = *a;
  changed.size = b->size;
  if (const auto kind = isAll(EditKind::OverlaySize)) return *kind;
  changed = *a;
  changed.opacity = b->opacity;
  if (const auto kind = isAll(EditKind::OverlayOpacity)) return *kind;
  changed = *a;
  changed.color = b->color;
  return isAll(EditKind::OverlayColor).value_or(EditKind::Overlay);
}

/// Collects what is different; two different things make a new look.
class Difference {
 public:
  void add(bool isDifferent, EditKind kind) {
    if (!isDifferent) return;
    const bool isTransform = _kind == EditKind::Shear && kind == EditKind::Rotation;
    _kind = !_kind ? kind : isTransform ? EditKind::Transform : EditKind::Look;
  }
  [[nodiscard]] std::optional<EditKind> kind() const { return _kind; }

 private:
  std::optional<EditKind> _kind;
};

}  // namespace

EditedValues EditedValues::of(const IconComposition& composition) {
  return {composition.label(), composition.baseIcon(), composition.tint(), composition.overlay(), composition.look()};
}

void EditedValues::applyTo(IconComposition& composition) const {
  const EditedValues there = of(composition);
  if (!isSame(there.baseIcon, baseIcon)) composition.setBaseIcon(baseIcon);
  if (there.tint != tint) composition.setTint(tint);
  if (there.overlay != overlay) composition.setOverlay(overlay);
  if (there.label != label) composition.setLabel(label);
  if (there.look.font != look.font) composition.setFont(look.font);
  if (there.look.color != look.color) composition.setColor(look.color);
  if (there.look.shadow != look.shadow) composition.setShadow(look.shadow);
  if (there.look.lineSpacingFactor != look.lineSpacingFactor) composition.setLineSpacing(look.lineSpacingFactor);
  if (there.look.labelCenter != look.labelCenter) composition.setCanvasLabelCenter(look.labelCenter);
  if (there.look.shearFactor != look.shearFactor) composition.setShearFactor(look.shearFactor);
  if (there.look.rotation != look.rotation) composition.setRotation(look.rotation);
  if (there.look.opacity != look.opacity) composition.setOpacity(look.opacity);
}

std::optional<EditKind> editBetween(const EditedValues& before, const EditedValues& after) {
  Difference difference;
  const LabelLook& a = before.look;
  const LabelLook& b = after.look;
  difference.add(a.shearFactor != b.shearFactor, EditKind::Shear);
  difference.add(a.rotation != b.rotation, EditKind::Rotation);
  difference.add(!isSame(before.label, after.label), EditKind::Label);
  difference.add(!isSame(before.baseIcon, after.baseIcon), EditKind::BaseIcon);
  difference.add(before.tint != after.tint, EditKind::Tint);
  difference.add(before.overlay != after.overlay, overlayEdit(before.overlay, after.overlay));
  difference.add(a.font != b.font, isSizeAlone(a.font, b.font) ? EditKind::FontSize : EditKind::Font);
  difference.add(a.color != b.color, EditKind::Color);
  difference.add(a.shadow != b.shadow, EditKind::Effect);
  difference.add(a.lineSpacingFactor != b.lineSpacingFactor, EditKind::LineSpacing);
  difference.add(a.labelCenter != b.labelCenter, EditKind::Position);
  difference.add(a.opacity != b.opacity, EditKind::Opacity);
  return difference.kind();
}

}  // namespace quorvane
