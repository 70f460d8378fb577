// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ColorPanel.h"

#include <QColorDialog>

namespace quorvane {

ColorPanel::ColorPanel() : FloatingPanel(tr("Colours")) {}

QWidget* ColorPanel::_makeContent() {
  _dialog = new PanelContent<QColorDialog>;
  _dialog->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog | QColorDialog::ShowAlphaChannel);
  _dialog->setCurrentColor(_color);
  connect(_dialog, &QColorDialog::currentColorChanged, this, [this](const QColor& color) {
    if (!color.isValid() || color == _color) return;
    _color = color;
    Q_EMIT colorChanged(color);
  });
  return _dialog;
}

void ColorPanel::setColor(const QColor& color) {
  if (!color.isValid()) return;
  // First, so that the dialog's own signal finds nothing new.
  _color = color;
  if (!_dialog) return;
  const QSignalBlocker quiet(_dialog);
  _dialog->setCurrentColor(color);
}

}  // namespace quorvane
