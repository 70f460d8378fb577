// SPDX-License-Identifier: GPL-3.0-or-later
// baseicons SOURCES OUT                 writes the list of the sets, OUT/sets.plist
// baseicons SOURCES OUT SET DEPFILE     writes the set OUT/SET, and in DEPFILE what it was made of
// baseicons SOURCES --sheet OUT.png SIZE [SET...]   the sets' icons at one size side by side, for the eye
//
// SOURCES is the folder resources. Exit code 0 when all was written, 1 when it could not be, 2 for a wrong call.
#include <QStringList>
#include <algorithm>
#include <cstdio>
#include <string>

#include "SetWriter.h"
#include "Sheet.h"
#include "foundation/FileWriting.h"
#include "svg/PlainSvg.h"

namespace {

using namespace quorvane;
using namespace quorvane::baseicons;
namespace fs = std::filesystem;

std::string escaped(const std::string& path) {
  std::string result;
  for (const char c : path) {
    if (c == ' ') result += '\\';
    result += c;
  }
  return result;
}

Result<void> writeDepfile(const fs::path& path, const fs::path& target, const Sources& sources) {
  std::string text = escaped(target.string()) + ":";
  for (const auto& [file, content] : sources.files()) text += " \\\n  " + escaped(file.string());
  text += "\n";
  return writePlainFile(path, ByteView(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

Result<void> run(const QStringList& arguments) {
  const fs::path folder = arguments[1].toStdString();
  const auto library = TRY(readLibrary(folder / "library/library.json"));
  Sources sources(folder);
  if (arguments[2] == QLatin1String("--sheet"))
    return writeSheet(sources, library, arguments[3].toStdString(), arguments[4].toInt(), arguments.mid(5));
  const fs::path out = arguments[2].toStdString();
  if (arguments.size() == 3) return writeSetList(library, out);

  const auto set = std::ranges::find(library, arguments[3], &SetRow::name);
  if (set == library.end()) return Error::invalidInput("there is no set " + arguments[3].toStdString());
  TRY_VOID(writeSet(sources, *set, out));
  return writeDepfile(arguments[4].toStdString(), out / set->name.toStdString() / "QVIcons.plist", sources);
}

}  // namespace

int main(int argc, char** argv) {
  svg::watchComplaints("baseicons");
  // Without an application object: there is no text to be drawn.
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  const bool isSheet = arguments.size() >= 5 && arguments[2] == QLatin1String("--sheet");
  if (!isSheet && arguments.size() != 3 && arguments.size() != 5) {
    std::fputs("usage: baseicons SOURCES OUT [SET DEPFILE]\n       baseicons SOURCES --sheet OUT.png SIZE [SET...]\n",
               stderr);
    return 2;
  }
  const auto done = run(arguments);
  if (!done) std::fprintf(stderr, "baseicons: %s\n", done.error().message().c_str());
  return done ? 0 : 1;
}
