// Reads and writes the records of zip archives themselves: the archive library would write the headers of
// all entries anew.
#include "reference_host/document/ZipRewriter.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/document/ZipPacking.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr std::string_view kLocalSignature("PK\x03\x04", 4);
constexpr std::string_view kCentralSignature("PK\x01\x02", 4);
constexpr std::string_view kEndSignature("PK\x05\x06", 4);

// Sizes of the records without what varies, and places in them.
constexpr std::size_t kLocalSize = 30;
constexpr std::size_t kLocalNameLength = 26;
constexpr std::size_t kLocalExtraLength = 28;
constexpr std::size_t kLocalFlags = 6; // Then method, time, date, checksum, packed size, size.
constexpr std::size_t kCentralSize = 46;
constexpr std::size_t kCentralFlags = 8;
constexpr std::size_t kCentralNameLength = 28;
constexpr std::size_t kCentralOffset = 42;
constexpr std::size_t kEndSize = 22;
constexpr std::size_t kEndCounts = 8;
constexpr std::size_t kEndDirectorySize = 12;
constexpr std::size_t kEndDirectoryOffset = 16;

// From the flags on, the same in both headers.
constexpr std::size_t kMethod = 2;
constexpr std::size_t kTimeAndDate = 4;
constexpr std::size_t kChecksum = 8;
constexpr std::size_t kPackedSize = 12;
constexpr std::size_t kUnpackedSize = 16;

constexpr unsigned kDeflated = 8;
constexpr unsigned kUtf8Names = 1U << 11U;
constexpr std::uint32_t kLargest = std::numeric_limits<std::uint32_t>::max();

std::uint32_t Read(std::string_view bytes, std::size_t place, std::size_t count)
{
    std::uint32_t number = 0;
    for (std::size_t index = count; index-- > 0;)
        number = (number << 8U) | static_cast<unsigned char>(bytes[place + index]);
    return number;
}

void Patch(std::string& bytes, std::size_t place, std::size_t count, std::uint64_t number)
{
    for (std::size_t index = 0; index < count; ++index, number >>= 8U)
        bytes[place + index] = static_cast<char>(static_cast<unsigned char>(number & 0xFFU));
}

/// An entry by its record in the directory.
struct Entry
{
    std::string_view name;
    std::string directory; ///< The record with name, extra fields and comment.
    std::size_t begin = 0; ///< Of its local header in the archive.
    std::size_t end = 0;   ///< Where the next local header begins, or the directory.
};

/// The archive taken apart; the texts are borrowed from it.
struct Layout
{
    std::vector<Entry> entries; ///< In the order of the directory.
    std::size_t directory = 0;
    std::size_t end = 0; ///< The record at the end, with the archive's comment.
};

[[noreturn]] void FailUnusual(const std::string& label)
{
    throw DocumentError("the archive is built in a way that cannot be edited", label,
                        "a plain zip archive, as drawing programs write it");
}

std::size_t FindEnd(std::string_view archive, const std::string& label)
{
    for (std::size_t place = archive.rfind(kEndSignature); place != std::string_view::npos;
         place = place == 0 ? std::string_view::npos : archive.rfind(kEndSignature, place - 1))
    {
        const bool fits = archive.size() - place >= kEndSize &&
                          place + kEndSize + Read(archive, place + 20, 2) == archive.size();
        if (fits)
            return place;
    }
    FailUnusual(label);
}

Layout TakeApart(std::string_view archive, const std::string& label)
{
    Layout layout;
    layout.end = FindEnd(archive, label);
    layout.directory = Read(archive, layout.end + kEndDirectoryOffset, 4);
    const std::size_t count = Read(archive, layout.end + kEndCounts, 2);
    if (layout.directory + Read(archive, layout.end + kEndDirectorySize, 4) != layout.end)
        FailUnusual(label);
    std::size_t place = layout.directory;
    for (std::size_t number = 0; number < count; ++number)
    {
        if (place + kCentralSize > layout.end || !archive.substr(place).starts_with(kCentralSignature))
            FailUnusual(label);
        const std::size_t nameLength = Read(archive, place + kCentralNameLength, 2);
        const std::size_t size = kCentralSize + nameLength +
                                 Read(archive, place + kCentralNameLength + 2, 2) +
                                 Read(archive, place + kCentralNameLength + 4, 2);
        if (place + size > layout.end)
            FailUnusual(label);
        layout.entries.push_back({archive.substr(place + kCentralSize, nameLength),
                                  std::string(archive.substr(place, size)),
                                  Read(archive, place + kCentralOffset, 4), 0});
        place += size;
    }
    if (place != layout.end)
        FailUnusual(label);
    return layout;
}

/// Finds out where each entry ends: where another begins.
void FindEnds(Layout& layout, std::string_view archive, const std::string& label)
{
    std::vector<std::size_t> begins{layout.directory};
    for (const Entry& entry : layout.entries)
        begins.push_back(entry.begin);
    std::ranges::sort(begins);
    for (Entry& entry : layout.entries)
    {
        const auto next = std::ranges::upper_bound(begins, entry.begin);
        if (next == begins.end() || !archive.substr(entry.begin).starts_with(kLocalSignature) ||
            *next - entry.begin < kLocalSize)
            FailUnusual(label);
        entry.end = *next;
    }
}

