#include "reference_host/document/PaletteEdits.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/PropertyFormats.h"
#include "reference_host/document/XmlPrefixes.h"
#include "reference_host/document/XmlText.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr XmlName kUserDefined{Odf::kMeta, "user-defined"};

/// The name of the palette entry that an element holds; empty when it holds none.
std::string_view EntryNameOf(pugi::xml_node element)
{
    const std::string_view key = FindXmlAttribute(element, Odf::kMeta, "name").value();
    return key.starts_with(OwnMarkup::kPalettePrefix) ? key.substr(OwnMarkup::kPalettePrefix.size())
                                                      : std::string_view();
}

void ReplaceText(SavedPart& part, pugi::xml_node element, const std::string& text)
{
    const StartTag tag = part.GetSource().TagOf(element);
    const std::size_t end = part.GetSource().EndOf(element);
    const std::size_t closing = part.GetSource().GetText().rfind("</", end - 1);
    part.GetEdits().Replace(tag.end, closing, text);
}

/// Brings one element in line with its entry; one that the palette no longer holds is removed.
void WriteEntry(const SavingContext& context, SavedPart& part, pugi::xml_node element, std::string_view name)
{
    const auto& palette = context.data.palette;
    const auto entry = std::ranges::find(palette, OvxUtils::FromUtf8(name), &PaletteEntry::name);
    const auto inFile = ParseColour(TrimXmlBlanks(element.text().get()));
    if (!inFile)
        return;
    if (entry == palette.end())
        part.GetEdits().RemoveElement(element);
    else if (entry->look != *inFile)
        ReplaceText(part, element, FormatColour(entry->look));
}

} // namespace

void WritePalette(const SavingContext& context, SavedPart& meta)
{
    const pugi::xml_node container = meta.FindContainer("meta");
    std::unordered_set<std::string> known;
    for (const pugi::xml_node child : container.children())
    {
        const std::string_view name =
            IsXmlElement(child, kUserDefined) ? EntryNameOf(child) : std::string_view();
        if (name.empty() || !ParseColour(TrimXmlBlanks(child.text().get())))
            continue;
        // Of two entries with one name the first counts.
        if (known.emplace(name).second)
            WriteEntry(context, meta, child, name);
    }
    const pugi::xml_node scope = container.empty() ? meta.GetSource().GetRoot() : container;
    std::string added;
    for (const PaletteEntry& entry : context.data.palette)
    {
        const std::string name = OvxUtils::ToUtf8(entry.name);
        if (known.contains(name))
            continue;
        const std::string xml =
            WriteStartTag(scope, kUserDefined,
                          {{Odf::kMeta, "name", std::string(OwnMarkup::kPalettePrefix) + name},
                           {Odf::kMeta, "value-type", "string"}},
                          false) +
            FormatColour(entry.look) + WriteEndTag(scope, kUserDefined);
        if (container.empty())
            added += xml;
        else
            meta.GetEdits().AppendChild(container, xml);
    }
    if (!added.empty())
        InsertContainer(meta, "meta", added);
}

} // namespace ReferenceHost
