// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/FolderWork.h"

#include <utility>

#include "foundation/FileManagerExtras.h"
#include "foundation/Folder.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Log.h"

namespace quorvane {

namespace {

constexpr Size iconSize{512, 512};

/// Decodes what will be shown, so that it is not done while a window is painted.
void decode(const Image& image) {
  static_cast<void>(image.bitmapForPixels(static_cast<int>(iconSize.width), static_cast<int>(iconSize.height)));
}

/// A backup that is missing or cannot be read is none.
Result<std::optional<Image>> backupPicture(const Folder& folder) {
  const auto bytes = TRY(folder.readFile(FolderBranding::backupName, limits::iconFileBytes));
  if (!bytes) return std::optional<Image>();
  const IconFamily family = IconFamily::initWithData(*bytes);
  if (const auto checked = family.check(); !checked)
    return checked.error().at(folder.pathOf(FolderBranding::backupName));
  auto image = family.imageWithAllReps();
  if (image) decode(*image);
  return image;
}

Result<LoadedFolder> loadFolder(const FolderBranding& branding, const std::filesystem::path& path) {
  // A file has an icon too, but is nothing to brand.
  const Folder folder = TRY(Folder::open(path, Folder::Access::Read));
  LoadedFolder loaded{.icon = TRY(branding._iconImageForPath(path)), .backup = std::nullopt};
  decode(loaded.icon);
  if (auto backup = backupPicture(folder)) {
    loaded.backup = *std::move(backup);
  } else {
    logMessage("branding", backup.error().message());
  }
  return loaded;
}

void cancel(WorkQueue& queue, std::optional<WorkQueue::Ticket>& ticket) {
  if (ticket) queue.cancel(*ticket);
  ticket.reset();
}

}  // namespace

FolderWork::FolderWork(const IconServices& services, WorkQueue::Mode mode)
    : _branding(services, [this](std::chrono::milliseconds delay,
                                 std::function<void()> what) { _queue.addLater(delay, std::move(what)); }),
      _pictures(mode),
      _looks(mode),
      _queue(mode) {}

void FolderWork::look(const std::filesystem::path& path, Answer<bool> answer) {
  cancelLook();
  _look = _looks.add(WorkQueue::Importance::MayBeLeft,
                     [path, answer = std::move(answer)] { return [is = isDirectory(path), answer] { answer(is); }; });
}

void FolderWork::cancelLook() {
  cancel(_looks, _look);
}

void FolderWork::load(const std::filesystem::path& path, Answer<Result<LoadedFolder>> answer) {
  cancelLoad();
  _load = _queue.add(WorkQueue::Importance::MayBeLeft, [this, path, answer = std::move(answer)] {
    return [loaded = loadFolder(_branding, path), answer] { answer(loaded); };
  });
}

void FolderWork::cancelLoad() {
  cancel(_queue, _load);
}

void FolderWork::readPicture(PictureReader reader, Answer<Result<Image>> answer) {
  cancelPicture();
  _picture = _pictures.add(WorkQueue::Importance::MayBeLeft, [reader = std::move(reader), answer = std::move(answer)] {
    auto picture = reader();
    if (picture) decode(*picture);
    return [picture = std::move(picture), answer] { answer(picture); };
  });
}

void FolderWork::cancelPicture() {
  cancel(_pictures, _picture);
}

bool FolderWork::finish(std::chrono::milliseconds patience) {
  cancelPicture();
  cancelLook();
  return _queue.finish(patience);
}

void FolderWork::change(std::function<Result<BrandingResult>()> work, Answer<Result<BrandingResult>> answer) {
  _queue.add(WorkQueue::Importance::MustBeDone, [work = std::move(work), answer = std::move(answer)] {
    return [result = work(), answer] { answer(result); };
  });
}

void FolderWork::apply(Composer composer, const std::filesystem::path& path, Answer<Result<BrandingResult>> answer) {
  change(
      [this, composer = std::move(composer), path] {
        std::optional<Image> image = composer();
        if (image) {
          image->setScalesWhenResized(true);
          image->setSize(iconSize);
        }
        return _branding.writeIconWithImage(image, path);
      },
      std::move(answer));
}

void FolderWork::revert(const std::filesystem::path& path, Answer<Result<BrandingResult>> answer) {
  change([this, path] { return _branding.revert(path); }, std::move(answer));
}

void FolderWork::reset(const std::filesystem::path& path, Answer<Result<BrandingResult>> answer) {
  change([this, path] { return _branding.reset(path); }, std::move(answer));
}

}  // namespace quorvane
