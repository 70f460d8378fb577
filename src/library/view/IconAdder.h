// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <atomic>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "foundation/WorkQueue.h"
#include "library/core/AddingIcons.h"
#include "library/core/IconSet.h"

namespace quorvane {

/// Makes icons of files, and sets of folders and zip files, on a thread of its own while the window goes on. One job
/// after the other. Main thread.
class IconAdder : public QObject {
  Q_OBJECT
 public:
  using Path = std::filesystem::path;
  using Records = std::vector<IconRecord>;

  /// In WorkQueue::Mode::AtOnce all is done within the calls.
  IconAdder(const LibraryServices& services, WorkQueue::Mode mode, QObject* parent = nullptr);
  ~IconAdder() override;

  /// Writes an icon of each file into the set's folder; `added` gets those that came of it, in the files' order, also
  /// when it was cancelled half-way and when there are none. `temporary` is removed then.
  void addIcons(std::vector<Path> files, const std::shared_ptr<IconSet>& set, std::function<void(Records)> added,
                const Path& temporary = {});
  /// Any other work on the library that takes long. `work` is called on the thread, `done` here; it says what it is
  /// busy with.
  using Work = std::function<Result<void>(const LibraryProgress& progress)>;
  void run(const QString& words, Work work, std::function<void(const Result<void>&)> done);

  /// Ends what is under way at the next item, and drops what waits.
  void cancel();
  [[nodiscard]] bool isBusy() const { return _queued > 0; }

  /// While held, nothing is delivered: row numbers that somebody holds stay right.
  void hold() { _isHeld = true; }
  void release();

 Q_SIGNALS:
  /// Something is under way: what, and how far it is.
  void progressed(const QString& words, int done, int total);
  /// Nothing is any more.
  void finished();
  /// Some of it could not be done; a sentence for the user.
  void failed(const QString& reason);

 private:
  void _enqueue(const QString& words, std::function<WorkQueue::Delivery(const LibraryProgress&)> job);
  void _deliver(const WorkQueue::Delivery& delivery);

  LibraryServices _services;
  int _lastJob = 0;
  std::atomic<int> _cancelled = 0;  ///< no job up to this one goes on
  bool _isEnding = false;
  int _queued = 0;
  bool _isHeld = false;
  std::deque<WorkQueue::Delivery> _held;
  WorkQueue _queue;  ///< the last: it ends first
};

}  // namespace quorvane
