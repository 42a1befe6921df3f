#pragma once

#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// What a drawing says of a style sheet outside itself.
struct StyleSheetLink
{
    OvxStringT name;         ///< What the sheet is called; the reference where the drawing gives no name.
    std::string reference;   ///< Where it is, as in the file.
    bool isEditable = false; ///< Its styles may be changed from the drawing.
    std::size_t place = 0;   ///< Where the element's start tag stands in its XML text.
};

/// The file that a reference leads to: a path relative to `folder`, an absolute path, or a "file:" URL of
/// this machine. "%20" and the like are decoded. An empty folder is the current one.
///
/// @returns nothing for an empty reference, and for everything that leads elsewhere.
[[nodiscard]] std::optional<std::filesystem::path> ResolveSheetReference(std::string_view reference,
                                                                         const std::filesystem::path& folder);

/// The reference that leads from the folder `to` to the file that `reference` leads to from the folder
/// `from`. Whether the file exists does not matter.
///
/// @returns `reference` itself where it does not depend on the folder, leads to no file, or the two folders
///          are one.
[[nodiscard]] std::string MoveSheetReference(const std::string& reference, const std::filesystem::path& from,
                                             const std::filesystem::path& to);

} // namespace ReferenceHost
