// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

namespace quorvane {

class FrameStore;

/// A small floating window round one content, which may be lent to a box of another window: then it is shown there and
/// the panel itself stays hidden. Closing the panel, by Escape too, only hides it. The content, a large dialog that
/// many runs never show, is made when it is first wanted.
class FloatingPanel : public QWidget {
  Q_OBJECT
 public:
  ~FloatingPanel() override;

  /// Brings the panel to the front with the keyboard focus, over the active window. Does nothing while its content is
  /// lent.
  void showPanel();
  void hidePanel();

  /// Moves the content to the end of the box's layout (one is made when it has none); the panel is hidden. A box that
  /// is deleted gives the content back before.
  void moveContentInto(QWidget& box);
  /// Takes the content back. The panel stays hidden.
  void moveContentBack();
  /// Where the panel's place is kept from run to run, under the name, each time that it is hidden. Must outlive the
  /// panel.
  void setFrameStore(FrameStore* store, const QString& name);
  [[nodiscard]] bool isContentLent() const { return !_place.isNull(); }

 Q_SIGNALS:
  /// The panel was hidden, by whomever.
  void panelClosed();

 protected:
  explicit FloatingPanel(const QString& title);
  /// Called once, before the content is first shown; the panel owns what it gives.
  virtual QWidget* _makeContent() = 0;

  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  class Place;
  void _needContent();
  void _takeContent();
  void _placeBeside(const QWidget& window);
  /// Its former screen may have been larger, or another one.
  void _keepOnScreen();

  QWidget* _content = nullptr;
  QPointer<QWidget> _place;
  FrameStore* _frameStore = nullptr;
  QString _frameName;
  bool _isPlaced = false;
};

/// A standard dialog that serves as the content of a panel: Escape and Return do not hide it there.
template <typename Dialog>
class PanelContent : public Dialog {
 public:
  using Dialog::Dialog;
  void done(int) override {}

 protected:
  void keyPressEvent(QKeyEvent* event) override { QWidget::keyPressEvent(event); }
};

}  // namespace quorvane
