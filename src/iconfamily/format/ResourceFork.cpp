// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/ResourceFork.h"

#include <algorithm>
#include <utility>

#include "foundation/base/ByteReader.h"
#include "foundation/base/Limits.h"
#include "iconfamily/format/ResourceForkLayout.h"

namespace quorvane {

namespace {

using namespace resource_fork_layout;

Error fault(const char* what) {
  return Error::invalidInput(std::string("resource fork: ") + what);
}

// A half-open stretch of offsets.
struct Span {
  std::size_t begin;
  std::size_t end;
};

bool overlap(const Span& one, const Span& other) {
  return one.begin < one.end && other.begin < other.end && one.begin < other.end && other.begin < one.end;
}

struct Areas {
  std::size_t dataOffset = 0;
  std::size_t mapOffset = 0;
  ByteView data;
  ByteView map;
};

Result<Areas> readAreas(ByteView fork) {
  ByteReader reader(fork);
  const auto dataOffset = reader.readU32();
  const auto mapOffset = reader.readU32();
  const auto dataLength = reader.readU32();
  const auto mapLength = reader.readU32();
  if (!dataOffset || !mapOffset || !dataLength || !mapLength) return fault("header cut short");
  const auto data = reader.slice(*dataOffset, *dataLength);
  const auto map = reader.slice(*mapOffset, *mapLength);
  if (!data || !map) return fault("data or map outside the fork");

  const Span header{0, headerLength};
  const Span dataSpan{*dataOffset, *dataOffset + data->size()};
  const Span mapSpan{*mapOffset, *mapOffset + map->size()};
  if (overlap(header, dataSpan) || overlap(header, mapSpan) || overlap(dataSpan, mapSpan))
    return fault("header, data and map overlap");
  return Areas{*dataOffset, *mapOffset, *data, *map};
}

// Reads the map's lists and, through them, the resources.
class MapReader {
 public:
  explicit MapReader(const Areas& areas) : _data(areas.data), _map(areas.map) {}

  // The fixed part; the copy of the header, the handle and the file number in it mean nothing in a file.
  Result<std::uint16_t> readAttributes() {
    ByteReader reader(_map);
    if (!reader.seek(mapAttributesOffset)) return fault("map cut short");
    const auto attributes = reader.readU16();
    const auto typeList = reader.readU16();
    const auto nameList = reader.readU16();
    if (!attributes || !typeList || !nameList) return fault("map cut short");
    if (*typeList < mapHeaderLength) return fault("type list on the map's header");
    _typeList = *typeList;
    _nameList = *nameList;
    return *attributes;
  }

  Result<std::vector<Resource>> readResources() {
    ByteReader reader(_map);
    std::optional<std::uint16_t> lastType;
    if (!reader.seek(_typeList) || !(lastType = reader.readU16())) return fault("type list outside the map");
    if (*lastType == noneMinusOne) return std::vector<Resource>();
    const std::size_t typeCount = *lastType + std::size_t{1};
    const std::size_t typeListLength = 2 + typeRowLength * typeCount;
    if (!ByteReader(_map).slice(_typeList, typeListLength)) return fault("type list outside the map");
    for (std::size_t i = 0; i < typeCount; ++i) {
      const auto type = reader.readCode();
      const auto lastReference = reader.readU16();
      const auto offset = reader.readU16();
      if (!type || !lastReference || !offset) return fault("type list outside the map");
      if (*offset < typeListLength) return fault("references inside the type list");
      TRY_VOID(readReferences(*type, _typeList + *offset, *lastReference + std::size_t{1}));
    }
    // Shared data would let a small fork unfold into a huge one.
    std::sort(_spans.begin(), _spans.end(), [](const Span& a, const Span& b) { return a.begin < b.begin; });
    const auto clash = [](const Span& a, const Span& b) { return b.begin < a.end; };
    if (std::adjacent_find(_spans.begin(), _spans.end(), clash) != _spans.end()) return fault("resources overlap");

    std::vector<Resource> resources;
    resources.reserve(_found.size());
    for (Found& found : _found) {
      found.resource.data.assign(found.data.begin(), found.data.end());
      resources.push_back(std::move(found.resource));
    }
    return resources;
  }

