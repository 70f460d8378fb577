// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/DefaultsDictionary.h"

#include "foundation/SettingsValues.h"

namespace quorvane {

namespace {

QVariant data(const QByteArray& bytes) {
  return bytes.isEmpty() ? QVariant() : QVariant(bytes);
}

}  // namespace

void DefaultsDictionary::setObject(const QVariant& value, const QString& forKey) {
  const QVariant kept = settingsValue(value);
  if (kept.isValid()) {
    _values[forKey] = kept;
  } else {
    _values.remove(forKey);
  }
}

QVariant DefaultsDictionary::encoded(const QColor& color) {
  return data(archiveColor(color));
}

QVariant DefaultsDictionary::encoded(const FontDescription& font) {
  return data(archiveFont(font));
}

}  // namespace quorvane
