// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/ColorPanel.h"
#include "ui/FontPanel.h"

namespace quorvane {

/// The one colour panel and the one font panel of the application. Whoever starts the application makes one of these
/// and passes it on; it must outlive the controls that use it.
class SharedPanels {
 public:
  [[nodiscard]] ColorPanel& colorPanel() { return _colorPanel; }
  [[nodiscard]] FontPanel& fontPanel() { return _fontPanel; }

  /// Where their places are kept from run to run. Must outlive them.
  void setFrameStore(FrameStore* store) {
    _colorPanel.setFrameStore(store, QStringLiteral("ColorPanel"));
    _fontPanel.setFrameStore(store, QStringLiteral("FontPanel"));
  }

 private:
  ColorPanel _colorPanel;
  FontPanel _fontPanel;
};

}  // namespace quorvane
