// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quorvane {

/// What a feed says about a version, as plain lines to be shown: HTML becomes text with paragraphs and "•" for items of
/// lists, and what cannot be seen or would turn the text round is written out. Text without tags keeps its lines. Cut
/// at limits::newsCharacters and newsLines, with an ellipsis. Never reads or fetches what the text refers to.
QString plainNews(const QString& description);

/// One line of a feed, such as a title, on the same terms; cut to so many characters.
QString plainLine(const QString& text, qsizetype most);

}  // namespace quorvane
