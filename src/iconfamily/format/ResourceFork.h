// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/FourCharCode.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// ID under which the custom icon of a file or folder is kept.
inline constexpr std::int16_t customIconResourceId = -16455;

/// One resource. `name` is raw bytes (an empty name and none are the same thing).
struct Resource {
  FourCharCode type;
  std::int16_t id = 0;
  std::uint8_t attributes = 0;
  std::string name;
  Bytes data;
};

/// A resource fork as a list of resources, in reading order (types in map order, references within).
class ResourceFork {
 public:
  /// An empty fork.
  ResourceFork() = default;
  /// Parses a fork. Zero bytes and a blank fork (no types) are empty forks. Every offset and length is checked; a fork
  /// with a fault anywhere is refused as a whole.
  static Result<ResourceFork> parse(ByteView bytes);

  /// The bytes of the fork; a fork without resources gives no bytes. Types stand in order of first appearance, the
  /// largest resource's data last. Refuses when a resource would start beyond the 16 MiB that a data offset reaches, a
  /// list outgrows its 16-bit counts, a name its length byte, or the whole what parse() takes.
  [[nodiscard]] Result<Bytes> serialize() const;

  [[nodiscard]] const std::vector<Resource>& resources() const { return _resources; }
  [[nodiscard]] bool isEmpty() const { return _resources.empty(); }
  /// The first resource of that type and ID.
  [[nodiscard]] const Resource* find(FourCharCode type, std::int16_t id) const;
  /// Replaces the first of that type and ID, dropping later ones, or appends.
  void set(Resource resource);
  /// Removes all of that type and ID; false when there was none.
  bool remove(FourCharCode type, std::int16_t id);

  /// The 16-bit fork attributes of the map; kept.
  std::uint16_t attributes = 0;

 private:
  std::vector<Resource> _resources;
  /// What follows the header, for the system's and the application's own use; kept as long as there are resources.
  std::array<std::uint8_t, 240> _reserved{};
};

}  // namespace quorvane
