#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"
#include "host/xml/WXmlNode.h"

/// A document that nodes are made in.
///
/// Each node made by CreateNode heads a tree of its own, which lives as long as a handle into it does and no
/// longer.
class STYLEPROPERTIES_HOST_API WXmlDoc
{
public:
    /// A document without content.
    WXmlDoc() = default;

    /// Replaces the content by the element that `text` holds. A malformed text leaves the document without
    /// content.
    ///
    /// @returns whether `text` was well-formed.
    bool Load(const OvxStringT& text);

    /// The element that was loaded; invalid without content.
    [[nodiscard]] WXmlNode GetRoot() const;

    /// Makes an element without a namespace, outside the loaded content.
    [[nodiscard]] WXmlNode CreateNode(const OvxStringT& name);

private:
    WXmlNode root;
};
