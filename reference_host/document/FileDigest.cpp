#include "reference_host/document/FileDigest.h"

#include <array>
#include <cstring>
#include <fstream>

namespace ReferenceHost
{

namespace
{

/// Gathers a digest from the pieces of a file, of which all but the last are whole numbers of blocks.
///
/// FNV-1a with its 64-bit offset and prime, over words in place of bytes and in several lanes: each step
/// waits for the one before it in its lane, so that a large file would take as long as parsing it, byte by
/// byte.
class Digesting
{
public:
    void Add(std::string_view bytes) noexcept
    {
        size += bytes.size();
        while (bytes.size() >= kBlock)
        {
            std::array<std::uint64_t, kLanes> words{};
            std::memcpy(words.data(), bytes.data(), kBlock);
            for (std::size_t lane = 0; lane < kLanes; ++lane)
                Mix(lanes[lane], words[lane]);
            bytes.remove_prefix(kBlock);
        }
        for (const char byte : bytes)
            Mix(lanes.front(), static_cast<unsigned char>(byte));
    }

    [[nodiscard]] FileDigest Finish() const noexcept
    {
        std::uint64_t checksum = lanes.front();
        for (std::size_t lane = 1; lane < kLanes; ++lane)
            Mix(checksum, lanes[lane]);
        return {size, checksum};
    }

private:
    static constexpr std::size_t kLanes = 4;
    static constexpr std::size_t kBlock = kLanes * sizeof(std::uint64_t);
    static constexpr std::uint64_t kOffset = 0xCBF29CE484222325ULL;
    static constexpr std::uint64_t kPrime = 0x00000100000001B3ULL;

    /// The product carries bits upwards alone; the shift brings those of the upper half down again.
    static void Mix(std::uint64_t& lane, std::uint64_t word) noexcept
    {
        lane = (lane ^ word) * kPrime;
        lane ^= lane >> 32U;
    }

    std::array<std::uint64_t, kLanes> lanes{kOffset, kOffset + 1, kOffset + 2, kOffset + 3};
    std::size_t size = 0;
};

} // namespace

FileDigest DigestOf(std::string_view bytes) noexcept
{
    Digesting digesting;
    digesting.Add(bytes);
    return digesting.Finish();
}

std::optional<FileDigest> DigestOfFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    Digesting digesting;
    std::array<char, 1U << 16U> piece{};
    while (stream)
    {
        stream.read(piece.data(), static_cast<std::streamsize>(piece.size()));
        digesting.Add({piece.data(), static_cast<std::size_t>(stream.gcount())});
    }
    return stream.eof() ? std::optional(digesting.Finish()) : std::nullopt;
}

} // namespace ReferenceHost
