// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>

#include <QFile>
#include <QString>
#include <cerrno>
#include <cstdio>

#include "foundation/BaseDirectories.h"
#include "foundation/Folder.h"
#include "foundation/base/Log.h"
#include "system/Trash.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr int mostNumbers = 10'000;

std::string numbered(const std::string& name, int number) {
  const fs::path plain = name;
  return number == 0 ? name : plain.stem().string() + "-" + std::to_string(number) + plain.extension().string();
}

/// Moves an item back under its name or, where that is taken, a numbered one; where it stands then.
Result<fs::path> moveBack(const TrashedItem& item) {
  Folder source = TRY(Folder::open(item.trashed.parent_path(), Folder::Access::Write));
  const Folder target = TRY(Folder::open(item.original.parent_path(), Folder::Access::Write));
  for (int number = 0; number < mostNumbers; ++number) {
    const std::string name = numbered(item.original.filename().string(), number);
    const auto moved = source.renameNew(item.trashed.filename().string(), target, name);
    if (moved) return item.original.parent_path() / name;
    if (moved.error().systemCode() != EEXIST) return moved.error();
  }
  return Error::system(EEXIST, "cannot move").at(item.original);
}

void note(const Error& error) {
  logMessage("trash", error.message());
}

std::optional<fs::path> orNote(Result<fs::path> path) {
  if (!path) note(path.error());
  return std::move(path).toOptional();
}

/// The trash of the desktop's rules: "files" holds the things, "info" says of each where it was.
class DesktopTrash : public Trash {
 public:
  std::optional<TrashedItem> put(const fs::path& path) override {
    const QString name = QFile::decodeName(path.c_str());
    // What is not UTF-8 would lead to another file.
    if (QFile::encodeName(name).toStdString() != path.native()) return std::nullopt;
    QString trashed;
    if (!QFile::moveToTrash(name, &trashed) || trashed.isEmpty()) return std::nullopt;
    return TrashedItem{.original = path, .trashed = QFile::encodeName(trashed).toStdString()};
  }

  std::optional<fs::path> restore(const TrashedItem& item) override {
    const auto moved = orNote(moveBack(item));
    if (!moved) return std::nullopt;
    const fs::path info = item.trashed.parent_path().parent_path() / "info";
    // It would only tell of something that is not there any more.
    if (auto folder = Folder::open(info, Folder::Access::Write))
      if (const auto gone = folder->removeFile(item.trashed.filename().string() + ".trashinfo"); !gone)
        note(gone.error());
    return moved;
  }
};

}  // namespace

std::optional<TrashedItem> FolderTrash::put(const fs::path& path) {
  // Whoever puts it away holds its folder, so this must not wait for that.
  for (int number = 0; number < mostNumbers; ++number) {
    const fs::path target = _folder / numbered(path.filename().string(), number);
    if (::renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
      return TrashedItem{.original = path, .trashed = target};
    if (errno != EEXIST) return std::nullopt;
  }
  return std::nullopt;
}

std::optional<fs::path> FolderTrash::restore(const TrashedItem& item) {
  return orNote(moveBack(item));
}

std::unique_ptr<Trash> makeDesktopTrash() {
  return std::make_unique<DesktopTrash>();
}

}  // namespace quorvane
