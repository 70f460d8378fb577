// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/PackedChannels.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>

#include "foundation/base/ByteReader.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

// A control byte below 0x80 announces that many literals and one more; from 0x80 on, the next byte is repeated
// control - 125 times.
constexpr std::size_t longestLiteral = 128;
constexpr std::size_t shortestRepeat = 3;
constexpr std::size_t longestRepeat = 130;
constexpr std::uint8_t repeatFlag = 0x80;
constexpr std::size_t strayBytes = 2;

// Most runs are short, so bytes move in blocks of this length: buffers have room for one more than they hold.
constexpr std::size_t block = 16;

void copyBlocks(std::uint8_t* to, const std::uint8_t* from, std::size_t count) {
  for (std::size_t i = 0; i < count; i += block) std::memcpy(to + i, from + i, block);
}

void fillBlocks(std::uint8_t* to, std::uint8_t byte, std::size_t count) {
  for (std::size_t i = 0; i < count; i += block) std::memset(to + i, byte, block);
}

std::uint64_t eightBytesAt(const std::uint8_t* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

bool hasZeroByte(std::uint64_t word) {
  return ((word - 0x0101010101010101U) & ~word & 0x8080808080808080U) != 0;
}

// The first place from `begin` on where three equal bytes begin, or `end`. Words skip stretches without one; the place
// itself is found byte by byte, since computing it from the word makes every run wait for the one before.
const std::uint8_t* findRepeat(const std::uint8_t* begin, const std::uint8_t* end) {
  const std::uint8_t* at = begin;
  while (end - at >= 10) {
    const std::uint64_t second = eightBytesAt(at + 1);
    if (hasZeroByte((eightBytesAt(at) ^ second) | (second ^ eightBytesAt(at + 2)))) break;
    at += 8;
  }
  for (; end - at >= 3; ++at)
    if (at[0] == at[1] && at[1] == at[2]) return at;
  return end;
}

// The end of the stretch of bytes equal to the one at `begin`.
const std::uint8_t* findRepeatEnd(const std::uint8_t* begin, const std::uint8_t* end) {
  const std::uint8_t* at = begin + 1;
  const std::uint64_t same = 0x0101010101010101U * *begin;
  while (end - at >= 8 && eightBytesAt(at) == same) at += 8;
  while (at < end && *at == *begin) ++at;
  return at;
}

std::uint8_t* putLiterals(std::uint8_t* out, const std::uint8_t* begin, const std::uint8_t* end) {
  while (begin < end) {
    const std::size_t count = std::min<std::size_t>(end - begin, longestLiteral);
    *out++ = static_cast<std::uint8_t>(count - 1);
    copyBlocks(out, begin, count);
    out += count;
    begin += count;
  }
  return out;
}

std::uint8_t* putRepeat(std::uint8_t* out, std::uint8_t byte, std::size_t count) {
  *out++ = static_cast<std::uint8_t>(count - shortestRepeat + repeatFlag);
  *out++ = byte;
  return out;
}

// Literals up to three or more equal bytes, those, and so on. A repeat of three is never longer than the same bytes
// among literals: it takes two bytes, and one for the control byte of the literals behind it.
std::uint8_t* packChannel(std::uint8_t* out, const std::uint8_t* begin, const std::uint8_t* end) {
  while (begin < end) {
    const std::uint8_t* repeat = findRepeat(begin, end);
    if (repeat == end) return putLiterals(out, begin, end);
    std::size_t count = static_cast<std::size_t>(findRepeatEnd(repeat, end) - repeat);
    // One byte more than whole repeats is best put to the literals before, if there are any with room, else it leads
    // the literals behind.
    const std::size_t before = static_cast<std::size_t>(repeat - begin);
    if (count % longestRepeat == 1 && before % longestLiteral != 0) {
      ++repeat;
      --count;
    }
    out = putLiterals(out, begin, repeat);
    while (count >= shortestRepeat) {
      std::size_t step = std::min(count, longestRepeat);
      // Two bytes left over would be literals; three are a repeat.
      if (count - step == shortestRepeat - 1) --step;
      out = putRepeat(out, *repeat, step);
      repeat += step;
      count -= step;
    }
    begin = repeat;
  }
  return out;
}

// Fills the first `length` bytes of `out`, which has room for a block more, with unpacked bytes and returns how many of
// `packed` that took; nullopt when they end too early or the last run goes too far.
std::optional<std::size_t> unpackInto(std::uint8_t* out, std::size_t length, ByteView packed) {
  ByteReader reader(packed);
  for (std::size_t done = 0; done < length;) {
    const auto control = reader.readU8();
    if (!control) return std::nullopt;
    const bool isRepeat = *control >= repeatFlag;
    const std::size_t count = isRepeat ? *control - repeatFlag + shortestRepeat : *control + std::size_t{1};
    const auto source = reader.readBytes(isRepeat ? 1 : count);
    if (!source || count > length - done) return std::nullopt;
    if (isRepeat)
      fillBlocks(out + done, source->front(), count);
    else if (reader.remaining() >= block)
      copyBlocks(out + done, source->data(), count);
    else
      std::memcpy(out + done, source->data(), count);
    done += count;
  }
  return reader.position();
}

struct Channels {
  Bytes bytes;               // one channel after the other, and a block
  std::size_t leftOver = 0;  // bytes of the packed data behind them
};

std::optional<Channels> unpackChannels(ByteView packed, std::size_t length) {
  // No control byte and its data make more than this, so a short element cannot ask for much memory.
  if (length / longestRepeat > packed.size() / 2) return std::nullopt;
  Channels channels{Bytes(length + block), 0};
  const auto taken = unpackInto(channels.bytes.data(), length, packed);
  if (!taken) return std::nullopt;
  channels.leftOver = packed.size() - *taken;
  return channels;
}

// How far left a byte goes in a word to be the `index`-th in memory.
constexpr int shiftTo(int index) {
  return 8 * (std::endian::native == std::endian::little ? index : 3 - index);
}

// Interleaves three channels to alpha, red, green, blue with alpha 0, or four. Whole words, which compilers vectorise.
Bytes interleave(const Channels& channels, std::size_t count, std::size_t pixels) {
  Bytes argb(4 * pixels);
  const std::uint8_t* alpha = channels.bytes.data();
  const std::uint8_t* red = alpha + (count - 3) * pixels;
  const std::uint8_t* green = red + pixels;
  const std::uint8_t* blue = green + pixels;
  const auto put = [out = argb.data()](std::size_t i, std::uint32_t a, std::uint32_t r, std::uint32_t g,
                                       std::uint32_t b) {
    const std::uint32_t word = a << shiftTo(0) | r << shiftTo(1) | g << shiftTo(2) | b << shiftTo(3);
    std::memcpy(out + 4 * i, &word, sizeof word);
  };
  if (count == 4)
    for (std::size_t i = 0; i < pixels; ++i) put(i, alpha[i], red[i], green[i], blue[i]);
  else
    for (std::size_t i = 0; i < pixels; ++i) put(i, 0, red[i], green[i], blue[i]);
  return argb;
}

// Pixels that were never packed, `stride` (3 or 4) bytes each, colour last.
Bytes fromUnpackedPixels(ByteView bytes, std::size_t pixels, std::size_t stride) {
  Bytes argb(4 * pixels);
  for (std::size_t i = 0; i < pixels; ++i) std::copy_n(&bytes[stride * i + stride - 3], 3, &argb[4 * i + 1]);
  return argb;
}

bool isTooLarge(std::size_t pixels) {
  return pixels > std::size_t{limits::elementPixels} * std::size_t{limits::elementPixels};
}

}  // namespace

