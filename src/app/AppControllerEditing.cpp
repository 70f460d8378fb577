// SPDX-License-Identifier: GPL-3.0-or-later
// The controls and what they do to the canvas.
#include <QFile>
#include <QPushButton>

#include "app/AppController.h"
#include "app/BaseColumn.h"
#include "app/BusyIndicator.h"
#include "app/QVWindow.h"
#include "app/core/BasePicture.h"
#include "app/core/EditHistory.h"
#include "app/core/EffectPresets.h"
#include "app/core/FolderWork.h"
#include "composition/view/FolderView.h"
#include "composition/view/PreviewStrip.h"
#include "ui/ElidedLabel.h"
#include "ui/HVColorWell.h"
#include "ui/HVTableView.h"
#include "ui/PopUpButton.h"
#include "ui/Reasons.h"
#include "ui/SharedPanels.h"
#include "ui/Slider.h"
#include "ui/Texts.h"

namespace quorvane {

void AppController::setColor(const QColor& color) {
  if (_ignoreChangeColor || _isOtherWellActive()) return;
  _folderView->setColor(color);
  _colorWell->setColor(color);
}

void AppController::setFontSize(Slider& sender) {
  _folderView->setFontSize(sender.integerValue());
  _updateFontToolTip();
}

void AppController::setFont(const LabelFont& font) {
  _folderView->setFont(font);
  _fontSizeSlider->setValue(font.size);
  _updateFontToolTip();
}

void AppController::_updateFontToolTip() {
  const LabelFont font = _folderView->font();
  _fontBtn->setToolTip(plainToolTip(filled(tr("%@ %.0f"), {font.displayName(), QString::number(font.size, 'f', 0)})));
  // Ampersands would be taken for access keys.
  _fontBtn->setText(font.displayName().replace(QLatin1Char('&'), QLatin1String("&&")));
}

void AppController::showFont(QPushButton& sender) {
  _labelTF->setFocus();
  if (sender.isChecked()) {
    _services.panels.fontPanel().showPanel();
  } else {
    _services.panels.fontPanel().hidePanel();
  }
}

void AppController::setLineSpacing(Slider& sender) {
  _folderView->setLineSpacing(static_cast<float>(sender.value()));
}

void AppController::setEffect(PopUpButton& sender) {
  _setEffect(sender.selectedTag());
}

void AppController::_setEffect(int tag) {
  const auto shadow = shadowForEffectTag(tag);
  _effectPopUp->selectItemWithTag(tag);
  _folderView->setShadow(shadow);
}

void AppController::setShearFactor(Slider& sender) {
  _folderView->setShearFactor(static_cast<float>(sender.value()));
}

void AppController::setRotation(Slider& sender) {
  _folderView->setRotation(static_cast<float>(sender.value()));
}

void AppController::setOpacity(Slider& sender) {
  _folderView->setOpacity(static_cast<float>(sender.value()));
}

void AppController::resetTransform() {
  _endSliderStep();
  _history->beginStep(EditKind::Transform);
  for (Slider* slider : {_shearSlider, _rotationSlider}) {
    slider->setValue(0);
    slider->sendAction();
    _endSliderStep();
  }
  _history->endStep();
}

void AppController::setBaseIcon(const std::optional<Image>& image) {
  _cancelPicture();
  if (!image) _baseTableView->clearSelection();
  _basePicture.reset();
  _folderView->setBaseIcon(_path ? image : std::nullopt);
  _updateApplyButton();
}

void AppController::setLabel(const std::optional<QString>& label) {
  // What the field says already stays as it is, with the caret where the user has it.
  if (const QString text = label.value_or(QString()); text != _labelTF->stringValue()) _labelTF->setStringValue(text);
  _folderView->setLabel(label);
  _updateApplyButton();
}

void AppController::_updateApplyButton() {
  // While the busy sign tells of a picture that is being read, nothing is written.
  _applyBtn->setEnabled(_isIconModified() && !(_isReading && _busyIndicator->isShown()));
  Q_EMIT stateChanged();
}

void AppController::controlTextDidChange(LabelTextField& field) {
  setLabel(field.stringValue());
}

bool AppController::controlTextViewDoCommandBySelector(LabelTextField& control, LabelTextField& textView,
                                                       TextCommand command) {
  if (command != TextCommand::InsertNewline) return false;
  const TextRange selected = textView.selectedRange();
  QString text;
  text.reserve(20);
  text = control.stringValue();
  text.replace(selected.location, selected.length, QStringLiteral("\n"));
  control.setStringValue(text);
  textView.setSelectedRange({selected.location + 1, selected.length});
  // Not setLabel(): a line break alone leaves the Apply button as it is.
  _folderView->setLabel(text);
  return true;
}

void AppController::centerLabel() {
  _folderView->finishKeyMoves();
  _folderView->setCanvasLabelCenter({64, 64});
}

void AppController::undo() {
  _folderView->finishKeyMoves();
  _endSliderStep();
  if (_history->undo()) _showValues();
}

void AppController::redo() {
  _folderView->finishKeyMoves();
  _endSliderStep();
  if (_history->redo()) _showValues();
}

void AppController::_showValues() {
  const IconComposition& composition = _folderView->composition();
  const LabelLook look = composition.look();
  setLabel(composition.label());
  const LabelFont font = composition.font();
  _services.panels.fontPanel().setPanelFont(font.family, font.style, font.size);
  _fontSizeSlider->setValue(font.size);
  _updateFontToolTip();
  if (look.color) {
    _colorWell->setColor(*look.color);
    if (!_isOtherWellActive()) _services.panels.colorPanel().setColor(*look.color);
  }
  for (int item = 0; item < _effectPopUp->count(); ++item) {
    const int tag = _effectPopUp->tagAt(item);
    if (tag >= 0 && shadowForEffectTag(tag) == look.shadow) {
      _effectPopUp->selectItemWithTag(tag);
      break;
    }
  }
  _lineSpacingSlider->setValue(look.lineSpacingFactor);
  _shearSlider->setValue(look.shearFactor);
  _rotationSlider->setValue(look.rotation);
  _opacitySlider->setValue(look.opacity);
}

void AppController::_canvasChanged() {
  // A drag is one step; it is noted at its end.
  if (!_folderView->isMouseDown()) _history->note();
  _previewStrip->setComposition(_folderView->composition());
  _previewStrip->setVisible(_folderView->baseIcon() || _folderView->currentIcon());
  _baseColumn->showPicture(_folderView->baseIcon());
  _showTintAndOverlay();
}

void AppController::chooseBasePicture() {
  if (!_path) return showFirstStep(static_cast<QWidget*>(_baseColumn));
  _services.choosePicture(*_mainWindow, [self = QPointer(this)](const Path& path) {
    if (self) self->setBasePicture(path);
  });
}

void AppController::setBasePicture(const Path& path) {
  if (!_path) return showFirstStep(static_cast<QWidget*>(_baseColumn));
  _setBaseReference({.path = path, .within = {}});
}

void AppController::_setBaseReference(const BaseReference& reference) {
  _readPicture([read = _services.readPicture, reference] { return read(reference); },
               [this, reference](const Result<Image>& picture) { _showBaseReference(reference, picture); });
}

void AppController::_readPicture(const std::function<Result<Image>()>& read,
                                 const std::function<void(const Result<Image>&)>& show) {
  _cancelPicture();
  struct Answer {
    std::optional<Result<Image>> picture;
    bool isLate = false;
  };
  const auto answer = std::make_shared<Answer>();
  const unsigned reading = _reading;
  _isReading = true;
  _beginWork(_readingWords());
  _services.work.readPicture(read, [this, self = QPointer(this), answer, show, reading](Result<Image> picture) {
    if (!self || reading != _reading) return;
    _endReading();
    if (answer->isLate)
      show(picture);
    else
      answer->picture = std::move(picture);
  });
  _waitBriefly([&] { return answer->picture || reading != _reading; });
  answer->isLate = true;
  if (answer->picture && reading == _reading) show(*answer->picture);
}

void AppController::_endReading() {
  _isReading = false;
  _endWork();
  _revertBtn->setEnabled(_path.has_value());
  _updateApplyButton();
}

void AppController::_cancelPicture() {
  ++_reading;
  _services.work.cancelPicture();
  if (_isReading) _endReading();
}

void AppController::_showBaseReference(const BaseReference& reference, const Result<Image>& picture) {
  const QString name = visibleText(QFile::decodeName(reference.shown().filename().c_str()));
  if (!picture) {
    _notice(tr("“%1” cannot be used: %2").arg(name, reasonOf(picture.error())));
    return;
  }
  setBaseIcon(*picture);
  _basePicture = reference.shown();
  _baseColumn->setPictureName(name);
}

}  // namespace quorvane
