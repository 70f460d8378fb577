// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UpdateSheet.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/LayoutPieces.h"
#include "ui/AlertPanel.h"
#include "ui/Tag.h"

namespace quorvane {

namespace {

constexpr int newsWidth = 480;
constexpr int newsHeight = 260;
constexpr int leastNewsHeight = 60;
/// What all else on the sheet takes, and the window's menu: gaps, and lines of text.
constexpr int otherGaps = 160;
constexpr int otherLines = 10;

QLabel* makeLine(const QString& text) {
  auto* line = new QLabel(text);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  return line;
}

}  // namespace

UpdateSheet::UpdateSheet(const UpdateOffer& offer) {
  setWindowTitle(tr("Quorvane %1 Is Available").arg(offer.version));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 20, 24, 20);
  layout->setSpacing(10);
  layout->addWidget(makeTitle(windowTitle()));
  const QString running = tr("You have version %1.").arg(offer.runningVersion);
  layout->addWidget(makeLine(offer.published.isEmpty() ? running
                                                       : running + QLatin1Char(' ') +
                                                             tr("The new one came out on %1.").arg(offer.published)));
  if (!offer.news.isEmpty()) {
    layout->addSpacing(4);
    layout->addWidget(makeCaption(tr("What Is New")));
    QFrame* card = makeCard();
    _news = new MessageText(offer.news, card);
    _news->setAccessibleName(tr("What Is New"));
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(cardPadding, cardPadding, cardPadding, cardPadding);
    inside->addWidget(_news);
    layout->addWidget(card);
  }
  QLabel* remark =
      makeLine(offer.pageHost.isEmpty()
                   ? tr("No page is named from which it can be downloaded.")
                   : tr("The page at %1 opens in your browser. Nothing is downloaded or installed without you.")
                         .arg(offer.pageHost));
  remark->setForegroundRole(QPalette::PlaceholderText);
  layout->addWidget(remark);

  // Made in the order of the Tab key. A sheet ends by the buttons among its own children.
  auto* open = new QPushButton(tr("&Open Download Page"));
  auto* notNow = new QPushButton(tr("&Later"));
  auto* never = new QPushButton(tr("&Skip This Version"));
  setTag(*open, openPage);
  setTag(*notNow, later);
  setTag(*never, skip);
  auto* buttons = new QHBoxLayout;
  _buttons = buttons;
  buttons->setContentsMargins(0, 8, 0, 0);
  buttons->setSpacing(10);
  buttons->addWidget(never);
  buttons->addStretch();
  buttons->addWidget(notNow);
  if (offer.pageHost.isEmpty()) {
    delete open;
    notNow->setDefault(true);
  } else {
    open->setDefault(true);
    buttons->addWidget(open);
  }
  layout->addLayout(buttons);
  (offer.pageHost.isEmpty() ? notNow : open)->setFocus();
}

void UpdateSheet::showEvent(QShowEvent* event) {
  // Not before: only now the text has its font and the window its size.
  const int width = std::max(newsWidth, _buttons->minimumSize().width() - 2 * cardPadding);
  const int other = otherGaps + otherLines * fontMetrics().height();
  if (_news) _news->fit(width, std::clamp(window()->height() - other, leastNewsHeight, newsHeight));
  QWidget::showEvent(event);
}

}  // namespace quorvane
