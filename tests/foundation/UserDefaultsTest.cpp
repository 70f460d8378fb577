// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UserDefaults.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "foundation/SettingsText.h"
#include "foundation/base/Log.h"

namespace quorvane {
namespace {

const QString key = QStringLiteral("key");

/// What a value is after it was written, read by another process, and written and read by that again.
QVariant afterRestart(const QVariant& value) {
  SettingsText text;
  text.apply({{key, SettingsChange::set(value)}});
  return SettingsText::parse(*SettingsText::parse(*text.text())->text())->values().value(key);
}

TEST(UserDefaults, ValuesKeepTheirTypesOverARestart) {
  const QVariant values[] = {
      true,
      false,
      5LL,
      std::numeric_limits<qlonglong>::min(),
      std::numeric_limits<qlonglong>::max(),
      5.0,
      0.1,
      -0.0,
      5e-324,
      1.7976931348623157e308,
      HUGE_VAL,
      QString(),
      QStringLiteral("5"),
      QStringLiteral("true"),
      QString::fromUtf8("\u00e4 \U0001F600 \"\\\n\u2028\uFEFF"),
      QString(QChar(u'\0')),
      QString(QChar(0xFEFF)) + QLatin1Char('x'),
      QString(QChar(0xDC00)),
      QByteArray(),
      QByteArray("\0\xff\n", 3),
      QVariantList(),
      QVariantList{1LL},
      QVariantList{QVariantList{}, 1.0, true},
      QVariantMap(),
      QVariantMap{{QStringLiteral("real"), 1LL}, {QString(QChar(0xD800)), 2LL}, {QString(QChar(0xFEFF)), 3LL}}};
  for (const QVariant& value : values) {
    const QVariant back = afterRestart(value);
    EXPECT_EQ(back.typeId(), value.typeId()) << value.toString().toStdString();
    EXPECT_EQ(back, value) << value.toString().toStdString();
    EXPECT_EQ(std::signbit(realOf(back)), std::signbit(realOf(value)));
  }
  EXPECT_TRUE(std::isnan(realOf(afterRestart(std::nan("")))));
}

TEST(UserDefaults, ReadsEachTypeAsEachOther) {
  MemorySettings storage;
  UserDefaults defaults(storage);
  struct Row {
    QVariant stored;
    bool isTrue;
    qint64 integer;
    double real;
    std::optional<QString> text;
  };
  const QString half = QStringLiteral("2.5");
  for (const Row& row : {Row{true, true, 1, 1, QStringLiteral("1")}, Row{-7, true, -7, -7, QStringLiteral("-7")},
                         Row{-2.5F, true, -2, -2.5, QStringLiteral("-2.5")}, Row{half, true, 2, 2.5, half},
                         Row{QStringLiteral("Yes"), true, 0, 0, QStringLiteral("Yes")},
                         Row{1e300, true, std::numeric_limits<qint64>::max(), 1e300, QStringLiteral("1e+300")},
                         Row{QStringList{half}, false, 0, 0, {}}, Row{QByteArray("x"), false, 0, 0, {}}}) {
    defaults.setObject(row.stored, key);
    EXPECT_EQ(defaults.boolForKey(key), row.isTrue) << row.stored.toString().toStdString();
    EXPECT_EQ(defaults.integerForKey(key), row.integer);
    EXPECT_EQ(defaults.doubleForKey(key), row.real);
    EXPECT_EQ(defaults.floatForKey(key), static_cast<float>(row.real));
    EXPECT_EQ(defaults.stringForKey(key), row.text);
    EXPECT_EQ(defaults.arrayForKey(key).has_value(), row.stored.typeId() == QMetaType::QStringList);
    EXPECT_EQ(defaults.stringArrayForKey(key).has_value(), row.stored.typeId() == QMetaType::QStringList);
    EXPECT_EQ(defaults.dataForKey(key).has_value(), row.stored.typeId() == QMetaType::QByteArray);
    EXPECT_TRUE(!defaults.colorForKey(key) && !defaults.fontForKey(key) && defaults.pointForKey(key) == Point{});
  }
  defaults.removeObjectForKey(key);
  EXPECT_FALSE(defaults.objectForKey(key).isValid());
  EXPECT_EQ(defaults.stringForKey(key, half), half);
}

TEST(UserDefaults, DatesAreSecondsReadInSinglePrecision) {
  MemorySettings storage;
  UserDefaults defaults(storage);
  const auto date = [](double seconds) {
    return QDateTime::fromMSecsSinceEpoch(978'307'200'000 + static_cast<qint64>(seconds * 1000), Qt::UTC);
  };
  struct Row {
    double seconds;
    qint64 kept;
    double back;  // 0: nothing
  };
  for (const auto& [seconds, kept, back] :
       {Row{400'000'123, 400'000'123, 400'000'128}, Row{1.999, 1, 1}, Row{0.999, 0, 0}, Row{-1.999, -1, 0},
        Row{16'777'217, 16'777'217, 16'777'216}, Row{1e12, 2'147'483'647, 2'147'483'648},
        Row{-1e12, -2'147'483'648, 0}}) {
    defaults.setDate(date(seconds), key);
    EXPECT_EQ(defaults.objectForKey(key), QVariant(kept)) << seconds;
    EXPECT_EQ(defaults.dateForKey(key), back > 0 ? std::optional(date(back)) : std::nullopt) << seconds;
  }
  defaults.setDate({}, key);
  EXPECT_FALSE(defaults.objectForKey(key).isValid() || defaults.dateForKey(key));
}

TEST(UserDefaults, ColoursFontsAndPointsAreOneValueEach) {
  MemorySettings storage;
  UserDefaults defaults(storage);
  const QColor color = QColor::fromHsv(10, 20, 30, 40);
  const FontDescription font{QStringLiteral("DejaVu Sans"), QStringLiteral("Bold"), 50.1};
  defaults.setColor(color, QStringLiteral("c"));
  defaults.setFont(font, QStringLiteral("f"));
  defaults.setPoint({0.1F, -64}, QStringLiteral("p"));
  EXPECT_EQ(storage.values.keys(), (QStringList{QStringLiteral("c"), QStringLiteral("f"), QStringLiteral("p")}));
  EXPECT_EQ(storage.values[QStringLiteral("p")], (QVariantList{double{0.1F}, -64.0}));
  UserDefaults later(storage);
  EXPECT_EQ(later.colorForKey(QStringLiteral("c")), color);
  EXPECT_EQ(later.fontForKey(QStringLiteral("f")), font);
  EXPECT_EQ(later.pointForKey(QStringLiteral("p")), (Point{0.1F, -64}));
  later.setColor(QColor(), QStringLiteral("c"));
  EXPECT_FALSE(storage.values.contains(QStringLiteral("c")));
}

TEST(UserDefaults, FactoryValuesStandBehindTheStorageAndAreNeverWritten) {
  MemorySettings storage;
  UserDefaults defaults(storage);
  DefaultsDictionary factory;
  factory.setBool(true, QStringLiteral("b"));
  factory.setInteger(5, QStringLiteral("n"));
  factory.setColor(Qt::red, QStringLiteral("c"));
  factory.setFont({QStringLiteral("A"), {}, 50}, QStringLiteral("f"));
  defaults.registerDefaults(factory);
  EXPECT_TRUE(defaults.boolForKey(QStringLiteral("b")));
  EXPECT_EQ(defaults.colorForKey(QStringLiteral("c")), QColor(Qt::red));
  EXPECT_EQ(defaults.fontForKey(QStringLiteral("f"))->size, 50);
  EXPECT_TRUE(defaults.synchronize().ok());
  EXPECT_TRUE(storage.values.isEmpty());
  EXPECT_EQ(defaults.incrementIntegerForKey(QStringLiteral("n")), 6);
  EXPECT_EQ(defaults.incrementIntegerForKey(QStringLiteral("n")), 7);
  EXPECT_EQ(storage.values, (QVariantMap{{QStringLiteral("n"), 7LL}}));
  defaults.removeObjectForKey(QStringLiteral("n"));
  EXPECT_EQ(defaults.integerForKey(QStringLiteral("n")), 5);
}

TEST(UserDefaults, WhatCannotBeWrittenHoldsAndIsWrittenLaterOnTopOfWhatOthersDid) {
  QStringList log;
  const LogSink before = setLogSink([&](auto, auto line) { log.append(QString::fromUtf8(line.data(), line.size())); });
  MemorySettings storage;
  storage.values[QStringLiteral("count")] = 10LL;
  UserDefaults defaults(storage);
  storage.failure = Error::broken("full");
  defaults.setBool(true, key);
  for (int count = 11; count <= 12; ++count) EXPECT_EQ(defaults.incrementIntegerForKey(QStringLiteral("count")), count);
  EXPECT_TRUE(defaults.boolForKey(key));
  EXPECT_EQ(defaults.synchronize().error().message(), "full");
  EXPECT_EQ(log, QStringList{QStringLiteral("full")}) << "one line, however often it fails";
  storage.failure.reset();
  storage.values[QStringLiteral("count")] = 20LL;
  storage.values[QStringLiteral("theirs")] = 1LL;
  EXPECT_TRUE(defaults.synchronize().ok());
  EXPECT_EQ(storage.values,
            (QVariantMap{{QStringLiteral("count"), 22LL}, {key, true}, {QStringLiteral("theirs"), 1LL}}));
  // What can never be kept must not keep the rest from being written: one by one, and together with what there is.
  storage.failure = Error::tooLarge("all of it");
  defaults.setBool(false, key);
  storage.failure.reset();
  EXPECT_TRUE(defaults.synchronize().ok());
  EXPECT_EQ(storage.values[key], QVariant(true));
  defaults.setData(QByteArray(1 << 20, 'x'), key);
  defaults.setObject(QVariant::fromValue(QDate()), key);
  EXPECT_EQ(storage.values[key], QVariant(true));
  EXPECT_EQ(log.size(), 4);
  setLogSink(before);
}

TEST(UserDefaults, WhatIsHeldIsSeenAndWrittenOnce) {
  struct Counting : MemorySettings {
    Result<QVariantMap> update(const SettingsChanges& changes) override {
      return ++updates, MemorySettings::update(changes);
    }
    int updates = 0;
  } storage;
  UserDefaults defaults(storage);
  int told = 0;
  const auto observation = defaults.observe([&](const QStringList&) { ++told; });
  for (int round = 1; round <= 2; ++round) {
    for (qint64 value = 1; value <= 50; ++value) {
      defaults.hold();
      defaults.setInteger(value, key);
      EXPECT_EQ(defaults.integerForKey(key), value);
    }
    EXPECT_EQ(defaults.incrementIntegerForKey(key), 51);
    EXPECT_EQ(storage.updates, round - 1);
    round == 1 ? defaults.release() : static_cast<void>(defaults.synchronize());
    EXPECT_EQ(storage.values.value(key), QVariant(51LL));
    EXPECT_EQ(storage.updates, round);
  }
  EXPECT_EQ(told, 51 + 51);
  // Without room it is dropped as if it had been written at once.
  storage.failure = Error::tooLarge("full");
  defaults.setInteger(7, key);
  defaults.release();
  EXPECT_EQ(defaults.integerForKey(key), 51);
  storage.failure.reset();
  defaults.setInteger(8, key);
  EXPECT_EQ(storage.values.value(key), QVariant(8LL));
}

TEST(UserDefaults, ObserversHearOfOwnAndForeignChanges) {
  MemorySettings storage;
  UserDefaults defaults(storage);
  QStringList heard;
  auto observation = defaults.observe([&](const QStringList& keys) {
    heard += keys;
    if (keys.contains(key)) defaults.setBool(true, QStringLiteral("follows"));
  });
  defaults.setInteger(1, key);
  EXPECT_EQ(heard, (QStringList{key, QStringLiteral("follows")}));
  EXPECT_FALSE(defaults.refresh());
  storage.values[QStringLiteral("theirs")] = 1LL;
  storage.values.remove(key);
  storage.values[QStringLiteral("follows")] = 1LL;  // equal in value, not in type
  heard.clear();
  EXPECT_TRUE(defaults.refresh());
  EXPECT_EQ(heard.first(3), (QStringList{QStringLiteral("follows"), QStringLiteral("theirs"), key}));
  defaults.setDouble(std::nan(""), key);
  EXPECT_EQ(heard.count(key), 2) << "no number equals itself";
  observation.reset();
  heard.clear();
  defaults.setInteger(2, key);
  EXPECT_TRUE(heard.isEmpty());
}

}  // namespace
}  // namespace quorvane
