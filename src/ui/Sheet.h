// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

class QAbstractButton;
class QKeyEvent;
class QMainWindow;

namespace quorvane {

/// One sheet on a window: it dims the window and hangs a panel below its menu bar. The panel's content is lent, and is
/// given back as it came (parent, window flags, hidden) when the sheet ends. A sheet lies over all that is in the
/// window; that nothing under it is reached otherwise is SheetGuard's.
class Sheet : public QWidget {
  Q_OBJECT
 public:
  enum class Kind {
    Alert,   ///< Return and Escape press the buttons with these key equivalents, whatever has the focus
    Dialog,  ///< the same, but Return is left to text of several lines and to a push button that has the focus
    Notice,  ///< no key does anything
  };

  /// Whether panels slide (120 ms) when the desktop wants animations at all. Off in tests.
  static void setAnimated(bool animated);

  /// The content must live until end(); when it does not, `answered` tells.
  Sheet(QMainWindow& host, QWidget& content, Kind kind);
  ~Sheet() override;

  void begin();
  /// Hides the sheet, gives the content back and the focus to where it was. A second call does nothing.
  void end();

  [[nodiscard]] QWidget* content() const { return _content; }
  /// The panel with its frame, inside the window.
  [[nodiscard]] QWidget* panel() const { return _frame; }
  /// The focus goes into the panel: to where it last was, else to the default button, else to the first control.
  void takeFocus();
  void rememberFocus(QWidget& focus) { _lastFocus = &focus; }
  /// The part of the window that gets the focus at the end, in place of the one that had it at the beginning.
  void setFormerFocus(QWidget& focus) { _formerFocus = &focus; }
  /// True when the key meant something to the sheet: Return, Escape, an access key.
  bool handleKey(const QKeyEvent& key, QWidget* focus);
  /// The button with the key equivalent; for Return else the default button, for Escape else the button with tag 0.
  [[nodiscard]] QAbstractButton* buttonForKey(const QString& key) const;

 Q_SIGNALS:
  /// The sheet wants to end with a code: a QDialog was accepted or rejected, or the content was hidden or destroyed.
  void answered(int code);
  /// The room for the content, in units, after a change of the window's size.
  void roomChanged(const QSize& room);

 protected:
  bool focusNextPrevChild(bool next) override;
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void _place();
  [[nodiscard]] int _top() const;
  [[nodiscard]] bool _canTakeFocus(const QWidget& widget) const;

  QMainWindow& _host;
  QPointer<QWidget> _content;
  Kind _kind;
  QWidget* _clip;
  QWidget* _frame;
  QPointer<QWidget> _formerParent;
  Qt::WindowFlags _formerFlags;
  QPointer<QWidget> _formerFocus;
  QPointer<QWidget> _lastFocus;
  QVariantAnimation _slide;
  double _shown = 1;
  bool _up = false;
};

}  // namespace quorvane
