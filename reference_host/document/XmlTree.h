#pragma once

#include "host/Export.h"
#include "reference_host/document/ProgressMeter.h"

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
/// @param label    names the text in errors.
/// @param progress the checking and the parsing are parts of it.
/// @throws DocumentError
[[nodiscard]] STYLEPROPERTIES_HOST_API std::unique_ptr<pugi::xml_document>
ParseXml(std::string_view text, const std::string& label, const ProgressSpan& progress = {});

/// Builds the tree of a text that was checked before; it is not gone over again.
///
/// @param label    names the text in errors.
/// @param progress told at the beginning and at the end alone.
/// @throws DocumentError
[[nodiscard]] std::unique_ptr<pugi::xml_document>
ParseCheckedXml(std::string_view text, const std::string& label, const ProgressSpan& progress = {});

} // namespace ReferenceHost
