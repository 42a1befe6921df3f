#include "reference_host/document/StyleReferences.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/XmlPrefixes.h"

#include <array>
#include <string_view>
#include <unordered_set>

namespace ReferenceHost
{

namespace
{

using Renamed = std::unordered_map<std::string, std::string>;

/// An attribute that may name a graphic style.
struct Referrer
{
    std::string_view uri;
    std::string_view local;
    bool isOfStyle; ///< It stands on a style of the graphic family; else on a shape.
};

constexpr std::array<Referrer, 3> kReferrers{{{Odf::kStyle, "parent-style-name", true},
                                              {OwnMarkup::kNamespace, OwnMarkup::kParent, true},
                                              {Odf::kDraw, "style-name", false}}};

class Renaming
{
public:
    Renaming(const Renamed& newNames, SavedPart& savedPart) : renamed(newNames), part(savedPart) {}

    void CollectAutomatic(pugi::xml_node container)
    {
        for (const pugi::xml_node style : container.children())
        {
            if (IsGraphicStyle(style))
                automatic.emplace(FindXmlAttribute(style, Odf::kStyle, "name").value());
        }
    }

    void Visit(pugi::xml_node element)
    {
        for (const Referrer& referrer : kReferrers)
            Follow(element, referrer);
        for (const pugi::xml_node child : element.children())
        {
            if (child.type() == pugi::node_element)
                Visit(child);
        }
    }

private:
    static bool IsGraphicStyle(pugi::xml_node element)
    {
        return IsXmlElement(element, {Odf::kStyle, "style"}) &&
               std::string_view(FindXmlAttribute(element, Odf::kStyle, "family").value()) == "graphic";
    }

    void Follow(pugi::xml_node element, const Referrer& referrer)
    {
        const pugi::xml_attribute attribute = FindXmlAttribute(element, referrer.uri, referrer.local);
        const auto found = attribute.empty() ? renamed.end() : renamed.find(attribute.value());
        if (found == renamed.end())
            return;
        const bool isPage = IsXmlElement(element, {Odf::kDraw, "page"}) ||
                            IsXmlElement(element, {Odf::kStyle, "master-page"});
        const bool isMeant =
            referrer.isOfStyle ? IsGraphicStyle(element) : !isPage && !automatic.contains(attribute.value());
        if (isMeant)
            part.GetEdits().SetAttributeUnlessEdited(
                element, {referrer.uri, std::string(referrer.local), found->second});
    }

    const Renamed& renamed;
    SavedPart& part;
    std::unordered_set<std::string_view> automatic; ///< Automatic graphic styles, which come first.
};

} // namespace

void RenameStyleReferences(const Renamed& renamed, SavedPart& part)
{
    if (renamed.empty())
        return;
    Renaming renaming(renamed, part);
    renaming.CollectAutomatic(part.FindContainer("automatic-styles"));
    renaming.Visit(part.GetSource().GetRoot());
}

} // namespace ReferenceHost
