// SPDX-License-Identifier: GPL-3.0-or-later
// Where icon families come from and go to besides images: files, and the icons that are shown for things.
#include "foundation/FileReading.h"
#include "foundation/FileWriting.h"
#include "foundation/base/Limits.h"
#include "iconfamily/CustomIcon.h"
#include "iconfamily/IconFamily.h"
#include "iconfamily/IconServices.h"

namespace quorvane {

namespace {

Result<IconFamily> familyOfImage(const std::optional<Image>& image, const IconServices& services) {
  if (!image) return Error(ErrorKind::NotFound, "there is no icon of its kind");
  return services.familyOfImage(*image);
}

}  // namespace

Result<IconFamily> IconFamily::iconFamilyWithContentsOfFile(const std::filesystem::path& path) {
  IconFamily family = iconFamilyWithIconFamilyHandle(TRY(readPlainFile(path, limits::iconFileBytes)));
  if (const auto checked = family.check(); !checked) return checked.error().at(path);
  return family;
}

Result<IconFamily> IconFamily::iconFamilyWithIconOfFile(const std::filesystem::path& path,
                                                        const IconServices& services) {
  // Of a custom icon without a whole element nothing can be shown; nor could it be put back.
  if (auto custom = TRY(readCustomIcon(path, services.forks)); custom && custom->check()) return *std::move(custom);
  auto family = familyOfImage(services.kinds.iconForKindOfFile(path), services);
  if (!family) return std::move(family).error().at(path);
  return family;
}

Result<IconFamily> IconFamily::iconFamilyWithSystemIcon(FourCharCode type, const IconServices& services) {
  return familyOfImage(services.kinds.systemIcon(type), services);
}

Result<void> IconFamily::writeToFile(const std::filesystem::path& path) const {
  return writePlainFile(path, hIconFamily);
}

}  // namespace quorvane
