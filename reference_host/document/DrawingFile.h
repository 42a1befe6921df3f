#pragma once

#include "reference_host/document/Drawing.h"
#include "reference_host/document/ProgressMeter.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace ReferenceHost
{

/// The bytes of a drawing as they lie on disk, and the XML texts in them.
struct DrawingFile
{
    DrawingForm form = DrawingForm::Flat;
    bool isTemplate = false; ///< As the package says; a flat file says it in its root element.
    std::string label;       ///< How errors name the file.
    std::string bytes;       ///< The whole file, and of a flat one its XML text.
    std::string content;     ///< content.xml of a package.
    std::string styles;      ///< styles.xml of a package; empty without it.
    std::string meta;        ///< meta.xml of a package; empty without it.
};

/// Reads a drawing and unpacks what is needed of it; its content tells which form it has.
///
/// @throws DocumentError when the file is missing, not a file, unreadable, empty, beyond a limit, protected,
///         or not a drawing. XML is not looked at yet.
[[nodiscard]] DrawingFile ReadDrawingFile(const std::filesystem::path& path,
                                          const ProgressSpan& progress = {});

/// The error for a file that the system does not let us read.
[[nodiscard]] DocumentError CannotRead(const std::string& label, std::error_code reason);

} // namespace ReferenceHost
