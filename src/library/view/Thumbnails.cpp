// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/Thumbnails.h"

#include <algorithm>
#include <cmath>

#include "library/core/IconSet.h"

namespace quorvane {

namespace {

QImage drawn(const Image& image, int side) {
  const double longer = std::max(image.size().width, image.size().height);
  if (longer <= 0) return {};
  const auto pixels = [&](double length) { return std::max(1, static_cast<int>(std::lround(side * length / longer))); };
  // Without a picture there is nothing that could be drawn.
  if (!image.bitmapForPixels(side, side)) return {};
  return image.rendered(pixels(image.size().width), pixels(image.size().height)).toImage();
}

}  // namespace

Thumbnails::Thumbnails(const LibraryServices& services, std::size_t mostBytes, QObject* parent)
    : QObject(parent), _services(services), _mostBytes(mostBytes) {}

Thumbnails::~Thumbnails() {
  {
    const std::lock_guard lock(_mutex);
    _isEnding = true;
  }
  _wanted.notify_one();
  if (_thread.joinable()) _thread.join();
}

std::optional<QImage> Thumbnails::picture(const IconRecord& record, int side) {
  const Key key{record.path.native(), side};
  if (const auto found = _places.find(key); found != _places.end()) {
    if (found->second->image.isSameAs(record.image)) {
      _entries.splice(_entries.begin(), _entries, found->second);
      return found->second->picture;
    }
    _bytes -= static_cast<std::size_t>(found->second->picture.sizeInBytes());
    _entries.erase(found->second);
    _places.erase(found);
  }
  {
    const std::lock_guard lock(_mutex);
    if (!_underWay.insert(key).second) return std::nullopt;
    _requests.push_back({key, record.image});
    if (_requests.size() > mostRequests) {
      _underWay.erase(_requests.front().key);
      _requests.pop_front();
    }
  }
  _wanted.notify_one();
  if (!_thread.joinable()) _thread = std::thread([this] { _run(); });
  return std::nullopt;
}

void Thumbnails::_run() {
  std::unique_lock lock(_mutex);
  while (true) {
    _wanted.wait(lock, [this] { return _isEnding || !_requests.empty(); });
    if (_isEnding) return;
    Request request = std::move(_requests.back());
    _requests.pop_back();
    lock.unlock();
    // Read anew: what is decoded of the record's own image would stay with it.
    const auto image = IconSet::_iconImageForPath(request.key.first, _services);
    QImage picture = image ? drawn(*image, request.key.second) : QImage();
    lock.lock();
    const bool isFirst = _made.empty();
    _made.push_back({std::move(request.key), std::move(request.image), std::move(picture)});
    if (isFirst) QMetaObject::invokeMethod(this, &Thumbnails::_take, Qt::QueuedConnection);
  }
}

void Thumbnails::_take() {
  std::deque<Entry> made;
  {
    const std::lock_guard lock(_mutex);
    made.swap(_made);
    for (const Entry& entry : made) _underWay.erase(entry.key);
  }
  for (Entry& entry : made) _keep(std::move(entry));
  Q_EMIT ready();
}

void Thumbnails::_keep(Entry entry) {
  if (_places.contains(entry.key)) return;
  _bytes += static_cast<std::size_t>(entry.picture.sizeInBytes());
  _entries.push_front(std::move(entry));
  _places[_entries.front().key] = _entries.begin();
  while (_bytes > _mostBytes && _entries.size() > 1) {
    _bytes -= static_cast<std::size_t>(_entries.back().picture.sizeInBytes());
    _places.erase(_entries.back().key);
    _entries.pop_back();
  }
}

}  // namespace quorvane
