#pragma once

#include "reference_host/document/ProgressMeter.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// The packed form of an entry of a zip archive.
struct PackedEntry
{
    std::string bytes;
    std::uint32_t checksum = 0;
    std::size_t size = 0; ///< Unpacked.
};

/// Packs the contents of an entry. The same contents always give the same bytes.
///
/// @param label    names the file in errors.
/// @param progress is started with the unpacked size.
/// @throws DocumentError when there are 4 GiB or more, or no memory.
[[nodiscard]] PackedEntry PackEntry(std::string_view bytes, const std::string& label, ProgressSpan progress);

} // namespace ReferenceHost
