// SPDX-License-Identifier: GPL-3.0-or-later
// Joining the window's parts and the shared panels to the controller.
#include <QKeyEvent>
#include <QPushButton>

#include "app/AppController.h"
#include "app/BaseColumn.h"
#include "app/BusyIndicator.h"
#include "app/PreferenceController.h"
#include "app/QVWindow.h"
#include "app/core/EditHistory.h"
#include "app/core/SettingsTable.h"
#include "composition/view/FolderView.h"
#include "foundation/UserDefaults.h"
#include "ui/HVColorWell.h"
#include "ui/PopUpButton.h"
#include "ui/SharedPanels.h"
#include "ui/Slider.h"

namespace quorvane {

void AppController::_initColorPanel() {
  const QColor color = settings::startColor(_services.defaults);
  ColorPanel& panel = _services.panels.colorPanel();
  panel.setColor(color);
  // What is chosen for a tint or an overlay is not the colour that a label was given last.
  connect(&panel, &ColorPanel::colorChanged, this, [this, &panel] {
    if (!_isOtherWellActive()) _mainWindow->myChangeColor(panel);
  });
  _colorWell->setColor(color);
  _folderView->setColor(color);
}

void AppController::_initFontPanel() {
  const LabelFont font = settings::startFont(_services.defaults);
  FontPanel& panel = _services.panels.fontPanel();
  // The sheet that has the panel's content comes first.
  connect(&panel, &FontPanel::fontChanged, this, [this, &panel] {
    if (_preferenceController->isFontSheetUp()) return _preferenceController->myChangeFont(panel);
    _mainWindow->myChangeFont(panel);
  });
  connect(&panel, &FontPanel::panelClosed, this, &AppController::fontPanelWillClose);
  connect(_folderView, &FolderView::selectedFontChanged, &panel,
          [&panel](const LabelFont& selected) { panel.setPanelFont(selected.family, selected.style, selected.size); });
  panel.setPanelFont(font.family, font.style, font.size);
  setFont(font);
}

void AppController::fontPanelWillClose() {
  _fontBtn->setChecked(false);
}

void AppController::_connectSlider(Slider& slider, void (AppController::*action)(Slider&)) {
  // What is changed in one drag is taken back in one go.
  connect(&slider, &Slider::valueChanged, this, [this, &slider, action] {
    if (_heldSlider != &slider) {
      _endSliderStep();
      _history->beginStep();
      _heldSlider = &slider;
    }
    (this->*action)(slider);
  });
  connect(&slider, &Slider::editingFinished, this, &AppController::_endSliderStep);
}

void AppController::_endSliderStep() {
  if (!_heldSlider) return;
  _heldSlider = nullptr;
  _history->endStep();
}

void AppController::_connectControls() {
  connect(_openBtn, &QPushButton::clicked, this, &AppController::open);
  connect(_applyBtn, &QPushButton::clicked, this, &AppController::apply);
  connect(_revertBtn, &QPushButton::clicked, this, &AppController::revert);
  connect(_busyIndicator, &BusyIndicator::cancelled, this, &AppController::_cancelWork);
  connect(_resetBtn, &QPushButton::clicked, this, &AppController::resetTransform);
  connect(_fontBtn, &QPushButton::clicked, this, [this] { showFont(*_fontBtn); });
  connect(_effectPopUp, &PopUpButton::action, this, [this] { setEffect(*_effectPopUp); });
  _connectSlider(*_fontSizeSlider, &AppController::setFontSize);
  _connectSlider(*_lineSpacingSlider, &AppController::setLineSpacing);
  _connectSlider(*_shearSlider, &AppController::setShearFactor);
  _connectSlider(*_rotationSlider, &AppController::setRotation);
  _connectSlider(*_opacitySlider, &AppController::setOpacity);

  connect(_folderView, &FolderView::setPath, this, [this](const Path& path) {
    if (!_isWriting()) setPath(path);
  });
  connect(_folderView, &FolderView::activationRequested, _mainWindow, &QVWindow::bringToFront);
  connect(_folderView, &FolderView::dropRefused, this, &AppController::_notice);
  connect(_folderView, &FolderView::compositionChanged, this, &AppController::_canvasChanged);
  connect(_mainWindow, &QVWindow::folderDropped, this, [this](const Path& path) {
    if (!_isWriting() && applicationOpenFile(path)) _mainWindow->bringToFront();
  });
  connect(_mainWindow, &QVWindow::dropRefused, this, &AppController::_notice);
  connect(_baseColumn, &BaseColumn::choosePicture, this, &AppController::chooseBasePicture);
  connect(_baseColumn, &BaseColumn::pictureDropped, this, &AppController::setBasePicture);
  connect(_baseColumn, &BaseColumn::dropRefused, this, &AppController::_notice);
  connect(_baseColumn, &BaseColumn::clearPicture, this, [this] { setBaseIcon(std::nullopt); });

  connect(_folderView, &FolderView::labelMoved, this, [this] { _history->note(); });
  _connectTintAndOverlay();
  _connectMenu();

  _labelTF->setUndoRedoEnabled(false);
  _labelTF->installEventFilter(this);
}

bool AppController::eventFilter(QObject* watched, QEvent* event) {
  if (watched == _labelTF && event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
      event->ignore();
      return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace quorvane
