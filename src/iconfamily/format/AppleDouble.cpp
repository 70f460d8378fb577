// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/AppleDouble.h"

#include <algorithm>
#include <map>
#include <utility>

#include "foundation/base/ByteReader.h"
#include "foundation/base/ByteWriter.h"
#include "foundation/base/Limits.h"
#include "iconfamily/format/AttributeBlock.h"
#include "iconfamily/format/ResourceFork.h"

namespace quorvane {

namespace {

// Magic, version, filler and the number of entries.
constexpr std::uint32_t companionMagic = 0x00051607;
constexpr std::uint32_t versionOne = 0x00010000;
constexpr std::uint32_t versionTwo = 0x00020000;
constexpr std::size_t fillerLength = 16;
constexpr std::size_t headerLength = 26;
// ID, offset and length.
constexpr std::size_t rowLength = 12;

Error fault(const char* what) {
  return Error::invalidInput(std::string("companion file: ") + what);
}

bool isZero(ByteView bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
}

// What stands in a Finder entry besides the 32 bytes: padding and an attribute block, either of which may say nothing.
bool holdsAttributes(ByteView finderEntry) {
  if (finderEntry.size() <= FinderInfo::byteCount) return false;
  if (const auto count = AttributeBlock::countIn(finderEntry)) return *count != 0;
  return !isZero(finderEntry.subspan(FinderInfo::byteCount));
}

}  // namespace

Result<AppleDouble> AppleDouble::parse(ByteView bytes) {
  if (bytes.size() > limits::iconFileBytes) return Error::tooLarge("companion file too long");
  ByteReader reader(bytes);
  const auto magic = reader.readU32();
  const auto version = reader.readU32();
  const auto filler = reader.readBytes(fillerLength);
  const auto count = reader.readU16();
  if (!magic || !version || !filler || !count) return fault("header cut short");
  if (magic != companionMagic) return fault("wrong magic number");
  if (version != versionOne && version != versionTwo) return fault("unknown version");
  if (*count > limits::companionEntries) return Error::tooLarge("companion file: too many entries");

  AppleDouble companion;
  companion._version = *version;
  companion._filler.assign(filler->begin(), filler->end());
  std::vector<std::pair<std::size_t, std::size_t>> spans{{0, headerLength + rowLength * *count}};
  std::vector<ByteView> views;
  for (std::uint16_t i = 0; i < *count; ++i) {
    const auto id = reader.readU32();
    const auto offset = reader.readU32();
    const auto length = reader.readU32();
    if (!id || !offset || !length) return fault("entry table cut short");
    const auto data = reader.slice(*offset, *length);
    if (!data) return fault("entry outside the file");
    companion._entries.push_back({*id, *offset, Bytes()});
    views.push_back(*data);
    if (!data->empty()) spans.emplace_back(*offset, *offset + data->size());
  }
  std::sort(spans.begin(), spans.end());
  const auto clash = [](const auto& one, const auto& other) { return other.first < one.second; };
  if (std::adjacent_find(spans.begin(), spans.end(), clash) != spans.end()) return fault("entries overlap");
  // Copied only now: entries that share bytes could have summed up to far more than the file.
  for (std::size_t i = 0; i < views.size(); ++i) companion._entries[i].data.assign(views[i].begin(), views[i].end());
  return companion;
}

std::vector<const AppleDouble::Entry*> AppleDouble::storageOrder() const {
  std::vector<const Entry*> order;
  for (const Entry& entry : _entries) order.push_back(&entry);
  const auto rank = [](const Entry* entry) {
    switch (static_cast<EntryId>(entry->id)) {
      case EntryId::FinderInfo:
        return 0;
      case EntryId::ResourceFork:
        return 2;
      default:
        return 1;
    }
  };
  std::stable_sort(order.begin(), order.end(),
                   [&](const auto* one, const auto* other) { return rank(one) < rank(other); });
  return order;
}

Result<Bytes> AppleDouble::serialize() const {
  if (_entries.size() > limits::companionEntries) return Error::tooLarge("companion file: too many entries");
  const std::vector<const Entry*> order = storageOrder();
  std::size_t end = headerLength + rowLength * _entries.size();
  std::map<const Entry*, std::size_t> offsets;
  for (const Entry* entry : order) {
    offsets[entry] = end;
    if (entry->data.size() > limits::iconFileBytes - end) return Error::tooLarge("companion file too long");
    end += entry->data.size();
  }

  ByteWriter writer;
  writer.reserve(end);
  writer.writeU32(companionMagic);
  writer.writeU32(_version);
  writer.writeBytes(_filler);
  writer.writeU16(static_cast<std::uint16_t>(_entries.size()));
  for (const Entry& entry : _entries) {
    writer.writeU32(entry.id);
    writer.writeU32(static_cast<std::uint32_t>(offsets[&entry]));
    writer.writeU32(static_cast<std::uint32_t>(entry.data.size()));
  }
  for (const Entry* entry : order) {
    if (entry->id != static_cast<std::uint32_t>(EntryId::FinderInfo)) {
      writer.writeBytes(entry->data);
      continue;
    }
    Bytes data = entry->data;
    AttributeBlock::relocate(data, entry->originalOffset, static_cast<std::uint32_t>(offsets[entry]));
    writer.writeBytes(data);
  }
  return std::move(writer).take();
}

const AppleDouble::Entry* AppleDouble::find(EntryId id) const {
  const auto found = std::find_if(_entries.begin(), _entries.end(),
                                  [id](const Entry& each) { return each.id == static_cast<std::uint32_t>(id); });
  return found == _entries.end() ? nullptr : &*found;
}

std::optional<FinderInfo> AppleDouble::finderInfo() const {
  const Entry* entry = find(EntryId::FinderInfo);
  if (entry == nullptr || entry->data.size() < FinderInfo::byteCount) return std::nullopt;
  return FinderInfo(entry->data);
}

std::optional<std::size_t> AppleDouble::finderInfoOffset() const {
  const Entry* entry = find(EntryId::FinderInfo);
  // No data starts within the header: an offset of zero is that of an entry we added.
  if (!finderInfo() || entry->originalOffset == 0) return std::nullopt;
  return entry->originalOffset;
}

void AppleDouble::setFinderInfo(const FinderInfo& info) {
  Entry& entry = theOnly(EntryId::FinderInfo);
  if (entry.data.size() < FinderInfo::byteCount) entry.data.resize(FinderInfo::byteCount);
  std::copy(info.bytes().begin(), info.bytes().end(), entry.data.begin());
}

ByteView AppleDouble::resourceFork() const {
  const Entry* entry = find(EntryId::ResourceFork);
  return entry == nullptr ? ByteView() : ByteView(entry->data);
}

void AppleDouble::setResourceFork(Bytes fork) {
  if (!fork.empty()) {
    theOnly(EntryId::ResourceFork).data = std::move(fork);
    return;
  }
  std::erase_if(_entries,
                [](const Entry& each) { return each.id == static_cast<std::uint32_t>(EntryId::ResourceFork); });
}

AppleDouble::Entry& AppleDouble::theOnly(EntryId id) {
  const auto same = [id](const Entry& each) { return each.id == static_cast<std::uint32_t>(id); };
  const auto first = std::find_if(_entries.begin(), _entries.end(), same);
  if (first != _entries.end()) {
    _entries.erase(std::remove_if(first + 1, _entries.end(), same), _entries.end());
    return *first;
  }
  // Some readers insist on the Finder info as the first entry and the fork as the last.
  const auto place = id == EntryId::FinderInfo ? _entries.begin() : _entries.end();
  return *_entries.insert(place, {static_cast<std::uint32_t>(id), 0, Bytes()});
}

bool AppleDouble::isBlank() const {
  return std::all_of(_entries.begin(), _entries.end(), [](const Entry& entry) {
    switch (static_cast<EntryId>(entry.id)) {
      case EntryId::FinderInfo:
        return FinderInfo(entry.data).isZero() && !holdsAttributes(entry.data);
      case EntryId::ResourceFork: {
        const auto fork = ResourceFork::parse(entry.data);
        return fork.ok() && fork->isEmpty();
      }
      default:
        return false;
    }
  });
}

}  // namespace quorvane
