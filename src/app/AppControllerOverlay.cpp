// SPDX-License-Identifier: GPL-3.0-or-later
// Tinting the picture, and what is laid on it.
#include <QFile>
#include <QPushButton>
#include <utility>

#include "app/AppController.h"
#include "app/OverlayGroup.h"
#include "app/QVWindow.h"
#include "app/TintBar.h"
#include "app/core/BasePicture.h"
#include "app/core/EditHistory.h"
#include "composition/view/FolderView.h"
#include "ui/ElidedLabel.h"
#include "ui/HVColorWell.h"
#include "ui/Reasons.h"
#include "ui/Slider.h"

namespace quorvane {

void AppController::_connectTintAndOverlay() {
  connect(_tintBar, &TintBar::tintChosen, this, &AppController::setTint);
  connect(_overlayGroup, &OverlayGroup::drawingChosen, this, &AppController::setOverlayDrawing);
  connect(_overlayGroup, &OverlayGroup::pictureWanted, this, &AppController::chooseOverlayPicture);
  connect(_overlayGroup, &OverlayGroup::removed, this, &AppController::removeOverlay);
  connect(_overlayGroup, &OverlayGroup::colorChosen, this, &AppController::setOverlayColor);
  _connectSlider(*_overlayGroup->sizeSlider(), &AppController::setOverlaySize);
  _connectSlider(*_overlayGroup->opacitySlider(), &AppController::setOverlayOpacity);
  connect(_folderView, &FolderView::overlayMoved, this, [this] { _history->note(); });
  const auto enable = [this] {
    _tintBar->setEnabled(_path.has_value());
    _overlayGroup->card()->setEnabled(_path.has_value());
  };
  connect(this, &AppController::stateChanged, this, enable);
  enable();
}

bool AppController::_isOtherWellActive() const {
  return _tintBar->colorWell()->isActive() || _overlayGroup->colorWell()->isActive();
}

void AppController::_showTintAndOverlay() {
  _tintBar->setTint(_folderView->composition().tint());
  _overlayGroup->setOverlay(_folderView->composition().overlay());
  const bool isThere = _folderView->composition().tint() || _folderView->composition().overlay();
  if (std::exchange(_hasTintOrOverlay, isThere) != isThere) _updateApplyButton();
}

void AppController::_clearTintAndOverlay() {
  IconComposition& composition = _folderView->composition();
  if (composition.overlay()) composition.setOverlay(std::nullopt);
  if (composition.tint()) composition.setTint(std::nullopt);
}

void AppController::setTint(const std::optional<QColor>& tint) {
  if (!_path) return;
  _folderView->finishKeyMoves();
  _folderView->composition().setTint(tint);
}

void AppController::_changeOverlay(const std::function<void(IconOverlay&)>& change) {
  if (!_path) return;
  _folderView->finishKeyMoves();
  IconOverlay overlay = _folderView->composition().overlay().value_or(IconOverlay());
  change(overlay);
  if (overlay.hasDrawing()) _folderView->composition().setOverlay(std::move(overlay));
}

void AppController::setOverlayDrawing(const OverlayDrawing& drawing) {
  _changeOverlay([&](IconOverlay& overlay) { overlay.drawing = drawing; });
}

void AppController::removeOverlay() {
  _folderView->finishKeyMoves();
  _folderView->composition().setOverlay(std::nullopt);
  _overlayGroup->chooseButton()->setFocus();
}

void AppController::setOverlaySize(Slider& sender) {
  _changeOverlay([&](IconOverlay& overlay) { overlay.size = static_cast<float>(sender.value()); });
}

void AppController::setOverlayOpacity(Slider& sender) {
  _changeOverlay([&](IconOverlay& overlay) { overlay.opacity = static_cast<float>(sender.value()); });
}

void AppController::setOverlayColor(const std::optional<QColor>& color) {
  _changeOverlay([&](IconOverlay& overlay) { overlay.color = color; });
}

void AppController::chooseOverlayPicture() {
  if (!_path) return showFirstStep(static_cast<QWidget*>(_overlayGroup->card()));
  _services.choosePicture(*_mainWindow, [self = QPointer(this)](const Path& path) {
    if (self) self->setOverlayPicture(path);
  });
}

void AppController::setOverlayPicture(const Path& path) {
  if (!_path) return;
  const BaseReference reference{.path = path, .within = {}};
  const auto read = [reference]() -> Result<Image> { return TRY(readOverlayPicture(reference)).image(); };
  _readPicture(read, [this, path](const Result<Image>& image) {
    const auto picture = image ? OverlayPicture::fromImage(*image) : Result<OverlayPicture>(image.error());
    if (picture) return setOverlayDrawing(*picture);
    const QString name = visibleText(QFile::decodeName(path.filename().c_str()));
    _notice(tr("“%1” cannot be used: %2").arg(name, reasonOf(picture.error())));
  });
}

}  // namespace quorvane
