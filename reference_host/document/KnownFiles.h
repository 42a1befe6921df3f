#pragma once

#include "reference_host/document/FileDigest.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string_view>

namespace ReferenceHost
{

/// What a program has last written to which file, so that it notices when somebody else changes one.
class KnownFiles
{
public:
    void Note(const std::filesystem::path& file, std::string_view bytes);

    /// What the file held when it was last noted, under whatever path; none when it never was.
    [[nodiscard]] std::optional<FileDigest> Find(const std::filesystem::path& file) const;

private:
    std::map<std::filesystem::path, FileDigest> digests; ///< By paths without links.
};

} // namespace ReferenceHost
