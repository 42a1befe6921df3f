#include "tests/reference_host/document/ZipBuilder.h"

#include <zlib.h>

namespace
{

void Append16(std::string& bytes, std::uint16_t number)
{
    bytes += static_cast<char>(number & 0xFFU);
    bytes += static_cast<char>(number >> 8U);
}

void Append32(std::string& bytes, std::uint32_t number)
{
    Append16(bytes, static_cast<std::uint16_t>(number & 0xFFFFU));
    Append16(bytes, static_cast<std::uint16_t>(number >> 16U));
}

/// Raw deflate, as zip entries hold it.
std::string Deflate(const std::string& bytes)
{
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 9, Z_DEFAULT_STRATEGY);
    std::string packed(deflateBound(&stream, bytes.size()), '\0');
    std::string source = bytes;
    stream.next_in = reinterpret_cast<Bytef*>(source.data());
    stream.avail_in = static_cast<uInt>(source.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

} // namespace

ZipBuilder& ZipBuilder::Add(const std::string& name, const std::string& bytes, Packing packing)
{
    Entry entry;
    entry.name = name;
    entry.packed = packing == Packing::Stored ? bytes : Deflate(bytes);
    entry.unpackedSize = static_cast<std::uint32_t>(bytes.size());
    entry.checksum = static_cast<std::uint32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size())));
    entry.method = packing == Packing::Stored ? 0 : 8;
    entries.push_back(entry);
    return *this;
}

ZipBuilder& ZipBuilder::ClaimSize(std::uint32_t size)
{
    entries.back().unpackedSize = size;
    return *this;
}

ZipBuilder& ZipBuilder::ClaimChecksum(std::uint32_t checksum)
{
    entries.back().checksum = checksum;
    return *this;
}

ZipBuilder& ZipBuilder::ClaimMethod(std::uint16_t method)
{
    entries.back().method = method;
    return *this;
}

ZipBuilder& ZipBuilder::ClaimEncryption()
{
    entries.back().flags = 1;
    return *this;
}

std::string ZipBuilder::Build() const
{
    const auto appendCommon = [](std::string& bytes, const Entry& entry)
    {
        Append16(bytes, 20);
        Append16(bytes, entry.flags);
        Append16(bytes, entry.method);
        Append16(bytes, 0);
        Append16(bytes, 0x21);
        Append32(bytes, entry.checksum);
        Append32(bytes, static_cast<std::uint32_t>(entry.packed.size()));
        Append32(bytes, entry.unpackedSize);
        Append16(bytes, static_cast<std::uint16_t>(entry.name.size()));
        Append16(bytes, 0);
    };
    std::string bytes;
    std::string directory;
    for (const Entry& entry : entries)
    {
        const auto offset = static_cast<std::uint32_t>(bytes.size());
        bytes += std::string("PK\x03\x04", 4);
        appendCommon(bytes, entry);
        bytes += entry.name + entry.packed;

        directory += std::string("PK\x01\x02", 4);
        Append16(directory, 20);
        appendCommon(directory, entry);
        directory += std::string(10, '\0'); // No comment, the first disk, no attributes.
        Append32(directory, offset);
        directory += entry.name;
    }
    const auto directoryOffset = static_cast<std::uint32_t>(bytes.size());
    bytes += directory + std::string("PK\x05\x06", 4) + std::string(4, '\0');
    Append16(bytes, static_cast<std::uint16_t>(entries.size()));
    Append16(bytes, static_cast<std::uint16_t>(entries.size()));
    Append32(bytes, static_cast<std::uint32_t>(directory.size()));
    Append32(bytes, directoryOffset);
    Append16(bytes, 0);
    return bytes;
}
