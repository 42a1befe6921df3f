#pragma once

#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/XmlEdits.h"
#include "reference_host/document/XmlSource.h"

#include <pugixml.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace ReferenceHost
{

/// One XML text of a drawing while it is saved: its tree, what is known of it, and the edits gathered for it.
class SavedPart
{
public:
    /// Borrows the text.
    ///
    /// @param label    names the text in errors.
    /// @param trust    whether the text was checked when the drawing was opened.
    /// @param progress of reading it.
    SavedPart(std::string_view text, const std::string& label, XmlTrust trust,
              const ProgressSpan& progress = {});

    [[nodiscard]] const XmlSource& GetSource() const noexcept { return source; }

    [[nodiscard]] XmlEdits& GetEdits() noexcept { return edits; }

    /// The element whose start tag stands at a place; null without one.
    [[nodiscard]] pugi::xml_node FindElement(std::size_t place) const;

    /// How many attributes name a style so, whatever their kind.
    [[nodiscard]] std::size_t CountReferences(std::string_view styleName) const;

    /// Tells whether any style is called so, or referred to.
    [[nodiscard]] bool MentionsStyle(std::string_view styleName) const;

    /// The child of the root with that local name in the namespace of office documents; null without it.
    [[nodiscard]] pugi::xml_node FindContainer(std::string_view local) const;

private:
    /// An element and where its start tag stands.
    struct PlacedElement
    {
        std::size_t place;
        pugi::xml_node element;
    };

    void Index(pugi::xml_node element, ProgressSpan& progress);

    XmlSource source;
    XmlEdits edits;
    std::vector<PlacedElement> elements; ///< In the order of the text, which is that of their places.
    std::unordered_map<std::string_view, std::size_t> references;
    std::unordered_set<std::string_view> styleNames;
};

/// Adds a container that a part does not have, with `xml` in it, where it belongs among the children of the
/// root. Names in `xml` are those of the root.
void InsertContainer(SavedPart& part, std::string_view local, const std::string& xml);

} // namespace ReferenceHost
