// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/BoundedCache.h"
#include "foundation/base/Result.h"
#include "iconfamily/IconFamily.h"
#include "imaging/Image.h"

namespace quorvane {

/// The families of the last few images, for images that come again and again. Safe to share between threads.
class FamilyCache {
 public:
  Result<IconFamily> familyOfImage(const Image& image) {
    return _families.get({image}, [&] { return IconFamily::iconFamilyWithThumbnailsOfImage(image); });
  }

 private:
  struct Key {
    Image image;
    bool operator==(const Key& other) const { return image.isSameAs(other.image); }
  };
  BoundedCache<Key, Result<IconFamily>> _families{4};
};

}  // namespace quorvane
