// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/BrandPicture.h"

#include <QCryptographicHash>
#include <algorithm>
#include <functional>
#include <tuple>

#include "foundation/base/Limits.h"
#include "imaging/PngCodec.h"
#include "system/FolderMarks.h"

namespace quorvane {

namespace {

constexpr qsizetype hashDigits = 16;
const std::string holderName = markPictureFolder;

/// The PNG as it stands in the family when it does, so that it can be compared without decoding.
Result<Bytes> pngOf(const IconFamily& family) {
  if (auto element = family.storedElement("ic09"); element && isPng(*element)) return *std::move(element);
  const auto image = family.imageWithAllReps();
  const auto bitmap = image ? image->bitmapRepresentation() : std::nullopt;
  if (!bitmap) return Error::invalidInput("its icon holds no picture");
  return encodePng(*bitmap);
}

std::string nameFor(ByteView png) {
  const QByteArrayView view(png.data(), static_cast<qsizetype>(png.size()));
  const QByteArray hash = QCryptographicHash::hash(view.toByteArray(), QCryptographicHash::Sha256).toHex();
  return markPicturePrefix + hash.left(hashDigits).toStdString() + markPictureSuffix;
}

std::string nameIn(const std::string& path) {
  return path.substr(holderName.size() + 1);
}

Result<bool> hasHolder(const Folder& folder) {
  const auto info = TRY(folder.statusOf(holderName));
  return info && S_ISDIR(info->st_mode);
}

/// Whatever stands under a picture's name in our own folder: a folder or a link never is a picture.
Result<void> clear(Folder& holder, const std::string& name) {
  const auto info = TRY(holder.statusOf(name));
  if (info && S_ISDIR(info->st_mode)) return holder.removeChild(name);
  return holder.removeFile(name, true);
}

}  // namespace

Result<BrandPicture> BrandPicture::of(const IconFamily& family) {
  Bytes png = TRY(pngOf(family));
  std::string path = holderName + "/" + nameFor(png);
  return BrandPicture(std::move(path), std::move(png));
}

Result<bool> BrandPicture::isAlone(const Folder& folder) const {
  const auto all = TRY(allIn(folder));
  if (all.size() != 1 || all.front() != _path) return false;
  // Whatever keeps it from being read, file managers cannot read it either.
  const auto bytes = read(folder, _path);
  return bytes.ok() && *bytes == _bytes;
}

Result<void> BrandPicture::write(Folder& folder) const {
  Folder holder = TRY(folder.openChild(holderName, Folder::Access::Write));
  const auto present = holder.readFile(nameIn(_path), limits::iconFileBytes);
  if (!present.ok()) TRY_VOID(clear(holder, nameIn(_path)));
  TRY_VOID(holder.writeFile(nameIn(_path), _bytes));
  return {};
}

Result<std::vector<std::string>> BrandPicture::allIn(const Folder& folder) {
  if (!TRY(hasHolder(folder))) return std::vector<std::string>();
  const Folder holder = TRY(folder.openChild(holderName, Folder::Access::Read));
  std::vector<std::tuple<time_t, long, std::string>> dated;
  for (const std::string& name : TRY(holder.names())) {
    const std::string path = holderName + "/" + name;
    if (!isMarkPicture(path)) continue;
    // Pipes and devices no one takes for pictures, and we remove none.
    const auto info = TRY(holder.statusOf(name));
    if (info && (S_ISREG(info->st_mode) || S_ISLNK(info->st_mode) || S_ISDIR(info->st_mode)))
      dated.emplace_back(info->st_mtim.tv_sec, info->st_mtim.tv_nsec, path);
  }
  std::ranges::sort(dated, std::greater());
  std::vector<std::string> found;
  for (const auto& each : dated) found.push_back(std::get<std::string>(each));
  return found;
}

Result<void> BrandPicture::removeAll(Folder& folder, const std::optional<std::string>& except) {
  const auto all = TRY(allIn(folder));
  if (std::ranges::all_of(all, [&](const std::string& path) { return path == except; })) return {};
  Folder holder = TRY(folder.openChild(holderName, Folder::Access::Write));
  for (const std::string& path : all)
    if (path != except) TRY_VOID(clear(holder, nameIn(path)));
  return {};
}

Result<Bytes> BrandPicture::read(const Folder& folder, const std::string& path) {
  const Folder holder = TRY(folder.openChild(holderName, Folder::Access::Read));
  auto bytes = TRY(holder.readFile(nameIn(path), limits::iconFileBytes));
  if (!bytes) return Error(ErrorKind::NotFound, "the icon's picture is missing").at(folder.path() / path);
  return *std::move(bytes);
}

}  // namespace quorvane
