// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPlainTextEdit>

namespace quorvane {

class LabelTextField;

/// A range of text in UTF-16 units.
struct TextRange {
  int location = 0;
  int length = 0;
  bool operator==(const TextRange&) const = default;
};

/// What a key asks of a text field before the field itself acts on it.
enum class TextCommand { InsertNewline, InsertTab, InsertBacktab, CancelOperation };

/// Who is told of what happens in a LabelTextField.
class LabelTextFieldDelegate {
 public:
  virtual ~LabelTextFieldDelegate() = default;
  /// The field was clicked while it is disabled.
  virtual void showFirstStep(LabelTextField& field) = 0;
  /// The user changed the text. Texts set by code tell no one.
  virtual void controlTextDidChange(LabelTextField& field) = 0;
  /// True: the command is done with. False: the field does what it usually does.
  virtual bool controlTextViewDoCommandBySelector(LabelTextField& control, LabelTextField& textView,
                                                  TextCommand command) = 0;
};

/// The entry for a label: a field of a few lines. Return breaks the line, or does what the delegate makes of it; Tab
/// leaves the field. Text is plain, also when pasted, and no longer than a label may be; what goes beyond is not taken.
/// The field is its own field editor.
class LabelTextField : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit LabelTextField(QWidget* parent = nullptr);

  /// Not owned; may be null.
  void setDelegate(LabelTextFieldDelegate* delegate) { _delegate = delegate; }
  [[nodiscard]] LabelTextFieldDelegate* delegate() const { return _delegate; }

  /// The text; lines end at "\n".
  [[nodiscard]] QString stringValue() const { return toPlainText(); }
  /// Replaces the text, shortened to what a label may hold. The caret goes to its end. What is set while the delegate
  /// carries out a command can be undone by the user.
  void setStringValue(const QString& text);

  [[nodiscard]] TextRange selectedRange() const;
  /// A range that reaches past the end is cut there.
  void setSelectedRange(TextRange range);

  [[nodiscard]] bool allowsEditingTextAttributes() const { return true; }
  /// Does nothing: the label's colour is the canvas's, not that of the text in this field.
  void changeColor(const QColor& color) { Q_UNUSED(color); }

  /// How many lines the field shows without scrolling; 3 at first.
  void setVisibleLines(int lines);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool viewportEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  void _textChanged();
  [[nodiscard]] int _heightOfLines(int lines) const;

  LabelTextFieldDelegate* _delegate = nullptr;
  QString _lastText;
  int _visibleLines = 3;
  bool _settingByCode = false;
  bool _inCommand = false;
};

}  // namespace quorvane
