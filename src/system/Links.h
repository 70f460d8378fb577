// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>
#include <vector>

namespace quorvane {

/// Opens addresses in whatever the desktop opens them with.
class AddressOpener {
 public:
  virtual ~AddressOpener() = default;
  /// True when an opener was started, which says nothing of what it then does. Does not wait for it.
  virtual bool open(const QUrl& address) = 0;
};

class DesktopAddressOpener : public AddressOpener {
 public:
  bool open(const QUrl& address) override;
};

/// Remembers them, for tests.
class RecordingAddressOpener : public AddressOpener {
 public:
  bool open(const QUrl& address) override {
    opened.push_back(address);
    return answer;
  }
  std::vector<QUrl> opened;
  bool answer = true;
};

/// The maker's web site.
class HVWebsite {
 public:
  /// The base address ends in "/".
  HVWebsite(QString baseAddress, AddressOpener& opener) : _baseAddress(std::move(baseAddress)), _opener(opener) {}

  /// Opens the base address followed by the page's path as it stands, a doubled slash and all. False for what makes no
  /// address of a web page.
  bool visitPage(const QString& path);

 private:
  QString _baseAddress;
  AddressOpener& _opener;
};

}  // namespace quorvane
