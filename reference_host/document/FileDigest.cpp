#include "reference_host/document/FileDigest.h"

#include <array>
#include <fstream>

namespace ReferenceHost
{

namespace
{

// FNV-1a with its 64-bit offset and prime.
constexpr std::uint64_t kOffset = 0xCBF29CE484222325ULL;
constexpr std::uint64_t kPrime = 0x00000100000001B3ULL;

void Extend(FileDigest& digest, std::string_view bytes) noexcept
{
    for (const char byte : bytes)
        digest.checksum = (digest.checksum ^ static_cast<unsigned char>(byte)) * kPrime;
    digest.size += bytes.size();
}

} // namespace

FileDigest DigestOf(std::string_view bytes) noexcept
{
    FileDigest digest{0, kOffset};
    Extend(digest, bytes);
    return digest;
}

std::optional<FileDigest> DigestOfFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    FileDigest digest{0, kOffset};
    std::array<char, 1U << 16U> piece{};
    while (stream)
    {
        stream.read(piece.data(), static_cast<std::streamsize>(piece.size()));
        Extend(digest, {piece.data(), static_cast<std::size_t>(stream.gcount())});
    }
    return stream.eof() ? std::optional(digest) : std::nullopt;
}

} // namespace ReferenceHost
