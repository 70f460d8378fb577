// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Theme.h"

#include <QApplication>
#include <algorithm>
#include <cmath>

#include "ui/ColorText.h"
#include "ui/DesktopAppearance.h"
#include "ui/Motion.h"
#include "ui/ThemeStyle.h"
#include "ui/WindowResources.h"

namespace quorvane {
namespace {

struct Colors {
  const char* window;
  const char* base;
  const char* hover;
  const char* text;
  const char* muted;
  const char* outline;
  const char* strongOutline;
  const char* hairline;
  const char* groove;
  const char* button;
  const char* disabled;
  const char* accent;
};

constexpr Colors light{"#f6f7f9", "#ffffff", "#eef1f5", "#1d2127", "#606775", "#858c98",
                       "#4a505b", "#dcdfe5", "#d6dae1", "#ffffff", "#9aa0aa", "#2563eb"};
constexpr Colors dark{"#202124", "#292b2f", "#33363b", "#e8eaed", "#a6acb6", "#7d838d",
                      "#b9bec7", "#3b3e44", "#474b52", "#2e3135", "#777d87", "#3273ec"};

/// The nearest lightness of the accent at which it can be told from both grounds and text can be read on it.
QColor usable(const QColor& wanted, const QColor& window, const QColor& base) {
  const auto serves = [&](const QColor& color) {
    const double text = std::max(contrastRatio(color, Qt::white), contrastRatio(color, QColor(0x14, 0x16, 0x1a)));
    return contrastRatio(color, window) >= 3 && contrastRatio(color, base) >= 3 && text >= 4.5;
  };
  // As it is, not as it comes back from another colour model.
  if (serves(wanted)) return wanted;
  const QColor hsl = wanted.toHsl();
  constexpr int steps = 100;
  for (int step = 0; step <= steps; ++step) {
    for (const int direction : {-1, 1}) {
      const float lightness = hsl.lightnessF() + static_cast<float>(direction * step) / steps;
      if (lightness < 0 || lightness > 1) continue;
      const QColor color = QColor::fromHslF(std::max(0.0F, hsl.hslHueF()), hsl.hslSaturationF(), lightness).toRgb();
      if (serves(color)) return color;
    }
  }
  return wanted;
}

QColor textOn(const QColor& color) {
  return contrastRatio(color, Qt::white) >= 4.5 ? QColor(Qt::white) : QColor(0x14, 0x16, 0x1a);
}

/// What the style sheet's %names stand for.
QString filled(QString sheet, const QPalette& palette) {
  const bool isDark = palette.color(QPalette::Window).lightness() < 128;
  const QColor accent = palette.color(QPalette::Highlight);
  const std::pair<const char*, QString> values[] = {
      {"%window", palette.color(QPalette::Window).name()},
      {"%base", palette.color(QPalette::Base).name()},
      {"%hover", palette.color(QPalette::AlternateBase).name()},
      {"%text", palette.color(QPalette::Text).name()},
      {"%muted", palette.color(QPalette::PlaceholderText).name()},
      {"%disabled", palette.color(QPalette::Disabled, QPalette::Text).name()},
      {"%outline", palette.color(QPalette::Dark).name()},
      {"%hairline", palette.color(QPalette::Mid).name()},
      {"%groove", palette.color(QPalette::Midlight).name()},
      {"%button", palette.color(QPalette::Button).name()},
      {"%onaccent", palette.color(QPalette::HighlightedText).name()},
      {"%pressed", accent.darker(isDark ? 120 : 115).name()},
      {"%accent", accent.name()},
      {"%tick",
       palette.color(QPalette::HighlightedText).lightness() > 128 ? QStringLiteral("white") : QStringLiteral("black")},
      {"%arrow", isDark ? QStringLiteral("dark") : QStringLiteral("light")},
  };
  for (const auto& [name, value] : values) sheet.replace(QLatin1String(name), value);
  return sheet;
}

// A border of 2 takes the room of a border of 1 with a unit more of padding, so that nothing moves with the focus.
constexpr const char* sheetText = R"(
QToolTip { background: %base; color: %text; border: 1px solid %hairline; padding: 4px 6px; }
QMenuBar { background: %window; padding: 2px 6px; }
QMenuBar::item { padding: 5px 9px; border-radius: 6px; background: transparent; }
QMenuBar::item:selected { background: %hover; }
QMenuBar::item:disabled { color: %disabled; }
QMenu { background: %base; border: 1px solid %hairline; padding: 5px; }
QMenu::item { padding: 6px 26px 6px 12px; border-radius: 6px; }
QMenu::item:selected { background: %accent; color: %onaccent; }
QMenu::item:disabled { color: %disabled; background: transparent; }
QMenu::separator { height: 1px; background: %hairline; margin: 5px 8px; }
QMenu::icon { padding-left: 8px; }

QPushButton { background: %button; color: %text; border: 1px solid %outline; border-radius: 8px;
              padding: 6px 15px; min-height: 1em; }
QPushButton:hover { background: %hover; }
QPushButton:pressed, QPushButton:checked { background: %groove; }
QPushButton:focus { border: 2px solid %accent; padding: 5px 14px; outline: none; }
QPushButton:disabled { color: %disabled; border-color: %hairline; background: %window; }
QPushButton:default { background: %accent; color: %onaccent; border-color: %accent; }
QPushButton:default:hover, QPushButton:default:pressed { background: %pressed; }
QPushButton:default:focus { border: 2px solid %text; }
QPushButton:default:disabled { background: %groove; color: %muted; border-color: %groove; }

QToolButton { background: transparent; color: %text; border: 1px solid transparent; border-radius: 7px; padding: 5px 7px; }
QToolButton:hover { background: %hover; }
QToolButton:pressed, QToolButton:checked { background: %groove; }
QToolButton:focus { border: 2px solid %accent; padding: 4px 6px; }
QToolButton:disabled { color: %disabled; }

QScrollArea[ringed="true"] { border: 2px solid transparent; border-radius: 6px; background: transparent; }
QScrollArea[ringed="true"]:focus { border-color: %accent; }
QLineEdit, QPlainTextEdit, QAbstractSpinBox[number="true"] { background: %base;
              border: 1px solid %outline; border-radius: 8px; padding: 5px 9px;
              selection-background-color: %accent; selection-color: %onaccent; }
QLineEdit:focus, QPlainTextEdit:focus, QAbstractSpinBox[number="true"]:focus { border: 2px solid %accent; padding: 4px 8px; }
QLineEdit:disabled, QPlainTextEdit:disabled, QAbstractSpinBox[number="true"]:disabled { background: %window; border-color: %hairline; }
QAbstractSpinBox QLineEdit, QComboBox QLineEdit { border: none; padding: 0; background: transparent; }

QComboBox { background: %button; color: %text; border: 1px solid %outline; border-radius: 8px;
            padding: 5px 8px 5px 11px; min-height: 1.1em; }
QComboBox:hover { background: %hover; }
QComboBox:focus { border: 2px solid %accent; padding: 4px 7px 4px 10px; }
QComboBox:disabled { color: %disabled; border-color: %hairline; background: %window; }
QComboBox::drop-down { border: none; width: 24px; }
QComboBox::down-arrow { image: url(:/actions/chevron-%arrow.svg); width: 12px; height: 12px; }
QComboBox::down-arrow:disabled { image: url(:/actions/chevron-disabled.svg); }
QComboBox QAbstractItemView { background: %base; color: %text; border: 1px solid %hairline; padding: 4px; outline: none; }

QCheckBox, QRadioButton { spacing: 8px; outline: none; }
QCheckBox::indicator, QRadioButton::indicator { width: 14px; height: 14px; border: 1px solid %outline; border-radius: 4px;
              background: %base; }
QRadioButton::indicator { border-radius: 8px; }
QCheckBox::indicator:hover, QRadioButton::indicator:hover { background: %hover; }
QCheckBox::indicator:focus, QRadioButton::indicator:focus { border: 2px solid %accent; width: 12px; height: 12px; }
QCheckBox::indicator:checked { background: %accent; border-color: %accent; image: url(:/actions/tick-%tick.svg); }
QRadioButton::indicator:checked { border: 5px solid %accent; width: 6px; height: 6px; background: %onaccent; }
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { border-color: %hairline; background: %window; }
QCheckBox::indicator:checked:disabled { background: %disabled; border-color: %disabled; }
QCheckBox::indicator:checked:focus, QRadioButton::indicator:checked:focus { border-color: %text; }
QRadioButton::indicator:checked:focus { background: %accent; }

QProgressBar[thin="true"] { background: %groove; border: none; border-radius: 3px; }
QProgressBar[thin="true"]::chunk { background: %accent; border-radius: 3px; }

QFrame[card="true"] { background: %base; border: 1px solid %hairline; border-radius: 12px; }
QLabel[caption="true"] { color: %muted; font-weight: 600; }
QMainWindow[textured="true"] { background: %hover; }

QScrollBar:vertical { width: 10px; background: transparent; margin: 2px; }
QScrollBar:horizontal { height: 10px; background: transparent; margin: 2px; }
QScrollBar::handle { background: %outline; border-radius: 3px; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

}  // namespace

Theme::Theme(DesktopAppearance* appearance, QObject* parent)
    : QObject(parent), _appearance(appearance), _cameDark(qApp->palette().color(QPalette::Window).lightness() < 128) {
  if (appearance) {
    connect(appearance, &DesktopAppearance::changed, this, [this] {
      if (_applied) apply();
    });
  }
}

bool Theme::isDark() const {
  if (_scheme != Scheme::FollowDesktop) return _scheme == Scheme::Dark;
  return _appearance ? _appearance->prefersDark().value_or(_cameDark) : _cameDark;
}

void Theme::setScheme(Scheme scheme) {
  _scheme = scheme;
  if (_applied) apply();
}

void Theme::prepare() {
  _setPalette();
}

void Theme::apply() {
  _applied = true;
  // The arrows that the style sheet names are embedded.
  windowResource({});
  qApp->setStyleSheet(styleSheet(_setPalette()));
  Q_EMIT changed();
}

QPalette Theme::_setPalette() {
  if (!_prepared) QApplication::setStyle(new ThemeStyle);
  _prepared = true;
  const QPalette colors = palette(isDark(), _appearance ? _appearance->accent() : std::nullopt,
                                  _appearance && _appearance->prefersHighContrast());
  setMotionReduced(_appearance && _appearance->prefersReducedMotion());
  QApplication::setPalette(colors);
  return colors;
}

QPalette Theme::palette(bool isDark, const std::optional<QColor>& accent, bool highContrast) {
  const Colors& colors = isDark ? dark : light;
  const auto color = [](const char* name) { return QColor(QLatin1String(name)); };
  const QColor text = highContrast ? (isDark ? QColor(Qt::white) : QColor(Qt::black)) : color(colors.text);
  const QColor highlight = usable(accent.value_or(color(colors.accent)), color(colors.window), color(colors.base));
  QPalette made;
  made.setColor(QPalette::Window, color(colors.window));
  made.setColor(QPalette::WindowText, text);
  made.setColor(QPalette::Base, color(colors.base));
  made.setColor(QPalette::AlternateBase, color(colors.hover));
  made.setColor(QPalette::Text, text);
  made.setColor(QPalette::Button, color(colors.button));
  made.setColor(QPalette::ButtonText, text);
  made.setColor(QPalette::BrightText, Qt::white);
  made.setColor(QPalette::ToolTipBase, color(colors.base));
  made.setColor(QPalette::ToolTipText, text);
  made.setColor(QPalette::PlaceholderText, highContrast ? text : color(colors.muted));
  made.setColor(QPalette::Highlight, highlight);
  made.setColor(QPalette::HighlightedText, textOn(highlight));
  // Links are text: they want the contrast of text on the ground.
  QColor link = highlight;
  for (int step = 0; step < 40 && contrastRatio(link, color(colors.window)) < 4.5; ++step) {
    link = isDark ? link.lighter(105) : link.darker(105);
  }
  made.setColor(QPalette::Link, link);
  made.setColor(QPalette::LinkVisited, link);
  made.setColor(QPalette::Dark, color(highContrast ? colors.strongOutline : colors.outline));
  made.setColor(QPalette::Mid, color(highContrast ? colors.outline : colors.hairline));
  made.setColor(QPalette::Midlight, color(colors.groove));
  made.setColor(QPalette::Light, color(colors.hover));
  made.setColor(QPalette::Shadow, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText,
                          QPalette::PlaceholderText}) {
    made.setColor(QPalette::Disabled, role, color(colors.disabled));
  }
  made.setColor(QPalette::Disabled, QPalette::Base, color(colors.window));
  made.setColor(QPalette::Disabled, QPalette::Highlight, color(colors.groove));
  return made;
}

QString Theme::styleSheet(const QPalette& palette) {
  return filled(QLatin1String(sheetText), palette);
}

}  // namespace quorvane
