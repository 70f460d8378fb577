// SPDX-License-Identifier: GPL-3.0-or-later
// library_writer reorder|undo-reorder|undo-remove|move SET ICON [OTHER]  does with a set of the user's library what the
// window does and the command line does not; exit code 1 with the reason when it cannot. Only to be killed and hindered
// at it.
#include <algorithm>
#include <cstdio>

#include "iconfamily/AppleDoubleForkStore.h"
#include "library/core/LibraryUndo.h"
#include "system/FileManagerNotices.h"
#include "system/KindIcons.h"

namespace quorvane {
namespace {

Result<void> run(const std::string& what, const std::string& name, const std::string& icon, const std::string& other) {
  AppleDoubleForkStore forks;
  OwnKindIcons kinds;
  StampingNotices notices;
  const IconServices icons{.forks = forks, .kinds = kinds, .notices = notices};
  const auto trash = makeDesktopTrash();
  const LibraryServices services{.icons = icons, .trash = trash.get()};
  const IconLibrary library(LibraryPlaces::usual(), services);
  LibraryUndo undo(library);
  const auto set = IconSet::initWithPath(library.customIconsPath() / name, services);
  if (what == "move") {
    const auto to = IconSet::initWithPath(library.customIconsPath() / other, services);
    IconSet::Icons grown = to->icons();
    grown.push_back(TRY(to->addIcon(set->path() / icon)));
    TRY_VOID(to->setIcons(std::move(grown)));
    return undo.removeIcons(set, {icon});
  }
  if (what == "undo-remove") {
    TRY_VOID(undo.removeIcons(set, {icon}));
  } else {
    IconSet::Icons order = set->icons();
    std::ranges::reverse(order);
    TRY_VOID(undo.setOrder(set, std::move(order)));
  }
  if (what == "reorder") return {};
  // What the trash did not take is gone for good.
  return undo.canUndo() ? undo.undo() : Error(ErrorKind::NotFound, "nothing can be taken back");
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  if (argc < 4) return 0;
  const auto done = quorvane::run(argv[1], argv[2], argv[3], argc > 4 ? argv[4] : "");
  if (!done) std::fprintf(stderr, "%s\n", done.error().message().c_str());
  return done ? 0 : 1;
}
