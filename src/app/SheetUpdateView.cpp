// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SheetUpdateView.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/LayoutPieces.h"
#include "app/UpdateSheet.h"
#include "ui/HVWindow.h"
#include "ui/Tag.h"

namespace quorvane {

bool SheetUpdateView::isOccupied() const {
  return _window.isSheetUp() || QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
         QGuiApplication::mouseButtons() != Qt::NoButton;  // something is being dragged
}

void SheetUpdateView::beginWaiting(std::function<void()> givenUp) {
  if (_waitingSheet || isOccupied()) return;
  auto* sheet = new QWidget;
  sheet->setWindowTitle(QObject::tr("Looking for a New Version"));
  auto* words = new QLabel(QObject::tr("The server has not answered yet."));
  words->setTextFormat(Qt::PlainText);
  auto* cancel = new QPushButton(QObject::tr("&Cancel"));
  // Escape presses it as well.
  setTag(*cancel, 0);
  cancel->setDefault(true);
  QObject::connect(cancel, &QPushButton::clicked, sheet, std::move(givenUp), Qt::QueuedConnection);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(sheet);
  layout->setContentsMargins(24, 20, 24, 20);
  layout->setSpacing(layoutGap);
  layout->addWidget(makeTitle(sheet->windowTitle()));
  layout->addWidget(words);
  layout->addLayout(buttons);
  sheet->setMinimumWidth(340);
  _waitingSheet = sheet;
  _window.beginSheet(*sheet);
}

void SheetUpdateView::endWaiting() {
  if (!_waitingSheet) return;
  if (_window.currentSheet() == _waitingSheet) _window.endSheet();
  // Its button may be what has led here.
  _waitingSheet->deleteLater();
  _waitingSheet = nullptr;
}

void SheetUpdateView::tell(const QString& title, const QString& message, const QString& details) {
  _window.runMessageSheetWithTitle(title, message, details);
}

UpdateAnswer SheetUpdateView::offer(const UpdateOffer& offer) {
  UpdateSheet sheet(offer);
  switch (_window.runPromptSheet(sheet)) {
    case UpdateSheet::openPage:
      return UpdateAnswer::OpenPage;
    case UpdateSheet::skip:
      return UpdateAnswer::Skip;
    default:
      return UpdateAnswer::Later;
  }
}

}  // namespace quorvane
