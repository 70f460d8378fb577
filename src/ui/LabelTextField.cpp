// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/LabelTextField.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTextBlock>
#include <algorithm>
#include <optional>

#include "foundation/base/Limits.h"

namespace quorvane {
namespace {

bool fits(const QString& text) {
  return static_cast<std::size_t>(text.toUtf8().size()) <= limits::labelBytes &&
         static_cast<std::size_t>(text.count(QLatin1Char('\n'))) < limits::labelLines;
}

/// One kind of line end, no other control characters but tabs.
QString plain(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  for (QChar& character : text) {
    if (character == QLatin1Char('\r') || character == QChar::LineSeparator || character == QChar::ParagraphSeparator) {
      character = QLatin1Char('\n');
    }
  }
  text.removeIf([](QChar character) {
    return character.category() == QChar::Other_Control && character != QLatin1Char('\n') &&
           character != QLatin1Char('\t');
  });
  return text;
}

/// The longest beginning of the text that fits together with the rest of the field, never half a character.
QString shortened(const QString& text, const QString& rest = {}) {
  if (fits(rest + text)) return text;
  qsizetype low = 0;
  qsizetype high = text.size();
  while (low + 1 < high) {
    const qsizetype middle = (low + high) / 2;
    (fits(rest + text.first(middle)) ? low : high) = middle;
  }
  if (low > 0 && text.at(low - 1).isHighSurrogate()) --low;
  return text.first(low);
}

std::optional<TextCommand> commandOfKey(const QKeyEvent& key) {
  const bool plainKey = (key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::NoModifier;
  if (!plainKey) return std::nullopt;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return TextCommand::InsertNewline;
    case Qt::Key_Tab:
      return TextCommand::InsertTab;
    case Qt::Key_Backtab:
      return TextCommand::InsertBacktab;
    case Qt::Key_Escape:
      return TextCommand::CancelOperation;
    default:
      return std::nullopt;
  }
}

}  // namespace

LabelTextField::LabelTextField(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(this, &QPlainTextEdit::textChanged, this, &LabelTextField::_textChanged);
}

void LabelTextField::setStringValue(const QString& text) {
  const QScopedValueRollback byCode(_settingByCode, true);
  const QString value = shortened(text);
  if (_inCommand) {
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.insertText(value);
  } else {
    setPlainText(value);
  }
  _lastText = value;
  moveCursor(QTextCursor::End);
}

TextRange LabelTextField::selectedRange() const {
  const QTextCursor cursor = textCursor();
  return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

void LabelTextField::setSelectedRange(TextRange range) {
  const int end = document()->characterCount() - 1;
  const int from = std::clamp(range.location, 0, end);
  QTextCursor cursor = textCursor();
  cursor.setPosition(from);
  cursor.setPosition(from + std::clamp(range.length, 0, end - from), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

void LabelTextField::_textChanged() {
  if (_settingByCode) return;
  const QString text = toPlainText();
  if (text == _lastText) return;  // a change of layout or of an input method's preview
  if (!fits(text)) {
    QApplication::beep();
    const TextRange caret = selectedRange();
    setStringValue(_lastText);
    setSelectedRange({caret.location, 0});
    return;
  }
  _lastText = text;
  if (_delegate) _delegate->controlTextDidChange(*this);
}

void LabelTextField::keyPressEvent(QKeyEvent* event) {
  if (const auto command = commandOfKey(*event); command && _delegate && !isReadOnly()) {
    const QPointer<LabelTextField> self(this);
    const QScopedValueRollback inCommand(_inCommand, true);
    if (_delegate->controlTextViewDoCommandBySelector(*this, *this, *command)) {
      if (self) ensureCursorVisible();
      return event->accept();
    }
  }
  // A line break of another kind would come with Shift.
  if (event->key() == Qt::Key_Return && event->modifiers() == Qt::ShiftModifier)
    return insertPlainText(QStringLiteral("\n"));
  QPlainTextEdit::keyPressEvent(event);
}

bool LabelTextField::viewportEvent(QEvent* event) {
  // A disabled viewport hands no mouse events on to the handlers below.
  if (event->type() == QEvent::MouseButtonRelease && !isEnabled()) {
    mouseReleaseEvent(static_cast<QMouseEvent*>(event));
    return true;
  }
  return QPlainTextEdit::viewportEvent(event);
}

void LabelTextField::mouseReleaseEvent(QMouseEvent* event) {
  const QPointer<LabelTextField> self(this);
  const bool wasEnabled = isEnabled();
  if (!wasEnabled && _delegate && event->button() == Qt::LeftButton) _delegate->showFirstStep(*this);
  if (self && wasEnabled) QPlainTextEdit::mouseReleaseEvent(event);
}

bool LabelTextField::canInsertFromMimeData(const QMimeData* source) const {
  // A folder dropped here is meant for the window, not its path for the label.
  return source->hasText() && !source->hasUrls();
}

void LabelTextField::insertFromMimeData(const QMimeData* source) {
  if (!canInsertFromMimeData(source)) return;
  const TextRange selected = selectedRange();
  QString rest = toPlainText();
  rest.remove(selected.location, selected.length);
  const QString pasted = plain(source->text());
  const QString text = shortened(pasted, rest);
  if (text.size() < pasted.size()) QApplication::beep();
  textCursor().insertText(text);
  ensureCursorVisible();
}

void LabelTextField::setVisibleLines(int lines) {
  _visibleLines = std::max(1, lines);
  updateGeometry();
}

int LabelTextField::_heightOfLines(int lines) const {
  // The box with its padding is what the style makes of it: what the field has beyond its viewport.
  const int around = std::max(2 * frameWidth(), height() - viewport()->height());
  return lines * fontMetrics().lineSpacing() + 2 * static_cast<int>(document()->documentMargin()) +
         std::clamp(around, 2, 40);
}

QSize LabelTextField::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 24, _heightOfLines(_visibleLines)};
}

QSize LabelTextField::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 12, _heightOfLines(std::min(2, _visibleLines))};
}

}  // namespace quorvane
