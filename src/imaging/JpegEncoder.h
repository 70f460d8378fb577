// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// A bitmap made ready for JPEG, which knows no transparency: painted on white. For encoding it more than once.
class JpegSource {
 public:
  explicit JpegSource(const BitmapImageRep& bitmap);

  /// Encodes as baseline JPEG (JFIF, with the bitmap's density). `compressionFactor` is 0 (smallest) to 1 (best); what
  /// is outside counts as the nearer end. From 0.9 on the colours keep their full resolution.
  [[nodiscard]] Result<Bytes> encode(float compressionFactor) const;

 private:
  int _pixelsWide = 0;
  int _pixelsHigh = 0;
  int _dotsPerInchAcross = 72;
  int _dotsPerInchDown = 72;
  Bytes _rgbx;  ///< 4 bytes a pixel, of which the last says nothing; rows without gaps
};

}  // namespace quorvane
