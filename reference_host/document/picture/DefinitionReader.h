#pragma once

#include "reference_host/document/XmlNames.h"
#include "reference_host/document/picture/Definitions.h"
#include "reference_host/document/picture/PackagePictures.h"

#include <pugixml.hpp>

namespace ReferenceHost
{

/// Adds the gradients, hatches, fill images, dashes and markers below office:styles; the later one of a name
/// counts. `root` is the root element of an XML text, whose scope is in force. Definitions that cannot be
/// drawn are left out.
void ReadDefinitions(pugi::xml_node root, XmlNames& names, PackagePictures& pictures, Definitions& target);

} // namespace ReferenceHost
