// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/FamilyImage.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "foundation/base/Limits.h"
#include "iconfamily/ElementStore.h"
#include "iconfamily/ElementTypes.h"
#include "iconfamily/format/IcnsContainer.h"

namespace quorvane {

namespace {

// The canvas's own unit: whatever the pixels of its representations, an icon is this many points wide and high, so that
// what the canvas shows is what gets applied.
constexpr Size iconPoints{128, 128};

/// The whole file as it is now.
std::optional<Bytes> familyBytes(const std::filesystem::path& path) {
  const auto folder = Folder::open(path.parent_path(), Folder::Access::Read);
  if (!folder) return std::nullopt;
  auto bytes = folder->readFile(path.filename().string(), limits::iconFileBytes);
  return bytes ? *std::move(bytes) : std::nullopt;
}

}  // namespace

std::optional<Image> imageOfElements(const std::vector<FourCharCode>& held, const ElementDecoder& decode) {
  // Types of one pixel size stand together in the table, best form first: a damaged element gives way to the next.
  Image image(iconPoints);
  image.setScalesWhenResized(true);
  const auto types = elementTypes();
  for (auto first = types.begin(); first != types.end();) {
    const auto isOtherSize = [&](const ElementType& type) {
      return type.pixelsWide != first->pixelsWide || type.pixelsHigh != first->pixelsHigh;
    };
    const auto last = std::find_if(first, types.end(), isOtherSize);
    std::vector<FourCharCode> candidates;
    for (auto type = first; type != last; ++type)
      if (type->isPicture() && std::ranges::find(held, type->type) != held.end()) candidates.push_back(type->type);
    if (!candidates.empty()) {
      image.addRepresentation(ImageRep::pending(first->pixelsWide, first->pixelsHigh, iconPoints,
                                                [decode, candidates]() -> std::optional<BitmapImageRep> {
                                                  for (const FourCharCode type : candidates)
                                                    if (auto decoded = decode(type)) return decoded;
                                                  return std::nullopt;
                                                }));
    }
    first = last;
  }
  if (image.representations().empty()) return std::nullopt;
  return image;
}

Result<std::optional<Image>> imageOfFamilyFile(const Folder& folder, const std::string& name) {
  const auto file = TRY(folder.openFile(name));
  struct stat info {};
  if (!file) return std::optional<Image>();
  const auto failure = [&] { return Error::system(errno, "cannot read").at(folder.pathOf(name)); };
  if (::fstat(file->get(), &info) != 0) return failure();
  if (static_cast<std::uint64_t>(info.st_size) > limits::iconFileBytes) return std::optional<Image>();
  const auto readHeader = [&](std::uint64_t at, std::uint8_t* to, std::size_t length) -> Result<bool> {
    ssize_t got = 0;
    do got = ::pread(file->get(), to, length, static_cast<off_t>(at));
    while (got < 0 && errno == EINTR);
    if (got < 0) return failure();
    return static_cast<std::size_t>(got) == length;
  };
  const auto types = icnsElementTypes(static_cast<std::uint64_t>(info.st_size), readHeader);
  if (!types && types.error().kind() == ErrorKind::System) return types.error();
  if (!types) return std::optional<Image>();
  const auto path = std::make_shared<const std::filesystem::path>(folder.pathOf(name));
  return imageOfElements(*types, [path](FourCharCode type) -> std::optional<BitmapImageRep> {
    const auto bytes = familyBytes(*path);
    return bytes ? decodeIconFamilyElement(*bytes, type).toOptional() : std::nullopt;
  });
}

}  // namespace quorvane
