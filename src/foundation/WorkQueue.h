// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <thread>

namespace quorvane {

/// Jobs that are done one after the other on a thread of their own, while the thread that made the queue goes on; what
/// comes of them is delivered there, by its event loop. To be used from that thread alone, save where said.
class WorkQueue {
 public:
  enum class Mode {
    InBackground,
    AtOnce,  ///< within the call, for tests and programs without an event loop
  };
  enum class Importance {
    MustBeDone,    ///< begun or not, it is waited for at the end
    MayBeDropped,  ///< of no use to anybody once it is cancelled
    MayBeLeft      ///< the same, and cancelled while it is being done it holds up nothing that comes after it
  };
  /// Hands over what came of a job.
  using Delivery = std::function<void()>;
  /// Does the work, on the queue's thread.
  using Job = std::function<Delivery()>;
  using Ticket = std::uint64_t;

  explicit WorkQueue(Mode mode);
  /// Waits as finish() does, for as long as it takes.
  ~WorkQueue();
  WorkQueue(const WorkQueue&) = delete;
  WorkQueue& operator=(const WorkQueue&) = delete;

  Ticket add(Importance importance, Job job);
  /// The job is not begun any more; the result of one that has begun is not delivered. Not for those that must be done.
  void cancel(Ticket ticket);
  /// Whether something is being done, waits to be, or has not been delivered yet.
  [[nodiscard]] bool isBusy() const { return !_undelivered.empty(); }
  /// Told whenever isBusy() has changed.
  void setBusyListener(std::function<void(bool)> listener) { _busyListener = std::move(listener); }

  /// Runs it on the queue after a delay, as far as an event loop runs; at the end of the queue at the latest. May be
  /// called from any thread.
  void addLater(std::chrono::milliseconds delay, std::function<void()> what);

  /// Drops what may be dropped, leaves what may be left, and waits until all else is done and delivered; false when
  /// that is not so after `patience`: a disk may never answer.
  bool finish(std::chrono::milliseconds patience);

 private:
  struct Waiting {
    Ticket ticket;  ///< 0 for what addLater() was given: nobody waits for it
    Job job;
  };
  struct Done {
    Ticket ticket;
    Delivery delivery;
  };
  struct Delayed {
    Ticket number;
    std::function<void()> what;
  };

  /// One thread is at work; others end with the job that was cancelled under their hands.
  struct Worker {
    std::thread thread;
    bool isLeft = false;
    bool hasEnded = false;
  };

  void enqueue(Waiting waiting);
  /// Another thread goes on with what follows the job, if that is being done.
  void leave(Ticket ticket);
  /// With the mutex held.
  void startWorker();
  /// What a thread does.
  void run(Worker& worker);
  void deliverAll();
  void settle(Ticket ticket);
  /// Puts a delayed one into the queue; with 0 all of them.
  void beginDelayed(Ticket number);
  void dropAllThatMay();

  const Mode _mode;
  QObject _home;  ///< lives on the maker's thread: what is posted to it runs there, and not at all once it is gone
  std::function<void(bool)> _busyListener;
  std::map<Ticket, Importance> _undelivered;
  Ticket _lastTicket = 0;

  std::mutex _mutex;  ///< of all below
  std::condition_variable _changed;
  std::deque<Waiting> _waiting;
  std::deque<Done> _done;
  std::deque<Delayed> _delayed;
  Ticket _lastDelayed = 0;
  bool _isWorking = false;
  Ticket _inHand = 0;  ///< of the job that is being done
  bool _isFinishing = false;
  bool _isEnding = false;
  std::list<Worker> _workers;  ///< the last one is at work; the first is started with the first job
};

}  // namespace quorvane
