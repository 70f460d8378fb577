// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTranslator>

namespace quorvane {

/// The language of the window: texts that are looked up while this lives are in the first of the languages given that
/// the program has. English is what stands in the code; only its plural forms are looked up.
class Translations {
 public:
  /// `languages` are tags such as "de-AT", the most wanted first, as QLocale::system().uiLanguages() gives them; what
  /// there is for "de" serves that as well. To be made behind the QCoreApplication and before the first text.
  explicit Translations(const QStringList& languages);

  /// "de", "ja"; "en" when there is none of those wanted.
  [[nodiscard]] const QString& language() const { return _language; }

 private:
  bool _install(const QString& tag);

  QString _language;
  QTranslator _own;
  QTranslator _qt;  ///< what Qt's own dialogs say
};

}  // namespace quorvane
