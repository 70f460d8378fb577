// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>
#include <optional>

#include "app/FeedFetcher.h"
#include "app/UpdateView.h"
#include "app/Updater.h"
#include "app/core/Appcast.h"

namespace quorvane {

class AddressOpener;
class UserDefaults;

/// Looks into the appcast at the settings' feedAddress, and offers to open the page of a newer version in the browser.
/// Never fetches or installs one. Two checks at once are one. Goes away without waiting for an answer.
class AppcastUpdater : public QObject, public Updater {
  Q_OBJECT
 public:
  struct Parts {
    UserDefaults& defaults;
    FeedFetcher& fetcher;
    UpdateView& view;
    AddressOpener& opener;
    QString runningVersion;
    QUrl homePage = {};                     ///< opened when the feed names no page; may be empty
    std::uint32_t systemVersion = 0;        ///< as HVUtility tells it, 0x1068 for 10.6.8; 0: not known
    int waitMilliseconds = 600;             ///< until it is said that it takes a while
    int foregroundRetryMilliseconds = 500;  ///< between looks whether the view is free again
    int backgroundRetryMilliseconds = 2000;
  };
  /// The parts must outlive it.
  explicit AppcastUpdater(Parts parts);
  ~AppcastUpdater() override;

  void checkForUpdates() override;
  void checkForUpdatesInBackground() override;

 private:
  /// What there is to be said in the end.
  struct Finding {
    std::optional<UpdateOffer> offer = {};
    QString newest = {};  ///< version of the offer, as it is remembered
    QUrl page = {};
    QString title = {};  ///< this and the rest without an offer
    QString message = {};
    QString details = {};
  };

  void _begin();
  void _answered(const FeedAnswer& answer);
  [[nodiscard]] Finding _judge(const FeedAnswer& answer) const;
  [[nodiscard]] Finding _judgeList(const appcast::Appcast& list) const;
  [[nodiscard]] Finding _failure(const QString& message, const QString& details) const;
  void _sayWhenFree();
  void _say(const Finding& finding);
  void _end();

  Parts _parts;
  bool _isChecking = false;
  bool _isInForeground = false;
  bool _hasRetried = false;
  std::optional<Finding> _finding;  ///< waits to be said
  QTimer _waiting;
  QTimer _retry;
};

}  // namespace quorvane
