// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Colour modes of a layered picture, with their numbers in the file.
enum class PsdMode { Bitmap = 0, Grey = 1, Indexed = 2, Rgb = 3, Cmyk = 4, Multichannel = 7, Duotone = 8, Lab = 9 };

/// The flattened picture of a layered file, PSD or PSB: what its header says, and where its rows lie. Views reach into
/// the bytes that were parsed.
struct PsdFile {
  int width = 0;
  int height = 0;
  int channels = 0;       ///< colours first, then alpha and saved selections
  int bitsPerSample = 0;  ///< 1, 8, 16, or 32 (floating point, proportional to light)
  PsdMode mode = PsdMode::Rgb;
  bool hasTransparency = false;  ///< the first channel behind the colours is alpha; colours are blended with white
  ByteView palette;              ///< 256 reds, greens, blues; of an indexed picture only
  std::optional<int> transparentIndex;  ///< of an indexed picture
  ByteView profile;                     ///< ICC, or empty

  /// Colours of a pixel in this mode.
  [[nodiscard]] int colors() const;
  [[nodiscard]] std::size_t bytesPerRow() const;

  /// Unpacks one row of one channel into bytesPerRow() bytes as they are in the file (the high byte first). Fails when
  /// a packed row does not fill them.
  [[nodiscard]] Result<void> readRow(int channel, int y, std::span<std::uint8_t> row) const;

  bool isPacked = false;
  ByteView pixels;                  ///< rows of the first channel, then of the next
  std::vector<std::size_t> starts;  ///< of the packed rows, and the end of the last
};

/// True when the bytes begin as a layered picture does.
bool isPsd(ByteView bytes);

/// Parses everything but the pixels. Fails for sizes over Limits.h, for what is not read (multichannel pictures, zipped
/// ones) and when there are fewer bytes than the rows of the picture need: allocate for its size only afterwards.
Result<PsdFile> readPsdFile(ByteView bytes);

}  // namespace quorvane