Bytes packColorChannels(ByteView argb) {
  const std::size_t pixels = argb.size() / 4;
  Bytes channel(pixels + block);
  // Each step takes at least one byte and puts out at most one more than it takes.
  Bytes packed(3 * 2 * pixels + block);
  std::uint8_t* out = packed.data();
  for (std::size_t color = 1; color <= 3; ++color) {
    for (std::size_t i = 0; i < pixels; ++i) channel[i] = argb[4 * i + color];
    out = packChannel(out, channel.data(), channel.data() + pixels);
  }
  packed.resize(static_cast<std::size_t>(out - packed.data()));
  return packed;
}

Result<Bytes> unpackColorChannels(ByteView packed, std::size_t pixels) {
  if (isTooLarge(pixels)) return Error::tooLarge("packed colour with too many pixels");
  const auto channels = unpackChannels(packed, 3 * pixels);
  // Data of just the length of unpacked pixels may be packed all the same, so unpacking is tried first.
  if (channels && channels->leftOver == 0) return interleave(*channels, 3, pixels);
  if (packed.size() == 3 * pixels) return fromUnpackedPixels(packed, pixels, 3);
  if (packed.size() == 4 * pixels) return fromUnpackedPixels(packed, pixels, 4);
  if (channels && channels->leftOver <= strayBytes) return interleave(*channels, 3, pixels);
  return Error::invalidInput("packed colour does not unpack to its pixels");
}

Result<Bytes> unpackArgbChannels(ByteView packed, std::size_t pixels) {
  if (isTooLarge(pixels)) return Error::tooLarge("packed picture with too many pixels");
  const auto channels = unpackChannels(packed, 4 * pixels);
  if (!channels || channels->leftOver > strayBytes)
    return Error::invalidInput("packed picture does not unpack to its pixels");
  return interleave(*channels, 4, pixels);
}

}  // namespace quorvane
