#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace ReferenceHost
{

/// What is remembered of a file's bytes to notice another's changes: their number and a checksum. It keeps
/// nobody from forging a file.
struct FileDigest
{
    std::size_t size = 0;
    std::uint64_t checksum = 0;

    friend bool operator==(const FileDigest&, const FileDigest&) = default;
};

[[nodiscard]] FileDigest DigestOf(std::string_view bytes) noexcept;

/// Reads a file for its digest, piece by piece; none when it cannot be read.
[[nodiscard]] std::optional<FileDigest> DigestOfFile(const std::filesystem::path& file);

} // namespace ReferenceHost
