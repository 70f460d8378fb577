// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantMap>

#include "foundation/ValueArchives.h"

namespace quorvane {

/// Values by key, encoded as UserDefaults encodes them: what factory settings are registered from. A value that cannot
/// be kept (see settingsValue()) takes its key out.
class DefaultsDictionary {
 public:
  void setObject(const QVariant& value, const QString& forKey);
  void setBool(bool value, const QString& forKey) { setObject(value, forKey); }
  void setInteger(qint64 value, const QString& forKey) { setObject(value, forKey); }
  void setDouble(double value, const QString& forKey) { setObject(value, forKey); }
  void setString(const QString& value, const QString& forKey) { setObject(value, forKey); }
  void setColor(const QColor& color, const QString& forKey) { setObject(encoded(color), forKey); }
  void setFont(const FontDescription& font, const QString& forKey) { setObject(encoded(font), forKey); }

  [[nodiscard]] const QVariantMap& values() const { return _values; }

  /// A colour or a font as the one data value that is kept; invalid when it cannot be packed.
  static QVariant encoded(const QColor& color);
  static QVariant encoded(const FontDescription& font);

 private:
  QVariantMap _values;
};

}  // namespace quorvane
