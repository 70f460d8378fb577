// SPDX-License-Identifier: GPL-3.0-or-later
// Extended attributes, times, and the flush of the folder itself.
#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>

#include "foundation/FileCalls.h"
#include "foundation/Folder.h"

namespace quorvane {

namespace {

Result<void> placed(const Result<void>& result, const std::filesystem::path& path) {
  return result.ok() ? result : result.error().at(path);
}

}  // namespace

Result<void> Folder::checkWritable() const {
  if (::faccessat(_handle.get(), ".", W_OK | X_OK, AT_EACCESS) != 0)
    return Error::system(errno, "cannot write").at(_path);
  return {};
}

bool Folder::takesAttributes() const {
  return ::fgetxattr(_handle.get(), "user.quorvane", nullptr, 0) >= 0 || errno != ENOTSUP;
}

Result<std::optional<Bytes>> Folder::attribute(const std::string& name) const {
  auto value = calls::attribute(_handle.get(), name);
  if (!value.ok()) return value.error().at(_path);
  return value;
}

Result<void> Folder::setAttribute(const std::string& name, ByteView value) {
  TRY_VOID(_mayChange("cannot write attribute " + name));
  return placed(calls::setAttribute(_handle.get(), name, value), _path);
}

Result<void> Folder::removeAttribute(const std::string& name) {
  TRY_VOID(_mayChange("cannot remove attribute " + name));
  return placed(calls::removeAttribute(_handle.get(), name), _path);
}

Result<std::optional<Bytes>> Folder::attributeOf(const std::string& file, const std::string& name) const {
  const auto handle = TRY(_openPlain(file, "cannot read attribute " + name));
  if (!handle) return std::optional<Bytes>();
  auto value = calls::attribute(handle->get(), name);
  if (!value.ok()) return value.error().at(pathOf(file));
  return value;
}

Result<void> Folder::setAttributeOf(const std::string& file, const std::string& name, ByteView value) {
  const std::string what = "cannot write attribute " + name;
  TRY_VOID(_mayChange(what, file));
  const auto handle = TRY(_openPlain(file, what));
  if (!handle) return _failure(ENOENT, what, file);
  return placed(calls::setAttribute(handle->get(), name, value), pathOf(file));
}

Result<void> Folder::removeAttributeOf(const std::string& file, const std::string& name) {
  const std::string what = "cannot remove attribute " + name;
  TRY_VOID(_mayChange(what, file));
  const auto handle = TRY(_openPlain(file, what));
  if (!handle) return {};
  return placed(calls::removeAttribute(handle->get(), name), pathOf(file));
}

Result<void> Folder::setTimes(const timespec& accessed, const timespec& modified) {
  const std::string what = "cannot set times";
  TRY_VOID(_mayChange(what));
  const timespec times[2] = {accessed, modified};
  if (::futimens(_handle.get(), times) != 0) return Error::system(errno, what).at(_path);
  return {};
}

Result<void> Folder::setTimesOf(const std::string& file, const timespec& accessed, const timespec& modified) {
  const std::string what = "cannot set times";
  TRY_VOID(_mayChange(what, file));
  const auto info = TRY(statusOf(file));
  if (!info) return _failure(ENOENT, what, file);
  if (!S_ISREG(info->st_mode))
    return Error::refused(what + ": " + calls::kindWords(info->st_mode) + " stands there").at(pathOf(file));
  const timespec times[2] = {accessed, modified};
  if (::utimensat(_handle.get(), file.c_str(), times, AT_SYMLINK_NOFOLLOW) != 0) return _failure(errno, what, file);
  return {};
}

Result<void> Folder::flush() {
  return placed(calls::flush(_handle.get(), "cannot flush folder"), _path);
}

}  // namespace quorvane
