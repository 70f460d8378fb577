// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QLatin1String>
#include <QList>
#include <QString>

#include "composition/core/LabelValues.h"
#include "foundation/UserDefaults.h"

/// Every setting of the program, with its type and what it is when nobody has set it.
namespace quorvane::settings {

/// One setting. Types: bool, qint64, QString, QColor, LabelFont, and QList<int> for rows of a list.
template <typename Value>
struct Key {
  QLatin1String name;
  /// What it is when nobody has set it; nullptr: nothing is registered, and it reads as false, 0 or empty.
  Value (*factory)() = nullptr;
};

namespace factory {
inline bool yes() {
  return true;
}
inline bool no() {
  return false;
}
inline QColor labelColor() {
  return {Qt::black};
}
/// Needs a QGuiApplication, as everything about fonts.
LabelFont labelFont();
}  // namespace factory

// How the label looks when the program starts: as the user wants it always, or as it was last.
inline constexpr Key<bool> useDefaultColor{QLatin1String("UseDefaultColor"), factory::yes};
inline constexpr Key<QColor> defaultColor{QLatin1String("DefaultColor"), factory::labelColor};
inline constexpr Key<QColor> lastUsedColor{QLatin1String("LastUsedColor"), factory::labelColor};
inline constexpr Key<bool> useDefaultFont{QLatin1String("UseDefaultFont"), factory::yes};
inline constexpr Key<LabelFont> defaultFont{QLatin1String("DefaultFont"), factory::labelFont};
inline constexpr Key<LabelFont> lastUsedFont{QLatin1String("LastUsedFont"), factory::labelFont};

inline constexpr Key<bool> autoVersionCheck{QLatin1String("AutoVersionCheck"), factory::no};
// Whether these are still to be shown.
inline constexpr Key<bool> showDockTip{QLatin1String("ShowDockTip"), factory::yes};
inline constexpr Key<bool> askToShareOnFacebook{QLatin1String("AskToShareOnFacebook"), factory::yes};
inline constexpr Key<bool> askToRateOnAppStore{QLatin1String("AskToRateOnAppStore"), factory::yes};

inline constexpr Key<qint64> usageCount{QLatin1String("UsageCount")};  ///< folders branded
inline constexpr Key<qint64> launchCount{QLatin1String("R236")};
inline constexpr Key<bool> checkAtStartup{QLatin1String("HVCheckAtStartup")};            ///< our own switch
inline constexpr Key<bool> frameworkChecksAtStartup{QLatin1String("SUCheckAtStartup")};  ///< forced to false
inline constexpr Key<QString> feedAddress{QLatin1String("SUFeedURL")};
inline constexpr Key<QString> skippedVersion{QLatin1String("HVSkippedVersion")};  ///< not to be told of again
inline constexpr Key<qint64> canvasMagnification{QLatin1String("CanvasMagnification")};
// The icon library: which of the two is shown, the side of its pictures, the width of its sets.
inline constexpr Key<bool> libraryShowsCustom{QLatin1String("LibraryShowsCustom")};
inline constexpr Key<qint64> libraryIconSide{QLatin1String("LibraryIconSide")};
inline constexpr Key<qint64> librarySetsWidth{QLatin1String("LibrarySetsWidth")};
inline constexpr Key<QList<int>> builtinIconSetSelection{QLatin1String("BuiltinIconSetSelection")};
inline constexpr Key<QList<int>> customIconSetSelection{QLatin1String("CustomIconSetSelection")};

/// The name under which the main window's frame is kept.
inline constexpr QLatin1String mainWindowAutosaveName{"MainWindowAutosave"};

/// The keys that are registered, with what they are then.
DefaultsDictionary factoryDefaults();

/// The setting. One that cannot be taken for its type counts as never set: somebody may have edited the file.
bool value(const UserDefaults& defaults, const Key<bool>& key);
qint64 value(const UserDefaults& defaults, const Key<qint64>& key);
QString value(const UserDefaults& defaults, const Key<QString>& key);
QColor value(const UserDefaults& defaults, const Key<QColor>& key);
LabelFont value(const UserDefaults& defaults, const Key<LabelFont>& key);
/// What is no row (a negative number, another type) is left out.
QList<int> value(const UserDefaults& defaults, const Key<QList<int>>& key);

void setValue(UserDefaults& defaults, const Key<bool>& key, bool value);
void setValue(UserDefaults& defaults, const Key<qint64>& key, qint64 value);
void setValue(UserDefaults& defaults, const Key<QString>& key, const QString& value);
void setValue(UserDefaults& defaults, const Key<QColor>& key, const QColor& value);
void setValue(UserDefaults& defaults, const Key<LabelFont>& key, const LabelFont& value);
void setValue(UserDefaults& defaults, const Key<QList<int>>& key, const QList<int>& value);

/// The colour and the font that the program starts with.
QColor startColor(const UserDefaults& defaults);
LabelFont startFont(const UserDefaults& defaults);

}  // namespace quorvane::settings
