// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/FamilyImage.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
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

/// The elements that can be had as a picture of one size, best form first: a damaged one gives way to the next.
struct PictureSize {
  int pixelsWide;
  int pixelsHigh;
  std::vector<FourCharCode> candidates;
};

std::vector<PictureSize> pictureSizes(const std::vector<FourCharCode>& held) {
  std::vector<PictureSize> sizes;
  for (const ElementType& type : elementTypes()) {
    if (!type.isPicture() || std::ranges::find(held, type.type) == held.end()) continue;
    // Types of one size stand together in the table.
    if (sizes.empty() || sizes.back().pixelsWide != type.pixelsWide || sizes.back().pixelsHigh != type.pixelsHigh)
      sizes.push_back({type.pixelsWide, type.pixelsHigh, {}});
    sizes.back().candidates.push_back(type.type);
  }
  return sizes;
}

/// The whole file as it is now.
std::optional<Bytes> familyBytes(const std::filesystem::path& path) {
  const auto folder = Folder::open(path.parent_path(), Folder::Access::Read);
  if (!folder) return std::nullopt;
  auto bytes = folder->readFile(path.filename().string(), limits::iconFileBytes);
  return bytes ? *std::move(bytes) : std::nullopt;
}

}  // namespace

std::optional<Image> imageOfElements(const std::vector<FourCharCode>& held, const ElementDecoder& decode) {
  // Those of one library mostly hold the same elements.
  thread_local std::vector<FourCharCode> lastHeld;
  thread_local std::shared_ptr<const std::vector<PictureSize>> lastSizes;
  if (!lastSizes || held != lastHeld) {
    lastSizes = std::make_shared<const std::vector<PictureSize>>(pictureSizes(held));
    lastHeld = held;
  }
  if (lastSizes->empty()) return std::nullopt;
  Image image(iconPoints);
  image.setScalesWhenResized(true);
  for (const PictureSize& size : *lastSizes) {
    const std::shared_ptr<const std::vector<FourCharCode>> candidates(lastSizes, &size.candidates);
    image.addRepresentation(ImageRep::pending(size.pixelsWide, size.pixelsHigh, iconPoints,
                                              [decode, candidates]() -> std::optional<BitmapImageRep> {
                                                for (const FourCharCode type : *candidates)
                                                  if (auto decoded = decode(type)) return decoded;
                                                return std::nullopt;
                                              }));
  }
  return image;
}

Result<std::optional<Image>> imageOfFamilyFile(const Folder& folder, const std::string& name) {
  const auto file = TRY(folder.openFile(name));
  struct stat info {};
  if (!file) return std::optional<Image>();
  const auto failure = [&] { return Error::system(errno, "cannot read").at(folder.pathOf(name)); };
  if (::fstat(file->get(), &info) != 0) return failure();
  if (static_cast<std::uint64_t>(info.st_size) > limits::iconFileBytes) return std::optional<Image>();
  // The small elements come first, so that one reading gets the headers of several.
  std::array<std::uint8_t, 4096> block;
  std::uint64_t blockStart = 0;
  std::size_t blockLength = 0;
  const auto readHeader = [&](std::uint64_t at, std::uint8_t* to, std::size_t length) -> Result<bool> {
    if (at < blockStart || at - blockStart + length > blockLength) {
      ssize_t got = 0;
      do got = ::pread(file->get(), block.data(), at == 0 ? block.size() : length, static_cast<off_t>(at));
      while (got < 0 && errno == EINTR);
      if (got < 0) return failure();
      blockStart = at;
      blockLength = static_cast<std::size_t>(got);
      if (blockLength < length) return false;
    }
    std::copy_n(block.begin() + static_cast<std::ptrdiff_t>(at - blockStart), length, to);
    return true;
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
