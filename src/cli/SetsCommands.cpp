// SPDX-License-Identifier: GPL-3.0-or-later
// The icon library on the command line.
#include <algorithm>

#include "cli/Commands.h"
#include "cli/Terminal.h"
#include "foundation/FileManagerExtras.h"
#include "foundation/Folder.h"
#include "library/core/AddingIcons.h"
#include "library/core/IconLibrary.h"
#include "library/core/ListFile.h"
#include "library/core/SetArchive.h"

namespace quorvane::cli {

namespace {

namespace fs = std::filesystem;

std::string counted(std::size_t count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

class SetsRun {
 public:
  SetsRun(const Arguments& arguments, const LibraryServices& services, Reporter& reporter)
      : _arguments(arguments), _services(services), _library(LibraryPlaces::usual(), services), _reporter(reporter) {}

  void run() {
    switch (_arguments.command) {
      case Command::SetsAdd:
        return add();
      case Command::SetsNew:
        return makeNew();
      case Command::SetsRemove:
        return remove();
      case Command::SetsRename:
        return rename();
      case Command::SetsExport:
        return exportTo();
      case Command::SetsImport:
        return import();
      default:
        return _arguments.paths.empty() ? listSets() : listIcons();
    }
  }

 private:
  using Icons = IconSet::Icons;

  [[nodiscard]] const fs::path& given(std::size_t index) const { return _arguments.paths[index]; }
  [[nodiscard]] std::vector<fs::path> givenFrom(std::size_t index) const {
    return {_arguments.paths.begin() + static_cast<std::ptrdiff_t>(index), _arguments.paths.end()};
  }

  /// The name that is given first, as a set of the user's own; null and told when there is none.
  [[nodiscard]] std::shared_ptr<IconSet> givenSet() const {
    const auto path = ownSet(given(0));
    auto set = path ? IconSet::initWithExistingPath(*path, _services) : nullptr;
    if (!set) _reporter.failed(given(0), path ? noSet(given(0)) : path.error());
    return set;
  }

  [[nodiscard]] static Error noSet(const fs::path& name) {
    return Error(ErrorKind::NotFound, "there is no set of this name in your library").at(name);
  }

  /// The path of a set of the user's own.
  [[nodiscard]] Result<fs::path> ownSet(const fs::path& name) const {
    const auto names = _library.setNames(_library.customIconsPath());
    if (std::ranges::find(names, name.string()) == names.end()) return noSet(name);
    return _library.customIconsPath() / name;
  }

  void listLibrary(const fs::path& library, const char* kind) {
    const auto folder = Folder::open(library, Folder::Access::Read);
    if (!folder && folder.error().kind() != ErrorKind::NotFound) _reporter.failed(library, folder.error());
    for (const std::string& name : _library.setNames(library)) {
      const auto icons = IconSet::iconsAt(library / name, _services);
      if (!icons) {
        _reporter.failed(library / name, icons.error());
        continue;
      }
      std::vector<std::string> names;
      for (const IconRecord& icon : *icons) names.push_back(icon.name);
      _reporter.done(library / name, "listed", printable(name) + ": " + counted(names.size(), "icon") + ", " + kind,
                     {{QStringLiteral("library"), QString::fromLatin1(kind)},
                      {QStringLiteral("set"), QString::fromStdString(printable(name))},
                      {QStringLiteral("icons"), arrayOf(names)}});
    }
  }

  void listSets() {
    listLibrary(_library.customIconsPath(), "yours");
    listLibrary(_library.baseIconsPath(), "built-in");
  }

  void listIcons() {
    for (const fs::path& name : _arguments.paths) {
      bool isFound = false;
      for (const fs::path& library : {_library.customIconsPath(), _library.baseIconsPath()}) {
        const auto names = _library.setNames(library);
        if (std::ranges::find(names, name.string()) == names.end()) continue;
        isFound = true;
        const auto icons = IconSet::iconsAt(library / name, _services);
        if (!icons) _reporter.failed(library / name, icons.error());
        for (const IconRecord& icon : icons ? *icons : Icons())
          _reporter.done(icon.path, "listed", printable(name / icon.name));
      }
      if (!isFound) _reporter.failed(name, Error(ErrorKind::NotFound, "there is no set of this name"));
    }
  }

  /// Makes the sources icons of the set, behind those that it has.
  void add() {
    const auto set = givenSet();
    if (!set) return;
    const fs::path& path = set->path();
    const std::vector<fs::path> sources = givenFrom(1);
    Icons icons = set->icons();
    std::size_t at = 0;
    for (const auto& outcome : addIconsAtPaths(sources, path, _services)) {
      const fs::path& source = sources[at++];
      if (!outcome) {
        _reporter.failed(source, outcome.error());
        continue;
      }
      icons.push_back(*outcome);
      _reporter.done(source, "added", printable(source) + ": added as " + printable(given(0) / outcome->name),
                     {{QStringLiteral("icon"), QString::fromStdString(printable(outcome->name))}});
    }
    if (icons.size() == set->icons().size()) return;
    if (const auto written = set->setIcons(std::move(icons)); !written) _reporter.failed(path, written.error());
  }

  void makeNew() {
    const std::string name = given(0).string();
    if (const auto good = library::checkSetName(name); !good) return _reporter.failed(given(0), good.error());
    if (const auto made = _library.makeCustomIconsFolder(); !made)
      return _reporter.failed(_library.customIconsPath(), made.error());
    const fs::path path = _library.customIconsPath() / name;
    std::error_code error;
    if (fs::exists(fs::symlink_status(path, error)))
      return _reporter.failed(given(0), Error::refused("something of this name is there already"));
    const auto set = IconSet::initWithPath(path, _services);
    if (!isDirectory(set->path())) return _reporter.failed(given(0), Error::refused("the set's folder cannot be made"));
    (void)_library.customIconSets();  // lists it
    _reporter.done(path, "made", printable(name) + ": made");
  }

  void remove() {
    const auto set = givenSet();
    if (!set) return;
    const fs::path& path = set->path();
    if (_arguments.paths.size() == 1) {
      const auto removed = _library.removeSet(*set);
      if (!removed) return _reporter.failed(path, removed.error());
      return _reporter.done(path, "removed", printable(given(0)) + ": removed");
    }
    Icons icons = set->icons();
    for (const fs::path& name : givenFrom(1)) {
      const auto isMeant = [&](const IconRecord& icon) { return fs::path(icon.name).stem() == name; };
      auto found = std::ranges::find(icons, name.string(), &IconRecord::name);
      if (found == icons.end()) {
        found = std::ranges::find_if(icons, isMeant);
        const auto other = std::find_if(found == icons.end() ? found : found + 1, icons.end(), isMeant);
        if (other != icons.end()) {
          _reporter.failed(
              name, Error::invalidInput("this may be " + printable(found->name) + " or " + printable(other->name)));
          continue;
        }
      }
      if (found == icons.end()) {
        _reporter.failed(name, Error(ErrorKind::NotFound, "there is no icon of this name in the set"));
        continue;
      }
      const auto removed = set->removeIconFileWithName(found->name);
      if (!removed) {
        _reporter.failed(found->path, removed.error());
        continue;
      }
      _reporter.done(found->path, "removed",
                     printable(given(0) / found->name) + (*removed ? ": moved to the trash" : ": removed"));
      icons.erase(found);
    }
    if (icons.size() == set->icons().size()) return;
    if (const auto written = set->setIcons(std::move(icons)); !written) _reporter.failed(path, written.error());
  }

  void rename() {
    const auto set = givenSet();
    if (!set) return;
    // Told before the set takes the other one's icons for its own.
    std::error_code error;
    const fs::path next = _library.customIconsPath() / given(1);
    if (given(1).has_filename() && !given(1).has_parent_path() && fs::exists(fs::symlink_status(next, error)) &&
        !fs::equivalent(next, set->path(), error))
      return _reporter.failed(given(1), Error::refused("something of this name is there already"));
    if (const auto renamed = set->setName(given(1).string()); !renamed)
      return _reporter.failed(given(0), renamed.error());
    _reporter.done(set->path(), "renamed", printable(given(0)) + ": renamed to " + printable(given(1)));
  }

  void exportTo() {
    fs::path set = _library.baseIconsPath() / given(0);
    if (const auto own = ownSet(given(0))) set = *own;
    const auto names = _library.setNames(set.parent_path());
    if (std::ranges::find(names, given(0).string()) == names.end())
      return _reporter.failed(given(0), Error(ErrorKind::NotFound, "there is no set of this name"));
    if (const auto written = exportSet(set, given(1), _services); !written)
      return _reporter.failed(given(1), written.error());
    _reporter.done(given(1), "exported", printable(given(1)) + ": made of " + printable(given(0)));
  }

  void import() {
    if (const auto made = _library.makeCustomIconsFolder(); !made)
      return _reporter.failed(_library.customIconsPath(), made.error());
    for (const fs::path& source : _arguments.paths) {
      if (pendingSignal() != 0) return;
      const auto path = isDirectory(source) ? setFromFolder(source, _library.customIconsPath(), _services)
                                            : importSet(source, _library.customIconsPath(), _services);
      if (!path) {
        _reporter.failed(source, path.error());
        continue;
      }
      _reporter.done(source, "imported", printable(source) + ": now the set " + printable(path->filename()),
                     {{QStringLiteral("set"), QString::fromStdString(printable(path->filename()))}});
    }
    (void)_library.customIconSets();  // lists them
  }

  const Arguments& _arguments;
  const LibraryServices& _services;
  const IconLibrary _library;
  Reporter& _reporter;
};

}  // namespace

void runSets(const Arguments& arguments, const IconServices& services, Reporter& reporter) {
  const auto trash = makeDesktopTrash();
  const LibraryServices library{.icons = services, .trash = trash.get()};
  SetsRun(arguments, library, reporter).run();
}

}  // namespace quorvane::cli
