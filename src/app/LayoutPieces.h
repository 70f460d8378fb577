// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QFrame;
class QLabel;
class QWidget;

namespace quorvane {

// In logical pixels.
inline constexpr int windowMargin = 16;
inline constexpr int layoutGap = 12;
inline constexpr int cardPadding = 14;
inline constexpr int baseColumnWidth = 280;
inline constexpr int baseColumnCharacters = 40;  ///< its least width in letters, for large fonts
inline constexpr int inspectorWidth = 280;

/// A white card with a hairline round it.
QFrame* makeCard();
/// A muted caption. With a control, its access key (the letter after "&") leads there.
QLabel* makeCaption(const QString& text, QWidget* control = nullptr);
/// The heading of a sheet.
QLabel* makeTitle(const QString& text);
/// The name of a control among captions: plain text that may wrap.
QLabel* makeControlName(const QString& text, QWidget* control);

}  // namespace quorvane
