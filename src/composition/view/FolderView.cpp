// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/FolderView.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLocale>

#include "composition/core/LabelGeometry.h"
#include "composition/view/DropFolderHere.h"
#include "composition/view/FolderViewAccessible.h"
#include "ui/CursorCustomCursors.h"

namespace quorvane {

namespace {

constexpr int keysEndMilliseconds = 500;

}  // namespace

FolderView::FolderView(QWidget* parent)
    : ImageView(parent), _refused(*this, [this](const QString& reason) { Q_EMIT dropRefused(reason); }) {
  installFolderViewAccessibility();
  setAcceptDrops(true);
  setFocusPolicy(Qt::StrongFocus);
  _keysEnd.setSingleShot(true);
  _keysEnd.setInterval(keysEndMilliseconds);
  connect(&_keysEnd, &QTimer::timeout, this, &FolderView::finishKeyMoves);
  _composition.setListener([this](const CompositionChange& change) { compositionDidChange(change); });
  FolderView::setImage(std::nullopt);
}

FolderView::~FolderView() = default;

void FolderView::awakeFromNib(const std::optional<LabelFont>& font) {
  setFont(font);
  setCurrentIcon(std::nullopt);
  setBaseIcon(std::nullopt);
  setShearFactor(0);
  setRotation(0);
  setOpacity(1);
}

void FolderView::compositionDidChange(const CompositionChange& change) {
  if (change.displayedImage) setImage(_composition.displayedImage());
  if (change.label) {
    resetCursorRects();
    tellAssistiveTechnology();
  }
  if (change.overlay) {
    if (!_composition.overlay()) setOverlaySelected(false);
    resetCursorRects();
    tellAssistiveTechnology();
  }
  update();
  if (change.selectedFont) Q_EMIT selectedFontChanged(font());
  Q_EMIT compositionChanged();
}

void FolderView::centerLabel() {
  finishKeyMoves();
  _composition.centerLabel();
}

void FolderView::setCanvasLabelCenter(Point center) {
  finishKeyMoves();
  _composition.setCanvasLabelCenter(center);
}

void FolderView::setImage(std::optional<Image> image) {
  _showsPlaceholder = !image;
  setToolTip(_showsPlaceholder ? tr("Drag a folder from the Finder and drop it here.")
                               : tr("Hold down mouse button and drag to reposition text."));
  if (!image) image = dropFolderHereImage(palette());
  ImageView::setImage(std::move(image));
  resetCursorRects();
}

void FolderView::setFolderName(const QString& name) {
  if (name == _folderName) return;
  _folderName = name;
  if (!QAccessible::isActive()) return;
  QAccessibleEvent changed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&changed);
}

QString FolderView::labelDescription() const {
  if (!label() || label()->isEmpty()) return tr("no label") + overlayDescription();
  QString oneLine = *label();
  oneLine.replace(QLatin1Char('\n'), QLatin1Char(' '));
  // The label may hold anything, also what would be taken for the place of a number.
  QString text = tr("label “%label”, %x from the left and %y from the bottom of %side");
  const auto place = [this](float value) { return locale().toString(qRound(value)); };
  text.replace(QLatin1String("%x"), place(canvasLabelCenter().x));
  text.replace(QLatin1String("%y"), place(canvasLabelCenter().y));
  text.replace(QLatin1String("%side"), place(canvasSide));
  text.replace(QLatin1String("%label"), oneLine);
  return text + overlayDescription();
}

void FolderView::tellAssistiveTechnology() {
  if (!QAccessible::isActive()) return;
  for (const auto type : {QAccessible::ValueChanged, QAccessible::DescriptionChanged}) {
    QAccessibleEvent changed(this, type);
    QAccessible::updateAccessibility(&changed);
  }
}

Point FolderView::_originForCenter(Point center, Size size) {
  return quorvane::_originForCenter(center, size);
}

bool FolderView::hasMovableLabel() const {
  return image() && !_showsPlaceholder && label() && !label()->isEmpty();
}

void FolderView::resetCursorRects() {
  if (!hasMovableLabel() && !hasOverlay())
    setCursor(Qt::ArrowCursor);
  else
    setCursor(isMouseDown() ? hvClosedHandCursor() : hvOpenHandCursor());
}

bool FolderView::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
      if (_showsPlaceholder) setImage(std::nullopt);
      break;
    case QEvent::EnabledChange:
      setHighlighted(false);
      update();
      break;
    case QEvent::ShortcutOverride:
      finishKeyMovesBeforeShortcut(static_cast<QKeyEvent*>(event));
      break;
    default:
      break;
  }
  return ImageView::event(event);
}

}  // namespace quorvane
