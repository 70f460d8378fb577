// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QVariantMap>

#include "foundation/SettingsValues.h"
#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// The text of a settings file: JSON, independent of the locale, with the types of the values kept. Truth values,
/// integers, text and lists are JSON's own; the others are objects of one member that says what they are: "real" (the
/// shortest text that gives the very number), "data" (base 64) and "dictionary". What we do not understand stays in the
/// file as it is.
class SettingsText {
 public:
  /// No settings.
  SettingsText();
  /// Fails on what is no settings file (ErrorKind::InvalidInput), is longer than Limits.h allows (TooLarge), or was
  /// written by a newer version of the program (Unsupported).
  static Result<SettingsText> parse(ByteView text);

  /// All values that can be read.
  [[nodiscard]] QVariantMap values() const;
  /// Makes the changes; false when nothing is different then.
  bool apply(const SettingsChanges& changes);
  /// Fails with TooLarge when parse() would not take it.
  [[nodiscard]] Result<Bytes> text() const;

 private:
  QJsonObject _whole;
};

}  // namespace quorvane
