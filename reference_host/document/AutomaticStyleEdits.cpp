#include "reference_host/document/AutomaticStyleEdits.h"

#include "reference_host/document/OdfNamespaces.h"

#include <algorithm>
#include <array>

namespace ReferenceHost
{

namespace
{

/// What automatic styles of a family are called, and the family in the file.
struct FamilyNames
{
    std::string_view prefix;
    std::string_view family;
};

constexpr std::array<FamilyNames, 3> kFamilyNames{{{"gr", "graphic"}, {"P", "paragraph"}, {"T", "text"}}};

const FamilyNames& NamesOf(StyleFamily family)
{
    return kFamilyNames[static_cast<std::size_t>(family)];
}

} // namespace

void SetShapeParent(std::vector<AttributeEdit>& attributes, const std::string& parent)
{
    const std::optional<std::string> name = parent.empty() ? std::nullopt : std::optional(parent);
    const std::optional<std::string> none = parent.empty() ? std::optional(std::string()) : std::nullopt;
    attributes.push_back({Odf::kStyle, "parent-style-name", name});
    attributes.push_back({OwnMarkup::kNamespace, std::string(OwnMarkup::kParent), none});
}

AutomaticStyleEdits::AutomaticStyleEdits(const SavingContext& savingContext, SavedPart& contentPart,
                                         const SavedPart& namedPart,
                                         const std::unordered_map<std::string, std::string>& newNames)
    : content(contentPart),
      named(namedPart),
      renamed(newNames),
      writer(savingContext, savingContext.data.declared)
{
}

void AutomaticStyleEdits::Change(const StyleReference& reference, StyleWish wish)
{
    const bool isAutomatic =
        reference.record != nullptr && reference.record->origin == StyleOrigin::Automatic;
    if (!isAutomatic)
        return AddUnderNamed(reference, wish);
    const auto [found, isNew] = placesOfChanged.try_emplace(reference.record, changed.size());
    if (isNew)
        changed.emplace_back(reference.record, std::vector<Group>());
    std::vector<Group>& groups = changed[found->second].second;
    auto group = std::ranges::find(groups, wish, &Group::wish);
    if (group == groups.end())
        group = groups.insert(groups.end(), Group{std::move(wish), {}});
    group->references.push_back(reference);
}

void AutomaticStyleEdits::AddUnderNamed(const StyleReference& reference, const StyleWish& wish)
{
    StyleWish whole = wish;
    if (!whole.parent)
        whole.parent = reference.record == nullptr ? std::string() : reference.record->name;
    Refer(reference, AddStyle(reference.family, std::move(whole)));
}

std::string AutomaticStyleEdits::AddStyle(StyleFamily family, StyleWish wish)
{
    std::erase_if(wish.changes, [](const auto& entry) { return entry.second.IsEmpty(); });
    const auto same = std::ranges::find_if(added, [&](const Added& each)
                                           { return each.family == family && each.wish == wish; });
    if (same != added.end())
        return same->name;
    added.push_back({family, std::move(wish), UnusedName(family)});
    return added.back().name;
}

void AutomaticStyleEdits::Finish(ProgressSpan progress)
{
    progress.Start(changed.size());
    std::size_t done = 0;
    for (const auto& [record, groups] : changed)
    {
        progress.Reach(done++);
        FinishStyle(*record, groups);
    }
    WriteAdded();
}

void AutomaticStyleEdits::FinishStyle(const StyleRecord& record, const std::vector<Group>& groups)
{
    const pugi::xml_node element = content.FindElement(record.place);
    std::size_t leaving = 0;
    for (const Group& group : groups)
        leaving += group.references.size();
    // Where nobody keeps the style as it is, the first take it with them.
    const bool isKept = content.CountReferences(record.name) > leaving;
    for (std::size_t number = 0; number < groups.size(); ++number)
    {
        const Group& group = groups[number];
        if (number == 0 && !isKept)
        {
            EditStyle(element, record, group.wish, content.GetEdits());
            continue;
        }
        const std::string name = UnusedName(record.family);
        const XmlSource& source = content.GetSource();
        XmlEdits copy(source);
        EditStyle(element, record, group.wish, copy);
        copy.SetAttribute(element, {Odf::kStyle, "name", name});
        const auto newParent = renamed.find(record.parentName);
        if (!group.wish.parent && record.family == StyleFamily::Graphic && newParent != renamed.end())
            copy.SetAttribute(element, {Odf::kStyle, "parent-style-name", newParent->second});
        content.GetEdits().InsertBehind(element, copy.Apply(source.BeginOf(element), source.EndOf(element)));
        for (const StyleReference& reference : group.references)
            Refer(reference, name);
    }
}

void AutomaticStyleEdits::EditStyle(pugi::xml_node element, const StyleRecord& record, const StyleWish& wish,
                                    XmlEdits& edits)
{
    std::vector<AttributeEdit> attributes;
    if (wish.parent)
        SetShapeParent(attributes, *wish.parent);
    AddOwnAttributes(attributes, wish);
    for (AttributeEdit& attribute : attributes)
        edits.SetAttribute(element, std::move(attribute));
    writer.EditProperties(element, wish.changes, "style \"" + record.name + "\"", edits);
    writer.EditRepeated(element, wish.repeated, edits);
}

PropertyValues AutomaticStyleEdits::FindRepeated(const StyleRecord& record,
                                                 const PropertyValues& changes) const
{
    return writer.FindRepeated(content.FindElement(record.place), changes);
}

void AutomaticStyleEdits::Refer(const StyleReference& reference, const std::string& name)
{
    content.GetEdits().SetAttribute(reference.element, {reference.uri, std::string(reference.local), name});
}

void AutomaticStyleEdits::WriteAdded()
{
    if (added.empty())
        return;
    const pugi::xml_node container = content.FindContainer("automatic-styles");
    // Without a container its future place, inside the root, is where names are looked up.
    const pugi::xml_node scope = container.empty() ? content.GetSource().GetRoot() : container;
    std::string all;
    for (const Added& each : added)
    {
        std::vector<AttributeEdit> attributes{
            {Odf::kStyle, "name", each.name},
            {Odf::kStyle, "family", std::string(NamesOf(each.family).family)}};
        const std::string parent = each.wish.parent.value_or(std::string());
        if (each.family == StyleFamily::Graphic)
            SetShapeParent(attributes, parent);
        else if (!parent.empty())
            attributes.push_back({Odf::kStyle, "parent-style-name", parent});
        AddOwnAttributes(attributes, each.wish);
        std::string xml =
            writer.WriteStyle(scope, "style", attributes, each.wish.changes, "style \"" + each.name + "\"");
        if (container.empty())
            all += xml;
        else
            content.GetEdits().AppendChild(container, std::move(xml));
    }
    if (container.empty())
        InsertContainer(content, "automatic-styles", all);
}

std::string AutomaticStyleEdits::UnusedName(StyleFamily family)
{
    std::size_t& number = lastNumbers[static_cast<std::size_t>(family)];
    for (;;)
    {
        const std::string name = std::string(NamesOf(family).prefix) + std::to_string(++number);
        if (!content.MentionsStyle(name) && !named.MentionsStyle(name))
            return name;
    }
}

} // namespace ReferenceHost
