// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "app/core/FolderBranding.h"
#include "foundation/WorkQueue.h"
#include "foundation/base/Result.h"
#include "imaging/Image.h"

namespace quorvane {

/// What is to be seen of a folder when it is opened. The pictures are decoded.
struct LoadedFolder {
  Image icon;                   ///< the present icon, 512 x 512 points, scalable
  std::optional<Image> backup;  ///< the picture of the backup icon; none without a readable one
};

/// The folder flow for a window: everything that touches a folder is done on a thread of its own, one at a time and in
/// the order in which it was asked for, so that a slow disk keeps nobody waiting; a load that was cancelled holds up
/// nothing. Answers come by the event loop of the thread that made this object, which is the one that may use it.
///
/// Pictures to draw on have another thread, and so has the question whether there is a folder: they may lie on another
/// disk, and a slow one of these holds up no folder, nor does a slow folder hold them up.
class FolderWork {
 public:
  template <typename T>
  using Answer = std::function<void(T)>;
  /// Makes the composed icon, on the work's thread: it must share nothing that others change.
  using Composer = std::function<std::optional<Image>()>;
  /// Reads a picture, on a thread of its own.
  using PictureReader = std::function<Result<Image>()>;

  /// The services must outlive it.
  explicit FolderWork(const IconServices& services, WorkQueue::Mode mode = WorkQueue::Mode::InBackground);

  /// Whether there is a folder at the path. An earlier question that has not been answered never will be.
  void look(const std::filesystem::path& path, Answer<bool> answer);
  void cancelLook();

  /// Loads the folder. One folder is loaded at a time: an earlier load that has not been answered never will be.
  void load(const std::filesystem::path& path, Answer<Result<LoadedFolder>> answer);
  void cancelLoad();

  /// The picture is decoded for the canvas. An earlier one that has not been answered never will be.
  void readPicture(PictureReader reader, Answer<Result<Image>> answer);
  void cancelPicture();

  /// Writes the composed icon, at 512 x 512 points, as the folder's custom icon; keeps the icon from before the first.
  void apply(Composer composer, const std::filesystem::path& path, Answer<Result<BrandingResult>> answer);
  /// Puts the backed-up icon back. NothingToRevert when there is no backup.
  void revert(const std::filesystem::path& path, Answer<Result<BrandingResult>> answer);
  /// Gives back what was there before the first apply and takes everything of ours out.
  void reset(const std::filesystem::path& path, Answer<Result<BrandingResult>> answer);

  /// These two speak of folders alone.
  [[nodiscard]] bool isBusy() const { return _queue.isBusy(); }
  void setBusyListener(std::function<void(bool)> listener) { _queue.setBusyListener(std::move(listener)); }

  /// For the end of the program: what was to be written is written and answered, what was to be read is dropped, second
  /// notices are given. False when a disk did not answer in that time; the destructor would go on waiting for it.
  bool finish(std::chrono::milliseconds patience);

 private:
  void change(std::function<Result<BrandingResult>()> work, Answer<Result<BrandingResult>> answer);

  FolderBranding _branding;
  std::optional<WorkQueue::Ticket> _look;
  std::optional<WorkQueue::Ticket> _load;
  std::optional<WorkQueue::Ticket> _picture;
  WorkQueue _pictures;
  WorkQueue _looks;
  WorkQueue _queue;  ///< last: its end waits for what uses the rest
};

}  // namespace quorvane
