// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QObject>
#include <optional>

#include "app/OverlayPopup.h"
#include "composition/core/IconOverlay.h"

class QPushButton;
class QWidget;

namespace quorvane {

class ColorPanel;
class HVColorWell;
class Slider;

/// The inspector's card for what is laid on the icon. Without an overlay it is one button; with one, what belongs to it
/// opens below. Belongs to its card.
class OverlayGroup : public QObject {
  Q_OBJECT
 public:
  /// The panel is not owned and must live as long.
  explicit OverlayGroup(ColorPanel* panel);

  /// Shows the values; sends nothing.
  void setOverlay(const std::optional<IconOverlay>& overlay);

  [[nodiscard]] QWidget* card() const { return _card; }
  [[nodiscard]] QPushButton* chooseButton() const { return _chooseButton; }
  [[nodiscard]] QPushButton* removeButton() const { return _removeButton; }
  [[nodiscard]] Slider* sizeSlider() const { return _sizeSlider; }
  [[nodiscard]] Slider* opacitySlider() const { return _opacitySlider; }
  [[nodiscard]] HVColorWell* colorWell() const { return _well; }
  /// Opens the chooser below the button.
  OverlayPopup* choose();

 Q_SIGNALS:
  /// The controls of an overlay have come into sight.
  void opened();
  void drawingChosen(const quorvane::OverlayDrawing& drawing);
  void pictureWanted();
  void removed();
  /// nullopt: the one that suits the picture.
  void colorChosen(const std::optional<QColor>& color);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void _showDrawing();

  QWidget* _card;
  QPushButton* _chooseButton;
  QWidget* _details = nullptr;
  QPushButton* _removeButton;
  Slider* _sizeSlider;
  Slider* _opacitySlider;
  HVColorWell* _well;
  QPushButton* _autoButton;
  QWidget* _colorRow;
  std::optional<IconOverlay> _overlay;
};

}  // namespace quorvane
