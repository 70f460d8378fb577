// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QLineEdit;

namespace quorvane {

/// The field's text without white space (spaces and tabs; line breaks are none) at both ends.
QString trimmedStringValue(const QLineEdit& field);
/// Replaces the field's text with its trimmedStringValue.
void trimWhitespaces(QLineEdit& field);

/// The same of a text.
QString trimmedOfWhitespaces(const QString& text);

}  // namespace quorvane
