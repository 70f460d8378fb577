// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/linux/DesktopMarks.h"

#include <unistd.h>

#include <QStringDecoder>
#include <algorithm>
#include <cerrno>
#include <optional>
#include <string_view>

#include "foundation/KeptFiles.h"
#include "foundation/base/Limits.h"
#include "system/linux/DirectoryFile.h"
#include "system/linux/HiddenFile.h"
#include "system/linux/Thumbnails.h"

namespace quorvane {

namespace {

using Text = std::optional<std::string>;

/// The name under which the folder's setting in the session is kept. Every user has his own settings.
std::string keptSetting() {
  return "custom-icon-" + std::to_string(::geteuid());
}

const std::string noSession =
    "no desktop session within reach: GNOME's, Cinnamon's and MATE's file managers show the icon once 'quorvane "
    "repair' has been run in one";
const std::string noSessionToClear =
    "no desktop session within reach: should one still show the icon, run this again within it";

ByteView bytesOf(const std::string& text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// A settings file of the user's; nullopt when there is none.
Result<Text> readText(const Folder& folder, const std::string& name) {
  const auto bytes = TRY(folder.readFile(name, limits::folderSettingsBytes));
  if (!bytes) return Text();
  if (std::ranges::find(*bytes, 0) != bytes->end())
    return Error::invalidInput("holds something else than text").at(folder.pathOf(name));
  return Text(std::in_place, bytes->begin(), bytes->end());
}

Result<void> writeText(Folder& folder, const std::string& name, const std::string& text, const Text& asRead) {
  std::optional<Bytes> before;
  if (asRead) before.emplace(asRead->begin(), asRead->end());
  TRY_VOID(folder.writeFile(name, bytesOf(text), before));
  return {};
}

/// Makes a file of the user's what it should be again; nullopt: absent.
Result<void> giveBack(Folder& folder, const std::string& name, const Text& present, const Text& wanted,
                      const Folder* original, const Text& kept) {
  if (wanted == present) return {};
  if (!wanted) return folder.removeFile(name);
  if (original != nullptr && wanted == kept) return putBackFile(*original, name, folder, name);
  return writeText(folder, name, *wanted, present);
}

bool isUtf8(const std::string& text) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString decoded = decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
  return !decoder.hasError() && !decoded.contains(QChar::ReplacementCharacter);
}

/// Reasons that will still be there at the next attempt; the rest is an accident that should be heard of.
bool isLasting(const Error& error) {
  if (error.kind() != ErrorKind::System) return error.kind() != ErrorKind::Broken;
  constexpr int codes[] = {EACCES, EPERM, EROFS, EINVAL, ENAMETOOLONG};
  return std::ranges::find(codes, error.systemCode()) != std::end(codes);
}

Result<void> attempt(const Result<void>& done, const std::string& file, bool isLastWayBack, FolderMarks::Notes& notes) {
  if (done.ok()) return {};
  const bool isLost = isLastWayBack && done.error().kind() == ErrorKind::System;
  if (isLost || !isLasting(done.error())) return done.error();
  notes.push_back("'" + file + "' is left as it is: " + done.error().why());
  return {};
}

/// A record may come from a stranger together with its folder: no file manager is sent to an address on the network.
bool isLocal(const std::string& setting) {
  return setting.starts_with("file:///") || setting.find(':') == std::string::npos;
}

directoryfile::IconPaths pathsOf(const Folder& folder, const std::string& picture) {
  directoryfile::IconPaths paths{.absolute = folder.path().string() + "/" + picture, .relative = "./" + picture};
  if (!isUtf8(*paths.absolute)) paths.absolute.reset();
  return paths;
}

/// What a settings file of the user's is without what is ours; nullopt: nothing.
using WithoutOurs = Text (*)(const std::string&);

Text directoryWithoutOurs(const std::string& text) {
  return directoryfile::restored(text, {}, isMarkPicture);
}

Text hiddenAsItIs(const std::string& text) {
  return text;
}

/// Keeps the file itself, or, when something of ours is in it already, what it was without.
Result<void> keepText(const Folder& folder, const std::string& name, Folder& into, WithoutOurs withoutOurs) {
  const auto text = readText(folder, name);
  if (!text) return isLasting(text.error()) ? Result<void>() : text.error();  // kept before it is edited, if ever
  if (!*text) return {};
  const auto original = withoutOurs(**text);
  if (!original) return {};
  if (*original != **text) return writeText(into, name, *original, {});
  TRY_VOID(keepFile(folder, name, into, name));
  return {};
}

/// What could not be read when the first state was kept, or came into being since.
Result<void> keepBeforeFirstEdit(const Folder& folder, const std::string& name, const Text& present, Folder* original,
                                 WithoutOurs withoutOurs) {
  if (!present || original == nullptr || TRY(original->statusOf(name))) return {};
  return keepText(folder, name, *original, withoutOurs);
}

}  // namespace

bool isMarkPicture(std::string_view path) {
  static const std::string start = std::string(markPictureFolder) + "/" + markPicturePrefix;
  const std::size_t at = path.rfind(start);
  return at != std::string_view::npos && (at == 0 || path[at - 1] == '/') && path.ends_with(markPictureSuffix) &&
         path.find('/', at + start.size()) == std::string_view::npos;
}

Result<void> DesktopMarks::saveOriginal(const Folder& folder, Folder& into) const {
  TRY_VOID(keepText(folder, directoryfile::fileName, into, directoryWithoutOurs));
  TRY_VOID(keepText(folder, hiddenfile::fileName, into, hiddenAsItIs));
  return _keepSetting(folder, into);
}

Result<void> DesktopMarks::_keepSetting(const Folder& folder, Folder& original) const {
  const auto setting = _metadata.customIcon(folder.path());
  if (!setting.ok() || !*setting || isMarkPicture(**setting)) return {};
  if (!TRY(original.statusOf(keptSetting()))) TRY_VOID(original.writeFile(keptSetting(), bytesOf(**setting)));
  return {};
}

Result<void> DesktopMarks::_setDirectoryFile(Folder& folder, const WantedMarks& wanted, Folder* original) {
  const std::string name = directoryfile::fileName;
  const Text present = TRY(readText(folder, name));
  if (wanted.picture) {
    const std::string text = directoryfile::withIcon(present.value_or(std::string()), pathsOf(folder, *wanted.picture));
    if (text == present) return {};
    TRY_VOID(keepBeforeFirstEdit(folder, name, present, original, directoryWithoutOurs));
    return writeText(folder, name, text, present);
  }
  if (!present) return {};
  const Text kept = original != nullptr ? TRY(readText(*original, name)) : Text();
  return giveBack(folder, name, present, directoryfile::restored(*present, kept, isMarkPicture), original, kept);
}

Result<void> DesktopMarks::_setHiddenFile(Folder& folder, const WantedMarks& wanted, Folder* original) {
  const std::string name = hiddenfile::fileName;
  const Text present = TRY(readText(folder, name));
  if (wanted.hiddenFile) {
    const std::string before = present.value_or(std::string());
    if (hiddenfile::hides(before, *wanted.hiddenFile)) return {};
    TRY_VOID(keepBeforeFirstEdit(folder, name, present, original, hiddenAsItIs));
    return writeText(folder, name, hiddenfile::withName(before, *wanted.hiddenFile), present);
  }
  if (original == nullptr) return {};
  const Text kept = TRY(readText(*original, name));
  Text result = present;
  for (const std::string& hidden : wanted.formerlyHidden)
    if (result) result = hiddenfile::restored(*result, kept, hidden);
  return giveBack(folder, name, present, result, original, kept);
}

Result<void> DesktopMarks::_setMetadata(Folder& folder, const WantedMarks& wanted, const Folder* original) const {
  const auto present = TRY(_metadata.customIcon(folder.path()));
  if (wanted.picture)
    return present == wanted.picture ? Result<void>() : _metadata.setCustomIcon(folder.path(), wanted.picture);
  if (!present || !isMarkPicture(*present)) return {};
  const Text kept = original != nullptr ? TRY(readText(*original, keptSetting())) : Text();
  if (kept && isLocal(*kept) && _metadata.setCustomIcon(folder.path(), kept).ok()) return {};
  // What is kept may be damaged, or too long for this session: then no icon is named rather than one that is not there.
  return _metadata.setCustomIcon(folder.path(), {});
}

Result<FolderMarks::Notes> DesktopMarks::set(Folder& folder, const WantedMarks& wanted, Folder* original) {
  Notes notes;
  if (wanted.picture && original != nullptr) TRY_VOID(_keepSetting(folder, *original));
  const auto metadata = _setMetadata(folder, wanted, original);
  if (!metadata.ok()) notes.push_back(wanted.picture ? noSession : noSessionToClear);
  // What is kept goes when all has been given back: then a note would be all that is left of it.
  const bool isLastWayBack = original != nullptr && !wanted.picture && !wanted.hiddenFile;
  TRY_VOID(attempt(_setDirectoryFile(folder, wanted, original), directoryfile::fileName, isLastWayBack, notes));
  TRY_VOID(attempt(_setHiddenFile(folder, wanted, original), hiddenfile::fileName, isLastWayBack, notes));
  return notes;
}

Result<std::vector<std::string>> DesktopMarks::faults(const Folder& folder, const WantedMarks& wanted) const {
  std::vector<std::string> faults;
  const std::string subject = wanted.picture ? "do not show the icon: " : "are still told of an icon: ";
  if (const auto present = _metadata.customIcon(folder.path()); present.ok()) {
    const bool isRight = wanted.picture ? *present == wanted.picture : !*present || !isMarkPicture(**present);
    if (!isRight)
      faults.push_back("GNOME's, Cinnamon's and MATE's file managers " + subject + "their setting of the folder");
  }
  if (const auto text = readText(folder, directoryfile::fileName); text.ok()) {
    const std::string present = text->value_or(std::string());
    const bool isRight = wanted.picture ? directoryfile::withIcon(present, pathsOf(folder, *wanted.picture)) == present
                                        : !directoryfile::namesIcon(present, isMarkPicture);
    if (!isRight) faults.push_back("KDE's or LXQt's file managers " + subject + "their lines in '.directory'");
  } else if (!isLasting(text.error())) {
    return text.error();
  }
  if (const auto text = readText(folder, hiddenfile::fileName);
      text.ok() && wanted.hiddenFile && !hiddenfile::hides(text->value_or(std::string()), *wanted.hiddenFile))
    faults.emplace_back("file managers show the icon's own file: '.hidden' does not name it");
  return faults;
}

void DesktopMarks::forgetThumbnails(const std::filesystem::path& folder) const {
  removeThumbnails(folder);
}

std::unique_ptr<FolderMarks> makeDesktopMarks(FolderMetadata& metadata) {
  return std::make_unique<DesktopMarks>(metadata);
}

}  // namespace quorvane
