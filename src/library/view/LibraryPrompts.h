// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <optional>

namespace quorvane {

/// How the lists ask and tell. The window's sheets, or a script for tests.
struct LibraryPrompts {
  std::function<void(const QString& title, const QString& message)> message;
  /// 1 for the default button.
  std::function<int(const QString& title, const QString& message, const QString& defaultButton,
                    const QString& alternateButton)>
      prompt;
  /// Asks for the file or folder of an icon to add; nullopt: none was chosen.
  std::function<std::optional<std::filesystem::path>()> chooseIcon;
  /// The same for a zip file, or a folder of pictures, to make a set of.
  std::function<std::optional<std::filesystem::path>()> chooseSetToImport;
  /// The same for the zip file to write a set of that name to.
  std::function<std::optional<std::filesystem::path>(const QString& name)> chooseExportPlace;
};

}  // namespace quorvane
