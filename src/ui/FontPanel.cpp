// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/FontPanel.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <algorithm>
#include <cmath>

namespace quorvane {
namespace {

/// What the dialog's size field takes.
constexpr int smallestSize = 1;
constexpr int largestSize = 512;
/// Room for a sample of the usual sizes.
constexpr QSize sampleRoom(330, 84);
/// Room for the names of most families beside it, in characters.
constexpr int panelWidth = 90;

int shownSize(double size) {
  return static_cast<int>(std::lround(std::clamp(size, double{smallestSize}, double{largestSize})));
}

/// The style if the family has it, else what it calls its plain one. Without a style the dialog would take the first of
/// its list, which may well be a slanted one.
QString existingStyle(const QString& family, const QString& style) {
  const QStringList styles = QFontDatabase::styles(family);
  if (styles.contains(style)) return style;
  for (const char* plain : {"Regular", "Book", "Normal", "Roman", "Medium"}) {
    if (styles.contains(QLatin1String(plain))) return QLatin1String(plain);
  }
  return styles.value(0);
}

}  // namespace

FontPanel::FontPanel() : FloatingPanel(tr("Fonts")) {}

QWidget* FontPanel::_makeContent() {
  _dialog = new PanelContent<QFontDialog>;
  _dialog->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
  // Underlining and striking through mean nothing to a label.
  for (const QCheckBox* box : _dialog->findChildren<QCheckBox*>()) {
    if (auto* effects = qobject_cast<QGroupBox*>(box->parentWidget())) effects->hide();
  }
  for (QLineEdit* field : _dialog->findChildren<QLineEdit*>()) {
    if (!qobject_cast<QGroupBox*>(field->parentWidget())) continue;
    field->setMinimumSize(sampleRoom);
    // Of what does not fit the beginning is seen.
    const auto showStart = [field] {
      if (!field->hasFocus()) field->home(false);
    };
    connect(field, &QLineEdit::textChanged, field, showStart);
    showStart();
  }
  _dialog->setSizeGripEnabled(false);
  _dialog->setMinimumWidth(panelWidth * _dialog->fontMetrics().averageCharWidth());
  if (!_family.isEmpty()) _showFont();
  connect(_dialog, &QFontDialog::currentFontChanged, this, &FontPanel::_changed);
  return _dialog;
}

void FontPanel::setPanelFont(const QString& family, const QString& style, double size) {
  _family = family;
  _style = style;
  _size = size;
  if (_dialog) _showFont();
}

void FontPanel::_showFont() {
  const QSignalBlocker quiet(_dialog);
  _dialog->setCurrentFont(QFontDatabase::font(_family, existingStyle(_family, _style), shownSize(_size)));
}

void FontPanel::_changed(const QFont& font) {
  const QString style = font.styleName().isEmpty() ? QFontDatabase::styleString(font) : font.styleName();
  const int points = font.pointSize();
  // The dialog tells anew of what it was given; neither that nor a rounded size is the user's choice.
  const bool sameStyle = font.family() == _family && style == existingStyle(_family, _style);
  const bool sameSize = points == shownSize(_size);
  if (points < smallestSize || (sameStyle && sameSize)) return;
  if (!sameStyle) {
    _family = font.family();
    _style = style;
  }
  if (!sameSize) _size = points;
  Q_EMIT fontChanged(_family, _style, _size);
}

}  // namespace quorvane
