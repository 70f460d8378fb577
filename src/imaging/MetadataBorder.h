// SPDX-License-Identifier: GPL-3.0-or-later
// The border to the metadata library: whatever it throws or prints ends here.
#pragma once

#include <exiv2/exiv2.hpp>

#include <memory>
#include <mutex>
#include <string>
#include <type_traits>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// What an ImageMetadata holds.
struct MetadataProperties {
  Exiv2::ExifData exif;
  Exiv2::IptcData iptc;
  Exiv2::XmpData xmp;
};

namespace metadata {

/// Silences the library; the lock that all use of it takes, as its XMP part keeps global state.
std::unique_lock<std::mutex> enter();

/// Runs `work`, which returns a Result, with the library held; an exception becomes an error.
template <typename Work>
auto guarded(const std::string& what, const Work& work) -> std::invoke_result_t<Work> {
  const auto lock = enter();
  try {
    return work();
  } catch (const std::exception& failure) {
    return Error::invalidInput(what + ": " + failure.what());
  } catch (...) {
    return Error::invalidInput(what);
  }
}

/// The library's view of a JPEG, PNG or TIFF file, checked against the limits and read. `bytes` must outlive it. Call
/// within guarded(). A TIFF with a camera maker's block is refused: what stands in it may lie anywhere in the file, and
/// could neither be bounded nor be moved.
Result<std::unique_ptr<Exiv2::Image>> openPicture(ByteView bytes);

/// True for a property that says how the pixels of a file lie, or repeats them: it belongs to that file alone.
bool describesPixels(const Exiv2::Exifdatum& property);
bool describesPixels(const Exiv2::Xmpdatum& property);

}  // namespace metadata

}  // namespace quorvane
