// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QVWindow.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QScreen>

#include "app/AppController.h"
#include "app/core/SettingsTable.h"
#include "composition/view/DroppedFolder.h"
#include "composition/view/FolderView.h"
#include "foundation/UserDefaults.h"
#include "ui/SharedPanels.h"

namespace quorvane {

/// A ring round the whole window while a folder hovers over it.
class QVWindow::DropFrame : public QWidget {
 public:
  explicit DropFrame(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor accent = palette().color(QPalette::Highlight);
    painter.setPen(QPen(accent, 3));
    accent.setAlphaF(0.06F);
    painter.setBrush(accent);
    painter.drawRoundedRect(QRectF(rect()).adjusted(3.5, 3.5, -3.5, -3.5), 10, 10);
  }
};

QVWindow::QVWindow(UserDefaults& defaults)
    : _defaults(defaults),
      _dropFrame(new DropFrame(this)),
      _inside(new QWidget(this)),
      _refused(*_inside, [this](const QString& reason) { Q_EMIT dropRefused(reason); }) {
  setAcceptDrops(true);
  _inside->hide();
  _release.setSingleShot(true);
  _release.setInterval(400);
  connect(&_release, &QTimer::timeout, this, [this] { _defaults.release(); });
}

void QVWindow::setOutlets(FolderView* folderView, AppController* appController) {
  _folderView = folderView;
  _appController = appController;
}

void QVWindow::myChangeFont(const FontPanel& sender) {
  const LabelFont font{sender.family(), sender.style(), sender.size()};
  _appController->setFont(font);
  _holdSettings();
  settings::setValue(_defaults, settings::lastUsedFont, font);
}

void QVWindow::myChangeColor(const ColorPanel& sender) {
  _appController->setColor(sender.color());
  _holdSettings();
  settings::setValue(_defaults, settings::lastUsedColor, sender.color());
}

void QVWindow::_holdSettings() {
  // A file that is flushed for every step would hold up who drags through the colours.
  _defaults.hold();
  _release.start();
}

void QVWindow::growBy(QSize missing) {
  if (isMaximized() || isFullScreen()) return;
  const QSize frame = frameGeometry().size() - size();
  const QSize room = screen()->availableSize() - frame;
  resize((size() + missing.expandedTo(QSize(0, 0))).boundedTo(room).expandedTo(size()));
}

void QVWindow::bringToFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void QVWindow::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) _mendFrame();
  HVWindow::showEvent(event);
}

void QVWindow::_mendFrame() {
  // A strip of the title that can be grabbed is enough to leave it where it is.
  constexpr int grip = 80;
  const QRect title(frameGeometry().topLeft(), QSize(frameGeometry().width(), grip));
  for (const QScreen* each : screen()->virtualSiblings()) {
    const QRect seen = each->availableGeometry().intersected(title);
    if (seen.width() >= grip && seen.height() >= grip / 2) return;
  }
  const QSize room = screen()->availableSize();
  resize(size().boundedTo(room));
  center();
}

void QVWindow::_showDropFrame(bool shown) {
  if (shown) {
    _dropFrame->setGeometry(rect());
    _dropFrame->raise();
  }
  _dropFrame->setVisible(shown);
}

void QVWindow::dragEnterEvent(QDragEnterEvent* event) {
  const DroppedFolder dropped = DroppedFolder::of(*event->mimeData());
  const bool isTaken = dropped.path.has_value() && !isSheetUp();
  _refused.end();
  _showDropFrame(isTaken);
  if (!isTaken) {
    constexpr int rim = 24;
    _inside->setGeometry(rect().adjusted(rim, rim, -rim, -rim));
    if (!isSheetUp()) _refused.begin(dropped.refusal);
    return event->ignore();
  }
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void QVWindow::dragMoveEvent(QDragMoveEvent* event) {
  if (_dropFrame->isHidden()) return event->ignore();
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void QVWindow::dragLeaveEvent(QDragLeaveEvent* event) {
  _showDropFrame(false);
  event->accept();
}

void QVWindow::dropEvent(QDropEvent* event) {
  _showDropFrame(false);
  const DroppedFolder dropped = DroppedFolder::of(*event->mimeData());
  if (!dropped.path || isSheetUp()) return event->ignore();
  event->setDropAction(Qt::CopyAction);
  event->accept();
  Q_EMIT folderDropped(*dropped.path);
}

}  // namespace quorvane
