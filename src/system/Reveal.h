// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "system/Links.h"

namespace quorvane {

/// The ways in which a desktop shows where something lies. Each answers later, from the event loop of the thread that
/// asked, whether it could.
class RevealWays {
 public:
  using Answer = std::function<void(bool)>;
  virtual ~RevealWays() = default;
  /// The file manager's own service: opens the parent with the item selected.
  virtual void showItem(const std::filesystem::path& path, const std::string& startupId, Answer answer) = 0;
  /// The desktop portal: the same, for confined programs too.
  virtual void askPortal(const std::filesystem::path& path, Answer answer) = 0;
};

/// Over the session bus; without one every answer is no.
std::unique_ptr<RevealWays> makeDesktopRevealWays();

/// Answers from a script and remembers what was asked, for tests.
class ScriptedRevealWays : public RevealWays {
 public:
  void showItem(const std::filesystem::path& path, const std::string& /*startupId*/, Answer answer) override {
    asked.push_back("item " + path.string());
    answer(canShowItems);
  }
  void askPortal(const std::filesystem::path& path, Answer answer) override {
    asked.push_back("portal " + path.string());
    answer(hasPortal);
  }
  std::vector<std::string> asked;
  bool canShowItems = true;
  bool hasPortal = true;
};

/// "Show in file manager".
class Reveal {
 public:
  /// Both must outlive it and its answers.
  Reveal(RevealWays& ways, AddressOpener& opener) : _ways(ways), _opener(opener) {}

  /// Shows the item (an absolute path) in the file manager: by the file manager's service, else by the portal, else by
  /// opening the parent folder. `answer`, if any, hears whether one of them worked.
  void show(const std::filesystem::path& path, const std::string& startupId = {}, RevealWays::Answer answer = {});

 private:
  RevealWays& _ways;
  AddressOpener& _opener;
};

}  // namespace quorvane
