// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

// Must stand outside any namespace. A static library's resources are not there by themselves.
static void initialiseTranslations() {
  Q_INIT_RESOURCE(translations);
}

namespace quorvane {

Translations::Translations(const QStringList& languages) {
  initialiseTranslations();
  for (QString tag : languages)
    if (_install(tag.replace(QLatin1Char('-'), QLatin1Char('_')))) return;
  _install(QStringLiteral("en"));
}

bool Translations::_install(const QString& tag) {
  // What it does not find by the whole tag it looks for by shorter ones.
  if (!_own.load(QStringLiteral(":/translations/quorvane_") + tag)) return false;
  _language = _own.language();
  QCoreApplication::installTranslator(&_own);
  // They may not be installed; then the buttons of its dialogs stay English, as they are in the code.
  if (_language != QLatin1String("en") &&
      _qt.load(QStringLiteral("qtbase_") + tag, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&_qt);
  return true;
}

}  // namespace quorvane
