// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/ZipFile.h"

#include <sys/stat.h>
#include <zip.h>

#include <algorithm>
#include <limits>
#include <set>

#include "foundation/FolderNames.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"
#include "library/core/PictureNames.h"

namespace quorvane::library {

namespace {

// Unpacked bytes that any zip file may have.
constexpr std::uint64_t freeBytes = std::uint64_t{16} << 20;

Error noZip(const std::string& why) {
  return Error::invalidInput("not a zip file that can be read: " + why);
}

std::string wordsOf(zip_error_t& error) {
  return zip_error_strerror(&error);
}

/// The steps of a name; refused when they are not all plain names.
Result<std::vector<std::string>> stepsOf(const std::string& name) {
  const auto refused = [&] {
    return Error::refused("the zip file names '" + excerpt(name) + "', which leads elsewhere");
  };
  std::vector<std::string> steps;
  for (std::size_t at = 0; at <= name.size();) {
    const std::size_t end = std::min(name.find('/', at), name.size());
    steps.push_back(name.substr(at, end - at));
    if (!names::check(steps.back()) || steps.back().find('\\') != std::string::npos) return refused();
    at = end + 1;
    if (at == name.size()) break;  // the slash behind a folder's name
  }
  if (steps.empty()) return refused();
  return steps;
}

/// Whether an entry is a plain file; refuses what is neither that nor a folder.
Result<bool> isPlainFile(zip* handle, std::uint64_t index, const std::string& name) {
  zip_uint8_t system = 0;
  zip_uint32_t attributes = 0;
  const bool isKnown = zip_file_get_external_attributes(handle, index, 0, &system, &attributes) == 0;
  const mode_t kind = isKnown && system == ZIP_OPSYS_UNIX ? (attributes >> 16) & S_IFMT : 0;
  if (kind != 0 && kind != S_IFREG && kind != S_IFDIR)
    return Error::refused("the zip file holds '" + excerpt(name) + "', which is no plain file");
  return kind != S_IFDIR && !name.ends_with('/');
}

}  // namespace

LibraryNotice zipLibrary() {
  return {.name = "libzip", .version = zip_libzip_version(), .licence = "BSD-3-Clause"};
}

ZipReader::ZipReader(zip* handle, std::size_t length) : _handle(handle, zip_discard), _length(length) {}

Result<ZipReader> ZipReader::open(ByteView bytes) {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
  if (source == nullptr) return noZip(wordsOf(error));
  zip* handle = zip_open_from_source(source, ZIP_RDONLY, &error);
  if (handle == nullptr) {
    zip_source_free(source);
    return noZip(wordsOf(error));
  }
  return ZipReader(handle, bytes.size());
}

Result<std::vector<ZipEntry>> ZipReader::entries() const {
  const auto count = static_cast<std::uint64_t>(std::max<zip_int64_t>(zip_get_num_entries(_handle.get(), 0), 0));
  if (count > limits::libraryArchiveEntries) return Error::tooLarge("the zip file has too many entries");
  // Several are held unpacked at a time, before it is known that they are no pictures.
  const std::uint64_t most =
      std::min<std::uint64_t>(freeBytes + limits::libraryArchiveRatio * _length, 2 * limits::libraryNewSetBytes);
  std::vector<ZipEntry> files;
  std::set<std::string> seen;
  std::uint64_t total = 0;
  for (std::uint64_t i = 0; i < count; ++i) {
    zip_stat_t info;
    if (zip_stat_index(_handle.get(), i, ZIP_FL_ENC_GUESS, &info) != 0 || (info.valid & ZIP_STAT_NAME) == 0)
      return noZip("an entry has no name");
    const std::string name = info.name;
    auto steps = TRY(stepsOf(name));
    if (!seen.insert(lowered(name)).second)
      return Error::refused("the zip file names '" + excerpt(name) + "' twice, or in other letters");
    if (!TRY(isPlainFile(_handle.get(), i, name))) continue;
    if ((info.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && info.encryption_method != ZIP_EM_NONE)
      return Error::refused("the zip file is encrypted");
    if ((info.valid & ZIP_STAT_SIZE) == 0) return noZip("an entry has no length");
    total = info.size > most ? most + 1 : total + info.size;
    if (total > most || info.size > limits::pictureFileBytes)
      return Error::tooLarge("the zip file unpacks to far more than its length");
    files.push_back({.steps = std::move(steps), .index = i, .bytes = info.size});
  }
  return files;
}

Result<Bytes> ZipReader::read(const ZipEntry& entry) const {
  const auto damaged = [&](const char* why) { return noZip("'" + excerpt(entry.steps.back()) + "': " + why); };
  const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file(zip_fopen_index(_handle.get(), entry.index, 0),
                                                               zip_fclose);
  if (!file) return damaged(zip_strerror(_handle.get()));
  Bytes bytes(static_cast<std::size_t>(entry.bytes));
  for (std::size_t done = 0; done < bytes.size();) {
    const zip_int64_t got = zip_fread(file.get(), bytes.data() + done, bytes.size() - done);
    if (got <= 0) return damaged(got < 0 ? zip_file_strerror(file.get()) : "it ends too early");
    done += static_cast<std::size_t>(got);
  }
  std::uint8_t more = 0;
  // The check sum is looked at where the content ends.
  const zip_int64_t rest = zip_fread(file.get(), &more, 1);
  if (rest != 0) return damaged(rest < 0 ? zip_file_strerror(file.get()) : "it is longer than it says");
  return bytes;
}

Result<void> ZipWriter::add(const std::string& name, Bytes bytes, bool isPacked) {
  _length += bytes.size();
  if (_length > limits::libraryArchiveBytes) return Error::tooLarge("too much for one zip file");
  _items.push_back({name, std::move(bytes), isPacked});
  return {};
}

Result<Bytes> ZipWriter::finish() && {
  zip_error_t error;
  zip_error_init(&error);
  const auto failure = [](const std::string& why) {
    return Error(ErrorKind::System, "cannot make a zip file: " + why);
  };
  zip_source_t* made = zip_source_buffer_create(nullptr, 0, 0, &error);
  if (made == nullptr) return failure(wordsOf(error));
  const std::unique_ptr<zip_source_t, void (*)(zip_source_t*)> output(made, zip_source_free);
  zip_source_keep(made);  // one for the archive
  zip* handle = zip_open_from_source(made, ZIP_TRUNCATE, &error);
  if (handle == nullptr) return zip_source_free(made), failure(wordsOf(error));
  for (const Item& item : _items) {
    zip_source_t* source = zip_source_buffer(handle, item.bytes.data(), item.bytes.size(), 0);
    const zip_int64_t index =
        source == nullptr ? -1 : zip_file_add(handle, item.name.c_str(), source, ZIP_FL_ENC_UTF_8);
    const bool isSet = index >= 0 && zip_set_file_compression(handle, static_cast<zip_uint64_t>(index),
                                                              item.isPacked ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0) == 0;
    if (isSet) continue;
    if (index < 0) zip_source_free(source);
    const std::string why = zip_strerror(handle);
    zip_discard(handle);
    return failure(why);
  }
  if (zip_close(handle) != 0) {
    const std::string why = zip_strerror(handle);
    zip_discard(handle);
    return failure(why);
  }
  if (zip_source_open(made) != 0) return failure("what was made cannot be read");
  zip_stat_t info;
  Bytes bytes(zip_source_stat(made, &info) == 0 ? static_cast<std::size_t>(info.size) : 0);
  const zip_int64_t got = zip_source_read(made, bytes.data(), bytes.size());
  zip_source_close(made);
  if (bytes.empty() || got != static_cast<zip_int64_t>(bytes.size())) return failure("what was made cannot be read");
  return bytes;
}

}  // namespace quorvane::library
