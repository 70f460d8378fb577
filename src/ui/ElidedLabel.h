// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quorvane {

/// The text with what cannot be seen, or would turn the rest round, written out: control characters, line breaks and
/// direction marks.
QString visibleText(const QString& text);

/// One line of text, a path for instance, that is shortened in the middle where it does not fit; the tool tip then has
/// all of it. It can be copied from its menu. The text is plain, and shown as visibleText makes it.
class ElidedLabel : public QWidget {
  Q_OBJECT
 public:
  explicit ElidedLabel(const QString& text = {}, QWidget* parent = nullptr);

  void setText(const QString& text);
  [[nodiscard]] const QString& text() const { return _text; }
  void setElideMode(Qt::TextElideMode mode);
  void setAlignment(Qt::Alignment alignment);
  /// What is shown at the present width.
  [[nodiscard]] QString shownText() const;
  [[nodiscard]] bool isElided() const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QString _text;
  QString _visible;
  Qt::TextElideMode _mode = Qt::ElideMiddle;
  Qt::Alignment _alignment = Qt::AlignLeading | Qt::AlignVCenter;
};

}  // namespace quorvane
