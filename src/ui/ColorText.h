// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>

namespace quorvane {

/// A colour in words: "#ff8000", behind it the name when there is a usual one, and the opacity in per cent when it is
/// not opaque.
QString colorText(const QColor& color);

/// How far two opaque colours are told apart, 1 to 21: 4.5 is wanted for text, 3 for the parts of controls (WCAG 2).
double contrastRatio(const QColor& one, const QColor& other);

}  // namespace quorvane
