#include "reference_host/document/KnownFiles.h"

#include <system_error>

namespace ReferenceHost
{

namespace
{

std::filesystem::path PlainPath(const std::filesystem::path& file)
{
    std::error_code failure;
    std::filesystem::path plain =
        std::filesystem::weakly_canonical(std::filesystem::absolute(file, failure), failure);
    return failure ? file : plain;
}

} // namespace

void KnownFiles::Note(const std::filesystem::path& file, std::string_view bytes)
{
    digests[PlainPath(file)] = DigestOf(bytes);
}

std::optional<FileDigest> KnownFiles::Find(const std::filesystem::path& file) const
{
    const auto found = digests.find(PlainPath(file));
    return found == digests.end() ? std::nullopt : std::optional(found->second);
}

} // namespace ReferenceHost
