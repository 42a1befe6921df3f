#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"
#include "host/xml/WXPath.h"
#include "host/xml/WXmlValueAccessor.h"

#include <memory>
#include <utility>
#include <vector>

/// A handle to an element.
///
/// Copies refer to the same element. The tree that holds it lives as long as any handle into it. Every
/// operation of an invalid handle does nothing and gives an empty answer.
class STYLEPROPERTIES_HOST_API WXmlNode
{
public:
    /// An invalid handle: no element.
    WXmlNode() = default;

    /// Tells whether the handle refers to an element.
    [[nodiscard]] bool IsValid() const noexcept { return element != nullptr; }

    /// The name of the element.
    [[nodiscard]] OvxStringT GetName() const;

    /// Adds an element after the last child.
    WXmlNode CreateChild(const OvxStringT& name);

    /// Addresses a value of this element: "@name" is the attribute `name`.
    [[nodiscard]] WXmlValueAccessor Attribute(const OvxStringT& address) const;

    /// The first element, in document order, that `path` finds from here; invalid when there is none.
    [[nodiscard]] WXmlNode GetNode(const WXPath& path) const;

    /// The child elements, in document order.
    [[nodiscard]] std::vector<WXmlNode> GetChildren() const;

    /// The names of the attributes, in document order, without "@".
    [[nodiscard]] std::vector<OvxStringT> GetAttributeNames() const;

    /// Two handles are equal when they refer to the same element.
    friend bool operator==(const WXmlNode& left, const WXmlNode& right) noexcept
    {
        return left.element == right.element;
    }

private:
    friend class WXmlDoc;
    friend class WXmlValueAccessor;

    WXmlNode(std::shared_ptr<void> owner, void* node) : tree(std::move(owner)), element(node) {}

    std::shared_ptr<void> tree; ///< Keeps alive what `element` points into; the host's own.
    void* element = nullptr;    ///< The host's own; null for an invalid handle.
};
