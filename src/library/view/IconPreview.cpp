// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/IconPreview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <cmath>

namespace quorvane {

namespace {

/// In logical pixels.
constexpr int sides[] = {128, 64, 32, 16};
constexpr int gap = 14;
constexpr int margin = 12;

}  // namespace

IconPreview::IconPreview(Reader reader, WorkQueue::Mode mode, QWidget* parent)
    : QWidget(parent), _reader(std::move(reader)), _words(new QLabel), _place(new QWidget), _queue(mode) {
  int width = 2 * margin;
  for (const int side : sides) width += side + gap;
  _place->setFixedSize(width, sides[0] + 2 * margin);
  _words->setWordWrap(true);
  _words->setTextFormat(Qt::PlainText);
  _words->setForegroundRole(QPalette::PlaceholderText);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->addWidget(_place);
  row->addWidget(_words, 1);
  setAccessibleName(tr("Preview of the chosen file"));
  _show(std::nullopt);
  _words->setText(tr("Choose a picture, an icon file or a folder."));
}

QString IconPreview::text() const {
  return _words->text();
}

void IconPreview::setPath(const std::filesystem::path& path) {
  if (_reading) _queue.cancel(*_reading);
  _reading.reset();
  if (path.empty()) return _show(std::nullopt);
  std::vector<int> pixels;
  for (const int side : sides) pixels.push_back(static_cast<int>(std::lround(side * devicePixelRatioF())));
  _words->setText(tr("Reading…"));
  _reading = _queue.add(WorkQueue::Importance::MayBeDropped, [this, path, pixels, read = _reader] {
    return [this, look = read(path, pixels)] { _show(look); };
  });
}

void IconPreview::_show(const std::optional<Look>& look) {
  _pictures = look ? look->pictures : std::vector<QImage>();
  QStringList sizes;
  for (const int size : look ? look->heldSizes : std::vector<int>()) sizes << QString::number(size);
  if (!look)
    _words->setText(tr("No picture can be had of it."));
  else if (sizes.isEmpty())
    _words->setText(tr("The icon that the desktop shows for it."));
  else
    _words->setText(tr("Holds these sizes in pixels: %1").arg(QLocale().createSeparatedList(sizes)));
  setAccessibleDescription(_words->text());
  update();
}

void IconPreview::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Mid), 1));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRoundedRect(QRectF(_place->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), 10, 10);
  int x = _place->x() + margin + gap / 2;
  const double density = devicePixelRatioF();
  for (std::size_t number = 0; number < _pictures.size() && number < std::size(sides); ++number) {
    const QImage& picture = _pictures[number];
    const QSizeF size = QSizeF(picture.size()) / density;
    const int side = sides[number];
    const QPointF corner(std::round(x + (side - size.width()) / 2),
                         std::round(_place->geometry().center().y() - size.height() / 2));
    if (!picture.isNull()) painter.drawImage(QRectF(corner, size), picture);
    x += side + gap;
  }
}

}  // namespace quorvane
