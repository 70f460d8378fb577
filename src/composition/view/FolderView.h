// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <filesystem>
#include <optional>

#include "composition/core/IconComposition.h"
#include "composition/view/ImageView.h"
#include "composition/view/LabelCache.h"
#include "ui/RefusedDropWatch.h"

class QMimeData;

namespace quorvane {

/// The canvas: shows the folder's icon (or the base icon) at 128 x 128 units with the label over it as it will be
/// applied, takes a folder that is dropped on it, and lets the label be moved with the mouse and the keyboard.
///
/// It owns the composition that it shows. Every setter stores its value and redraws; none checks or clamps.
class FolderView : public ImageView {
  Q_OBJECT

 public:
  explicit FolderView(QWidget* parent = nullptr);
  ~FolderView() override;

  /// The first state: that font (none: nullopt), no icons, shear and rotation 0, opacity 1. All else stays.
  void awakeFromNib(const std::optional<LabelFont>& font);

  // The composition's own operations; see IconComposition.
  void setCurrentIcon(std::optional<Image> icon) { _composition.setCurrentIcon(std::move(icon)); }
  void setBaseIcon(std::optional<Image> icon) { _composition.setBaseIcon(std::move(icon)); }
  [[nodiscard]] const std::optional<Image>& currentIcon() const { return _composition.currentIcon(); }
  [[nodiscard]] const std::optional<Image>& baseIcon() const { return _composition.baseIcon(); }
  void setLabel(std::optional<QString> label) { _composition.setLabel(std::move(label)); }
  [[nodiscard]] const std::optional<QString>& label() const { return _composition.label(); }
  void setColor(std::optional<QColor> color) { _composition.setColor(color); }
  void setFont(std::optional<LabelFont> font) { _composition.setFont(std::move(font)); }
  [[nodiscard]] LabelFont font() const { return _composition.font(); }
  void setFontSize(int size) { _composition.setFontSize(size); }
  void setShadow(std::optional<LabelShadow> shadow) { _composition.setShadow(shadow); }
  void setLineSpacing(float factor) { _composition.setLineSpacing(factor); }
  void setShearFactor(float factor) { _composition.setShearFactor(factor); }
  void setRotation(float degrees) { _composition.setRotation(degrees); }
  void setOpacity(float fraction) { _composition.setOpacity(fraction); }
  [[nodiscard]] Point labelCenter() const { return _composition.labelCenter(); }
  /// Does not redraw by itself.
  void centerLabel();
  [[nodiscard]] Point canvasLabelCenter() const { return _composition.canvasLabelCenter(); }
  void setCanvasLabelCenter(Point center);
  [[nodiscard]] std::optional<Image> iconImage() const { return _composition.iconImage(); }
  void reset() { _composition.reset(); }
  [[nodiscard]] const IconComposition& composition() const { return _composition; }
  /// For what edits several values at once, undo for instance; this view stays its listener.
  [[nodiscard]] IconComposition& composition() { return _composition; }

  /// nullopt shows the placeholder "DropFolderHere" instead. Sets the tool tip as well.
  void setImage(std::optional<Image> image) override;
  [[nodiscard]] bool showsPlaceholder() const { return _showsPlaceholder; }

  /// The folder's name as people are to read it; empty without a folder. Said to assistive technology only.
  void setFolderName(const QString& name);
  [[nodiscard]] const QString& folderName() const { return _folderName; }
  /// The label and where it stands, in words; and the overlay, if there is one.
  [[nodiscard]] QString labelDescription() const;

  /// While the overlay is selected, what moves the label by keys moves it instead, and a frame shows it. A press on
  /// what is seen of it selects it, one elsewhere the label; so does the space bar in turn.
  void setOverlaySelected(bool selected);
  [[nodiscard]] bool isOverlaySelected() const { return _overlaySelected; }
  /// Whether what is seen of the overlay, and nothing of the label, lies under the place (logical pixels of the view)
  /// as it was last drawn.
  [[nodiscard]] bool isOverlayAt(QPointF place) const;

  /// Bottom-left corner of a box of that size centred on `center`.
  [[nodiscard]] static Point _originForCenter(Point center, Size size);

  /// Chooses the cursor: a hand over the whole view while there is an image and a text, closed while the mouse is down;
  /// else the arrow.
  void resetCursorRects();

