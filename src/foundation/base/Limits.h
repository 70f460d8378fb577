// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

/// Every ceiling on foreign input, in one place. Over a limit is an error message, never a hang or a crash.
namespace quorvane::limits {

/// Longest icns file, companion file or resource fork that is read: the 3-byte data offset of a resource fork reaches
/// 16 MiB and real families stay below 2 MiB; 64 MiB leaves room for hand-made ones.
inline constexpr std::size_t iconFileBytes = std::size_t{64} << 20;
/// Largest family that is written as a resource: old readers cap a fork at 16 MiB.
inline constexpr std::size_t writtenFamilyBytes = (std::size_t{16} << 20) - 4096;
/// Elements of one family that are looked at. Real files hold up to about 30.
inline constexpr std::size_t familyElements = 4096;
/// Depth of families inside families. One level is all that makes sense.
inline constexpr int familyDepth = 1;
/// Width and height of a PNG or JPEG 2000 element; the largest slot is 1024.
inline constexpr int elementPixels = 4096;
/// Resources of one fork and entries of one companion that are looked at.
inline constexpr std::size_t forkResources = 8192;
inline constexpr std::size_t companionEntries = 512;

/// Longest property list, how many strings are taken out of it and how long they may be together (a binary one can
/// refer to one string many times), and how deep what is passed over may nest. Lists of ten thousand names reach 1 MiB.
inline constexpr std::size_t propertyListBytes = std::size_t{4} << 20;
inline constexpr std::size_t propertyListItems = 100'000;
inline constexpr std::size_t propertyListTextBytes = std::size_t{16} << 20;
inline constexpr int propertyListDepth = 1000;

/// Icons of a set that is made in one go (of a folder, of a zip file), and their bytes, which are held in memory.
inline constexpr std::size_t librarySetIcons = 10'000;
inline constexpr std::size_t libraryNewSetBytes = std::size_t{512} << 20;
/// Longest zip file, its entries (with what is left out), and how many times longer it may unpack to beyond the first
/// MiBs: pictures hardly get shorter.
inline constexpr std::size_t libraryArchiveBytes = std::size_t{512} << 20;
inline constexpr std::uint64_t libraryArchiveEntries = 20'000;
inline constexpr std::uint64_t libraryArchiveRatio = 100;

/// Longest list of recently used things, which all programs of a desktop share; long ones have some hundred kilobytes.
inline constexpr std::size_t recentListBytes = std::size_t{8} << 20;

/// Longest list of versions (appcast) that is fetched, its depth, its versions, and the attributes of one element,
/// which the XML reader compares with each other. Usual ones have some ten kilobytes.
inline constexpr std::size_t feedBytes = std::size_t{1} << 20;
inline constexpr int feedDepth = 32;
inline constexpr std::size_t feedItems = 1000;
inline constexpr int feedAttributes = 64;
/// Longest version, and what is shown of the news about it.
inline constexpr std::size_t versionCharacters = 100;
inline constexpr std::size_t newsCharacters = 20'000;
inline constexpr std::size_t newsLines = 400;

/// Longest ".directory" or ".hidden" file that is edited; usual ones have a few lines.
inline constexpr std::size_t folderSettingsBytes = std::size_t{16} << 20;

/// Longest settings file, longest single value in it as text, and how deep lists in it nest. Ours have a few kilobytes.
inline constexpr std::size_t settingsFileBytes = std::size_t{4} << 20;
inline constexpr std::size_t settingsValueBytes = std::size_t{1} << 20;
inline constexpr int settingsDepth = 16;

/// Longest output of another program that is kept, and desktop entry that is read.
inline constexpr std::size_t commandOutputBytes = std::size_t{256} << 20;
inline constexpr std::size_t desktopEntryBytes = std::size_t{256} << 10;

/// Longest ".git" file or "commondir" (one path), and list of what git does not look at; git itself reads 4 KiB and any
/// length.
inline constexpr std::size_t gitPointerBytes = std::size_t{16} << 10;
inline constexpr std::size_t gitExcludeBytes = std::size_t{4} << 20;
/// Longest table of mounts; thousands of them fit.
inline constexpr std::size_t mountTableBytes = std::size_t{4} << 20;
/// Entries of a folder that are searched for the marker of a synchronising client.
inline constexpr std::size_t markerEntries = 10'000;

/// Depth of folders that are removed with what is in them; ours are two deep.
inline constexpr int removedFolderDepth = 32;
/// Largest file that is copied to be kept where it cannot be kept by a second link.
inline constexpr std::size_t preservedCopyBytes = std::size_t{64} << 20;

/// Width and height of a picture file, and its area; 100 megapixels is a 400 MB bitmap.
inline constexpr int picturePixels = 32768;
inline constexpr std::int64_t pictureArea = 100'000'000;
/// Area of a JPEG 2000 picture: its decoder takes 16 bytes a pixel and more.
inline constexpr std::int64_t jpeg2000Area = std::int64_t{1} << 25;
/// Tiles, code blocks, and packets of one JPEG 2000 picture: each costs the decoder memory (about 6 KB, 700 and 2
/// bytes) whatever the file's length. Usual ones of the largest area have 32,000 code blocks.
inline constexpr std::int64_t jpeg2000Tiles = 4096;
inline constexpr std::int64_t jpeg2000Blocks = 1 << 18;
inline constexpr std::int64_t jpeg2000Packets = 1 << 22;
/// Elements of a vector picture, with everything that is drawn again by reference; and how deep they may nest.
inline constexpr std::int64_t svgElements = 200'000;
inline constexpr int svgDepth = 256;
/// Scans of one JPEG picture: progressive ones have about a dozen.
inline constexpr int jpegScans = 200;
/// Longest colour profile that is honoured; those of printing presses have up to about 4 MiB.
inline constexpr std::size_t profileBytes = std::size_t{16} << 20;
/// Channels of a layered picture (PSD), and blocks of its resources and of what goes with its layers that are looked
/// at.
inline constexpr int psdChannels = 56;
inline constexpr std::size_t psdBlocks = 4096;
/// Longest picture file.
inline constexpr std::size_t pictureFileBytes = std::size_t{512} << 20;

/// All values of one picture's metadata together, and the directories of a TIFF file that are looked into; a long
/// history of edits reaches some MiB. A directory has 256 entries at most: that is how far the library reads.
inline constexpr std::uint64_t metadataBytes = std::uint64_t{16} << 20;
inline constexpr std::size_t metadataDirectories = 64;
inline constexpr std::size_t metadataEntries = 256;

/// Longest TIFF file that is written: its offsets reach 4 GiB, other readers' often half of that.
inline constexpr std::uint64_t writtenTiffBytes = (std::uint64_t{1} << 31) - 1;

/// Longest label in bytes and lines; each costs layout time.
inline constexpr std::size_t labelBytes = 64 * 1024;
inline constexpr std::size_t labelLines = 1000;
/// Longest name of a font, which is looked for piece by piece; real ones stay below 100 bytes.
inline constexpr std::size_t fontNameBytes = 1024;

/// Width and height of a picture that is laid on icons, and its bytes as PNG: it has room in a look file beside the
/// rest. Longest single character in UTF-16 units; families and flags take up to about 16.
inline constexpr int overlayPixels = 512;
inline constexpr std::size_t overlayBytes = std::size_t{384} << 10;
inline constexpr std::size_t overlayEmojiUnits = 64;

/// Longest path of a list of folders: the system takes 4095 bytes, so a longer one is no path but a mistaken file.
inline constexpr std::size_t listedPathBytes = std::size_t{64} << 10;
/// Longest row of a table of folders, and its columns. A label is the longest field, six times as long as escaped JSON.
inline constexpr std::size_t rowBytes = std::size_t{1} << 20;
inline constexpr std::size_t rowColumns = 64;
/// Longest look file: a label that is escaped throughout, and room for what other programs keep in it.
inline constexpr std::size_t lookFileBytes = std::size_t{1} << 20;

/// Width and height of a composed icon and of a label's picture: four times the largest slot of a family. A larger base
/// is composed at this size.
inline constexpr int composedPixels = 4096;

}  // namespace quorvane::limits
