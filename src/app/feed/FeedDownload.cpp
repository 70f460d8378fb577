// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/feed/FeedDownload.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QSslError>
#include <algorithm>

#include "foundation/base/Version.h"

namespace quorvane {

namespace {

bool isLoopback(const QUrl& address) {
  return address.host() == u"localhost" || QHostAddress(address.host()).isLoopback();
}

QNetworkRequest requestFor(const QUrl& address) {
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  request.setRawHeader("User-Agent", "Quorvane/" QUORVANE_VERSION);
  request.setRawHeader("Accept", "application/rss+xml, application/xml;q=0.9, */*;q=0.1");
  // Would be the user's own otherwise.
  request.setRawHeader("Accept-Language", "*");
  // What comes packed all the same stays so: it cannot swell up.
  request.setRawHeader("Accept-Encoding", "identity");
  QSslConfiguration security = QSslConfiguration::defaultConfiguration();
  security.setProtocol(QSsl::TlsV1_2OrLater);
  security.setPeerVerifyMode(QSslSocket::VerifyPeer);
  request.setSslConfiguration(security);
  return request;
}

bool isRedirect(int status) {
  return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

}  // namespace

FeedDownload::FeedDownload(Limits limits, const QNetworkProxy& proxy) : _limits(limits) {
  _manager.setProxy(proxy);
  _timer.setSingleShot(true);
  connect(&_timer, &QTimer::timeout, this, [this] {
    _end(FeedOutcome::TooSlow, QStringLiteral("no whole answer in %1 s").arg(_limits.time.count() / 1000));
  });
}

bool FeedDownload::_mayAsk(const QUrl& address) const {
  if (!address.isValid() || address.host().isEmpty() || !address.userInfo().isEmpty()) return false;
  return address.scheme() == u"https" ||
         (_limits.loopbackWithoutEncryption && address.scheme() == u"http" && isLoopback(address));
}

void FeedDownload::start(const QUrl& address) {
  _timer.start(_limits.time);
  if (!_mayAsk(address)) return _end(FeedOutcome::AddressRefused, QStringLiteral("not an https address"));
  _ask(address);
}

void FeedDownload::_ask(const QUrl& address) {
  QNetworkReply* reply = _manager.get(requestFor(address));
  _reply = reply;
  connect(reply, &QNetworkReply::readyRead, this, &FeedDownload::_take);
  connect(reply, &QNetworkReply::metaDataChanged, this, &FeedDownload::_judgeLength);
  connect(reply, &QNetworkReply::finished, this, &FeedDownload::_replied);
  connect(reply, &QNetworkReply::sslErrors, this, [this](const QList<QSslError>& errors) {
    for (const QSslError& error : errors) {
      if (!_doubts.isEmpty()) _doubts += u", ";
      _doubts += error.errorString();
    }
  });
}

void FeedDownload::_take() {
  _body += _reply->read(_limits.bytes + 1 - _body.size());
  if (_body.size() > _limits.bytes)
    _end(FeedOutcome::TooLarge, QStringLiteral("more than %1 bytes").arg(_limits.bytes));
}

void FeedDownload::_judgeLength() {
  _announced = -1;
  bool isNumber = false;
  const qint64 length = _reply->rawHeader("Content-Length").toLongLong(&isNumber);
  if (!isNumber) return;
  _announced = length;
  if (length > _limits.bytes) _end(FeedOutcome::TooLarge, QStringLiteral("%1 bytes").arg(length));
}

void FeedDownload::_replied() {
  if (_hasEnded) return;
  QNetworkReply& reply = *_reply;
  const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  const QString said = QStringLiteral("%1: HTTP status %2").arg(reply.url().toDisplayString()).arg(status);
  const QByteArray target = reply.rawHeader("Location");
  if (isRedirect(status) && !target.isEmpty()) return _redirect(reply.url().resolved(QUrl::fromEncoded(target)));
  if (!_doubts.isEmpty()) return _end(FeedOutcome::NotSecure, _doubts);
  if (reply.error() == QNetworkReply::SslHandshakeFailedError) return _end(FeedOutcome::NotSecure, reply.errorString());
  if (status == 404 || status == 410) return _end(FeedOutcome::NotThere, said);
  if (status != 0 && status != 200) return _end(FeedOutcome::ServerFailed, said);
  if (reply.error() != QNetworkReply::NoError) return _end(FeedOutcome::Unreachable, reply.errorString());
  _take();
  if (_hasEnded) return;
  if (_announced >= 0 && _body.size() != _announced)
    return _end(FeedOutcome::Unreachable, QStringLiteral("%1 of %2 bytes").arg(_body.size()).arg(_announced));
  _end(FeedOutcome::Fetched, {});
}

void FeedDownload::_redirect(const QUrl& target) {
  const bool weakens = _reply->url().scheme() == u"https" && target.scheme() != u"https";
  if (weakens || !_mayAsk(target))
    return _end(FeedOutcome::RedirectRefused, QStringLiteral("redirected to %1").arg(target.toDisplayString()));
  if (++_redirects > _limits.redirects)
    return _end(FeedOutcome::RedirectRefused, QStringLiteral("redirected more than %1 times").arg(_limits.redirects));
  _reply->disconnect(this);
  _reply->deleteLater();
  _body.clear();
  _ask(target);
}

void FeedDownload::_end(FeedOutcome outcome, const QString& reason) {
  if (_hasEnded) return;
  _hasEnded = true;
  _timer.stop();
  if (_reply) _reply->disconnect(this);
  Q_EMIT finished(outcome, reason);
}

}  // namespace quorvane
