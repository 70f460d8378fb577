// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/PictureNames.h"

#include <algorithm>
#include <filesystem>

#include "foundation/base/Limits.h"
#include "imaging/Image.h"
#include "library/core/ListFile.h"

namespace quorvane::library {

std::string lowered(std::string name) {
  for (char& each : name)
    if (each >= 'A' && each <= 'Z') each = static_cast<char>(each - 'A' + 'a');
  return name;
}

bool isPictureName(const std::string& name) {
  const std::string ending = lowered(std::filesystem::path(name).extension().string());
  if (ending.size() < 2) return false;
  static const std::vector<std::string> types = Image::imageFileTypes();
  return ending == ".icns" || std::ranges::find(types, ending.substr(1)) != types.end();
}

Result<void> NewSetFiles::add(const std::string& base, const std::string& ending, ByteView bytes) {
  _bytes += bytes.size();
  if (_files.size() == limits::librarySetIcons || _bytes > limits::libraryNewSetBytes)
    return Error::tooLarge("too many pictures for one set");
  int number = 0;
  std::string name = newName(base, "-", number, ending);
  while (!_taken.insert(lowered(name)).second) name = newName(base, "-", ++number, ending);
  _files.push_back({std::move(name), Bytes(bytes.begin(), bytes.end())});
  return {};
}

}  // namespace quorvane::library
