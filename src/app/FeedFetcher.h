// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

#include "app/core/FeedOutcome.h"

namespace quorvane {

/// What came of fetching a feed.
struct FeedAnswer {
  FeedOutcome outcome = FeedOutcome::Failed;
  QByteArray feed = {};  ///< foreign bytes, limits::feedBytes at most; when Fetched
  QString reason = {};   ///< of a failure, for those who want to know; as the other side may have put it
};

/// Gets a feed from the network, one at a time.
class FeedFetcher {
 public:
  virtual ~FeedFetcher() = default;
  /// Returns at once; the answer comes by the event loop, in feedSeconds or a little later at the latest. Not while
  /// another is under way.
  virtual void fetch(const QString& address, std::function<void(const FeedAnswer&)> answered) = 0;
  /// No answer comes any more. Does not wait.
  virtual void cancel() = 0;
};

}  // namespace quorvane
