#include "reference_host/document/NamedStyleEdits.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/StyleNames.h"
#include "reference_host/document/SubstyleInheritance.h"
#include "reference_host/document/XmlPrefixes.h"

#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// The category of a style of one category; the empty key for a whole style.
Styles::PropertyKey OwnCategoryOf(const Styles::Style& style)
{
    const Styles::PropertyKey category = style.GetCategoryName();
    return category == Styles::StyleCategoryName ? Styles::PropertyKey::Empty : category;
}

bool IsNamedGraphic(const StyleRecord& record)
{
    return record.family == StyleFamily::Graphic && record.origin == StyleOrigin::Named;
}

std::string Quoted(const OvxStringT& name)
{
    return "style \"" + OvxUtils::ToUtf8(name) + "\"";
}

} // namespace

NamedStyleEdits::NamedStyleEdits(const SavingContext& savingContext, SavedPart& namedPart)
    : context(savingContext), part(namedPart), writer(savingContext, savingContext.data.namedDeclared)
{
    NameStyles();
}

void NamedStyleEdits::NameStyles()
{
    const NamedStyleSheet& sheet = context.data.sheet;
    for (const StyleRecord& record : context.data.catalogue.GetRecords())
    {
        if (!IsNamedGraphic(record) || record.style == nullptr)
            continue;
        const OvxStringT name = sheet.GetStyleName(record.style);
        if (name.empty())
            continue;
        std::string inFile = name == record.sheetName ? record.name : EncodeStyleName(name);
        if (inFile != record.name)
            renamed.emplace(record.name, inFile);
        namesInFile.emplace(record.style, std::move(inFile));
    }
    for (const OvxStringT& name : sheet.GetNames())
        namesInFile.try_emplace(sheet.GetStyle(name), EncodeStyleName(name));
    NameExternalStyles();
}

void NamedStyleEdits::NameExternalStyles()
{
    std::unordered_set<std::string> taken;
    for (const auto& [style, name] : namesInFile)
        taken.insert(name);
    for (const StyleRecord& record : context.data.catalogue.GetRecords())
    {
        // What nobody here knows stays in the file as it is.
        if (IsNamedGraphic(record) && record.style == nullptr)
            taken.insert(record.name);
    }
    for (const std::unique_ptr<ExternalSheet>& outside : context.data.sheets.GetAll())
    {
        for (const StyleRecord& record : outside->data->catalogue.GetRecords())
        {
            if (IsNamedGraphic(record) && taken.insert(record.name).second && record.style != nullptr)
                namesInFile.emplace(record.style, record.name);
        }
    }
}

std::string NamedStyleEdits::NameInFile(const Styles::Style* style) const
{
    const auto found = namesInFile.find(style);
    return found == namesInFile.end() ? std::string() : found->second;
}

void NamedStyleEdits::Write()
{
    WriteDefault();
    std::unordered_set<const Styles::Style*> known;
    for (const StyleRecord& record : context.data.catalogue.GetRecords())
    {
        if (!IsNamedGraphic(record) || record.style == nullptr)
            continue;
        known.insert(record.style);
        if (namesInFile.contains(record.style))
            WriteKnown(record);
        else
            part.GetEdits().RemoveElement(part.FindElement(record.place));
    }
    const NamedStyleSheet& sheet = context.data.sheet;
    for (const OvxStringT& name : sheet.GetNames())
    {
        if (!known.contains(sheet.GetStyle(name)))
            WriteNew(name, *sheet.GetStyle(name));
    }
    if (!withoutContainer.empty())
        InsertContainer(part, "styles", withoutContainer);
}

void NamedStyleEdits::WriteDefault()
{
    const DrawingData& data = context.data;
    std::vector<const StyleRecord*> levels;
    if (data.defaultRecord)
        levels.push_back(&*data.defaultRecord);
    const auto before = EvaluateRecords(context, Styles::PropertyKey::Empty, nullptr, false, levels, nullptr);
    const PropertyValues changes =
        ChangesBetween(OwnValuesOf(*before, data.table), OwnValuesOf(*data.defaultStyle, data.table));
    if (changes.empty())
        return;
    const std::string name = "the default style";
    if (data.defaultRecord)
        return writer.EditProperties(part.FindElement(data.defaultRecord->place), changes, name,
                                     part.GetEdits());
    const pugi::xml_node container = part.FindContainer("styles");
    const pugi::xml_node scope = container.empty() ? part.GetSource().GetRoot() : container;
    std::string xml =
        writer.WriteStyle(scope, "default-style", {{Odf::kStyle, "family", "graphic"}}, changes, name);
    const pugi::xml_node first = container.find_child(
        [](pugi::xml_node child) {
            return IsXmlElement(child, {Odf::kStyle, "style"});
        });
    if (first.empty())
        Append(std::move(xml), container);
    else
        part.GetEdits().InsertBefore(first, xml);
}

