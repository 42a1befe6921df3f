#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// How the records of zip archives look.
namespace ZipRecords
{

inline constexpr std::string_view kLocalSignature("PK\x03\x04", 4);
inline constexpr std::string_view kCentralSignature("PK\x01\x02", 4);
inline constexpr std::string_view kEndSignature("PK\x05\x06", 4);

// Sizes of the records without what varies, and places in them.
inline constexpr std::size_t kLocalSize = 30;
inline constexpr std::size_t kLocalNameLength = 26;
inline constexpr std::size_t kLocalExtraLength = 28;
inline constexpr std::size_t kLocalFlags = 6; // Then method, time, date, checksum, packed size, size.
inline constexpr std::size_t kCentralSize = 46;
inline constexpr std::size_t kCentralFlags = 8;
inline constexpr std::size_t kCentralNameLength = 28;
inline constexpr std::size_t kCentralOffset = 42;
inline constexpr std::size_t kEndSize = 22;
inline constexpr std::size_t kEndCounts = 8;
inline constexpr std::size_t kEndDirectorySize = 12;
inline constexpr std::size_t kEndDirectoryOffset = 16;

// From the flags on, the same in both headers.
inline constexpr std::size_t kMethod = 2;
inline constexpr std::size_t kTimeAndDate = 4;
inline constexpr std::size_t kChecksum = 8;
inline constexpr std::size_t kPackedSize = 12;
inline constexpr std::size_t kUnpackedSize = 16;

} // namespace ZipRecords

/// An entry by its record in the directory of an archive.
struct ZipEntry
{
    std::string_view name;
    std::string directory; ///< The record with name, extra fields and comment.
    std::size_t begin = 0; ///< Of its local header in the archive.
    std::size_t end = 0;   ///< Where the next local header begins, or the directory; see FindEntryEnds().
};

/// Where the parts of an archive stand; the texts are borrowed from it.
struct ZipLayout
{
    std::vector<ZipEntry> entries; ///< In the order of the directory.
    std::size_t directory = 0;
    std::size_t end = 0; ///< The record at the end, with the archive's comment.
};

/// The number in `count` bytes, at most four, the least significant first. They lie within `bytes`.
[[nodiscard]] std::uint32_t ReadZipNumber(std::string_view bytes, std::size_t place, std::size_t count);

/// Reads the directory of an archive. Nothing that it says of the entries is checked.
///
/// @returns none for an archive over 4 GiB, one in several files, or a damaged directory.
[[nodiscard]] std::optional<ZipLayout> ReadZipLayout(std::string_view archive);

/// Finds out where each entry ends: where another begins.
///
/// @returns whether the archive can be parted so; not when a local header is missing.
[[nodiscard]] bool FindEntryEnds(ZipLayout& layout, std::string_view archive);

/// An entry that has bytes in common with another, or with the directory; null when there is none. Only
/// archives that were made to unpack to far more than they are have such entries.
[[nodiscard]] const ZipEntry* FindSharedEntry(const ZipLayout& layout, std::string_view archive);

} // namespace ReferenceHost
