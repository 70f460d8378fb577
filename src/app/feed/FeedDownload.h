// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QTimer>
#include <chrono>

#include "app/core/FeedOutcome.h"

namespace quorvane {

/// Asks one address for a feed, and says nothing of the user: no cookies, no sign-on, no language, nothing kept. Only
/// https is asked, and only https is followed, to three other addresses at most. The body is taken as it comes,
/// never unpacked.
class FeedDownload : public QObject {
  Q_OBJECT
 public:
  struct Limits {
    std::chrono::milliseconds time;
    qint64 bytes;
    int redirects = 3;
    bool loopbackWithoutEncryption = false;  ///< for tests
  };
  FeedDownload(Limits limits, const QNetworkProxy& proxy);

  /// Once only; finished() follows, within the time.
  void start(const QUrl& address);
  /// What has come, when it ended as Fetched.
  [[nodiscard]] const QByteArray& body() const { return _body; }

 Q_SIGNALS:
  /// The reason is the technical one, for those who want to know; empty when all went well.
  void finished(quorvane::FeedOutcome outcome, const QString& reason);

 private:
  [[nodiscard]] bool _mayAsk(const QUrl& address) const;
  void _ask(const QUrl& address);
  void _take();
  void _judgeLength();
  void _replied();
  void _redirect(const QUrl& target);
  void _end(FeedOutcome outcome, const QString& reason);

  Limits _limits;
  QNetworkAccessManager _manager;
  QPointer<QNetworkReply> _reply;
  QTimer _timer;
  QByteArray _body;
  QString _doubts;         ///< about the certificate
  qint64 _announced = -1;  ///< length of the body; -1: not said
  int _redirects = 0;
  bool _hasEnded = false;
};

}  // namespace quorvane
