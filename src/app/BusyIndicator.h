// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QToolButton;

namespace quorvane {

/// Says that something is being done, and what. Takes its place also while it shows nothing.
class BusyIndicator : public QWidget {
  Q_OBJECT
 public:
  explicit BusyIndicator(QWidget* parent = nullptr);
  /// With a way out, a button for it comes after a second.
  void begin(const QString& words, bool canCancel);
  void end();
  [[nodiscard]] bool isShown() const;
  [[nodiscard]] QToolButton* cancelButton() const { return _cancel; }

 Q_SIGNALS:
  void cancelled();

 protected:
  /// Escape and Return press the button that has the focus.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLabel* _words;
  QWidget* _bar;
  QToolButton* _cancel;
  QTimer _cancelDelay;
};

}  // namespace quorvane
