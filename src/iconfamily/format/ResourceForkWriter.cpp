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

struct DataArea {
  ByteWriter bytes;
  std::map<const Resource*, std::uint32_t> offsets;
};

// Only where a resource begins must be within reach, so the largest goes last; the others stand in the map's order.
Result<DataArea> writeData(const std::vector<TypeGroup>& groups) {
  std::vector<const Resource*> order;
  for (const TypeGroup& group : groups) order.insert(order.end(), group.resources.begin(), group.resources.end());
  const auto largest = std::max_element(order.begin(), order.end(), [](const Resource* one, const Resource* other) {
    return one->data.size() <= other->data.size();  // of equals the last
  });
  std::rotate(largest, largest + 1, order.end());

  DataArea area;
  for (const Resource* resource : order) {
    if (area.bytes.size() > furthestData) return Error::tooLarge("resource fork: data out of reach");
    if (resource->data.size() > limits::iconFileBytes) return Error::tooLarge("resource fork: resource too long");
    area.offsets[resource] = static_cast<std::uint32_t>(area.bytes.size());
    area.bytes.writeU32(static_cast<std::uint32_t>(resource->data.size()));
    area.bytes.writeBytes(resource->data);
  }
  return area;
}

struct ReferenceLists {
  ByteWriter references;
  ByteWriter names;
};

Result<ReferenceLists> writeReferences(const std::vector<TypeGroup>& groups, const DataArea& data) {
  ReferenceLists lists;
  for (const TypeGroup& group : groups) {
    for (const Resource* resource : group.resources) {
      if (resource->name.size() > longestName) return Error::tooLarge("resource fork: name too long");
      if (!resource->name.empty() && lists.names.size() >= noName) return Error::tooLarge("resource fork: many names");
      lists.references.writeU16(static_cast<std::uint16_t>(resource->id));
      lists.references.writeU16(resource->name.empty() ? noName : static_cast<std::uint16_t>(lists.names.size()));
      lists.references.writeU8(resource->attributes);
      lists.references.writeU24(data.offsets.at(resource));
      lists.references.writeZeros(handleLength);
      if (resource->name.empty()) continue;
      lists.names.writeU8(static_cast<std::uint8_t>(resource->name.size()));
      for (const char letter : resource->name) lists.names.writeU8(static_cast<std::uint8_t>(letter));
    }
  }
  return lists;
}

void writeTypeList(ByteWriter& map, const std::vector<TypeGroup>& groups) {
  std::size_t offset = 2 + typeRowLength * groups.size();
  map.writeU16(static_cast<std::uint16_t>(groups.size() - 1));
  for (const TypeGroup& group : groups) {
    map.writeCode(group.type);
    map.writeU16(static_cast<std::uint16_t>(group.resources.size() - 1));
    map.writeU16(static_cast<std::uint16_t>(offset));
    offset += referenceLength * group.resources.size();
  }
}

}  // namespace

Result<Bytes> ResourceFork::serialize() const {
  if (_resources.empty()) return Bytes();
  const std::vector<TypeGroup> groups = groupByType(_resources);
  const std::size_t nameList =
      mapHeaderLength + 2 + typeRowLength * groups.size() + referenceLength * _resources.size();
  if (nameList > 0xFFFF) return Error::tooLarge("resource fork: too many resources");
  const DataArea data = TRY(writeData(groups));
  const ReferenceLists lists = TRY(writeReferences(groups, data));

  ByteWriter header;
  header.writeU32(dataStart);
  header.writeU32(static_cast<std::uint32_t>(dataStart + data.bytes.size()));
  header.writeU32(static_cast<std::uint32_t>(data.bytes.size()));
  header.writeU32(static_cast<std::uint32_t>(nameList + lists.names.size()));

  ByteWriter fork;
  fork.reserve(dataStart + data.bytes.size() + nameList + lists.names.size());
  fork.writeBytes(header.bytes());
  fork.writeBytes(_reserved);
  fork.writeBytes(data.bytes.bytes());
  fork.writeBytes(header.bytes());
  fork.writeZeros(handleLength + fileNumberLength);
  fork.writeU16(attributes);
  fork.writeU16(mapHeaderLength);
  fork.writeU16(static_cast<std::uint16_t>(nameList));
  writeTypeList(fork, groups);
  fork.writeBytes(lists.references.bytes());
  fork.writeBytes(lists.names.bytes());
  if (fork.size() > limits::iconFileBytes) return Error::tooLarge("resource fork too long");
  return std::move(fork).take();
}

}  // namespace quorvane
