// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/feed/ProxyChoice.h"

#include <QHostAddress>
#include <QStringList>
#include <algorithm>

namespace quorvane {

namespace {

QString environment(const char* name) {
  const QString value = qEnvironmentVariable(name).trimmed();
  return value.isEmpty() ? qEnvironmentVariable(QByteArray(name).toUpper().constData()).trimmed() : value;
}

bool isExempt(const QString& host) {
  if (host == u"localhost" || QHostAddress(host).isLoopback()) return true;
  const QStringList exempt = environment("no_proxy").split(u',', Qt::SkipEmptyParts);
  return std::ranges::any_of(exempt, [&](QString name) {
    name = name.trimmed();
    while (name.startsWith(u'.')) name.remove(0, 1);
    return name == u"*" || host.compare(name, Qt::CaseInsensitive) == 0 ||
           (!name.isEmpty() && host.endsWith(u'.' + name, Qt::CaseInsensitive));
  });
}

}  // namespace

std::optional<QNetworkProxy> chooseProxy(const QUrl& address) {
  QString named = environment("https_proxy");
  if (named.isEmpty()) named = environment("all_proxy");
  if (named.isEmpty() || isExempt(address.host())) return QNetworkProxy(QNetworkProxy::NoProxy);
  if (!named.contains(u"://")) named.prepend(u"http://");
  const QUrl proxy(named);
  const bool isSocks = proxy.scheme() == u"socks5" || proxy.scheme() == u"socks5h";
  if (!proxy.isValid() || proxy.host().isEmpty() || !(isSocks || proxy.scheme() == u"http")) return std::nullopt;
  return QNetworkProxy(isSocks ? QNetworkProxy::Socks5Proxy : QNetworkProxy::HttpProxy, proxy.host(),
                       static_cast<quint16>(proxy.port(isSocks ? 1080 : 80)), proxy.userName(QUrl::FullyDecoded),
                       proxy.password(QUrl::FullyDecoded));
}

}  // namespace quorvane
