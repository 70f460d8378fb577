// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariant>

namespace quorvane {

/// A whole number by which a control is known, 0 unless set. The tags of a sheet's buttons are what the sheet answers.
inline int tag(const QObject& control) {
  return control.property("tag").toInt();
}
inline void setTag(QObject& control, int value) {
  control.setProperty("tag", value);
}

/// The key that presses a button of a sheet, wherever the focus is: "\r" is Return, "\033" Escape; empty: none.
inline QString keyEquivalent(const QObject& button) {
  return button.property("keyEquivalent").toString();
}
inline void setKeyEquivalent(QObject& button, const QString& key) {
  button.setProperty("keyEquivalent", key);
}

}  // namespace quorvane
