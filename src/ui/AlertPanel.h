// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>
#include <QToolButton>
#include <QWidget>
#include <optional>
#include <vector>

class QPlainTextEdit;
class QPushButton;

namespace quorvane {

/// Plain text that wraps anywhere, can be selected, and scrolls when it is far too long; no box round it.
class MessageText : public QTextEdit {
  Q_OBJECT
 public:
  MessageText(const QString& text, QWidget* parent);
  /// As high as the text is at that width, up to `maximumHeight`.
  void fit(int width, int maximumHeight);
};

/// The standard alert: a title, a message, up to three buttons, and details that can be unfolded and copied. It is
/// shown on a Sheet. The buttons are direct children with the tags 1 (default), 0 (alternate) and -1 (other).
class AlertPanel : public QWidget {
  Q_OBJECT
 public:
  struct Buttons {
    std::optional<QString> defaultButton;
    std::optional<QString> alternateButton;
    std::optional<QString> otherButton;
  };

  /// The texts are shown as they stand, without markup. Button titles get access keys by themselves.
  AlertPanel(const QString& title, const QString& message, const Buttons& buttons, const QString& details = {});

  /// Makes the panel as wide and high as the texts want, within the room.
  void fit(const QSize& room);

 Q_SIGNALS:
  void answered(int tag);

 protected:
  /// Copy without a selection takes all of the texts.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* _addDetails(const QString& details);
  void _addButton(const std::optional<QString>& title, int tag, std::vector<QChar>& keys);
  [[nodiscard]] QString _wholeText() const;

  MessageText* _title;
  MessageText* _message;
  QPlainTextEdit* _details = nullptr;
  QToolButton* _detailsToggle = nullptr;
  QToolButton* _copyButton = nullptr;
  std::vector<QPushButton*> _buttons;
  QSize _room;
};

}  // namespace quorvane
