// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/linux/AutostartItems.h"

#include <glib.h>

#include <algorithm>
#include <memory>
#include <optional>

#include "foundation/BaseDirectories.h"
#include "foundation/FileReading.h"
#include "foundation/Folder.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"
#include "system/ScriptText.h"

namespace quorvane {

namespace {

constexpr const char* group = "Desktop Entry";
constexpr const char* markKey = "X-Quorvane-LoginItem";
constexpr const char* ending = ".desktop";

using KeyFile = std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)>;
using Text = std::unique_ptr<char, decltype(&g_free)>;

KeyFile makeKeyFile() {
  return {g_key_file_new(), g_key_file_unref};
}

/// nullopt for what is no key file.
std::optional<KeyFile> parse(const Bytes& bytes) {
  KeyFile file = makeKeyFile();
  if (bytes.empty() || g_key_file_load_from_data(file.get(), reinterpret_cast<const char*>(bytes.data()), bytes.size(),
                                                 G_KEY_FILE_NONE, nullptr) == FALSE)
    return std::nullopt;
  return file;
}

std::string value(const KeyFile& file, const char* key) {
  const Text text(g_key_file_get_string(file.get(), group, key, nullptr), g_free);
  return text ? text.get() : "";
}

bool isOurs(const Bytes& bytes) {
  const auto file = parse(bytes);
  return file && !value(*file, markKey).empty();
}

/// A program's path as the one word of an Exec line: in quotes, with what means something within them escaped, and the
/// percent sign doubled. The key file escapes backslashes and line ends once more.
std::string execOf(std::string_view path) {
  std::string word = "\"";
  for (const char letter : path) {
    if (std::string_view("\"`$\\").find(letter) != std::string_view::npos) word += '\\';
    word += letter;
    if (letter == '%') word += '%';
  }
  return word + '"';
}

/// The program of an Exec line; empty when there is none.
std::string programOf(const std::string& exec) {
  int count = 0;
  char** words = nullptr;
  if (g_shell_parse_argv(exec.c_str(), &count, &words, nullptr) == FALSE) return {};
  const std::unique_ptr<char*, decltype(&g_strfreev)> owner(words, g_strfreev);
  std::string program;
  for (const char* letter = words[0]; *letter != '\0'; ++letter) {
    program += *letter;
    if (letter[0] == '%' && letter[1] == '%') ++letter;
  }
  return program;
}

/// The entry's file name; refuses what leads out of the folder or would be hidden in it.
Result<std::string> fileName(const std::string& name) {
  if (name.empty() || name.starts_with('.') || name.find('/') != std::string::npos || !isUtf8(name))
    return Error::refused("no name for a login item: " + excerpt(name));
  return name + ending;
}

Bytes entryText(const std::string& name, const std::string& path, bool hidden) {
  const KeyFile file = makeKeyFile();
  g_key_file_set_string(file.get(), group, "Type", "Application");
  g_key_file_set_string(file.get(), group, "Name", name.c_str());
  g_key_file_set_string(file.get(), group, "Exec", execOf(path).c_str());
  if (hidden) g_key_file_set_boolean(file.get(), group, "StartupNotify", FALSE);
  g_key_file_set_string(file.get(), group, markKey, hidden ? "hidden" : "shown");
  gsize length = 0;
  const Text text(g_key_file_to_data(file.get(), &length, nullptr), g_free);
  return {text.get(), text.get() + length};
}

/// Whether the entry starts a program at all.
bool isOn(const KeyFile& file) {
  return value(file, "Hidden") != "true" && value(file, "X-GNOME-Autostart-enabled") != "false";
}

}  // namespace

Result<void> AutostartItems::add(const std::string& path, bool hidden) {
  if (!path.starts_with('/') || path.find('\0') != std::string::npos || !isUtf8(path))
    return Error::refused("no path for a login item: " + excerpt(path));
  const std::string name = scripts::withoutExtension(std::filesystem::path(path).filename().native());
  const std::string file = TRY(fileName(name));
  TRY_VOID(makePrivateDirectories(_folder));
  Folder folder = TRY(Folder::open(_folder, Folder::Access::Write));
  const auto old = TRY(folder.readFile(file, limits::desktopEntryBytes));
  if (old && !isOurs(*old)) return Error::refused("is not our login item").at(_folder / file);
  TRY_VOID(folder.writeFile(file, entryText(name, path, hidden), old));
  return {};
}

Result<void> AutostartItems::remove(const std::string& name) {
  const std::string file = TRY(fileName(name));
  auto folder = Folder::open(_folder, Folder::Access::Write);
  if (!folder.ok()) return folder.error().kind() == ErrorKind::NotFound ? Result<void>() : folder.error();
  const auto old = TRY(folder->readFile(file, limits::desktopEntryBytes));
  if (!old) return {};
  if (!isOurs(*old)) return Error::refused("is not our login item").at(_folder / file);
  return folder->removeFile(file);
}

std::vector<AutostartItems::Item> AutostartItems::items() const {
  const auto folder = Folder::open(_folder, Folder::Access::Read);
  if (!folder.ok()) return {};
  auto names = folder->names();
  if (!names.ok()) return {};
  std::ranges::sort(*names);
  std::vector<Item> items;
  for (const std::string& name : *names) {
    if (!name.ends_with(ending)) continue;
    // Links as well: entries that lead to those of installed programs start them like any other.
    const auto bytes = readPlainFile(_folder / name, limits::desktopEntryBytes);
    if (!bytes) continue;
    const auto file = parse(*bytes);
    if (!file || !isOn(*file)) continue;
    if (std::string program = programOf(value(*file, "Exec")); !program.empty())
      items.push_back({name.substr(0, name.size() - std::string_view(ending).size()), std::move(program),
                       value(*file, markKey) == "hidden"});
  }
  return items;
}

}  // namespace quorvane
