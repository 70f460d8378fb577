// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <map>
#include <utility>

#include "foundation/base/ByteWriter.h"
#include "foundation/base/Limits.h"
#include "iconfamily/format/ResourceFork.h"
#include "iconfamily/format/ResourceForkLayout.h"

namespace quorvane {

namespace {

using namespace resource_fork_layout;

struct TypeGroup {
  FourCharCode type;
  std::vector<const Resource*> resources;
};

// In order of first appearance.
std::vector<TypeGroup> groupByType(const std::vector<Resource>& resources) {
  std::vector<TypeGroup> groups;
  std::map<FourCharCode, std::size_t> places;
  for (const Resource& resource : resources) {
    const auto [place, isNew] = places.try_emplace(resource.type, groups.size());
    if (isNew) groups.push_back({resource.type, {}});
    groups[place->second].resources.push_back(&resource);
  }
  return groups;
}

// Lays out the three parts that depend on the resources, in the order of these calls.
class PartsWriter {
 public:
  explicit PartsWriter(const std::vector<Resource>& resources) : _groups(groupByType(resources)) {}

  // Only where a resource begins must be within reach, so the largest goes last; the others stand in the map's order.
  Result<void> writeData() {
    std::vector<const Resource*> order;
    for (const TypeGroup& group : _groups) order.insert(order.end(), group.resources.begin(), group.resources.end());
    const auto largest = std::max_element(order.begin(), order.end(), [](const Resource* one, const Resource* other) {
      return one->data.size() < other->data.size();
    });
    std::rotate(largest, largest + 1, order.end());

    for (const Resource* resource : order) {
      if (data.size() > furthestData) return Error::tooLarge("resource fork: data out of reach");
      if (resource->data.size() > limits::iconFileBytes) return Error::tooLarge("resource fork: resource too long");
      _offsets[resource] = static_cast<std::uint32_t>(data.size());
      data.writeU32(static_cast<std::uint32_t>(resource->data.size()));
      data.writeBytes(resource->data);
    }
    return {};
  }

  Result<void> writeTypesAndReferences() {
    std::size_t offset = 2 + typeRowLength * _groups.size();
    types.writeU16(static_cast<std::uint16_t>(_groups.size() - 1));
    for (const TypeGroup& group : _groups) {
      types.writeCode(group.type);
      types.writeU16(static_cast<std::uint16_t>(group.resources.size() - 1));
      types.writeU16(static_cast<std::uint16_t>(offset));
      offset += referenceLength * group.resources.size();
    }
    if (mapHeaderLength + offset > furthestList) return Error::tooLarge("resource fork: too many resources");
    for (const TypeGroup& group : _groups)
      for (const Resource* resource : group.resources) TRY_VOID(writeReference(*resource));
    return {};
  }

  ByteWriter data;
  ByteWriter types;  // and the references
  ByteWriter names;

 private:
  Result<void> writeReference(const Resource& resource) {
    if (resource.name.size() > longestName) return Error::tooLarge("resource fork: name too long");
    if (!resource.name.empty() && names.size() >= noName) return Error::tooLarge("resource fork: too many names");
    types.writeU16(static_cast<std::uint16_t>(resource.id));
    types.writeU16(resource.name.empty() ? noName : static_cast<std::uint16_t>(names.size()));
    types.writeU8(resource.attributes);
    types.writeU24(_offsets.at(&resource));
    types.writeZeros(handleLength);
    if (resource.name.empty()) return {};
    names.writeU8(static_cast<std::uint8_t>(resource.name.size()));
    for (const char letter : resource.name) names.writeU8(static_cast<std::uint8_t>(letter));
    return {};
  }

  std::vector<TypeGroup> _groups;
  std::map<const Resource*, std::uint32_t> _offsets;
};

}  // namespace

Result<Bytes> ResourceFork::serialize() const {
  if (_resources.empty()) return Bytes();
  PartsWriter parts(_resources);
  TRY_VOID(parts.writeData());
  TRY_VOID(parts.writeTypesAndReferences());
  const std::size_t nameList = mapHeaderLength + parts.types.size();
  const std::size_t mapLength = nameList + parts.names.size();

  ByteWriter header;
  header.writeU32(dataStart);
  header.writeU32(static_cast<std::uint32_t>(dataStart + parts.data.size()));
  header.writeU32(static_cast<std::uint32_t>(parts.data.size()));
  header.writeU32(static_cast<std::uint32_t>(mapLength));

  ByteWriter fork;
  fork.reserve(dataStart + parts.data.size() + mapLength);
  fork.writeBytes(header.bytes());
  fork.writeBytes(_reserved);
  fork.writeBytes(parts.data.bytes());
  fork.writeBytes(header.bytes());
  fork.writeZeros(handleLength + fileNumberLength);
  fork.writeU16(attributes);
  fork.writeU16(mapHeaderLength);
  fork.writeU16(static_cast<std::uint16_t>(nameList));
  fork.writeBytes(parts.types.bytes());
  fork.writeBytes(parts.names.bytes());
  if (fork.size() > limits::iconFileBytes) return Error::tooLarge("resource fork too long");
  return std::move(fork).take();
}

}  // namespace quorvane
