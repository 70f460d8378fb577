// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>

#include "foundation/base/Bytes.h"
#include "foundation/base/FourCharCode.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"
#include "imaging/Image.h"

namespace quorvane {

class Pasteboard;
struct IconServices;

/// One icon family: a complete icon resource in the icns format, a set of elements (pictures of a size and depth, and
/// masks) keyed by type. A value that owns its bytes; whoever is handed the family gets a copy.
class IconFamily {
 public:
  /// An empty family: zero bytes, until the first stored element makes them a valid resource.
  static IconFamily iconFamily() { return IconFamily(); }
  /// Takes over the bytes, unchecked.
  static IconFamily iconFamilyWithIconFamilyHandle(Bytes handle);
  /// A copy of the bytes, unchecked.
  static IconFamily initWithData(ByteView data);
  /// The bytes of an icns file. Fails when it is missing, is not a plain file, is too long or is no icon family.
  static Result<IconFamily> iconFamilyWithContentsOfFile(const std::filesystem::path& path);
  /// The family of the icon that is shown for a file or folder: its custom icon, else the icon of its kind.
  static Result<IconFamily> iconFamilyWithIconOfFile(const std::filesystem::path& path, const IconServices& services);
  /// The family of a system icon, by its published type ('fldr', 'docu' ...).
  static Result<IconFamily> iconFamilyWithSystemIcon(FourCharCode type, const IconServices& services);
  /// Encodes the twelve written elements. An element that cannot be stored is left out; fails only when the image has
  /// no bitmap.
  static Result<IconFamily> iconFamilyWithThumbnailsOfImage(
      const Image& image, ImageInterpolation usingImageInterpolation = ImageInterpolation::High);

  /// Encodes one of the written elements and stores it, replacing one of the same type. False for other types and for
  /// bitmaps whose size or layout does not fit; then nothing changes.
  bool setIconFamilyElement(FourCharCode type, const BitmapImageRep& fromBitmapImageRep);

  /// Decodes 'ic09', 'ic08', 'it32', 'ih32', 'il32' or 'is32' with its mask: 8 bits, alpha first, not premultiplied.
  /// nullopt for other types and when the element is absent or damaged.
  [[nodiscard]] std::optional<BitmapImageRep> bitmapImageRepWithAlphaForIconFamilyElement(FourCharCode type) const;

  /// An image of 128 x 128 points with a representation for every pixel size in the family, largest first, each decoded
  /// when it is first needed. nullopt when the bytes are no family or hold no picture.
  [[nodiscard]] std::optional<Image> imageWithAllReps() const;

  /// The bytes of an element as they are stored; nullopt when there is none, or the family is none.
  [[nodiscard]] std::optional<Bytes> storedElement(FourCharCode type) const;

  /// Whether bytes begin as an icon family does.
  static bool looksLikeFamily(ByteView bytes);
  /// Why the bytes are no icon family, if they are none.
  [[nodiscard]] Result<void> check() const;

  /// A copy of the whole resource: the content of an icns file.
  [[nodiscard]] Bytes data() const { return hIconFamily; }
  [[nodiscard]] ByteView bytes() const { return hIconFamily; }

  /// Writes an icns file, replacing what is there (never through a link).
  [[nodiscard]] Result<void> writeToFile(const std::filesystem::path& path) const;

  /// Stores the family as the custom icon of a folder, replacing what icon it had, and sets the folder's flag.
  /// `withCompatibility` adds the elements that very old systems look for as resources of their own.
  Result<void> setAsCustomIconForDirectory(const std::filesystem::path& path, const IconServices& services,
                                           bool withCompatibility = false) const;
  /// The same for a file, which is made empty when it is missing: its other resources, entries and its modification
  /// date stay.
  Result<void> setAsCustomIconForFile(const std::filesystem::path& path, const IconServices& services,
                                      bool withCompatibility = false) const;
  /// Clears the flags and removes the icon's resource; fails on a file without resources.
  static Result<void> removeCustomIconFromFile(const std::filesystem::path& path, const IconServices& services);
  /// Clears the flags, then removes the icon file; NotFound when there is none (the flags are cleared all the same).
  static Result<void> removeCustomIconFromDirectory(const std::filesystem::path& path, const IconServices& services);

  /// Whether the pasteboard holds an icon family.
  static bool canInitWithScrap(const Pasteboard& pasteboard);
  /// The pasteboard's icon family, unchecked; nullopt without one.
  static std::optional<IconFamily> initWithScrap(const Pasteboard& pasteboard);
  static std::optional<IconFamily> iconFamilyWithScrap(const Pasteboard& pasteboard) {
    return initWithScrap(pasteboard);
  }
  /// Puts the family on the pasteboard under both of its types. Always true.
  bool putOnScrap(Pasteboard& pasteboard) const;

  bool operator==(const IconFamily&) const = default;

 private:
  Bytes hIconFamily;
};

}  // namespace quorvane
