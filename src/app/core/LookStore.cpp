// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/LookStore.h"

#include <QCryptographicHash>
#include <algorithm>
#include <cctype>

#include "foundation/BaseDirectories.h"
#include "foundation/FolderNames.h"
#include "foundation/NaturalOrder.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Log.h"
#include "foundation/base/Text.h"

namespace quorvane {

namespace {

constexpr std::string_view ending = ".look";
constexpr std::string_view pictureBeginning = "base-";
constexpr std::string_view digits = "0123456789ABCDEF";

bool isEscape(std::string_view text, std::size_t at) {
  return at + 2 < text.size() && text[at] == '%' && digits.find(text[at + 1]) != std::string_view::npos &&
         digits.find(text[at + 2]) != std::string_view::npos;
}

std::string escaped(const std::string& name) {
  std::string result;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const auto byte = static_cast<unsigned char>(name[i]);
    // A point in front would hide the file.
    const bool isPlain = byte >= 0x20 && byte != 0x7F && byte != '/' && !(byte == '.' && i == 0) && !isEscape(name, i);
    if (isPlain) {
      result += name[i];
    } else {
      result += {'%', digits[byte >> 4], digits[byte & 0xF]};
    }
  }
  return result;
}

std::string unescaped(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isEscape(text, i)) {
      result += static_cast<char>(digits.find(text[i + 1]) << 4 | digits.find(text[i + 2]));
      i += 2;
    } else {
      result += text[i];
    }
  }
  return result;
}

bool isKeptPicture(std::string_view name) {
  return name.starts_with(pictureBeginning) && !name.ends_with(ending) && name.find('/') == std::string_view::npos;
}

/// The ending of a picture's name, for those who look into the folder: a few letters, or none.
std::string pictureEnding(const std::filesystem::path& picture) {
  const std::string found = picture.extension().string();
  const auto isLetter = [](unsigned char byte) { return std::isalnum(byte) != 0; };
  if (found.size() < 2 || found.size() > 6 || !std::all_of(found.begin() + 1, found.end(), isLetter)) return {};
  return QString::fromStdString(found).toLower().toStdString();
}

Result<SavedLook> readLook(const Folder& folder, const std::string& file) {
  const auto bytes = TRY(folder.readFile(file, limits::lookFileBytes));
  if (!bytes) return Error(ErrorKind::NotFound, "there is no such look").at(folder.pathOf(file));
  auto look = lookFromJson(*bytes);
  if (!look) return look.error().at(folder.pathOf(file));
  return look;
}

Error isTaken(const QString& name) {
  return Error::refused("there is a look named '" + printable(name.toStdString()) + "' already");
}

}  // namespace

Result<std::filesystem::path> LookStore::usualFolder() {
  return TRY(ownDirectory(BaseDirectory::Data)) / "looks";
}

Result<std::string> LookStore::fileName(const QString& name) {
  const Error wrong = Error::invalidInput("'" + excerpt(name.toStdString()) + "' cannot be the name of a look");
  if (name.isEmpty() || name.trimmed() != name || !name.isValidUtf16()) return wrong;
  std::string file = escaped(name.toStdString()) + std::string(ending);
  if (!names::check(file)) return wrong;
  return file;
}

std::optional<QString> LookStore::nameOf(const std::string& file) {
  if (!file.ends_with(ending)) return std::nullopt;
  const std::string name = unescaped(std::string_view(file).substr(0, file.size() - ending.size()));
  if (!isUtf8(name)) return std::nullopt;
  const QString text = QString::fromStdString(name);
  const auto again = fileName(text);
  return again && *again == file ? std::optional(text) : std::nullopt;
}

Result<Folder> LookStore::open(Folder::Access access) const {
  if (access == Folder::Access::Write) TRY_VOID(makePrivateDirectories(_folder));
  return Folder::open(_folder, access);
}

Result<std::vector<QString>> LookStore::names() const {
  const auto folder = open(Folder::Access::Read);
  if (!folder && folder.error().kind() == ErrorKind::NotFound) return std::vector<QString>();
  if (!folder) return folder.error();
  std::vector<QString> found;
  for (const std::string& file : TRY(folder->names()))
    if (auto name = nameOf(file)) found.push_back(*std::move(name));
  std::ranges::sort(found, comesBefore);
  return found;
}

