// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "foundation/base/FourCharCode.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Number of a process as two words.
struct ProcessSerialNumber {
  std::uint32_t high = 0;
  std::uint32_t low = 0;
  bool operator==(const ProcessSerialNumber&) const = default;
};
/// What is known of a process: numbers and text by name ("ParentPSN", "FileCreator" ...).
using ProcessInformation = std::map<std::string, std::variant<std::uint64_t, std::string>>;

/// One program that starts with the session: text by name, "Path" among it.
using LoginItem = std::map<std::string, std::string>;

/// Keeps the key of a property list by which an application says that it shows itself nowhere.
class AgentFlag {
 public:
  virtual ~AgentFlag() = default;
  /// The integer under the key; nullopt when the list has none.
  virtual Result<std::optional<std::int64_t>> integer(const std::filesystem::path& list, const std::string& key) = 0;
  /// Writes the list back whole, with everything else in it kept.
  virtual Result<void> setInteger(const std::filesystem::path& list, const std::string& key, std::int64_t value) = 0;
};

/// What HVUtility needs of the system and the session. Where a desktop knows no such thing, the answer is nothing.
class SystemServices {
 public:
  virtual ~SystemServices() = default;

  /// A fact about the system by its selector, such as "sysv"; nullopt when it cannot be told.
  virtual std::optional<std::uint32_t> fact(FourCharCode selector) = 0;

  /// Runs a script (UTF-8) in the session.
  virtual Result<void> runScript(const std::string& script) = 0;
  /// The programs that start with the session, as they are kept at this moment.
  virtual std::vector<LoginItem> loginItems() = 0;

  virtual ProcessSerialNumber currentProcess() = 0;
  virtual std::optional<ProcessInformation> processInformation(ProcessSerialNumber process) = 0;

  /// The folder that the application is, where applications are folders.
  virtual std::optional<std::filesystem::path> applicationBundle() = 0;
  /// Not owned; nullptr where there are no bundles.
  virtual AgentFlag* agentFlag() = 0;

  /// Starts the program that this process runs once more, without arguments, on its own.
  virtual Result<void> startOwnProgram() = 0;
  /// Asks this process to end in good order.
  virtual void requestTermination() = 0;
};

/// The services of a Linux desktop. Login items are autostart entries of the user's (see AutostartItems); scripts are
/// understood as far as they make and delete these. There are no numbered systems, creator codes and bundles.
std::unique_ptr<SystemServices> makeDesktopServices();

}  // namespace quorvane
