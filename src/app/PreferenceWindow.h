// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/SideWindow.h"

class QButtonGroup;
class QCheckBox;
class QPushButton;

namespace quorvane {

class ElidedLabel;
class HVColorWell;

/// The parts of the preferences window that its controller works with. They belong to the window, save the sheets.
struct PreferenceOutlets {
  QButtonGroup* _defaultColorRadio = nullptr;  ///< ids: 1 start with the default colour, 0 with the last used one
  HVColorWell* _colorWell = nullptr;           ///< the default colour
  QButtonGroup* _defaultFontRadio = nullptr;   ///< the same of the font
  ElidedLabel* _fontDescriptionTF = nullptr;
  QPushButton* _fontBtn = nullptr;

  QCheckBox* _checkAtStartup = nullptr;  ///< with an updater only
  QPushButton* _checkBtn = nullptr;      ///< likewise
  QCheckBox* _askToShare = nullptr;
  QPushButton* _cancelBtn = nullptr;
  QPushButton* _okBtn = nullptr;

  // Sheets that carry the shared panels' content in a box. Owned by whoever has the outlets.
  QWidget* _colorSheet = nullptr;
  QWidget* _colorBox = nullptr;
  QPushButton* _colorDoneBtn = nullptr;
  QWidget* _fontSheet = nullptr;
  QWidget* _fontBox = nullptr;
  QPushButton* _fontDoneBtn = nullptr;
};

/// Fills the window. Nothing is joined yet.
PreferenceOutlets layOutPreferenceWindow(SideWindow& window, bool hasUpdater);

}  // namespace quorvane
