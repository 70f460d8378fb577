// SPDX-License-Identifier: GPL-3.0-or-later
// The window in the languages that it has.
#include "app/Translations.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QTest>
#include <cerrno>
#include <set>

#include "LongTexts.h"
#include "TestWindow.h"
#include "ui/Reasons.h"

namespace quorvane::test {
namespace {

TEST(TranslationsTest, TheFirstLanguageThatThereIsIsTaken) {
  const struct {
    QStringList wanted;
    QString language;
    QString red;
    QString two;
  } cases[] = {
      {{QStringLiteral("de-AT"), QStringLiteral("en")},
       QStringLiteral("de"),
       QStringLiteral("Rot"),
       QStringLiteral("2 Sammlungen sind ausgewählt")},
      {{QStringLiteral("tlh"), QStringLiteral("ja-Jpan-JP")},
       QStringLiteral("ja"),
       QStringLiteral("赤"),
       QStringLiteral("2 個のセットを選択中")},
      {{QStringLiteral("en_GB"), QStringLiteral("de")},
       QStringLiteral("en"),
       QStringLiteral("red"),
       QStringLiteral("2 sets are selected")},
      {{QStringLiteral("C")}, QStringLiteral("en"), QStringLiteral("red"), QStringLiteral("2 sets are selected")},
  };
  for (const auto& one : cases) {
    const Translations translations(one.wanted);
    EXPECT_EQ(translations.language(), one.language) << one.wanted.front().toStdString();
    EXPECT_EQ(QCoreApplication::translate("ColorNames", "red"), one.red);
    EXPECT_EQ(QCoreApplication::translate("quorvane::LibraryView", "%n sets are selected", nullptr, 2), one.two);
  }
  EXPECT_EQ(QCoreApplication::translate("ColorNames", "red"), QStringLiteral("red"));
}

TEST(TranslationsTest, ReasonsAreSaidPieceByPiece) {
  const struct {
    const char* language;
    std::string why;
    const char* said;
  } cases[] = {
      {"de", "is no JSON", "ist kein JSON"},
      {"de", "cannot write: No space left on device",
       "Schreiben nicht möglich: Auf dem Datenträger ist kein Platz mehr frei"},
      {"de", "cannot open folder: a link stands there",
       "Öffnen des Ordners nicht möglich: dort liegt eine Verknüpfung"},
      {"de", "as attribute: cannot write attribute user.x: File exists; as companion file ._a: file is empty",
       "als Attribut: Schreiben des Attributs user.x nicht möglich: Die Datei existiert bereits; als Begleitdatei ._a: "
       "die Datei ist leer"},
      {"de", "stands in the way; it is not a record of ours", "ist im Weg; es ist keine Aufzeichnung von Quorvane"},
      // The longer text, though a shorter one would do with larger values; numbers that are no values.
      {"ja", "30 of 500 bytes", "500 バイト中 30 バイト"},
      {"ja", "JPEG 2000 picture of 3 x 4 pixels is of too many tiles",
       "3 × 4 ピクセルの JPEG 2000 画像はタイルが多すぎます"},
      // What others have chosen may look like anything of ours.
      {"de", "the zip file names 'a: %2\n: cannot read', which leads elsewhere",
       "die Zip-Datei nennt „a: %2\\x0A: cannot read“, was woandershin führt"},
      {"de", "there is no emblem '%2', did you mean '%1'?", "es gibt kein Emblem „%2“, meinten Sie „%1“?"},
      {"ja", "'it's: cannot read': PNG: IDAT: \xFF is odd: out of memory",
       "「it's: cannot read」: PNG: IDAT: \\xFF is odd: メモリーが足りません"},
      {"en", "'a': there is no element 'b: \u202E%1'", "'a': there is no element 'b: \\u{202E}%1'"},
      {"de", "", ""},
      {"de", "'a: ''b: out of memory", "'a: ''b: zu wenig Arbeitsspeicher"},
  };
  for (const auto& one : cases) {
    const Translations translations({QString::fromLatin1(one.language)});
    EXPECT_EQ(reasonOf(one.why).toStdString(), one.said);
  }
  const Translations german({QStringLiteral("de")});
  // The system's own words are in its language, or in ours.
  const Error placed = Error::system(ENOSPC, "cannot write").at("/cannot read: a\n");
  EXPECT_TRUE(placedReasonOf(placed).startsWith(QStringLiteral("/cannot read: a\\x0A: Schreiben nicht möglich: ")));
  EXPECT_EQ(reasonOf(Error::refused("interrupted")), QStringLiteral("abgebrochen"));
}

/// Keeps what the window looks up and the language has not.
class Recorder : public QTranslator {
 public:
  [[nodiscard]] QString translate(const char* context, const char* text, const char* remark, int n) const override {
    const QString found = QTranslator::translate(context, text, remark, n);
    // The contexts of Qt's own texts are the names of its classes.
    if (found.isEmpty() && std::string_view(context).front() != 'Q') missing.insert(std::string(context) + ": " + text);
    return found;
  }
  mutable std::set<std::string> missing;
};

class InLanguage : public testing::TestWithParam<const char*> {};

TEST_P(InLanguage, WhatTheWindowSaysIsThereAndFits) {
  const bool longer = GetParam() == std::string_view("longer");
  const QFont usual = QApplication::font();
  const bool isLarge = GetParam() == std::string_view("de-large");
  if (isLarge) {
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 2);
    QApplication::setFont(large);
  }
  const Translations registers({});
  Recorder recorder;
  LongTexts longTexts;
  if (longer)
    QCoreApplication::installTranslator(&longTexts);
  else if (recorder.load(QStringLiteral(":/translations/quorvane_%1.qm").arg(QLatin1String(GetParam(), 2))))
    QCoreApplication::installTranslator(&recorder);
  TestWindow test;
  test.launch();
  test.controller->applicationOpenFile(test.folder);
  test.controller->setLabel(QStringLiteral("Tax"));
  test.controller->undo();
  // As small as it can be made; with large fonts, on the screen of somebody who has them.
  test.window.resize(isLarge ? QSize(1920, 1080) : QSize(1, 1));
  QCoreApplication::processEvents();
  for (const QScrollArea* column : test.window.findChildren<QScrollArea*>())
    EXPECT_GE(column->viewport()->width(), column->widget()->minimumSizeHint().width());
  int count = 0;
  for (const QWidget* widget : test.window.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&test.window)) continue;
    const auto* label = qobject_cast<const QLabel*>(widget);
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const QString text = label ? label->text() : button ? button->text() : QString();
    if (text.isEmpty() || widget == test.ui()._fontBtn || qobject_cast<const ElidedLabel*>(widget)) continue;
    ++count;
    const bool wraps = label && label->wordWrap();
    EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << text.toStdString();
    EXPECT_GE(widget->height(), wraps ? widget->heightForWidth(widget->width()) : widget->minimumSizeHint().height())
        << text.toStdString();
  }
  EXPECT_GT(count, 15);
  QApplication::setFont(usual);
  QCoreApplication::removeTranslator(&recorder);
  QCoreApplication::removeTranslator(&longTexts);
  EXPECT_EQ(recorder.QTranslator::isEmpty(), longer);
  for (const std::string& text : recorder.missing) ADD_FAILURE() << text;
}

INSTANTIATE_TEST_SUITE_P(Languages, InLanguage, testing::Values("de", "de-large", "ja", "longer"));

}  // namespace
}  // namespace quorvane::test
