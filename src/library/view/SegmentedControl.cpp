// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/SegmentedControl.h"

#include <QButtonGroup>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QPainter>

namespace quorvane {

namespace {

/// How long a drag waits over a segment until it is chosen.
constexpr int springDelay = 600;
constexpr int corner = 8;

class Segment : public QRadioButton {
 public:
  explicit Segment(const QString& title) : QRadioButton(title) {
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    _spring.setSingleShot(true);
    _spring.setInterval(springDelay);
    connect(&_spring, &QTimer::timeout, this, &QAbstractButton::click);
  }

  [[nodiscard]] QSize sizeHint() const override {
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
    return {text.width() + 24, text.height() + 12};
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  [[nodiscard]] bool hitButton(const QPoint& place) const override { return rect().contains(place); }

  void dragEnterEvent(QDragEnterEvent* event) override {
    // Nothing can be let go here; whatever it is may be on its way to the other list.
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    if (!isChecked()) _spring.start();
  }
  void dragMoveEvent(QDragMoveEvent* event) override { event->ignore(); }
  void dragLeaveEvent(QDragLeaveEvent* event) override {
    _spring.stop();
    event->accept();
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF place = QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5);
    if (isChecked()) {
      painter.setPen(QPen(palette().color(QPalette::Dark), 1));
      painter.setBrush(palette().color(QPalette::Base));
      painter.drawRoundedRect(place, corner - 2, corner - 2);
    }
    if (hasFocus()) {
      painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
      painter.setBrush(Qt::NoBrush);
      painter.drawRoundedRect(place, corner - 2, corner - 2);
    }
    QFont strong = font();
    if (isChecked()) strong.setWeight(QFont::DemiBold);
    painter.setFont(strong);
    const bool isMuted = !isChecked() && !underMouse();
    painter.setPen(palette().color(isMuted ? QPalette::PlaceholderText : QPalette::Text));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
  }

 private:
  QTimer _spring;
};

}  // namespace

SegmentedControl::SegmentedControl(const QStringList& titles, QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->setSpacing(0);
  auto* group = new QButtonGroup(this);
  for (const QString& title : titles) {
    auto* segment = new Segment(title);
    group->addButton(segment, static_cast<int>(_segments.size()));
    row->addWidget(segment, 1);
    _segments.push_back(segment);
  }
  connect(group, &QButtonGroup::idToggled, this, [this](int segment, bool isOn) {
    if (isOn) Q_EMIT selectionChanged(segment);
  });
}

int SegmentedControl::selected() const {
  for (std::size_t number = 0; number < _segments.size(); ++number) {
    if (_segments[number]->isChecked()) return static_cast<int>(number);
  }
  return -1;
}

void SegmentedControl::setSelected(int segment) {
  this->segment(segment)->setChecked(true);
}

void SegmentedControl::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Midlight));
  painter.drawRoundedRect(rect(), corner, corner);
}

}  // namespace quorvane
