// SPDX-License-Identifier: GPL-3.0-or-later
// The window in the languages that it has.
#include "app/Translations.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QTest>
#include <set>

#include "LongTexts.h"
#include "TestWindow.h"

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
