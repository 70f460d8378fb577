// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <QCryptographicHash>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

namespace quorvane::test {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder(const fs::path& parent) {
  std::string pattern = ((parent.empty() ? fs::temp_directory_path() : parent) / "quorvane-test-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("cannot make " + pattern);
  _path = pattern;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::permissions(_path, fs::perms::owner_all, fs::perm_options::add, ignored);
  for (auto entry = fs::recursive_directory_iterator(_path, ignored); entry != fs::recursive_directory_iterator();
       entry.increment(ignored))
    if (entry->is_directory(ignored) && !entry->is_symlink(ignored))
      fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
  fs::remove_all(_path, ignored);
}

void writeFile(const fs::path& path, ByteView bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  file.close();
  ASSERT_TRUE(file) << "cannot write " << path;
}

void writeFile(const fs::path& path, const std::string& text) {
  writeFile(path, ByteView(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

Bytes readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << "cannot read " << path;
  return Bytes(std::istreambuf_iterator<char>(file), {});
}

namespace {

std::string hashOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return "unreadable";
  const std::string content(std::istreambuf_iterator<char>(file), {});
  return QCryptographicHash::hash(QByteArrayView(content), QCryptographicHash::Sha256).toHex().left(16).toStdString();
}

std::string attributesOf(const fs::path& path) {
  std::vector<char> names(65536);
  const ssize_t size = ::llistxattr(path.c_str(), names.data(), names.size());
  std::vector<std::string> lines;
  for (ssize_t at = 0; at < size;) {
    const std::string name = names.data() + at;
    std::vector<char> value(65536);
    const ssize_t length = ::lgetxattr(path.c_str(), name.c_str(), value.data(), value.size());
    lines.push_back(name + "=" + QByteArray(value.data(), std::max<ssize_t>(length, 0)).toHex().toStdString());
    at += static_cast<ssize_t>(name.size()) + 1;
  }
  std::sort(lines.begin(), lines.end());
  std::string all;
  for (const auto& line : lines) all += " " + line;
  return all;
}

}  // namespace

std::string describeTree(const fs::path& root, bool withTimes) {
  std::vector<std::string> lines;
  const auto add = [&](const fs::path& path) {
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0) return;
    std::ostringstream line;
    line << path.lexically_relative(root).string() << " " << std::oct << info.st_mode << std::dec << " " << info.st_uid
         << ":" << info.st_gid;
    if (S_ISREG(info.st_mode)) line << " " << info.st_size << " " << hashOf(path);
    if (S_ISLNK(info.st_mode)) line << " -> " << fs::read_symlink(path).string();
    if (!S_ISLNK(info.st_mode)) line << attributesOf(path);
    if (withTimes) line << " " << info.st_mtim.tv_sec << "." << info.st_mtim.tv_nsec;
    lines.push_back(line.str());
  };
  add(root);
  for (const auto& entry : fs::recursive_directory_iterator(root)) add(entry.path());
  std::sort(lines.begin(), lines.end());
  std::string text;
  for (const auto& line : lines) text += line + "\n";
  return text;
}

}  // namespace quorvane::test
