#pragma once

#include "host/Export.h"

#include <span>
#include <string_view>

namespace ReferenceHost
{

/// One catalogue as it lies in the library.
struct BuiltInCatalogue
{
    std::string_view language; ///< "en", "de", ...
    std::string_view fileName; ///< The file it was made from, for error messages.
    std::string_view content;  ///< The bytes of the file.
};

/// All catalogues that were compiled in; English is the first. They live as long as the library.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::span<const BuiltInCatalogue> GetBuiltInCatalogues() noexcept;

} // namespace ReferenceHost
