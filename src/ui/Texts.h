// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace quorvane {

/// The format with its places ("%@", "%d", "%.0f") taken by the arguments in their order. What looks like a place in an
/// argument stays as it is; places without an argument too.
QString filled(const QString& format, const QStringList& arguments);

/// A control's text without its mark of an access key: "Save" of "&Save", and of "Save(&S)", as languages have it whose
/// script is not on the keys.
QString withoutAccessKey(const QString& text);

/// A tool tip that says the text as it stands, also where it has what would be taken for HTML, as names may.
QString plainToolTip(const QString& text);

}  // namespace quorvane
