#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Builds zip archives for tests, sound ones and ones that lie about themselves.
class ZipBuilder
{
public:
    enum class Packing
    {
        Stored,
        Deflated
    };

    /// Adds an entry; names may repeat.
    ZipBuilder& Add(const std::string& name, const std::string& bytes, Packing packing = Packing::Stored);

    /// Makes the last entry claim another unpacked size.
    ZipBuilder& ClaimSize(std::uint32_t size);

    /// Makes the last entry claim another checksum.
    ZipBuilder& ClaimChecksum(std::uint32_t checksum);

    /// Makes the last entry claim another way of packing.
    ZipBuilder& ClaimMethod(std::uint16_t method);

    /// Makes the last entry claim to be encrypted.
    ZipBuilder& ClaimEncryption();

    /// The bytes of the archive.
    [[nodiscard]] std::string Build() const;

private:
    struct Entry
    {
        std::string name;
        std::string packed;
        std::uint32_t unpackedSize = 0;
        std::uint32_t checksum = 0;
        std::uint16_t flags = 0;
        std::uint16_t method = 0;
    };

    std::vector<Entry> entries;
};
