// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/Outlets.h"

namespace quorvane {

class BaseIconController;
class SharedPanels;

/// Fills the window: header with the path and the two buttons, base pictures on the leading side, canvas and label in
/// the middle, inspector on the other side. All outlets are set, the controller is not joined yet. The panels and
/// the library must outlive the window.
Outlets layOutMainWindow(QVWindow& window, SharedPanels& panels, BaseIconController& library);

// The parts, each of which sets its outlets.
QWidget* makeHeader(Outlets& outlets);
QWidget* makeCanvasColumn(Outlets& outlets);
QWidget* makeInspector(Outlets& outlets, SharedPanels& panels);

}  // namespace quorvane
