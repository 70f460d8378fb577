// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "app/core/BasePicture.h"
#include "app/core/Look.h"
#include "foundation/base/BoundedCache.h"
#include "foundation/base/Result.h"
#include "iconfamily/IconFamily.h"

namespace quorvane {

/// Makes the icons of many folders. What several have in common (a base picture, the icon that plain folders have, a
/// whole composed icon) is made once and kept for the next few. Safe to share between threads; needs a QGuiApplication.
class IconMaker {
 public:
  /// A picture to draw on. Two that came out of one cache and have one number are one picture.
  struct Base {
    Image image;
    std::uint64_t number = 0;
  };

  /// The picture that a reference leads to; read once, also when that fails.
  Result<Base> base(const BaseReference& reference);
  /// The picture of an icon that a folder has, on the canvas of 128 units; what `otherwise` gives when it holds none.
  Result<Base> base(const IconFamily& family, const std::function<std::optional<Image>()>& otherwise);

  /// The picture to lay on icons that a reference leads to; read once, also when that fails.
  Result<OverlayPicture> overlay(const BaseReference& reference);

  /// The label drawn on the picture, as an icon family.
  Result<IconFamily> icon(const Look& look, const Base& base);

 private:
  struct IconKey {
    std::string look;
    std::uint64_t base;
    bool operator==(const IconKey&) const = default;
  };

  std::atomic<std::uint64_t> _numbers = 0;
  BoundedCache<BaseReference, Result<Base>> _files{8};
  BoundedCache<Bytes, std::optional<Base>> _families{4};
  BoundedCache<BaseReference, Result<OverlayPicture>> _overlays{8};
  BoundedCache<IconKey, Result<IconFamily>> _icons{8};
};

}  // namespace quorvane
