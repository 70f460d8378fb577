// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "composition/core/IconOverlay.h"
#include "composition/core/LabelValues.h"
#include "foundation/base/BoundedCache.h"
#include "imaging/Image.h"

namespace quorvane {

/// What a change of a composition asks of whoever shows it, beside drawing anew, which every change asks for.
struct CompositionChange {
  bool displayedImage = false;  ///< show displayedImage()
  bool label = false;           ///< whether there is text may have changed, and with it the cursor
  bool overlay = false;         ///< there may be another overlay, or none
  bool selectedFont = false;    ///< font() is the font that a font panel should show as selected
  bool operator==(const CompositionChange&) const = default;
};

/// The values of one branded icon: the picture to draw on, the label, how it looks and where it sits. Setters store
/// what they are given (nothing is checked or clamped) and tell the listener; drawing is LabelRenderer's.
class IconComposition {
 public:
  /// Called after the value is stored, in the setter. Setting anew the value that is set tells it too.
  using Listener = std::function<void(const CompositionChange&)>;

  void setListener(Listener listener) { _listener = std::move(listener); }

  /// The folder's present icon: the picture when no base icon is chosen. What is displayed changes only then.
  void setCurrentIcon(std::optional<Image> icon);
  [[nodiscard]] const std::optional<Image>& currentIcon() const { return _currentIcon; }

  /// The icon chosen from the library; takes precedence over the current icon everywhere.
  void setBaseIcon(std::optional<Image> icon);
  [[nodiscard]] const std::optional<Image>& baseIcon() const { return _baseIcon; }

  /// Recolours the picture, whichever it is (imaging/Tint.h); the icons above stay as they are.
  void setTint(std::optional<QColor> tint);
  [[nodiscard]] const std::optional<QColor>& tint() const { return _tint; }

  /// What is laid on the picture, under the label.
  void setOverlay(std::optional<IconOverlay> overlay);
  [[nodiscard]] const std::optional<IconOverlay>& overlay() const { return _overlay; }

  /// A copy, resized to 128 x 128, of the base icon, else of the current icon, tinted; nullopt with neither. Copies
  /// that are given while neither picture nor tint changes are the same image.
  [[nodiscard]] std::optional<Image> displayedImage() const;

  /// The text; lines end at "\n". No text and empty text both draw nothing.
  void setLabel(std::optional<QString> label);
  [[nodiscard]] const std::optional<QString>& label() const { return _label; }

  void setColor(std::optional<QColor> color);
  [[nodiscard]] const std::optional<QColor>& color() const { return _color; }

  void setFont(std::optional<LabelFont> font);
  /// The system font of 50 points when none is set.
  [[nodiscard]] LabelFont font() const;
  /// The set font at that size, as the selected font. With no font set: stores the system font of 50 points, whatever
  /// the size asked for.
  void setFontSize(int size);

  void setShadow(std::optional<LabelShadow> shadow);
  [[nodiscard]] const std::optional<LabelShadow>& shadow() const { return _shadow; }
  /// The line-spacing factor; 0: lines at their natural height.
  void setLineSpacing(float factor);
  void setShearFactor(float factor);
  /// Degrees, counter-clockwise.
  void setRotation(float degrees);
  void setOpacity(float fraction);

  /// The label centre on the real size of the picture (base icon, else current icon): both axes scaled by its width
  /// / 128; as it is when there is no picture.
  [[nodiscard]] Point labelCenter() const;
  /// The label centre on the canvas of 128 x 128 units, and setting and moving it there. It may lie anywhere.
  [[nodiscard]] Point canvasLabelCenter() const { return _labelCenter; }
  void setCanvasLabelCenter(Point center);
  void moveLabelCenter(float deltaX, float deltaY);
  /// Puts the label centre at (64, 64). Tells no one.
  void centerLabel();

  /// Shear and rotation 0, no base icon. All else stays as it is.
  void reset();

  /// All values of the label's look, as the renderer takes them.
  [[nodiscard]] LabelLook look() const;
  /// The composed icon, as large as its picture (LabelRenderer::_iconWithBase); nullopt without a picture.
  [[nodiscard]] std::optional<Image> iconImage() const;
  /// The same on displayedImage(), no less dense: what the canvas shows, shadows too, which do not grow with a picture.
  [[nodiscard]] std::optional<Image> canvasIconImage() const;

 private:
  // A picture and a tint; the tinted picture follows from them.
  struct TintKey {
    Image picture;
    QRgb tint = 0;
    bool operator==(const TintKey& other) const { return tint == other.tint && picture.isSameAs(other.picture); }
  };
  using TintCache = BoundedCache<TintKey, Image>;

  /// Base icon, else current icon.
  [[nodiscard]] const std::optional<Image>& plainPicture() const { return _baseIcon ? _baseIcon : _currentIcon; }
  /// The same, tinted.
  [[nodiscard]] std::optional<Image> picture() const;
  /// What the picture is with overlay and label on it.
  [[nodiscard]] Image composed(const Image& picture) const;
  void changed(const CompositionChange& change = {}) const;

  std::optional<Image> _currentIcon;
  std::optional<Image> _baseIcon;
  std::optional<QColor> _tint;
  std::optional<IconOverlay> _overlay;
  std::optional<QString> _label;
  std::optional<QColor> _color;
  std::optional<LabelFont> _font;
  std::optional<LabelShadow> _shadow;
  float _lineSpacingFactor = 0;
  Point _labelCenter;
  float _shearFactor = 0;
  float _rotation = 0;
  float _opacity = 1;
  Listener _listener;
  // The last tinted pictures: colours come again while they are tried and in undo. Copies may share it.
  std::shared_ptr<TintCache> _tinted = std::make_shared<TintCache>(6);
};

}  // namespace quorvane
