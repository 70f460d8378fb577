// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/HVUtility.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <charconv>

#include "foundation/base/Log.h"
#include "system/CommandRun.h"
#include "system/ScriptText.h"

namespace quorvane {

namespace {

std::atomic<SystemServices*> currentServices = nullptr;
std::atomic<std::uint32_t> knownVersion = 0;

constexpr FourCharCode versionSelector("sysv");
const std::string agentKey = "LSUIElement";

/// Whether the version is one of the sixteen from `first` on.
bool isRelease(std::uint32_t first) {
  return HVUtility::systemVersion() - first < 16;
}

std::string_view lastComponent(std::string_view path) {
  while (path.size() > 1 && path.ends_with('/')) path.remove_suffix(1);
  const auto slash = path.rfind('/');
  return slash == std::string_view::npos || path.size() == 1 ? path : path.substr(slash + 1);
}

/// A value of one type out of what is known of a process.
template <typename T>
std::optional<T> known(SystemServices& services, ProcessSerialNumber process, const std::string& name) {
  const auto information = services.processInformation(process);
  if (!information) return std::nullopt;
  const auto found = information->find(name);
  const T* value = found == information->end() ? nullptr : std::get_if<T>(&found->second);
  return value == nullptr ? std::nullopt : std::optional(*value);
}

/// The bundle's information list, when there is a bundle and somebody who reads such lists.
std::optional<std::filesystem::path> informationList(SystemServices* services) {
  const auto bundle = services == nullptr ? std::nullopt : services->applicationBundle();
  if (!bundle || services->agentFlag() == nullptr) return std::nullopt;
  return *bundle / "Contents/Info.plist";
}

void note(const Error& failure) {
  logMessage("utility", failure.message());
}

}  // namespace

SystemServices* HVUtility::setServices(SystemServices* services) {
  knownVersion = 0;
  return currentServices.exchange(services);
}

std::uint32_t HVUtility::systemVersion() {
  if (const std::uint32_t version = knownVersion; version != 0) return version;
  SystemServices* services = currentServices;
  const auto answer = services == nullptr ? std::nullopt : services->fact(versionSelector);
  knownVersion = answer.value_or(0);
  return answer.value_or(0);
}

bool HVUtility::isJaguar() {
  return isRelease(0x1020);
}

bool HVUtility::isPanther() {
  return isRelease(0x1030);
}

void HVUtility::tellSystemEvents(const std::string& text) {
  if (SystemServices* services = currentServices; services != nullptr)
    static_cast<void>(services->runScript(std::string(scripts::tellBegin) + text + std::string(scripts::tellEnd)));
}

void HVUtility::addAutoLaunchPath(const std::string& path, bool hide) {
  tellSystemEvents("make new login item at end with properties {path:" + scripts::quoted(path) +
                   ",hidden:" + (hide ? "true" : "false") + "}\n");
}

void HVUtility::removeAutoLaunchAppNamed(const std::string& name) {
  tellSystemEvents("delete login item " + scripts::quoted(scripts::withoutExtension(name)));
}

std::vector<LoginItem> HVUtility::getAutoLaunchedApplications() {
  SystemServices* services = currentServices;
  return services == nullptr ? std::vector<LoginItem>() : services->loginItems();
}

bool HVUtility::appAutoLaunches(const std::string& name) {
  return std::ranges::any_of(getAutoLaunchedApplications(), [&](const LoginItem& item) {
    const auto path = item.find("Path");
    return path != item.end() && lastComponent(path->second) == name;
  });
}

std::optional<std::string> HVUtility::fileCreatorOfParentProcess() {
  SystemServices* services = currentServices;
  if (services == nullptr) return std::nullopt;
  const auto parent = known<std::uint64_t>(*services, services->currentProcess(), "ParentPSN");
  if (!parent) return std::nullopt;
  const ProcessSerialNumber number{.high = static_cast<std::uint32_t>(*parent >> 32),
                                   .low = static_cast<std::uint32_t>(*parent)};
  return known<std::string>(*services, number, "FileCreator");
}

bool HVUtility::isHeadless() {
  SystemServices* services = currentServices;
  const auto list = informationList(services);
  if (!list) return false;
  const auto value = services->agentFlag()->integer(*list, agentKey);
  if (!value.ok()) note(value.error());
  return value.ok() && value->value_or(0) != 0;
}

void HVUtility::setHeadless(bool headless) {
  SystemServices* services = currentServices;
  const auto list = informationList(services);
  if (!list) return;
  if (const auto done = services->agentFlag()->setInteger(*list, agentKey, headless ? 1 : 0); !done.ok())
    return note(done.error());
  const auto bundle = list->parent_path().parent_path();
  const timespec times[2] = {{0, UTIME_OMIT}, {0, UTIME_NOW}};
  if (::utimensat(AT_FDCWD, bundle.c_str(), times, 0) != 0)
    note(Error::system(errno, "cannot set the date").at(bundle));
}

void HVUtility::restartApplication() {
  logMessage("utility", "WARNING: Deprecated");
  SystemServices* services = currentServices;
  if (services == nullptr) return;
  if (const auto started = services->startOwnProgram(); !started.ok()) return note(started.error());
  services->requestTermination();
}

QByteArray HVUtility::runCommand(const std::filesystem::path& path, const std::vector<std::string>& arguments) {
  return runCommand(path, arguments, {}, nullptr);
}

QByteArray HVUtility::runCommand(const std::filesystem::path& path, const std::vector<std::string>& arguments,
                                 const std::filesystem::path& currentDirectoryPath, int* terminationStatus) {
  auto run = command::run(path, arguments, currentDirectoryPath);
  if (!run.ok()) note(run.error());
  if (terminationStatus != nullptr) *terminationStatus = run.ok() ? run->status : command::cannotStart;
  return run.ok() ? std::move(run->output) : QByteArray();
}

std::uint64_t HVUtility::residentSetSize() {
  int status = 0;
  const QByteArray words = runCommand("/bin/ps", {"-p" + std::to_string(::getpid()), "-orss"}, {}, &status);
  std::string digits;
  std::ranges::copy_if(words, std::back_inserter(digits), [](char letter) { return letter >= '0' && letter <= '9'; });
  std::uint64_t kilobytes = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), kilobytes);
  return status == 0 && error == std::errc() ? kilobytes : 0;
}

}  // namespace quorvane
