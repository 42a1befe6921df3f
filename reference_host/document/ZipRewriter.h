#pragma once

#include "reference_host/document/ProgressMeter.h"

#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// An entry of an archive that gets other contents, or that is new.
struct ZipReplacement
{
    std::string name;
    std::string bytes; ///< Unpacked.
};

/// Copies an archive with other contents of some entries.
///
/// All other entries keep their headers and packed bytes, and all keep their order, dates and comments; new
/// ones go behind them. Without replacements the result is `archive`.
///
/// @param label    names the file in errors.
/// @param progress of packing what was replaced.
/// @throws DocumentError when the archive is built in a way that this cannot copy: over 4 GiB, in several
///         files, or with a damaged directory.
[[nodiscard]] std::string RewriteZip(std::string_view archive,
                                     const std::vector<ZipReplacement>& replacements,
                                     const std::string& label, const ProgressSpan& progress = {});

} // namespace ReferenceHost
