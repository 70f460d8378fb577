// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>
#include <QMimeData>
#include <optional>

#include "library/view/IndexSet.h"

namespace quorvane {

/// The type of data of rows that are dragged out of the user's icon list. Its payload is a property list of the JSON
/// form: the row numbers, and whose they are, as numbers of another process's list mean nothing here.
inline constexpr QLatin1String rowsPboardType{"application/x-quorvane-rows"};

/// Types of files and of pictures, as desktops call them.
inline constexpr QLatin1String filenamesPboardType{"text/uri-list"};
inline constexpr QLatin1String picturePboardType{"application/x-qt-image"};

void setRows(QMimeData& pasteboard, const QList<int>& rows);
/// nullopt when there are none, or they are not this process's.
std::optional<IndexSet> rowsOf(const QMimeData& pasteboard);

}  // namespace quorvane
