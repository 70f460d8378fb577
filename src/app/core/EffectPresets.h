// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "composition/core/LabelValues.h"

namespace quorvane {

/// One shadow preset: the effect menu's tag and the word that the command line uses for it.
struct EffectPreset {
  int tag;
  std::string_view name;
};

/// The presets that can be chosen, in menu order.
std::span<const EffectPreset> effectPresets();

/// Their names for a text: "none, soft, medium".
std::string effectNames();

/// The shadow of a tag. None for tags of 0 or less. Tags that no preset has give a shadow as a new one is: no offset,
/// no blur, the default colour; 4 and 5 are kept for later and are such tags.
std::optional<LabelShadow> shadowForEffectTag(int tag);

/// The tag that gives this shadow: a preset's, or the first of those that no preset has; nullopt when none does.
std::optional<int> effectTagOfShadow(const std::optional<LabelShadow>& shadow);

/// The tag of a preset's name.
std::optional<int> effectTagNamed(std::string_view name);

}  // namespace quorvane
