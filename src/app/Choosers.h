// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppServices.h"

namespace quorvane {

/// The desktop's dialog for a folder, on the window.
void chooseFolder(QWidget& window, std::function<void(const std::filesystem::path&)> chosen);
/// The same for a picture file of any kind that can be read.
void choosePicture(QWidget& window, std::function<void(const std::filesystem::path&)> chosen);

}  // namespace quorvane
