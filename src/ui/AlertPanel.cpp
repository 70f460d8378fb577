// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/AlertPanel.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "ui/Tag.h"

namespace quorvane {
namespace {

constexpr int panelWidth = 460;
constexpr int margin = 24;
constexpr int detailsHeight = 132;

/// The title with the first letter marked that no other button has; its own ampersands stay.
QString withAccessKey(const QString& title, std::vector<QChar>& taken) {
  QString marked;
  bool done = false;
  for (const QChar& character : title) {
    const QChar key = character.toUpper();
    if (!done && key.isLetterOrNumber() && std::find(taken.begin(), taken.end(), key) == taken.end()) {
      marked += QLatin1Char('&');
      taken.push_back(key);
      done = true;
    }
    marked += character;
    if (character == QLatin1Char('&')) marked += QLatin1Char('&');
  }
  return marked;
}

}  // namespace

MessageText::MessageText(const QString& text, QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setAcceptRichText(false);
  setFrameShape(QFrame::NoFrame);
  setPlainText(text);
  document()->setDocumentMargin(0);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::ClickFocus);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  viewport()->setAutoFillBackground(false);
  setAccessibleName(text);
}

void MessageText::fit(int width, int maximumHeight) {
  document()->setTextWidth(width);
  const int height = static_cast<int>(std::ceil(document()->size().height()));
  const bool scrolls = height > maximumHeight;
  setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  // What scrolls must be reached by the keyboard.
  setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::ClickFocus);
  setFixedSize(width, std::min(height, maximumHeight));
}

AlertPanel::AlertPanel(const QString& title, const QString& message, const Buttons& buttons, const QString& details)
    : _title(new MessageText(title, this)), _message(new MessageText(message, this)) {
  setAccessibleName(title);
  setAccessibleDescription(message);
  QFont bold = font();
  bold.setWeight(QFont::DemiBold);
  if (bold.pointSizeF() > 0) bold.setPointSizeF(bold.pointSizeF() * 1.2);
  _title->setFont(bold);
  _title->setVisible(!title.isEmpty());
  _message->setVisible(!message.isEmpty());

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin - 4);
  column->setSpacing(8);
  column->addWidget(_title);
  column->addWidget(_message);

  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 12, 0, 0);
  row->setSpacing(10);
  // Made first, so that Tab begins with it; the eye meets it last.
  std::vector<QChar> keys;
  _addButton(buttons.defaultButton, 1, keys);
  _addButton(buttons.alternateButton, 0, keys);
  _addButton(buttons.otherButton, -1, keys);
  if (!details.isEmpty()) column->addWidget(_addDetails(details));
  if (_detailsToggle) row->addWidget(_detailsToggle);
  if (_copyButton) row->addWidget(_copyButton);
  row->addStretch(1);
  for (auto button = _buttons.rbegin(); button != _buttons.rend(); ++button) row->addWidget(*button);
  if (!_detailsToggle && _buttons.empty()) row->setContentsMargins(0, 0, 0, 0);
  column->addLayout(row);
}

QWidget* AlertPanel::_addDetails(const QString& details) {
  _details = new QPlainTextEdit(details, this);
  _details->setReadOnly(true);
  _details->setTabChangesFocus(true);
  _details->setAccessibleName(tr("Details"));
  _details->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  _details->setFixedHeight(detailsHeight);
  _details->hide();
  _detailsToggle = new QToolButton(this);
  _detailsToggle->setText(tr("Details"));
  _detailsToggle->setCheckable(true);
  _detailsToggle->setArrowType(Qt::RightArrow);
  _detailsToggle->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  _detailsToggle->setFocusPolicy(Qt::StrongFocus);
  _copyButton = new QToolButton(this);
  _copyButton->setText(tr("Copy"));
  _copyButton->setFocusPolicy(Qt::StrongFocus);
  _copyButton->hide();
  connect(_detailsToggle, &QToolButton::toggled, this, [this](bool open) {
    _detailsToggle->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    _details->setVisible(open);
    _copyButton->setVisible(open);
    fit(_room);
  });
  connect(_copyButton, &QToolButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(_wholeText()); });
  return _details;
}

void AlertPanel::_addButton(const std::optional<QString>& title, int tagOfButton, std::vector<QChar>& keys) {
  if (!title) return;
  auto* button = new QPushButton(withAccessKey(*title, keys), this);
  button->setAutoDefault(false);
  button->setDefault(tagOfButton == 1);
  button->setAccessibleName(*title);
  button->setMinimumWidth(92);
  setTag(*button, tagOfButton);
  connect(button, &QPushButton::clicked, this, [this, tagOfButton] { Q_EMIT answered(tagOfButton); });
  _buttons.push_back(button);
}

void AlertPanel::fit(const QSize& room) {
  _room = room;
  int wanted = panelWidth - 2 * margin;
  int buttons = 0;
  for (const QPushButton* button : _buttons) buttons += button->sizeHint().width() + 10;
  for (const QToolButton* button : {_detailsToggle, _copyButton}) {
    if (button && !button->isHidden()) buttons += button->sizeHint().width() + 10;
  }
  wanted = std::max(wanted, buttons);
  const int width = std::max(60, std::min(wanted, room.width() - 2 * margin));
  const int fixed = 2 * margin + 80 + (_details && !_details->isHidden() ? detailsHeight : 0);
  const int height = std::max(48, room.height() - fixed);
  _title->fit(width, std::max(24, height / 3));
  _message->fit(width, std::max(24, height - _title->height()));
}

QString AlertPanel::_wholeText() const {
  QString text = _title->toPlainText() + QLatin1Char('\n') + _message->toPlainText();
  if (_details) text += QLatin1String("\n\n") + _details->toPlainText();
  return text;
}

void AlertPanel::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return QGuiApplication::clipboard()->setText(_wholeText());
  QWidget::keyPressEvent(event);
}

}  // namespace quorvane
