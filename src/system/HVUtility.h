// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "system/SystemServices.h"

namespace quorvane {

/// Small things that an application asks of the system around it. All text is UTF-8, all paths are bytes. Without
/// services every answer is the one of a system that has no such thing.
class HVUtility {
 public:
  HVUtility() = delete;

  /// Whom to ask from now on (not owned; nullptr: nobody); returns the former one. What was remembered of the system is
  /// forgotten. Not to be called while other threads ask.
  static SystemServices* setServices(SystemServices* services);

  /// Version of the system in binary-coded decimals: 0x1068 is 10.6.8. 0 when it cannot be told. Asked for until there
  /// was an answer, then remembered for the whole process.
  static std::uint32_t systemVersion();
  static bool isJaguar();   ///< 0x1020 to 0x102f
  static bool isPanther();  ///< 0x1030 to 0x103f

  /// Runs commands for the keeper of the login items, in its script language. Errors are ignored.
  static void tellSystemEvents(const std::string& text);
  /// Makes a program start with the session, if wished without showing itself.
  static void addAutoLaunchPath(const std::string& path, bool hide);
  /// Takes it out again, by its name with or without extension.
  static void removeAutoLaunchAppNamed(const std::string& name);
  static std::vector<LoginItem> getAutoLaunchedApplications();
  /// Whether one of them has exactly this name as the last component of its path.
  static bool appAutoLaunches(const std::string& name);

  /// The creator code of the program that started this one.
  static std::optional<std::string> fileCreatorOfParentProcess();

  /// Whether the application's bundle says that it shows itself nowhere (its information list's "LSUIElement").
  static bool isHeadless();
  /// Failures go to the log. The bundle's date becomes now, so that the system looks at it again.
  static void setHeadless(bool headless);

  /// Starts the program anew and asks this process to end; when it cannot be started, this one goes on.
  static void restartApplication();

  /// Runs a program to its end and returns all it wrote to standard output. Its standard input is at its end, standard
  /// error is ours, and it gets no other open file. An empty folder is the current one. `terminationStatus` gets the
  /// exit code, 128 + the signal that ended it, or 127 (and there is no output) when it could not be started. Output
  /// over the limit in Limits.h is read, but not kept.
  static QByteArray runCommand(const std::filesystem::path& path, const std::vector<std::string>& arguments);
  static QByteArray runCommand(const std::filesystem::path& path, const std::vector<std::string>& arguments,
                               const std::filesystem::path& currentDirectoryPath, int* terminationStatus);

  /// Kilobytes of memory that this process holds; 0 when "ps" cannot tell.
  static std::uint64_t residentSetSize();
};

}  // namespace quorvane
