#pragma once

#include <string>
#include <string_view>

namespace ReferenceHost
{

/// Tells whether a media type is that of a drawing template; throws for anything but a drawing.
///
/// @param label names the file in the error.
/// @throws DocumentError that says what the file is.
[[nodiscard]] bool IsTemplateMediaType(std::string_view mediaType, const std::string& label);

/// Throws unless `bodyElement`, the local name of the one element inside office:body, is that of a drawing.
///
/// @throws DocumentError that says what the file is.
void RequireDrawingBody(std::string_view bodyElement, const std::string& label);

/// The error for a file that is something else: "this is a presentation".
[[noreturn]] void FailNotADrawing(const std::string& whatItIs, const std::string& label);

} // namespace ReferenceHost
