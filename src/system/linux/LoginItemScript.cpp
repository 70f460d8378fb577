// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/ScriptText.h"
#include "system/linux/AutostartItems.h"

namespace quorvane {

namespace {

bool take(std::string_view& script, std::string_view words) {
  if (!script.starts_with(words)) return false;
  script.remove_prefix(words.size());
  return true;
}

/// `{path:"...",hidden:true}` and line ends.
std::optional<AddLoginItem> takeProperties(std::string_view& script) {
  AddLoginItem item;
  if (!take(script, "{path:")) return std::nullopt;
  auto path = scripts::takeQuoted(script);
  if (!path || !take(script, ",hidden:")) return std::nullopt;
  item.path = *std::move(path);
  item.hidden = take(script, "true");
  if (!item.hidden && !take(script, "false")) return std::nullopt;
  return take(script, "}") ? std::optional(item) : std::nullopt;
}

std::optional<LoginItemCommand> takeCommand(std::string_view& script) {
  if (take(script, "make new login item at end with properties ")) return takeProperties(script);
  if (!take(script, "delete login item ")) return std::nullopt;
  auto name = scripts::takeQuoted(script);
  if (!name) return std::nullopt;
  return RemoveLoginItem{*std::move(name)};
}

}  // namespace

Result<LoginItemCommand> parseLoginItemScript(std::string_view script) {
  const Error unknown(ErrorKind::Unsupported, "this desktop runs no such script");
  if (!take(script, scripts::tellBegin) || !script.ends_with(scripts::tellEnd)) return unknown;
  script.remove_suffix(scripts::tellEnd.size());
  auto command = takeCommand(script);
  while (take(script, "\n")) {
  }
  if (!command || !script.empty()) return unknown;
  return *std::move(command);
}

}  // namespace quorvane
