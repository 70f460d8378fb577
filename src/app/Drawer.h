// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace quorvane {

/// A panel at a widget's side that slides open and shut within the layout. Its content keeps its width meanwhile.
class Drawer : public QWidget {
  Q_OBJECT
 public:
  /// Takes the content over. Shut at first.
  explicit Drawer(QWidget* content, QWidget* parent = nullptr);

  /// Whether drawers slide when the desktop wants animations at all. Off in tests.
  static void setAnimated(bool animated);

  void open() { _setOpen(true); }
  void close() { _setOpen(false); }
  [[nodiscard]] bool isOpen() const { return _open; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void openChanged(bool open);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void _setOpen(bool open);
  void _place();

  QWidget* _content;
  bool _open = false;
  double _shown = 0;  ///< how much of the content's width
  QVariantAnimation _slide;
};

}  // namespace quorvane
