// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/IconAdder.h"

#include <QFile>

#include "ui/ElidedLabel.h"
#include "ui/Reasons.h"

namespace quorvane {

IconAdder::IconAdder(const LibraryServices& services, WorkQueue::Mode mode, QObject* parent)
    : QObject(parent), _services(services), _queue(mode) {}

IconAdder::~IconAdder() {
  // What is half done stays: the next look into the folder finds it.
  _cancelled = _lastJob;
  _isEnding = true;
}

void IconAdder::_enqueue(const QString& words, std::function<WorkQueue::Delivery(const LibraryProgress&)> job) {
  ++_queued;
  Q_EMIT progressed(words, 0, 0);
  // The thread ends before this object does.
  const LibraryProgress progress = [this, words, number = ++_lastJob](std::size_t done, std::size_t total) {
    if (number <= _cancelled) return false;
    const auto tell = [this, words, done, total] {
      if (isBusy()) Q_EMIT progressed(words, static_cast<int>(done), static_cast<int>(total));
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    return true;
  };
  _queue.add(WorkQueue::Importance::MustBeDone, [this, job = std::move(job), progress]() -> WorkQueue::Delivery {
    const WorkQueue::Delivery delivery = job(progress);
    return [this, delivery] { _deliver(delivery); };
  });
}

void IconAdder::_deliver(const WorkQueue::Delivery& delivery) {
  if (_isEnding) return;
  if (_isHeld) return _held.push_back(delivery);
  delivery();
  if (--_queued == 0) Q_EMIT finished();
}

void IconAdder::release() {
  _isHeld = false;
  while (!_held.empty() && !_isHeld) {
    const WorkQueue::Delivery delivery = std::move(_held.front());
    _held.pop_front();
    _deliver(delivery);
  }
}

void IconAdder::cancel() {
  _cancelled = _lastJob;
}

void IconAdder::addIcons(std::vector<Path> files, const std::shared_ptr<IconSet>& set,
                         std::function<void(Records)> added, const Path& temporary) {
  const int count = static_cast<int>(files.size());
  // The thread gets a copy of the path: the set may be renamed meanwhile, and what is added then fails with a reason.
  _enqueue(count == 1 ? tr("Adding an icon…") : tr("Adding %n icons…", nullptr, count),
           [this, files = std::move(files), folder = set->path(), services = _services, added = std::move(added),
            temporary](const LibraryProgress& progress) -> WorkQueue::Delivery {
             auto outcomes = std::make_shared<std::vector<Result<IconRecord>>>();
             if (progress(0, files.size())) *outcomes = addIconsAtPaths(files, folder, services, progress);
             std::error_code ignored;
             if (!temporary.empty()) std::filesystem::remove_all(temporary, ignored);
             return [this, files, outcomes, added] {
               Records records;
               int failures = 0;
               QString reason;
               for (std::size_t at = 0; at < outcomes->size(); ++at) {
                 auto& outcome = (*outcomes)[at];
                 if (outcome) {
                   records.push_back(std::move(*outcome));
                 } else if (failures++ == 0) {
                   reason = tr("“%1” cannot be added: %2")
                                .arg(visibleText(QFile::decodeName(files[at].filename().c_str())),
                                     reasonOf(outcome.error()));
                 }
               }
               added(std::move(records));
               if (failures > 1)
                 reason = tr("%n files cannot be added.", nullptr, failures) + QLatin1Char(' ') + reason;
               if (failures > 0) Q_EMIT failed(reason);
             };
           });
}

void IconAdder::run(const QString& words, Work work, std::function<void(const Result<void>&)> done) {
  _enqueue(words,
           [work = std::move(work), done = std::move(done)](const LibraryProgress& progress) -> WorkQueue::Delivery {
             auto outcome = std::make_shared<Result<void>>(work(progress));
             return [done, outcome] { done(*outcome); };
           });
}

}  // namespace quorvane
