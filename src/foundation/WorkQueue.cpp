// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/WorkQueue.h"

#include <QTimer>
#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

namespace quorvane {

WorkQueue::WorkQueue(Mode mode) : _mode(mode) {}

WorkQueue::~WorkQueue() {
  // As long as a clock can count without overflowing.
  finish(std::chrono::hours(24 * 365));
  {
    const std::lock_guard lock(_mutex);
    _isEnding = true;
  }
  _changed.notify_all();
  for (Worker& worker : _workers) worker.thread.join();
}

WorkQueue::Ticket WorkQueue::add(Importance importance, Job job) {
  const Ticket ticket = ++_lastTicket;
  _undelivered.emplace(ticket, importance);
  if (_undelivered.size() == 1 && _busyListener) _busyListener(true);
  enqueue({ticket, std::move(job)});
  return ticket;
}

void WorkQueue::enqueue(Waiting waiting) {
  if (_mode == Mode::InBackground) {
    const std::lock_guard lock(_mutex);
    try {
      if (_workers.empty()) startWorker();
      _waiting.push_back(std::move(waiting));
      _changed.notify_all();
      return;
    } catch (const std::system_error&) {
      // No thread can be made: then it is done here and now.
    }
  }
  const Delivery delivery = waiting.job();
  if (_undelivered.contains(waiting.ticket) && delivery) delivery();
  settle(waiting.ticket);
}

void WorkQueue::startWorker() {
  Worker& worker = _workers.emplace_back();
  try {
    worker.thread = std::thread([this, &worker] { run(worker); });
  } catch (const std::system_error&) {
    _workers.pop_back();
    throw;
  }
}

void WorkQueue::leave(Ticket ticket) {
  const std::lock_guard lock(_mutex);
  if (!_isWorking || _inHand != ticket) return;
  _workers.remove_if([](Worker& worker) {
    if (worker.hasEnded) worker.thread.join();
    return worker.hasEnded;
  });
  Worker& former = _workers.back();
  try {
    startWorker();
  } catch (const std::system_error&) {
    // Then what comes waits for it.
    return;
  }
  former.isLeft = true;
  _isWorking = false;
  _changed.notify_all();
}

void WorkQueue::run(Worker& worker) {
  std::unique_lock lock(_mutex);
  while (true) {
    _changed.wait(lock, [this] { return _isEnding || !_waiting.empty(); });
    if (_waiting.empty()) return;
    Waiting next = std::move(_waiting.front());
    _waiting.pop_front();
    _isWorking = true;
    _inHand = next.ticket;
    lock.unlock();
    Delivery delivery = next.job();
    // What the job holds goes here, not on a thread that has other things to do.
    next.job = {};
    lock.lock();
    // Nobody wants that of a job that was left, but it goes where all go.
    _done.push_back({next.ticket, std::move(delivery)});
    if (!worker.isLeft) _isWorking = false;
    _changed.notify_all();
    QMetaObject::invokeMethod(
        &_home, [this] { deliverAll(); }, Qt::QueuedConnection);
    if (!worker.isLeft) continue;
    worker.hasEnded = true;
    return;
  }
}

void WorkQueue::deliverAll() {
  while (true) {
    Done next;
    {
      const std::lock_guard lock(_mutex);
      if (_done.empty()) return;
      next = std::move(_done.front());
      _done.pop_front();
    }
    // A delivery may wait for the user, and others are delivered meanwhile.
    if (_undelivered.contains(next.ticket) && next.delivery) next.delivery();
    settle(next.ticket);
  }
}

void WorkQueue::settle(Ticket ticket) {
  if (_undelivered.erase(ticket) > 0 && _undelivered.empty() && _busyListener) _busyListener(false);
}

void WorkQueue::cancel(Ticket ticket) {
  const auto found = _undelivered.find(ticket);
  if (found == _undelivered.end() || found->second == Importance::MustBeDone) return;
  {
    const std::lock_guard lock(_mutex);
    std::erase_if(_waiting, [ticket](const Waiting& waiting) { return waiting.ticket == ticket; });
  }
  if (found->second == Importance::MayBeLeft) leave(ticket);
  settle(ticket);
}

void WorkQueue::dropAllThatMay() {
  std::vector<Ticket> droppable;
  for (const auto& [ticket, importance] : _undelivered)
    if (importance != Importance::MustBeDone) droppable.push_back(ticket);
  for (const Ticket ticket : droppable) cancel(ticket);
}

void WorkQueue::addLater(std::chrono::milliseconds delay, std::function<void()> what) {
  Ticket number = 0;
  {
    const std::lock_guard lock(_mutex);
    if (_isFinishing && _mode == Mode::InBackground) {
      _waiting.push_back({0, [what = std::move(what)] { return what(), Delivery(); }});
      return _changed.notify_all();
    }
    number = ++_lastDelayed;
    _delayed.push_back({number, std::move(what)});
  }
  QMetaObject::invokeMethod(
      &_home, [this, delay, number] { QTimer::singleShot(delay, &_home, [this, number] { beginDelayed(number); }); },
      Qt::QueuedConnection);
}

void WorkQueue::beginDelayed(Ticket number) {
  std::vector<Delayed> due;
  {
    const std::lock_guard lock(_mutex);
    const auto first = std::stable_partition(_delayed.begin(), _delayed.end(), [number](const Delayed& delayed) {
      return number != 0 && delayed.number != number;
    });
    due.assign(std::make_move_iterator(first), std::make_move_iterator(_delayed.end()));
    _delayed.erase(first, _delayed.end());
  }
  for (Delayed& delayed : due) enqueue({0, [what = std::move(delayed.what)] { return what(), Delivery(); }});
}

bool WorkQueue::finish(std::chrono::milliseconds patience) {
  dropAllThatMay();
  {
    const std::lock_guard lock(_mutex);
    _isFinishing = true;
  }
  beginDelayed(0);
  bool isIdle = false;
  {
    std::unique_lock lock(_mutex);
    isIdle = _changed.wait_for(lock, patience, [this] { return _waiting.empty() && !_isWorking; });
    _isFinishing = false;
  }
  deliverAll();
  return isIdle;
}

}  // namespace quorvane
