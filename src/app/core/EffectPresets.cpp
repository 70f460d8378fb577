// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/EffectPresets.h"

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

constexpr auto presets = std::to_array<EffectPreset>({
    {0, "none"},
    {1, "soft"},
    {2, "medium"},
    {3, "sharp"},
    {6, "red-glow"},
    {7, "green-glow"},
    {8, "blue-glow"},
});

LabelShadow dropShadow(float blurRadius) {
  return {.offsetX = 2, .offsetY = -2, .blurRadius = blurRadius, .color = QColor::fromRgbF(0, 0, 0, 0.5F)};
}

LabelShadow glow(Qt::GlobalColor color) {
  return {.blurRadius = 4, .color = QColor(color)};
}

}  // namespace

std::span<const EffectPreset> effectPresets() {
  return presets;
}

std::string effectNames() {
  std::string names;
  for (const EffectPreset& preset : presets) names += (names.empty() ? "" : ", ") + std::string(preset.name);
  return names;
}

std::optional<LabelShadow> shadowForEffectTag(int tag) {
  if (tag <= 0) return std::nullopt;
  switch (tag) {
    case 1:
      return dropShadow(3.5F);
    case 2:
      return dropShadow(2.0F);
    case 3:
      return dropShadow(0.5F);
    case 6:
      return glow(Qt::red);
    case 7:
      return glow(Qt::green);
    case 8:
      return glow(Qt::blue);
    default:
      return LabelShadow();
  }
}

std::optional<int> effectTagOfShadow(const std::optional<LabelShadow>& shadow) {
  for (int tag = 0; tag <= presets.back().tag; ++tag)
    if (shadowForEffectTag(tag) == shadow) return tag;
  return std::nullopt;
}

std::optional<int> effectTagNamed(std::string_view name) {
  const auto* found = std::ranges::find(presets, name, &EffectPreset::name);
  if (found == presets.end()) return std::nullopt;
  return found->tag;
}

}  // namespace quorvane
