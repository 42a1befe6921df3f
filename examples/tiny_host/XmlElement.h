#pragma once

#include "host/utils/OvxStringT.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace TinyHost
{

/// An element of a tree: what the handles of host/xml point to. The handles share the element at the top.
struct XmlElement
{
    OvxStringT name;
    std::vector<std::pair<OvxStringT, OvxStringT>> attributes; ///< In document order.
    std::vector<std::unique_ptr<XmlElement>> children;         ///< In document order.

    /// The value of an attribute; null when it is absent.
    [[nodiscard]] const OvxStringT* FindAttribute(const OvxStringT& attribute) const;
};

/// Reads the one element that `text` holds; null when the text is malformed.
///
/// Comments, instructions, a document type and the text between elements are passed over; of the entities,
/// those that need no declaration are known.
[[nodiscard]] std::shared_ptr<XmlElement> ReadXml(const OvxStringT& text);

} // namespace TinyHost