  // Moving the label; places in window coordinates, y upwards. There is no hit test and no limit.
  void mouseDown(Point place);
  void mouseDragged(Point place);
  void mouseUp();
  /// Also while the overlay is dragged.
  [[nodiscard]] bool isMouseDown() const { return _mouseDown || _overlayDrag; }
  /// Puts the label, or the overlay, back where the drag found it; the rest of the drag then moves nothing.
  void cancelDrag();
  /// Ends a run of key presses that moved the label or the overlay, if there is one. Done by itself half a second after
  /// the last of them, and before anything else that could be undone.
  void finishKeyMoves();

  // Dropping a folder.
  /// Copy for exactly one folder of this computer on an enabled view, else none.
  [[nodiscard]] Qt::DropAction draggingEntered(const QMimeData& dragged) const;
  [[nodiscard]] bool prepareForDragOperation(const QMimeData& dragged) const;
  /// Hands the first path on; false on a disabled view or without a path. Does not look again what the path is of.
  bool performDragOperation(const QMimeData& dragged);
  /// The label centre goes to (64, 64), and the application to the front.
  void concludeDragOperation();

 Q_SIGNALS:
  /// A folder was dropped: open it. Links in the path are resolved. Emitted while the file manager waits for its drag
  /// to end: whoever may show a sheet does so later.
  void setPath(const std::filesystem::path& path);
  /// The application is to come to the front, whichever is there now.
  void activationRequested();
  /// What was let go here is not taken; the reason is a sentence to be shown.
  void dropRefused(const QString& reason);
  /// The label was moved from one place (canvas units) to another by one drag or one run of key presses.
  void labelMoved(quorvane::Point from, quorvane::Point to);
  /// The same of the overlay.
  void overlayMoved(quorvane::Point from, quorvane::Point to);
  /// Anything of the composition changed, the label's place included.
  void compositionChanged();
  /// The font panel should show this font as the selected one.
  void selectedFontChanged(const quorvane::LabelFont& font);

 protected:
  void drawRect(QPainter& painter) override;
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void compositionDidChange(const CompositionChange& change);
  void drawLabel(QPainter& painter);
  void drawOverlay(QPainter& painter);
  void drawOverlayFrame(QPainter& painter) const;
  [[nodiscard]] bool hasOverlay() const { return !_showsPlaceholder && _composition.overlay().has_value(); }
  void setOverlayCenter(Point center);
  void overlayDown(QPointF place);
  void overlayDragged(QPointF place);
  void overlayUp();
  void tellOverlayMove(Point from);
  void drawInvitation(QPainter& painter) const;
  [[nodiscard]] bool hasMovableLabel() const;
  [[nodiscard]] QString overlayDescription() const;
  void moveByKeys(Point to);
  void finishKeyMovesBeforeShortcut(QKeyEvent* event);
  void tellMove(Point from);
  void tellAssistiveTechnology();

  IconComposition _composition;
  LabelCache _labels;
  LabelCache _silhouettes;  ///< of labels that are lost on the ground, where the icon cuts them off
  // What was drawn of overlay and label, for telling what lies under the mouse.
  struct DrawnOverlay {
    IconOverlay overlay;
    Image ground;
    QTransform toPixels;
    LabelLayer layer;
  };
  std::optional<DrawnOverlay> _drawnOverlay;
  LabelLayer _drawnLabel;
  double _drawnDensity = 1;  ///< pixels a logical pixel
  bool _showsPlaceholder = false;
  QString _folderName;

  Point _mouseStart;
  Point _mouseEnd;
  bool _mouseDown = false;
  bool _dragging = false;            ///< the mouse has moved since it went down
  std::optional<Point> _dragOrigin;  ///< the label centre that the drag began at; none once it is cancelled
  std::optional<Point> _keysOrigin;  ///< the same of a run of key presses
  QTimer _keysEnd;
  struct OverlayDrag {
    QPointF start;  ///< of the mouse, in logical pixels
    Point center;   ///< of the overlay
    bool isCancelled = false;
  };
  bool _overlaySelected = false;
  std::optional<OverlayDrag> _overlayDrag;
  std::optional<Point> _overlayKeysOrigin;
  RefusedDropWatch _refused;
};

}  // namespace quorvane
