// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <list>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <thread>

#include "library/core/IconRecord.h"
#include "library/core/LibraryServices.h"

namespace quorvane {

/// The pictures of icons at the sizes that lists show, made on a thread of its own when a row is first painted, what
/// was asked for last first. Only the nearest of an icon's pictures is decoded, and it is not kept: the record's own
/// image stays as small as it was. Main thread.
class Thumbnails : public QObject {
  Q_OBJECT
 public:
  /// Forgets the pictures that were not asked for longest when there are more bytes than that.
  static constexpr std::size_t usualBytes = std::size_t{12} << 20;

  explicit Thumbnails(const LibraryServices& services, std::size_t mostBytes = usualBytes, QObject* parent = nullptr);
  ~Thumbnails() override;

  /// The icon's picture, `side` pixels on its longer side. nullopt while it is being made: ready() follows. A null
  /// picture when there is none to be had.
  std::optional<QImage> picture(const IconRecord& record, int side);
  [[nodiscard]] std::size_t bytes() const { return _bytes; }

 Q_SIGNALS:
  /// The pictures of some icons have come. Once for all that came since the last one.
  void ready();

 private:
  using Key = std::pair<std::string, int>;  ///< path and side
  struct Entry {
    Key key;
    Image image;  ///< whose picture it is: another icon may come to lie under the same path
    QImage picture;
  };
  struct Request {
    Key key;
    Image image;
  };
  /// More are not waited for: those asked for first are out of sight by then.
  static constexpr std::size_t mostRequests = 128;

  void _run();
  void _take();
  void _keep(Entry entry);

  const LibraryServices _services;
  const std::size_t _mostBytes;
  std::size_t _bytes = 0;
  std::list<Entry> _entries;  ///< asked for last first
  std::map<Key, std::list<Entry>::iterator> _places;

  std::mutex _mutex;  ///< of all below
  std::condition_variable _wanted;
  std::deque<Request> _requests;
  std::set<Key> _underWay;
  std::deque<Entry> _made;
  bool _isEnding = false;
  std::thread _thread;  ///< started with the first request
};

}  // namespace quorvane
