#include "reference_host/document/ZipArchive.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/document/ZipLayout.h"

#include <zip.h>

#include <algorithm>
#include <limits>
#include <optional>

namespace ReferenceHost
{

namespace
{

/// As many bytes as are unpacked before it is told how far that is.
constexpr std::size_t kUnpackedAtOnce = std::size_t{1} << 20U;

struct CloseFile
{
    void operator()(zip_file_t* file) const noexcept { zip_fclose(file); }
};

using OpenFile = std::unique_ptr<zip_file_t, CloseFile>;

std::uint64_t SaturatedSum(std::uint64_t left, std::uint64_t right)
{
    const std::uint64_t room = std::numeric_limits<std::uint64_t>::max() - left;
    return left + std::min(room, right);
}

zip* OpenArchive(std::string_view bytes, const std::string& label)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
    zip* const opened = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error);
    if (opened != nullptr)
    {
        zip_error_fini(&error);
        return opened;
    }
    zip_source_free(source);
    const std::string reason = zip_error_strerror(&error);
    zip_error_fini(&error);
    throw DocumentError("the archive cannot be read (" + reason + ")", label, "an intact zip archive");
}

} // namespace

void ZipArchive::Close::operator()(zip* opened) const noexcept
{
    zip_discard(opened);
}

ZipArchive::ZipArchive(std::string_view bytes, std::string fileLabel)
    : label(std::move(fileLabel)), archive(OpenArchive(bytes, label))
{
    CheckAnnouncedSizes();
    DemandSeparateEntries(bytes);
}

ZipArchive::~ZipArchive() = default;

void ZipArchive::CheckAnnouncedSizes() const
{
    std::uint64_t unpacked = 0;
    std::uint64_t packed = 0;
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    for (zip_int64_t index = 0; index < count; ++index)
    {
        zip_stat_t entry;
        zip_stat_init(&entry);
        if (zip_stat_index(archive.get(), static_cast<zip_uint64_t>(index), 0, &entry) != 0)
            continue;
        CheckUnpacked(entry.size, entry.comp_size, LabelOf(entry.name));
        unpacked = SaturatedSum(unpacked, entry.size);
        packed = SaturatedSum(packed, entry.comp_size);
    }
    CheckUnpacked(unpacked, packed, label);
}

void ZipArchive::DemandSeparateEntries(std::string_view bytes) const
{
    const std::optional<ZipLayout> layout = ReadZipLayout(bytes);
    if (!layout)
        return;
    if (const ZipEntry* const shared = FindSharedEntry(*layout, bytes))
        throw DocumentError("the entry shares its bytes with another", LabelOf(std::string(shared->name)),
                            "bytes of its own for each entry");
}

void ZipArchive::CheckUnpacked(std::uint64_t unpacked, std::uint64_t packed, const std::string& where) const
{
    if (unpacked > kLargestUnpacked)
    {
        throw DocumentError("there are more than " + std::to_string(kLargestUnpacked >> 20U) +
                                " MiB unpacked",
                            where, "a smaller drawing");
    }
    if (unpacked > kRatioLimitFrom && unpacked / kLargestRatio > packed)
    {
        throw DocumentError("it is packed to less than one part in " + std::to_string(kLargestRatio), where,
                            "a drawing, which packs less well");
    }
}

bool ZipArchive::Contains(const std::string& entry) const
{
    return zip_name_locate(archive.get(), entry.c_str(), 0) >= 0;
}

std::uint64_t ZipArchive::FindOnly(const std::string& entry) const
{
    const zip_int64_t found = zip_name_locate(archive.get(), entry.c_str(), 0);
    if (found < 0)
        throw DocumentError("there is no entry " + entry, label, "a package with " + entry);
    // Of two entries with one name each program would pick its own.
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    for (zip_int64_t index = 0; index < count; ++index)
    {
        const char* const name = zip_get_name(archive.get(), static_cast<zip_uint64_t>(index), 0);
        if (index != found && name != nullptr && entry == name)
            throw DocumentError("the entry " + entry + " is there twice", label, "it once");
    }
    return static_cast<std::uint64_t>(found);
}

std::string ZipArchive::Read(const std::string& entry, ProgressSpan progress) const
{
    const std::uint64_t index = FindOnly(entry);
    zip_stat_t stat;
    zip_stat_init(&stat);
    zip_stat_index(archive.get(), index, 0, &stat);
    if (stat.encryption_method != ZIP_EM_NONE)
        throw DocumentError("the entry is encrypted", LabelOf(entry), "a drawing without a password");
    const OpenFile file(zip_fopen_index(archive.get(), index, 0));
    if (file == nullptr)
    {
        throw DocumentError(std::string("the entry cannot be unpacked (") + zip_strerror(archive.get()) + ")",
                            LabelOf(entry), "an intact entry");
    }
    std::string text(stat.size, '\0');
    progress.Start(text.size());
    std::size_t length = 0;
    while (length < text.size())
    {
        const zip_int64_t got =
            zip_fread(file.get(), text.data() + length, std::min(kUnpackedAtOnce, text.size() - length));
        if (got < 0)
            FailDamaged(zip_file_strerror(file.get()), entry);
        if (got == 0)
            FailDamaged("it ends early", entry);
        length += static_cast<std::size_t>(got);
        progress.Reach(length);
    }
    // Reading on to the end checks the checksum, and that there is no more than was announced.
    char beyond = 0;
    const zip_int64_t more = zip_fread(file.get(), &beyond, 1);
    if (more != 0)
        FailDamaged(more < 0 ? zip_file_strerror(file.get()) : "it holds more than the archive announces",
                    entry);
    return text;
}

void ZipArchive::FailDamaged(const std::string& reason, const std::string& entry) const
{
    throw DocumentError("the entry is damaged (" + reason + ")", LabelOf(entry), "an intact entry");
}

std::string ZipArchive::LabelOf(const std::string& entry) const
{
    return label + ", " + entry;
}

} // namespace ReferenceHost
