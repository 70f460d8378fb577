// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QTimer>
#include <memory>

#include "app/FeedFetcher.h"

namespace quorvane {

/// Has a program of its own fetch the feed (src/app/feed), which is killed when it takes too long or says too much.
class FeedProcess : public QObject, public FeedFetcher {
  Q_OBJECT
 public:
  /// The program's path, as it stands.
  explicit FeedProcess(QString program);
  ~FeedProcess() override;

  void fetch(const QString& address, std::function<void(const FeedAnswer&)> answered) override;
  void cancel() override;

 private:
  void _take();
  void _end(FeedAnswer answer);

  QString _program;
  std::unique_ptr<QProcess> _process;
  QTimer _patience;
  QByteArray _feed;
  std::function<void(const FeedAnswer&)> _answered;
};

}  // namespace quorvane
