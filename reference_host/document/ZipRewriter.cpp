// Reads and writes the records of zip archives themselves: the archive library would write the headers of
// all entries anew.
#include "reference_host/document/ZipRewriter.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/document/ZipLayout.h"
#include "reference_host/document/ZipPacking.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

namespace ReferenceHost
{

namespace
{

using namespace ZipRecords;

constexpr unsigned kDeflated = 8;
constexpr unsigned kUtf8Names = 1U << 11U;
constexpr std::uint32_t kLargest = std::numeric_limits<std::uint32_t>::max();

void Patch(std::string& bytes, std::size_t place, std::size_t count, std::uint64_t number)
{
    for (std::size_t index = 0; index < count; ++index, number >>= 8U)
        bytes[place + index] = static_cast<char>(static_cast<unsigned char>(number & 0xFFU));
}

[[noreturn]] void FailUnusual(const std::string& label)
{
    throw DocumentError("the archive is built in a way that cannot be edited", label,
                        "a plain zip archive, as drawing programs write it");
}

/// The archive taken apart.
ZipLayout TakeApart(std::string_view archive, const std::string& label)
{
    std::optional<ZipLayout> layout = ReadZipLayout(archive);
    if (!layout || FindSharedEntry(*layout, archive) != nullptr || !FindEntryEnds(*layout, archive))
        FailUnusual(label);
    return std::move(*layout);
}

/// Puts what a header says of the contents into it; `flags` is where its flags stand.
void Describe(std::string& header, std::size_t flags, const PackedEntry& packed)
{
    // Sizes stand in the header itself, and nothing is encrypted.
    Patch(header, flags, 2, ReadZipNumber(header, flags, 2) & kUtf8Names);
    Patch(header, flags + kMethod, 2, kDeflated);
    Patch(header, flags + kChecksum, 4, packed.checksum);
    Patch(header, flags + kPackedSize, 4, packed.bytes.size());
    Patch(header, flags + kUnpackedSize, 4, packed.size);
}

/// A new entry, dated like another: archives stay the same when they are written at another time.
ZipEntry MakeEntry(const std::string& name, const ZipEntry& dated)
{
    ZipEntry entry;
    entry.directory = std::string(kCentralSignature) + std::string(kCentralSize - 4, '\0') + name;
    constexpr unsigned kVersionForDeflate = 20;
    Patch(entry.directory, 4, 2, kVersionForDeflate);
    Patch(entry.directory, 6, 2, kVersionForDeflate);
    Patch(entry.directory, kCentralNameLength, 2, name.size());
    const std::size_t date = kCentralFlags + kTimeAndDate;
    entry.directory.replace(date, 4, dated.directory, date, 4);
    return entry;
}

std::string MakeLocalHeader(const ZipEntry& entry, const std::string& name)
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
    Rewriter(std::string_view original, ZipLayout& originalLayout, const std::string& fileLabel,
             const ProgressPieces& packing)
        : archive(original), layout(originalLayout), label(fileLabel), pieces(packing)
    {
    }

    std::string Write(const std::vector<ZipReplacement>& replacements)
    {
        std::vector<ZipEntry*> inOrder;
        for (ZipEntry& entry : layout.entries)
            inOrder.push_back(&entry);
        std::ranges::sort(inOrder, {}, &ZipEntry::begin);
        std::size_t copied = 0;
        for (ZipEntry* const entry : inOrder)
        {
            result += archive.substr(copied, entry->begin - copied);
            WriteEntry(*entry, replacements);
            copied = entry->end;
        }
        result += archive.substr(copied, layout.directory - copied);
        for (const ZipReplacement& replacement : replacements)
        {
            if (std::ranges::find(layout.entries, replacement.name, &ZipEntry::name) == layout.entries.end())
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

    void WriteEntry(ZipEntry& entry, const std::vector<ZipReplacement>& replacements)
    {
        const std::size_t offset = result.size();
        const auto replacement = std::ranges::find(replacements, entry.name, &ZipReplacement::name);
        if (replacement == replacements.end())
            result += archive.substr(entry.begin, entry.end - entry.begin);
        else
        {
            const PackedEntry packed = PackNext(replacement->bytes);
            const std::size_t size = kLocalSize + ReadZipNumber(archive, entry.begin + kLocalNameLength, 2) +
                                     ReadZipNumber(archive, entry.begin + kLocalExtraLength, 2);
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
        ZipEntry entry = MakeEntry(replacement.name, layout.entries.front());
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
            for (const ZipEntry& entry : *entries)
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
    ZipLayout& layout;
    const std::string& label;
    ProgressPieces pieces;
    std::string result;
    std::vector<ZipEntry> added;
};

} // namespace

std::string RewriteZip(std::string_view archive, const std::vector<ZipReplacement>& replacements,
                       const std::string& label, const ProgressSpan& progress)
{
    ZipLayout layout = TakeApart(archive, label);
    std::size_t toPack = 0;
    for (const ZipReplacement& replacement : replacements)
        toPack += replacement.bytes.size();
    const ProgressPieces pieces(progress.Part(ProgressPhase::Packing, 0, 1), toPack);
    return Rewriter(archive, layout, label, pieces).Write(replacements);
}

} // namespace ReferenceHost
