// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QString>
#include <optional>

namespace quorvane {

class DesktopAppearance;

/// How the windows look: one calm palette in light and in dark with one accent colour, and a short style sheet made of
/// it. Follows the desktop while the program runs. Everything takes its colours from the palette:
///
/// | role | is |
/// |---|---|
/// | Window, WindowText | the ground and text on it |
/// | Base, AlternateBase, Text | cards, fields and lists; what the pointer is over; text on them |
/// | Button, ButtonText | buttons |
/// | Highlight, HighlightedText | the accent: primary button, selection, focus, the slider's fill; text on it |
/// | PlaceholderText | captions and hints |
/// | Dark | outlines of controls, at least 3:1 |
/// | Mid | hairlines round cards, of no meaning by themselves |
/// | Midlight | the slider's empty groove |
class Theme : public QObject {
  Q_OBJECT
 public:
  enum class Scheme { FollowDesktop, Light, Dark };

  /// The appearance is not owned and must live as long; null: only the palette that the application came with counts.
  explicit Theme(DesktopAppearance* appearance, QObject* parent = nullptr);

  /// Sets style and palette, and no style sheet yet: as long as there is one, a whole branch of widgets is styled anew
  /// whenever it gets a parent, which is half of what building a window costs. apply() follows when it is built.
  void prepare();
  /// Sets style, palette and style sheet of the application, now and at each change.
  void apply();
  void setScheme(Scheme scheme);
  [[nodiscard]] bool isDark() const;

  /// The palette; an accent is moved towards light or dark until it can be told from the ground (3:1) and text be read
  /// on it (4.5:1).
  static QPalette palette(bool dark, const std::optional<QColor>& accent = {}, bool highContrast = false);
  static QString styleSheet(const QPalette& palette);

 Q_SIGNALS:
  /// After everything has been set anew.
  void changed();

 private:
  QPalette _setPalette();

  DesktopAppearance* _appearance;
  Scheme _scheme = Scheme::FollowDesktop;
  bool _cameDark;
  bool _prepared = false;
  bool _applied = false;
};

}  // namespace quorvane
