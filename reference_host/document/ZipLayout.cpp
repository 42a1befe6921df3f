#include "reference_host/document/ZipLayout.h"

#include <algorithm>

namespace ReferenceHost
{

namespace
{

using namespace ZipRecords;

/// The place of the record at the end; none without it.
std::optional<std::size_t> FindEnd(std::string_view archive)
{
    for (std::size_t place = archive.rfind(kEndSignature); place != std::string_view::npos;
         place = place == 0 ? std::string_view::npos : archive.rfind(kEndSignature, place - 1))
    {
        const bool fits = archive.size() - place >= kEndSize &&
                          place + kEndSize + ReadZipNumber(archive, place + 20, 2) == archive.size();
        if (fits)
            return place;
    }
    return std::nullopt;
}

/// Where the packed bytes of an entry end, as far as its headers say so; its beginning without a header.
std::size_t EndOfBytes(const ZipEntry& entry, std::string_view archive)
{
    const std::string_view rest = archive.substr(std::min(entry.begin, archive.size()));
    if (rest.size() < kLocalSize || !rest.starts_with(kLocalSignature))
        return entry.begin;
    return entry.begin + kLocalSize + ReadZipNumber(rest, kLocalNameLength, 2) +
           ReadZipNumber(rest, kLocalExtraLength, 2) +
           ReadZipNumber(entry.directory, kCentralFlags + kPackedSize, 4);
}

} // namespace

std::uint32_t ReadZipNumber(std::string_view bytes, std::size_t place, std::size_t count)
{
    std::uint32_t number = 0;
    for (std::size_t index = count; index-- > 0;)
        number = (number << 8U) | static_cast<unsigned char>(bytes[place + index]);
    return number;
}

std::optional<ZipLayout> ReadZipLayout(std::string_view archive)
{
    const std::optional<std::size_t> end = FindEnd(archive);
    if (!end)
        return std::nullopt;
    ZipLayout layout;
    layout.end = *end;
    layout.directory = ReadZipNumber(archive, layout.end + kEndDirectoryOffset, 4);
    const std::size_t count = ReadZipNumber(archive, layout.end + kEndCounts, 2);
    if (layout.directory + ReadZipNumber(archive, layout.end + kEndDirectorySize, 4) != layout.end)
        return std::nullopt;
    std::size_t place = layout.directory;
    for (std::size_t number = 0; number < count; ++number)
    {
        if (place + kCentralSize > layout.end || !archive.substr(place).starts_with(kCentralSignature))
            return std::nullopt;
        const std::size_t nameLength = ReadZipNumber(archive, place + kCentralNameLength, 2);
        const std::size_t size = kCentralSize + nameLength +
                                 ReadZipNumber(archive, place + kCentralNameLength + 2, 2) +
                                 ReadZipNumber(archive, place + kCentralNameLength + 4, 2);
        if (place + size > layout.end)
            return std::nullopt;
        layout.entries.push_back({archive.substr(place + kCentralSize, nameLength),
                                  std::string(archive.substr(place, size)),
                                  ReadZipNumber(archive, place + kCentralOffset, 4), 0});
        place += size;
    }
    return place == layout.end ? std::optional(std::move(layout)) : std::nullopt;
}

bool FindEntryEnds(ZipLayout& layout, std::string_view archive)
{
    std::vector<std::size_t> begins{layout.directory};
    for (const ZipEntry& entry : layout.entries)
        begins.push_back(entry.begin);
    std::ranges::sort(begins);
    for (ZipEntry& entry : layout.entries)
    {
        const auto next = std::ranges::upper_bound(begins, entry.begin);
        if (next == begins.end() || !archive.substr(entry.begin).starts_with(kLocalSignature) ||
            *next - entry.begin < kLocalSize)
            return false;
        entry.end = *next;
    }
    return true;
}

const ZipEntry* FindSharedEntry(const ZipLayout& layout, std::string_view archive)
{
    std::vector<const ZipEntry*> inOrder;
    for (const ZipEntry& entry : layout.entries)
        inOrder.push_back(&entry);
    std::ranges::sort(inOrder, {}, &ZipEntry::begin);
    for (std::size_t index = 0; index < inOrder.size(); ++index)
    {
        const bool isLast = index + 1 == inOrder.size();
        const std::size_t next = isLast ? layout.directory : inOrder[index + 1]->begin;
        if (EndOfBytes(*inOrder[index], archive) > next || (!isLast && inOrder[index]->begin == next))
            return inOrder[index];
    }
    return nullptr;
}

} // namespace ReferenceHost
