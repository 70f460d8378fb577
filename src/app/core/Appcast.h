// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QUrl>
#include <optional>
#include <vector>

#include "app/core/ProgramVersion.h"
#include "foundation/base/Result.h"

/// The list of versions that a publisher keeps: RSS 2.0 in UTF-8 in which each item is one version.
namespace quorvane::appcast {

/// One version. The texts are the feed's own, to be shown through plainNews() and plainLine() only.
struct Item {
  ProgramVersion version;  ///< of the attribute or element "version"
  QString versionText;     ///< the same as it is written
  QString shownVersion;    ///< "shortVersionString", or else that
  std::optional<ProgramVersion> leastSystem;
  QString title;
  QString description;  ///< HTML or plain text
  QDateTime published;  ///< invalid when it is not said
  QUrl page;            ///< see isPage(); empty: none
};

struct Appcast {
  std::vector<Item> items;
  QUrl page;            ///< of the whole list
  bool hasOdd = false;  ///< items were left out, for they say no version that can be compared
};

/// What concerns versions is known by its local name, in whatever namespace. Left out are items for other systems and
/// those of a channel that people have to choose. InvalidInput for what is no such list, TooLarge over the limits.
Result<Appcast> read(const QByteArray& bytes);

/// The items that are newer than the running version and, where the system's is known, run there: the newest first,
/// each version once.
std::vector<Item> newerItems(const Appcast& list, const ProgramVersion& running,
                             const std::optional<ProgramVersion>& system);

/// Whether an address may be opened as a page: https, with a host, without a user's name or password.
bool isPage(const QUrl& address);

}  // namespace quorvane::appcast
