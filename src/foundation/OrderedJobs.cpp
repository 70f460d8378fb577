// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/OrderedJobs.h"

#include <sched.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <deque>
#include <list>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace quorvane {

namespace {

// Jobs a thread that may be begun before the first of them is reported: enough that a slow one holds up nobody soon.
constexpr std::size_t jobsAThread = 8;
constexpr std::chrono::milliseconds tickInterval{50};

/// Signals go to the thread that knows what to do about them.
class SignalsBlocked {
 public:
  SignalsBlocked() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, signal);
    pthread_sigmask(SIG_BLOCK, &signals, &_before);
  }
  ~SignalsBlocked() { pthread_sigmask(SIG_SETMASK, &_before, nullptr); }
  SignalsBlocked(const SignalsBlocked&) = delete;
  SignalsBlocked& operator=(const SignalsBlocked&) = delete;

 private:
  sigset_t _before{};
};

class Crew {
 public:
  Crew(std::size_t threads, const JobSource& source) : _source(source), _room(jobsAThread * threads) {
    const SignalsBlocked blocked;
    _threads.reserve(threads);
    try {
      for (std::size_t i = 0; i < threads; ++i) _threads.emplace_back([this] { work(); });
    } catch (const std::system_error&) {
      // Those that could be made do the work.
    }
  }
  ~Crew() {
    for (std::thread& thread : _threads) thread.join();
  }
  Crew(const Crew&) = delete;
  Crew& operator=(const Crew&) = delete;

  [[nodiscard]] bool isEmpty() const { return _threads.empty(); }

  /// Reports until all is done.
  void report() {
    std::unique_lock lock(_mutex);
    _changed.notify_all();
    while (!_isAtEnd || !_begun.empty()) {
      if (_begun.empty() || !_begun.front().isDone) {
        _reportable.wait_for(lock, tickInterval);
        lock.unlock();
        _source.tick();
        lock.lock();
        continue;
      }
      const Job::Report report = std::move(_begun.front().report);
      _begun.pop_front();
      _changed.notify_all();
      lock.unlock();
      if (report) report();
      _source.tick();
      lock.lock();
    }
  }

 private:
  struct Begun {
    std::optional<FolderIdentity> holds;
    bool isDone = false;
    Job::Report report;
  };

  /// The next job, once there is room for it and nobody holds its folder; nullptr when there is none.
  Begun* take(Job& job) {
    const std::lock_guard turn(_turn);
    std::unique_lock lock(_mutex);
    const auto waitFor = [&](const auto& condition) {
      while (!_isAtEnd && !condition()) {
        if (_source.shouldStop()) _isAtEnd = true;
        _changed.wait_for(lock, tickInterval);
      }
    };
    waitFor([&] { return _begun.size() < _room; });
    if (_isAtEnd || _source.shouldStop()) return end();
    lock.unlock();
    auto next = _source.next();
    lock.lock();
    if (!next) return end();
    const auto isHeld = [&] {
      return next->holds && std::ranges::any_of(_begun, [&](const Begun& other) {
               return !other.isDone && other.holds == next->holds;
             });
    };
    waitFor([&] { return !isHeld(); });
    if (_isAtEnd || _source.shouldStop()) return end();
    job = *std::move(next);
    _begun.push_back({.holds = job.holds, .report = {}});
    return &_begun.back();
  }

  Begun* end() {
    _isAtEnd = true;
    _reportable.notify_one();
    return nullptr;
  }

  void work() {
    Job job;
    while (Begun* begun = take(job)) {
      Job::Report report = job.work();
      job = {};
      const std::lock_guard lock(_mutex);
      begun->report = std::move(report);
      begun->isDone = true;
      _changed.notify_all();
      _reportable.notify_one();
    }
  }

  const JobSource& _source;
  const std::size_t _room;
  std::mutex _turn;   ///< whose turn it is to take a job; locked before _mutex
  std::mutex _mutex;  ///< all below
  std::condition_variable _changed;
  std::condition_variable _reportable;
  std::list<Begun> _begun;  ///< in the order in which they came; elements stay where they are
  bool _isAtEnd = false;
  std::vector<std::thread> _threads;
};

void runHere(const JobSource& source) {
  while (!source.shouldStop()) {
    const auto job = source.next();
    if (!job || source.shouldStop()) return;
    if (const auto report = job->work()) report();
    source.tick();
  }
}

}  // namespace

void runInOrder(int threads, const JobSource& source) {
  if (threads > 1) {
    Crew crew(static_cast<std::size_t>(threads), source);
    if (!crew.isEmpty()) return crew.report();
  }
  runHere(source);
}

int usableProcessors() {
  cpu_set_t usable;
  CPU_ZERO(&usable);
  if (::sched_getaffinity(0, sizeof usable, &usable) != 0) return 1;
  return std::max(CPU_COUNT(&usable), 1);
}

}  // namespace quorvane
