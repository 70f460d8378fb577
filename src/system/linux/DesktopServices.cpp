// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include "foundation/BaseDirectories.h"
#include "system/SystemServices.h"
#include "system/linux/AutostartItems.h"

namespace quorvane {

namespace {

Result<AutostartItems> autostartItems() {
  return AutostartItems(TRY(baseDirectory(BaseDirectory::Config)) / "autostart");
}

/// The file of the running program; after an update the new one that took its place.
Result<QString> ownProgram() {
  std::error_code error;
  std::string path = std::filesystem::read_symlink("/proc/self/exe", error).native();
  if (error) return Error::system(error.value(), "cannot find the own program");
  constexpr std::string_view replaced = " (deleted)";
  if (path.ends_with(replaced) && !std::filesystem::exists(path, error)) path.resize(path.size() - replaced.size());
  return QFile::decodeName(path.c_str());
}

class DesktopServices : public SystemServices {
 public:
  std::optional<std::uint32_t> fact(FourCharCode) override { return std::nullopt; }

  Result<void> runScript(const std::string& script) override {
    const LoginItemCommand command = TRY(parseLoginItemScript(script));
    AutostartItems items = TRY(autostartItems());
    if (const auto* add = std::get_if<AddLoginItem>(&command)) return items.add(add->path, add->hidden);
    return items.remove(std::get<RemoveLoginItem>(command).name);
  }

  std::vector<LoginItem> loginItems() override {
    const auto autostart = autostartItems();
    if (!autostart.ok()) return {};
    std::vector<LoginItem> items;
    for (const auto& [name, path, hidden] : autostart->items())
      items.push_back({{"Name", name}, {"Path", path}, {"Hide", hidden ? "1" : "0"}});
    return items;
  }

  ProcessSerialNumber currentProcess() override { return {.high = 0, .low = static_cast<std::uint32_t>(::getpid())}; }

  /// Of ourselves, who started us. Programs carry no creator codes here.
  std::optional<ProcessInformation> processInformation(ProcessSerialNumber process) override {
    if (process != currentProcess()) return std::nullopt;
    return ProcessInformation{{"ParentPSN", static_cast<std::uint64_t>(::getppid())}};
  }

  std::optional<std::filesystem::path> applicationBundle() override { return std::nullopt; }
  AgentFlag* agentFlag() override { return nullptr; }

  Result<void> startOwnProgram() override {
    const QString program = TRY(ownProgram());
    if (!QProcess::startDetached(program, {}))
      return Error::broken("cannot start the program anew").at(program.toStdString());
    return {};
  }

  void requestTermination() override { QCoreApplication::quit(); }
};

}  // namespace

std::unique_ptr<SystemServices> makeDesktopServices() {
  return std::make_unique<DesktopServices>();
}

}  // namespace quorvane
