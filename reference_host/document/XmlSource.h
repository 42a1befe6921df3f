#pragma once

#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/XmlStartTag.h"

#include <pugixml.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// Whether a text was found to be XML that can be trusted.
enum class XmlTrust
{
    ToBeChecked,
    WasChecked ///< When the drawing was opened: it is not gone over again.
};

/// An XML text together with its tree, and where in the text the nodes of the tree stand.
class XmlSource
{
public:
    /// Borrows the text.
    ///
    /// @param label    names the text in errors.
    /// @param progress of checking and parsing it.
    /// @throws DocumentError
    XmlSource(std::string_view xml, const std::string& label, const ProgressSpan& progress = {},
              XmlTrust trust = XmlTrust::ToBeChecked);

    [[nodiscard]] std::string_view GetText() const noexcept { return text; }

    [[nodiscard]] pugi::xml_node GetRoot() const { return tree->document_element(); }

    /// The place of the "<" of an element.
    [[nodiscard]] std::size_t BeginOf(pugi::xml_node element) const;

    /// The place behind a node: behind its end tag, or where its text ends.
    [[nodiscard]] std::size_t EndOf(pugi::xml_node node) const;

    /// Where a node begins, which may also be text or a CDATA section.
    [[nodiscard]] std::size_t BeginOfContent(pugi::xml_node node) const;

    [[nodiscard]] StartTag TagOf(pugi::xml_node element) const
    {
        return ReadStartTag(text, BeginOf(element));
    }

    /// The line break and the blanks that stand directly before an element; empty when the element does not
    /// begin its line.
    [[nodiscard]] std::string_view IndentationOf(pugi::xml_node element) const;

private:
    std::string_view text;
    std::size_t shift; ///< The length of the byte order mark, which the tree does not count.
    std::unique_ptr<pugi::xml_document> tree;
};

/// Where the start tag of an element stands in the text that ParseXml() got.
[[nodiscard]] std::size_t PlaceOfElement(pugi::xml_node element, std::string_view text);

} // namespace ReferenceHost
