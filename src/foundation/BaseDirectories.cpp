// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/BaseDirectories.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

namespace quorvane {

namespace fs = std::filesystem;

namespace {

struct Place {
  const char* variable;
  const char* underHome;
};

Place placeOf(BaseDirectory kind) {
  switch (kind) {
    case BaseDirectory::Config:
      return {"XDG_CONFIG_HOME", ".config"};
    case BaseDirectory::Data:
      return {"XDG_DATA_HOME", ".local/share"};
    case BaseDirectory::State:
      return {"XDG_STATE_HOME", ".local/state"};
    case BaseDirectory::Cache:
      break;
  }
  return {"XDG_CACHE_HOME", ".cache"};
}

/// The absolute path in a variable; empty for none and for others.
fs::path pathIn(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value == '/' ? fs::path(value) : fs::path();
}

fs::path home() {
  if (fs::path told = pathIn("HOME"); !told.empty()) return told;
  std::array<char, 16384> buffer{};
  passwd entry{};
  passwd* found = nullptr;
  if (::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) return {};
  const fs::path known = found->pw_dir;
  return known.is_absolute() ? known : fs::path();
}

}  // namespace

Result<fs::path> homeDirectory() {
  fs::path own = home();
  if (own.empty()) return Error(ErrorKind::NotFound, "the user has no home folder");
  return own;
}

Result<fs::path> baseDirectory(BaseDirectory kind) {
  const Place place = placeOf(kind);
  if (fs::path told = pathIn(place.variable); !told.empty()) return told;
  return TRY(homeDirectory()) / place.underHome;
}

Result<fs::path> ownDirectory(BaseDirectory kind) {
  return TRY(baseDirectory(kind)) / "quorvane";
}

Result<void> makePrivateDirectories(const fs::path& path) {
  if (::mkdir(path.c_str(), 0700) == 0 || errno == EEXIST) return {};
  const int code = errno;
  const fs::path above = path.parent_path();
  const auto failure = [&](int why) { return Error::system(why, "cannot make folder").at(path); };
  // Some file systems that cannot be written say so even of a folder that is there.
  struct stat info {};
  if (code != ENOENT && ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode)) return {};
  if (code != ENOENT || above.empty() || above == path) return failure(code);
  TRY_VOID(makePrivateDirectories(above));
  if (::mkdir(path.c_str(), 0700) != 0 && errno != EEXIST) return failure(errno);
  return {};
}

}  // namespace quorvane
