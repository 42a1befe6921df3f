#pragma once

#include "host/Export.h"

#include <pugixml.hpp>

#include <memory>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// Checks an XML text with ScanXml() and builds its tree, blanks between elements included.
///
/// The offset_debug() of an element is that of its name in `text` without its byte order mark.
///
/// @param label names the text in errors.
/// @throws DocumentError
[[nodiscard]] STYLEPROPERTIES_HOST_API std::unique_ptr<pugi::xml_document> ParseXml(std::string_view text,
                                                                                    const std::string& label);

} // namespace ReferenceHost