Result<std::filesystem::path> LookStore::fileOf(const QString& name) const {
  return _folder / TRY(fileName(name));
}

Result<ReadLook> LookStore::read(const QString& name) const {
  return readLookFile(TRY(fileOf(name)));
}

Result<std::string> LookStore::keepPicture(Folder& folder, const BaseReference& base) const {
  const Bytes bytes = TRY(readReferenced(base));
  if (const auto picture = pictureFromBytes(bytes); !picture) return picture.error().at(base.shown());
  const QByteArray hash = QCryptographicHash::hash(
      QByteArrayView(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())),
      QCryptographicHash::Sha256);
  const std::string name =
      std::string(pictureBeginning) + hash.toHex().left(32).toStdString() + pictureEnding(base.path);
  TRY_VOID(folder.writeFile(name, bytes));
  return name;
}

bool LookStore::isUsed(const Folder& folder, const std::string& picture) const {
  const auto files = folder.names();
  if (!files) return true;
  return std::ranges::any_of(*files, [&](const std::string& file) {
    if (!file.ends_with(ending)) return false;
    const auto look = readLook(folder, file);
    // One that cannot be read today may be mended tomorrow.
    return !look || (look->base && *look->base == picture);
  });
}

bool LookStore::dropPicture(Folder& folder, const std::string& picture) const {
  if (!isKeptPicture(picture) || isUsed(folder, picture)) return false;
  const auto gone = folder.removeFile(picture);
  if (!gone) logMessage("looks", gone.error().message());
  return gone.ok();
}

Result<void> LookStore::save(const QString& name, SavedLook look, const std::optional<BaseReference>& base) {
  const std::string file = TRY(fileName(name));
  Folder folder = TRY(open(Folder::Access::Write));
  look.base.reset();
  if (base) {
    const auto inner = innerReference(*base, folder.pathOf(file));
    look.base = inner ? *inner : std::filesystem::path(TRY(keepPicture(folder, *base)));
  }
  const Bytes json = TRY(lookToJson(look));
  if (const auto again = lookFromJson(json); !again) return again.error();
  const auto former = readLook(folder, file);
  TRY_VOID(folder.writeFile(file, json));
  if (former && former->base) dropPicture(folder, former->base->string());
  return {};
}

Result<void> LookStore::rename(const QString& from, const QString& to) {
  const std::string old = TRY(fileName(from));
  const std::string file = TRY(fileName(to));
  if (old == file) return {};
  Folder folder = TRY(open(Folder::Access::Write));
  if (TRY(folder.statusOf(file))) return isTaken(to);
  return folder.rename(old, folder, file);
}

Result<LookStore::Removed> LookStore::remove(const QString& name) {
  const std::string file = TRY(fileName(name));
  Folder folder = TRY(open(Folder::Access::Write));
  auto bytes = TRY(folder.readFile(file, limits::lookFileBytes));
  if (!bytes) return Error(ErrorKind::NotFound, "there is no such look").at(folder.pathOf(file));
  Removed removed{.name = name, .look = *std::move(bytes), .pictureName = {}, .picture = {}};
  TRY_VOID(folder.removeFile(file));
  const auto look = lookFromJson(removed.look);
  if (!look || !look->base) return removed;
  const std::string picture = look->base->string();
  auto pixels = isKeptPicture(picture) ? folder.readFile(picture, limits::pictureFileBytes) : std::optional<Bytes>();
  // Only what can be brought back is taken away.
  if (pixels && *pixels && dropPicture(folder, picture)) {
    removed.pictureName = picture;
    removed.picture = **std::move(pixels);
  }
  return removed;
}

Result<void> LookStore::restore(const Removed& removed) {
  const std::string file = TRY(fileName(removed.name));
  Folder folder = TRY(open(Folder::Access::Write));
  if (TRY(folder.statusOf(file))) return isTaken(removed.name);
  if (removed.pictureName) TRY_VOID(folder.writeFile(*removed.pictureName, removed.picture));
  TRY_VOID(folder.writeFile(file, removed.look));
  return {};
}

}  // namespace quorvane
