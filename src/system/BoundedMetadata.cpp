// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/BoundedMetadata.h"

#include <atomic>
#include <future>
#include <system_error>
#include <thread>

namespace quorvane {

namespace {

class BoundedMetadata : public FolderMetadata {
 public:
  BoundedMetadata(std::shared_ptr<FolderMetadata> settings, std::chrono::milliseconds patience)
      : _settings(std::move(settings)), _patience(patience) {}

  [[nodiscard]] Result<std::optional<std::string>> customIcon(const std::filesystem::path& folder) const override {
    return _within<Result<std::optional<std::string>>>(
        folder, [settings = _settings, folder] { return settings->customIcon(folder); });
  }

  Result<void> setCustomIcon(const std::filesystem::path& folder, const std::optional<std::string>& picture) override {
    return _within<Result<void>>(
        folder, [settings = _settings, folder, picture] { return settings->setCustomIcon(folder, picture); });
  }

 private:
  /// The call owns all it needs: a thread that is given up may outlast this object.
  template <typename Answer, typename Call>
  [[nodiscard]] Answer _within(const std::filesystem::path& folder, Call call) const {
    const Error silent = Error(ErrorKind::Unsupported, "the desktop session does not answer").at(folder);
    if (_isSilent) return silent;
    std::packaged_task<Answer()> task(std::move(call));
    auto answer = task.get_future();
    try {
      std::thread(std::move(task)).detach();
    } catch (const std::system_error&) {
      return Error(ErrorKind::Unsupported, "the desktop session cannot be asked").at(folder);
    }
    if (answer.wait_for(_patience) == std::future_status::ready) return answer.get();
    _isSilent = true;
    return silent;
  }

  std::shared_ptr<FolderMetadata> _settings;
  std::chrono::milliseconds _patience;
  mutable std::atomic<bool> _isSilent = false;
};

}  // namespace

std::unique_ptr<FolderMetadata> makeBoundedMetadata(std::shared_ptr<FolderMetadata> settings,
                                                    std::chrono::milliseconds patience) {
  return std::make_unique<BoundedMetadata>(std::move(settings), patience);
}

}  // namespace quorvane