void NamedStyleEdits::WriteKnown(const StyleRecord& record)
{
    const pugi::xml_node element = part.FindElement(record.place);
    Styles::Style& style = *record.style;
    std::vector<AttributeEdit> attributes;
    AddNaming(record, attributes);
    if (!attributes.empty())
        RenameRepetitions(element, attributes);
    Styles::Style* const parentInFile = record.parent == nullptr ? nullptr : record.parent->style;
    if (style.GetParent() != parentInFile)
        AddParent(style, attributes);

    const StyleRecord* const level = &record;
    const auto before =
        EvaluateRecords(context, OwnCategoryOf(style), style.GetParent(), true, {&level, 1}, &style);
    const PropertyMappings& table = context.data.table;
    const PropertyValues own = OwnValuesOf(style, table);
    StyleWish wish{ChangesBetween(OwnValuesOf(*before, table), own)};
    AddSubstyleInheritance(context, *this, style, &record, own, wish);
    AddOwnAttributes(attributes, wish);
    for (AttributeEdit& attribute : attributes)
        part.GetEdits().SetAttribute(element, std::move(attribute));
    if (!wish.changes.empty())
        writer.EditProperties(element, wish.changes, Quoted(context.data.sheet.GetStyleName(&style)),
                              part.GetEdits());
}

void NamedStyleEdits::RenameRepetitions(pugi::xml_node style, const std::vector<AttributeEdit>& naming)
{
    const auto attribute = [](pugi::xml_node element, std::string_view local)
    { return std::string_view(FindXmlAttribute(element, Odf::kStyle, local).value()); };
    for (pugi::xml_node other : style.parent().children())
    {
        const bool isRepetition = other != style && IsXmlElement(other, {Odf::kStyle, "style"}) &&
                                  attribute(other, "name") == attribute(style, "name") &&
                                  attribute(other, "family") == attribute(style, "family");
        for (const AttributeEdit& edit : naming)
        {
            if (isRepetition)
                part.GetEdits().SetAttribute(other, edit);
        }
    }
}

void NamedStyleEdits::AddNaming(const StyleRecord& record, std::vector<AttributeEdit>& attributes) const
{
    const OvxStringT name = context.data.sheet.GetStyleName(record.style);
    const std::string inFile = NameInFile(record.style);
    const std::string displayName = DisplayNameOf(name);
    const bool isRenamed = inFile != record.name;
    if (!isRenamed && displayName == record.displayName)
        return;
    attributes.push_back({Odf::kStyle, "name", inFile});
    const bool isNeeded = !displayName.empty() || (isRenamed && inFile != OvxUtils::ToUtf8(name));
    const std::string shown = displayName.empty() ? OvxUtils::ToUtf8(name) : displayName;
    attributes.push_back({Odf::kStyle, "display-name", isNeeded ? std::optional(shown) : std::nullopt});
}

std::string NamedStyleEdits::DisplayNameOf(const OvxStringT& name) const
{
    const auto found = context.data.appearances.find(name);
    return found == context.data.appearances.end() ? std::string()
                                                   : OvxUtils::ToUtf8(found->second.displayName);
}

void NamedStyleEdits::AddParent(const Styles::Style& style, std::vector<AttributeEdit>& attributes) const
{
    const std::string parent = NameInFile(style.GetParent());
    if (parent.empty() && style.GetParent() != nullptr)
        context.warnings.Add(
            Quoted(context.data.sheet.GetStyleName(&style)) +
            ": its parent is no style that the drawing can name; it was saved without a parent");
    const std::optional<std::string> name = parent.empty() ? std::nullopt : std::optional(parent);
    attributes.push_back({Odf::kStyle, "parent-style-name", name});
    // A style of one category says its parent twice: other programs inherit by the first, and a whole style
    // that happens to be called so is no parent here.
    if (OwnCategoryOf(style) != Styles::PropertyKey::Empty)
        attributes.push_back({OwnMarkup::kNamespace, std::string(OwnMarkup::kParent), name});
}

void NamedStyleEdits::WriteNew(const OvxStringT& name, Styles::Style& style)
{
    const std::string inFile = NameInFile(&style);
    const std::string displayName = DisplayNameOf(name);
    const std::string shown = displayName.empty() ? OvxUtils::ToUtf8(name) : displayName;
    std::vector<AttributeEdit> attributes{
        {Odf::kStyle, "name", inFile},
        {Odf::kStyle, "display-name", shown == inFile ? std::nullopt : std::optional(shown)},
        {Odf::kStyle, "family", "graphic"}};
    const Styles::PropertyKey category = OwnCategoryOf(style);
    if (category != Styles::PropertyKey::Empty)
        attributes.push_back({OwnMarkup::kNamespace, std::string(OwnMarkup::kCategory),
                              OvxUtils::ToUtf8(category.GetString())});
    AddParent(style, attributes);
    const PropertyValues own = OwnValuesOf(style, context.data.table);
    StyleWish wish{own};
    AddSubstyleInheritance(context, *this, style, nullptr, own, wish);
    AddOwnAttributes(attributes, wish);
    const pugi::xml_node container = part.FindContainer("styles");
    const pugi::xml_node scope = container.empty() ? part.GetSource().GetRoot() : container;
    Append(writer.WriteStyle(scope, "style", attributes, wish.changes, Quoted(name)), container);
}

void NamedStyleEdits::Append(std::string xml, pugi::xml_node container)
{
    if (container.empty())
        withoutContainer += xml;
    else
        part.GetEdits().AppendChild(container, std::move(xml));
}

} // namespace ReferenceHost
