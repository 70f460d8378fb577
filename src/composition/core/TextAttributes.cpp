// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/TextAttributes.h"

#include "composition/core/TextBlock.h"

namespace quorvane {

TextAttributes defaultTextAttributes() {
  return {.font = systemFont(12), .shadow = std::nullopt};
}

TextAttributes _attributesForFont(const std::optional<LabelFont>& font, const std::optional<QColor>& color,
                                  const std::optional<LabelShadow>& shadow, float lineSpacingFactor) {
  const LabelFont chosen = font.value_or(systemFont(50));
  return {.font = chosen,
          .color = color.value_or(QColor(Qt::black)),
          .maximumLineHeight = TextBlock::naturalLineHeight(chosen) * lineSpacingFactor,
          .shadow = shadow};
}

}  // namespace quorvane
