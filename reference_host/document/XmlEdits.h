#pragma once

#include "reference_host/document/XmlNames.h"
#include "reference_host/document/XmlSource.h"
#include "reference_host/document/XmlStartTag.h"

#include <pugixml.hpp>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// What an attribute shall be: its value, or none to be gone. Borrows the name's URI.
struct AttributeEdit
{
    std::string_view uri;
    std::string local;
    std::optional<std::string> value;
};

/// Edits of an XML text, gathered by the elements that they concern and spliced in all at once. Every byte
/// that no edit names stays as it is.
class XmlEdits
{
public:
    /// Borrows the source.
    explicit XmlEdits(const XmlSource& xmlSource);

    /// Sets or removes an attribute of an element. A value changes in place; a new attribute goes behind the
    /// others, with a prefix that is bound there, or is declared in the same tag.
    void SetAttribute(pugi::xml_node element, AttributeEdit edit);

    /// The same, unless the attribute was set or removed before.
    void SetAttributeUnlessEdited(pugi::xml_node element, AttributeEdit edit);

    /// Adds behind the last child element of an element, indented alike; several calls in their order. The
    /// element may be empty.
    void AppendChild(pugi::xml_node element, std::string xml);

    /// Adds before an element, or behind it, indented alike.
    void InsertBefore(pugi::xml_node element, const std::string& xml);
    void InsertBehind(pugi::xml_node element, const std::string& xml);

    /// Puts tags around the bytes from `begin` to `end`.
    void Wrap(std::size_t begin, std::size_t end, const std::string& openTag, const std::string& closeTag);

    /// Replaces the bytes from `begin` to `end`.
    void Replace(std::size_t begin, std::size_t end, std::string text);

    /// Removes an element with the indentation before it.
    void RemoveElement(pugi::xml_node element);

    /// Tells whether there is any edit.
    [[nodiscard]] bool IsEmpty() const noexcept;

    /// The text from `begin` to `end` with the edits in it; none may reach beyond.
    [[nodiscard]] std::string Apply(std::size_t begin, std::size_t end, ProgressSpan progress = {}) const;

    /// The whole text with all edits.
    [[nodiscard]] std::string Apply(const ProgressSpan& progress = {}) const;

private:
    /// At one place, what closes goes before what opens, and all else in the order of the calls.
    enum class Order
    {
        Closing,
        Usual,
        Opening
    };

    struct Splice
    {
        std::size_t begin;
        std::size_t end;
        Order order;
        std::string text;
    };

    /// What is to happen with one element.
    struct ElementEdits
    {
        pugi::xml_node element;
        std::vector<AttributeEdit> attributes;
        std::vector<std::string> children; ///< To be appended.
    };

    ElementEdits& EditsOf(pugi::xml_node element);

    /// The indentation of the first child of an element that has none yet.
    [[nodiscard]] std::string DeeperIndentation(pugi::xml_node element) const;
    void SpliceElement(const ElementEdits& edits, std::vector<Splice>& target) const;
    void SpliceChildren(const ElementEdits& edits, const StartTag& tag, std::vector<Splice>& target) const;

    const XmlSource& source;
    std::vector<Splice> splices;
    std::map<std::size_t, ElementEdits> elements; ///< By the places of the elements.
};

/// Writes a start tag for an element that is put where the names of `scope` are in force; the attributes
/// without a value are left out. `isEmpty` closes the tag.
[[nodiscard]] std::string WriteStartTag(pugi::xml_node scope, const XmlName& name,
                                        const std::vector<AttributeEdit>& attributes, bool isEmpty);

/// The end tag for what WriteStartTag() wrote with the same scope and name.
[[nodiscard]] std::string WriteEndTag(pugi::xml_node scope, const XmlName& name);

} // namespace ReferenceHost