 private:
  // Data is copied only when all of the map is known to be sound.
  struct Found {
    Resource resource;
    ByteView data;
  };

  Result<void> readReferences(FourCharCode type, std::size_t offset, std::size_t count) {
    if (count > limits::forkResources - _found.size()) return Error::tooLarge("resource fork: too many resources");
    ByteReader reader(_map);
    if (!reader.seek(offset)) return fault("references outside the map");
    for (std::size_t i = 0; i < count; ++i) {
      const auto id = reader.readU16();
      const auto nameOffset = reader.readU16();
      const auto attributes = reader.readU8();
      const auto dataOffset = reader.readU24();
      if (!id || !nameOffset || !attributes || !dataOffset || !reader.skip(handleLength))
        return fault("references outside the map");
      Found found;
      found.resource.type = type;
      found.resource.id = static_cast<std::int16_t>(*id);
      found.resource.attributes = *attributes;
      if (*nameOffset != noName) found.resource.name = TRY(readName(*nameOffset));
      found.data = TRY(readData(*dataOffset));
      _found.push_back(std::move(found));
    }
    return {};
  }

  Result<std::string> readName(std::size_t offset) const {
    ByteReader reader(_map);
    if (!reader.seek(_nameList + offset)) return fault("name outside the map");
    const auto length = reader.readU8();
    if (!length) return fault("name outside the map");
    const auto letters = reader.readBytes(*length);
    if (!letters) return fault("name outside the map");
    return std::string(letters->begin(), letters->end());
  }

  Result<ByteView> readData(std::size_t offset) {
    ByteReader reader(_data);
    if (!reader.seek(offset)) return fault("resource outside the data");
    const auto length = reader.readU32();
    if (!length) return fault("resource outside the data");
    const auto data = reader.readBytes(*length);
    if (!data) return fault("resource outside the data");
    _spans.push_back({offset, reader.position()});
    return *data;
  }

  ByteView _data;
  ByteView _map;
  std::size_t _typeList = 0;
  std::size_t _nameList = 0;
  std::vector<Found> _found;
  std::vector<Span> _spans;
};

}  // namespace

Result<ResourceFork> ResourceFork::parse(ByteView bytes) {
  ResourceFork fork;
  if (bytes.empty()) return fork;
  if (bytes.size() > limits::iconFileBytes) return Error::tooLarge("resource fork too long");
  const Areas areas = TRY(readAreas(bytes));
  MapReader map(areas);
  fork.attributes = TRY(map.readAttributes());
  fork._resources = TRY(map.readResources());
  // In a blank fork a remark of the system stands there, which is not to outlive the blankness.
  if (!fork.isEmpty() && areas.dataOffset >= dataStart && areas.mapOffset >= dataStart)
    std::copy_n(bytes.begin() + headerLength, fork._reserved.size(), fork._reserved.begin());
  return fork;
}

const Resource* ResourceFork::find(FourCharCode type, std::int16_t id) const {
  const auto found = std::find_if(_resources.begin(), _resources.end(),
                                  [&](const Resource& each) { return each.type == type && each.id == id; });
  return found == _resources.end() ? nullptr : &*found;
}

void ResourceFork::set(Resource resource) {
  const auto same = [type = resource.type, id = resource.id](const Resource& each) {
    return each.type == type && each.id == id;
  };
  const auto first = std::find_if(_resources.begin(), _resources.end(), same);
  if (first == _resources.end()) {
    _resources.push_back(std::move(resource));
    return;
  }
  *first = std::move(resource);
  _resources.erase(std::remove_if(first + 1, _resources.end(), same), _resources.end());
}

bool ResourceFork::remove(FourCharCode type, std::int16_t id) {
  return std::erase_if(_resources, [&](const Resource& each) { return each.type == type && each.id == id; }) > 0;
}

}  // namespace quorvane
