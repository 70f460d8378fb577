// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppcastUpdater.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>

#include "app/core/ReleaseNews.h"
#include "app/core/SettingsTable.h"
#include "foundation/base/Text.h"
#include "system/Links.h"
#include "ui/Reasons.h"

namespace quorvane {

namespace {

constexpr qsizetype versionCharacters = 40;
constexpr qsizetype titleCharacters = 120;
/// Of so many versions the news are shown together.
constexpr std::size_t newsOfVersions = 10;

std::optional<ProgramVersion> systemVersion(std::uint32_t coded) {
  if (coded == 0) return std::nullopt;
  return ProgramVersion::parse(
      QStringLiteral("%1.%2.%3").arg(coded >> 8, 0, 16).arg(coded >> 4 & 0xF).arg(coded & 0xF).toStdString());
}

/// Of one version what the feed says; of several each under its title.
QString newsOf(const std::vector<appcast::Item>& items) {
  if (items.size() == 1) return plainNews(items[0].description);
  QStringList pieces;
  for (const auto& item : items) {
    if (static_cast<std::size_t>(pieces.size()) == newsOfVersions) break;
    const QString title = plainLine(item.title.isEmpty() ? item.shownVersion : item.title, titleCharacters);
    const QString news = plainNews(item.description);
    pieces += news.isEmpty() ? title : title + QStringLiteral("\n\n") + news;
  }
  return pieces.join(QStringLiteral("\n\n\n"));
}

}  // namespace

AppcastUpdater::AppcastUpdater(Parts parts) : _parts(std::move(parts)) {
  for (QTimer* timer : {&_waiting, &_retry}) timer->setSingleShot(true);
  connect(&_waiting, &QTimer::timeout, this, [this] {
    if (_isChecking && _isInForeground && !_finding) _parts.view.beginWaiting([this] { _end(); });
  });
  connect(&_retry, &QTimer::timeout, this, &AppcastUpdater::_sayWhenFree);
}

AppcastUpdater::~AppcastUpdater() {
  _end();
}

void AppcastUpdater::checkForUpdates() {
  _isInForeground = true;
  if (!_isChecking) {
    _begin();
  } else if (_finding) {
    _retry.start(0);
  }
  if (_isChecking && !_finding) _waiting.start(_parts.waitMilliseconds);
}

void AppcastUpdater::checkForUpdatesInBackground() {
  if (!_isChecking) _begin();
}

void AppcastUpdater::_begin() {
  _isChecking = true;
  _hasRetried = false;
  const QString address = settings::value(_parts.defaults, settings::feedAddress);
  _parts.fetcher.fetch(address, [this](const FeedAnswer& answer) { _answered(answer); });
}

void AppcastUpdater::_end() {
  _parts.fetcher.cancel();
  _waiting.stop();
  _retry.stop();
  _parts.view.endWaiting();
  _finding.reset();
  _isChecking = _isInForeground = false;
}

void AppcastUpdater::_answered(const FeedAnswer& answer) {
  _waiting.stop();
  _parts.view.endWaiting();
  _finding = _judge(answer);
  _sayWhenFree();
}

AppcastUpdater::Finding AppcastUpdater::_failure(const QString& message, const QString& details) const {
  const QString address = settings::value(_parts.defaults, settings::feedAddress);
  QStringList lines = {plainLine(address, titleCharacters)};
  if (!details.isEmpty())
    for (const QString& line : plainNews(details).split(u'\n')) lines += reasonOf(line.toStdString());
  return {.title = tr("Could Not Look for a New Version"), .message = message, .details = lines.join(u'\n')};
}

AppcastUpdater::Finding AppcastUpdater::_judge(const FeedAnswer& answer) const {
  switch (answer.outcome) {
    case FeedOutcome::Fetched: {
      const auto list = appcast::read(answer.feed);
      if (list) return _judgeList(*list);
      return _failure(tr("What the server sent is no list of versions."), QString::fromStdString(list.error().why()));
    }
    case FeedOutcome::AddressRefused:
      return _failure(tr("The address at which new versions are announced is not a safe one. It has to begin with "
                         "https."),
                      answer.reason);
    case FeedOutcome::Unreachable:
      return _failure(tr("The server cannot be reached. See whether this computer is connected to the Internet."),
                      answer.reason);
    case FeedOutcome::NotSecure:
      return _failure(tr("There is no safe connection to the server: it may be another one that answers in its place. "
                         "A wrong date on this computer can be the cause, too."),
                      answer.reason);
    case FeedOutcome::NotThere:
      return _failure(tr("The server has no list of versions at this address."), answer.reason);
    case FeedOutcome::ServerFailed:
      return _failure(tr("The server cannot answer at present. Try again later."), answer.reason);
    case FeedOutcome::TooSlow:
      return _failure(tr("The server takes too long to answer. Try again later."), answer.reason);
    case FeedOutcome::TooLarge:
      return _failure(tr("What the server sent is too long for a list of versions."), answer.reason);
    case FeedOutcome::RedirectRefused:
      return _failure(tr("The server sends us on to an address that is not safe, or on and on."), answer.reason);
    case FeedOutcome::Failed:
      break;
  }
  return _failure(tr("A part of the program that is needed for it is missing or does not work."), answer.reason);
}

AppcastUpdater::Finding AppcastUpdater::_judgeList(const appcast::Appcast& list) const {
  const auto running = ProgramVersion::parse(_parts.runningVersion.toStdString());
  if (!running || (list.items.empty() && list.hasOdd))
    return _failure(tr("The list of versions names none that can be compared with this one."), {});
  const auto newer = appcast::newerItems(list, *running, systemVersion(_parts.systemVersion));
  if (newer.empty()) {
    return {.title = tr("You Have the Newest Version"),
            .message = tr("Quorvane %1 is the newest version there is.").arg(_parts.runningVersion)};
  }
  const appcast::Item& newest = newer.front();
  QUrl page = newest.page.isEmpty() ? list.page : newest.page;
  if (page.isEmpty() && appcast::isPage(_parts.homePage)) page = _parts.homePage;
  UpdateOffer offer{.version = plainLine(newest.shownVersion, versionCharacters),
                    .runningVersion = _parts.runningVersion,
                    .news = newsOf(newer),
                    // Letters of other scripts that look like ours are spelt out.
                    .pageHost = page.host(QUrl::FullyEncoded)};
  if (newest.published.isValid())
    offer.published = QLocale().toString(newest.published.toLocalTime().date(), QLocale::LongFormat);
  return {.offer = offer, .newest = newest.versionText, .page = page};
}

void AppcastUpdater::_sayWhenFree() {
  if (!_finding) return;
  if (!_isInForeground) {
    const auto skipped =
        ProgramVersion::parse(settings::value(_parts.defaults, settings::skippedVersion).toStdString());
    const bool isSkipped = skipped && skipped == ProgramVersion::parse(_finding->newest.toStdString());
    if (!_finding->offer || isSkipped || (_hasRetried && _parts.view.isOccupied())) return _end();
  }
  if (_parts.view.isOccupied()) {
    _hasRetried = true;
    return _retry.start(_isInForeground ? _parts.foregroundRetryMilliseconds : _parts.backgroundRetryMilliseconds);
  }
  // What is asked for while it is up finds the check still going on.
  const Finding finding = *_finding;
  _say(finding);
  _end();
}

void AppcastUpdater::_say(const Finding& finding) {
  if (!finding.offer) return _parts.view.tell(finding.title, finding.message, finding.details);
  switch (_parts.view.offer(*finding.offer)) {
    case UpdateAnswer::OpenPage:
      if (!finding.page.isEmpty() && !_parts.opener.open(finding.page))
        _parts.view.tell(tr("Could Not Open the Page"), tr("No program was found that opens web pages."),
                         finding.page.toString(QUrl::FullyEncoded));
      break;
    case UpdateAnswer::Skip:
      settings::setValue(_parts.defaults, settings::skippedVersion, finding.newest);
      break;
    case UpdateAnswer::Later:
      break;
  }
}

}  // namespace quorvane
