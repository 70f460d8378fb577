// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QNetworkProxy>
#include <QUrl>
#include <optional>

namespace quorvane {

/// The proxy that the user's environment names for an https address (https_proxy or all_proxy, and no_proxy, in small
/// or capital letters), or none. Nothing when it names one that is not understood: who wants a proxy must not be sent
/// past it. No proxy is looked for in the network, and loopback needs none.
std::optional<QNetworkProxy> chooseProxy(const QUrl& address);

}  // namespace quorvane
