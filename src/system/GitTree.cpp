// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/GitTree.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "foundation/FileReading.h"
#include "foundation/base/Limits.h"
#include "system/GitFiles.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

std::optional<struct stat> statusOf(const fs::path& path, bool followsLinks = true) {
  struct stat info {};
  const int code = followsLinks ? ::stat(path.c_str(), &info) : ::lstat(path.c_str(), &info);
  return code == 0 ? std::optional(info) : std::nullopt;
}

bool isFolder(const fs::path& path) {
  const auto info = statusOf(path);
  return info && S_ISDIR(info->st_mode);
}

Result<std::string> readText(const fs::path& path) {
  const Bytes bytes = TRY(readPlainFile(path, limits::gitPointerBytes));
  return std::string(bytes.begin(), bytes.end());
}

/// What all work trees share: the repository's own folder, or the one that a linked work tree's names.
Result<fs::path> commonFolder(const fs::path& repository) {
  const fs::path file = repository / "commondir";
  if (!statusOf(file, false)) return repository;
  const auto path = gitfiles::commonPath(TRY(readText(file)));
  if (!path) return path.error().at(file);
  return repository / *path;
}

/// Whether git takes it for a repository's own folder.
bool isRepository(const fs::path& folder, const fs::path& common) {
  return statusOf(folder / "HEAD", false) && isFolder(common / "objects") && isFolder(common / "refs");
}

/// The repository's own folder, by a ".git" in the folder `root`; nullopt when there is none.
Result<std::optional<fs::path>> repositoryAt(const fs::path& root) {
  using Found = std::optional<fs::path>;
  const fs::path entry = root / ".git";
  const auto info = statusOf(entry);
  if (!info) return Found();
  if (S_ISDIR(info->st_mode)) return Found(entry);
  if (!S_ISREG(info->st_mode)) return Found();
  const auto path = gitfiles::repositoryPath(TRY(readText(entry)));
  if (!path) return path.error().at(entry);
  return Found(root / *path);
}

bool isOurs(const fs::path& root, const fs::path& repository) {
  const auto top = statusOf(root);
  const auto entry = statusOf(root / ".git", false);
  const auto kept = statusOf(repository);
  if (!top || !entry || !kept || top->st_uid != entry->st_uid || top->st_uid != kept->st_uid) return false;
  return ::geteuid() == 0 || ::geteuid() == top->st_uid;
}

}  // namespace

Result<std::optional<GitTree>> gitTreeOf(const fs::path& folder) {
  std::error_code error;
  const fs::path start = fs::canonical(folder, error);
  if (error) return Error::system(error.value(), "cannot open folder").at(folder);
  const auto first = statusOf(start);
  for (fs::path root = start;; root = root.parent_path()) {
    const auto info = statusOf(root);
    if (!info || !first || info->st_dev != first->st_dev || root.filename() == ".git") return std::optional<GitTree>();
    if (const auto repository = TRY(repositoryAt(root))) {
      const fs::path common = TRY(commonFolder(*repository));
      if (isRepository(*repository, common)) {
        const fs::path shared = fs::canonical(common, error);
        if (error) return Error::system(error.value(), "cannot open folder").at(common);
        return std::optional(GitTree{.root = root,
                                     .repository = shared,
                                     .inside = start.lexically_relative(root),
                                     .isOurs = isOurs(root, shared)});
      }
      if (!isFolder(root / ".git")) return Error::invalidInput("leads to no repository").at(root / ".git");
    }
    if (root == root.root_path()) return std::optional<GitTree>();
  }
}

Result<std::vector<std::string>> missingExcludes(const GitTree& tree, const std::vector<std::string>& patterns) {
  const auto list = readPlainFile(tree.excludeFile(), limits::gitExcludeBytes);
  if (!list && list.error().kind() != ErrorKind::NotFound) return list.error();
  const std::string text = list ? std::string(list->begin(), list->end()) : std::string();
  return gitfiles::missingPatterns(text, patterns);
}

Result<WriteOutcome> addExcludes(const GitTree& tree, const std::vector<std::string>& patterns) {
  if (!tree.isOurs)
    return Error::refused("cannot write: the repository belongs to somebody else").at(tree.excludeFile());
  if (TRY(missingExcludes(tree, patterns)).empty()) return WriteOutcome::Unchanged;
  Folder repository = TRY(Folder::open(tree.repository, Folder::Access::Write));
  Folder info = TRY(repository.makeChild("info"));
  const auto before = TRY(info.readFile("exclude", limits::gitExcludeBytes));
  const std::string list = before ? std::string(before->begin(), before->end()) : std::string();
  const std::string wanted = gitfiles::withPatterns(list, patterns);
  return info.writeFile("exclude", {reinterpret_cast<const std::uint8_t*>(wanted.data()), wanted.size()}, before);
}

}  // namespace quorvane