/// Puts what a header says of the contents into it; `flags` is where its flags stand.
void Describe(std::string& header, std::size_t flags, const PackedEntry& packed)
{
    // Sizes stand in the header itself, and nothing is encrypted.
    Patch(header, flags, 2, Read(header, flags, 2) & kUtf8Names);
    Patch(header, flags + kMethod, 2, kDeflated);
    Patch(header, flags + kChecksum, 4, packed.checksum);
    Patch(header, flags + kPackedSize, 4, packed.bytes.size());
    Patch(header, flags + kUnpackedSize, 4, packed.size);
}

/// A new entry, dated like another: archives stay the same when they are written at another time.
Entry MakeEntry(const std::string& name, const Entry& dated)
{
    Entry entry;
    entry.directory = std::string(kCentralSignature) + std::string(kCentralSize - 4, '\0') + name;
    constexpr unsigned kVersionForDeflate = 20;
    Patch(entry.directory, 4, 2, kVersionForDeflate);
    Patch(entry.directory, 6, 2, kVersionForDeflate);
    Patch(entry.directory, kCentralNameLength, 2, name.size());
    const std::size_t date = kCentralFlags + kTimeAndDate;
    entry.directory.replace(date, 4, dated.directory, date, 4);
    return entry;
}

std::string MakeLocalHeader(const Entry& entry, const std::string& name)
{
    std::string header = std::string(kLocalSignature) + std::string(kLocalSize - 4, '\0') + name;
    // From the version on, the records are alike.
    header.replace(4, kLocalExtraLength - 4, entry.directory, 6, kLocalExtraLength - 4);
    return header;
}

/// Writes the archive piece by piece.
class Rewriter
{
public:
    Rewriter(std::string_view original, Layout& originalLayout, const std::string& fileLabel,
             const ProgressPieces& packing)
        : archive(original), layout(originalLayout), label(fileLabel), pieces(packing)
    {
    }

    std::string Write(const std::vector<ZipReplacement>& replacements)
    {
        std::vector<Entry*> inOrder;
        for (Entry& entry : layout.entries)
            inOrder.push_back(&entry);
        std::ranges::sort(inOrder, {}, &Entry::begin);
        std::size_t copied = 0;
        for (Entry* const entry : inOrder)
        {
            result += archive.substr(copied, entry->begin - copied);
            WriteEntry(*entry, replacements);
            copied = entry->end;
        }
        result += archive.substr(copied, layout.directory - copied);
        for (const ZipReplacement& replacement : replacements)
        {
            if (std::ranges::find(layout.entries, replacement.name, &Entry::name) == layout.entries.end())
                AddEntry(replacement);
        }
        WriteDirectory();
        return std::move(result);
    }

private:
    PackedEntry PackNext(const std::string& bytes)
    {
        return PackEntry(bytes, label, pieces.Next(bytes.size()));
    }

    void WriteEntry(Entry& entry, const std::vector<ZipReplacement>& replacements)
    {
        const std::size_t offset = result.size();
        const auto replacement = std::ranges::find(replacements, entry.name, &ZipReplacement::name);
        if (replacement == replacements.end())
            result += archive.substr(entry.begin, entry.end - entry.begin);
        else
        {
            const PackedEntry packed = PackNext(replacement->bytes);
            const std::size_t size = kLocalSize + Read(archive, entry.begin + kLocalNameLength, 2) +
                                     Read(archive, entry.begin + kLocalExtraLength, 2);
            std::string header(archive.substr(entry.begin, size));
            Describe(header, kLocalFlags, packed);
            Describe(entry.directory, kCentralFlags, packed);
            result += header + packed.bytes;
        }
        Patch(entry.directory, kCentralOffset, 4, offset);
    }

    void AddEntry(const ZipReplacement& replacement)
    {
        const PackedEntry packed = PackNext(replacement.bytes);
        Entry entry = MakeEntry(replacement.name, layout.entries.front());
        Describe(entry.directory, kCentralFlags, packed);
        Patch(entry.directory, kCentralOffset, 4, result.size());
        result += MakeLocalHeader(entry, replacement.name) + packed.bytes;
        added.push_back(std::move(entry));
    }

    void WriteDirectory()
    {
        const std::size_t begin = result.size();
        for (const auto* const entries : {&layout.entries, &added})
        {
            for (const Entry& entry : *entries)
                result += entry.directory;
        }
        std::string end(archive.substr(layout.end));
        const std::size_t count = layout.entries.size() + added.size();
        if (result.size() >= kLargest || count >= std::numeric_limits<std::uint16_t>::max())
            FailUnusual(label);
        Patch(end, kEndCounts, 2, count);
        Patch(end, kEndCounts + 2, 2, count);
        Patch(end, kEndDirectorySize, 4, result.size() - begin);
        Patch(end, kEndDirectoryOffset, 4, begin);
        result += end;
    }

    std::string_view archive;
    Layout& layout;
    const std::string& label;
    ProgressPieces pieces;
    std::string result;
    std::vector<Entry> added;
};

} // namespace

std::string RewriteZip(std::string_view archive, const std::vector<ZipReplacement>& replacements,
                       const std::string& label, const ProgressSpan& progress)
{
    Layout layout = TakeApart(archive, label);
    FindEnds(layout, archive, label);
    std::size_t toPack = 0;
    for (const ZipReplacement& replacement : replacements)
        toPack += replacement.bytes.size();
    const ProgressPieces pieces(progress.Part(ProgressPhase::Packing, 0, 1), toPack);
    return Rewriter(archive, layout, label, pieces).Write(replacements);
}

} // namespace ReferenceHost
