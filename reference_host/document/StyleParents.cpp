#include "reference_host/document/StyleParents.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// More generations than any drawing has. Every look-up climbs all of them.
constexpr std::size_t kMostGenerations = 255;

/// Where a walk along parents has been.
struct Visit
{
    bool isUnderway = true;
    std::size_t generation = 0; ///< How many styles it inherits from, once it is not under way.
};

/// What a style calls its parent: a style of one category has a second one, which counts here.
const std::string& ParentNameOf(const StyleRecord& record)
{
    return record.ownCategory.empty() ? record.parentName : record.ownParentName;
}

/// Automatic graphic styles belong to shapes, which have a rule of their own for missing parents.
bool HasParentHere(const StyleRecord& record)
{
    const bool isOfAShape = record.family == StyleFamily::Graphic && record.origin == StyleOrigin::Automatic;
    return !isOfAShape && !ParentNameOf(record).empty();
}

StyleRecord* FindParent(StyleCatalogue& catalogue, const StyleRecord& record)
{
    StyleRecord* const parent = catalogue.FindNamed(record.family, ParentNameOf(record));
    return parent != nullptr && parent->ownCategory == record.ownCategory ? parent : nullptr;
}

/// Follows parents from one style, and cuts the link that leads back to where the walk has been.
class CycleCutter
{
public:
    CycleCutter(std::vector<StyleRecord*>& orderedStyles, Warnings& reports)
        : ordered(orderedStyles), warnings(reports)
    {
    }

    void Follow(StyleRecord& first)
    {
        std::vector<StyleRecord*> way;
        for (StyleRecord* record = &first;
             record != nullptr && !record->isExternal && visits.try_emplace(record).second;
             record = record->parent)
            way.push_back(record);
        if (!way.empty())
            Cut(*way.back());
        for (auto record = way.rbegin(); record != way.rend(); ++record)
        {
            visits[*record] = {false, CountGenerations(**record)};
            if ((*record)->family == StyleFamily::Graphic && (*record)->origin == StyleOrigin::Named)
                ordered.push_back(*record);
        }
    }

private:
    /// How many styles a style inherits from; cuts its parent where they are too many.
    std::size_t CountGenerations(StyleRecord& record)
    {
        const auto parent = visits.find(record.parent);
        if (parent == visits.end())
            return 0;
        if (parent->second.generation < kMostGenerations)
            return parent->second.generation + 1;
        warnings.AddAbout(record, "it inherits from more than " + std::to_string(kMostGenerations) +
                                      " styles; those from \"" + ReadableName(record.parent->name) +
                                      "\" on were cut off");
        record.parent = nullptr;
        return 0;
    }

    /// Cuts the parent of the last style of a walk when the walk has been there.
    void Cut(StyleRecord& last)
    {
        const auto parent = visits.find(last.parent);
        if (parent == visits.end() || !parent->second.isUnderway)
            return;
        warnings.AddAbout(last, "its parent \"" + ReadableName(last.parent->name) +
                                    "\" inherits from it; the cycle was cut here");
        last.parent = nullptr;
    }

    std::vector<StyleRecord*>& ordered;
    Warnings& warnings;
    std::unordered_map<const StyleRecord*, Visit> visits;
};

/// Makes the values of one category that stand in a style for other programs its own.
void OwnInheritedValues(StyleRecord& record, const std::string& category, const PropertyMappings& table)
{
    for (const StyleValue& value : record.inheritedValues)
    {
        if (table.GetRows()[value.row].category.GetString() == OvxUtils::FromUtf8(category))
            record.values.push_back(value);
    }
    std::ranges::stable_sort(record.values, {}, &StyleValue::row);
}

} // namespace

void LinkSubstyleParents(StyleCatalogue& catalogue, const PropertyMappings& table, Warnings& warnings)
{
    for (StyleRecord& record : catalogue.GetRecords())
    {
        for (SubstyleParent& parent : record.substyleParents)
        {
            const StyleRecord* const named = catalogue.FindNamed(StyleFamily::Graphic, parent.name);
            if (named != nullptr && named->ownCategory == parent.category)
                parent.style = named->style;
            if (parent.style != nullptr)
                continue;
            warnings.AddAbout(record, "its " + parent.category + " has the parent \"" +
                                          ReadableName(parent.name) +
                                          "\", which does not exist; it was dropped");
            OwnInheritedValues(record, parent.category, table);
        }
        std::erase_if(record.substyleParents,
                      [](const SubstyleParent& parent) { return parent.style == nullptr; });
    }
}

void NoteInheritedValues(StyleCatalogue& catalogue, const PropertyMappings& table)
{
    for (StyleRecord& record : catalogue.GetRecords())
    {
        record.inheritedValues.clear();
        for (const SubstyleParent& parent : record.substyleParents)
        {
            for (std::size_t row = 0; row < table.GetRows().size(); ++row)
            {
                const PropertyMapping& mapping = table.GetRows()[row];
                const bool isOwn =
                    std::ranges::find(record.values, row, &StyleValue::row) != record.values.end();
                if (mapping.category != parent.style->GetCategoryName() || table.GetFirstRow(row) != row ||
                    isOwn)
                    continue;
                OvxUtils::Any value = FindInChain(parent.style, mapping.key);
                if (!value.IsEmpty())
                    record.inheritedValues.push_back({row, std::move(value)});
            }
        }
    }
}

OvxUtils::Any FindInChain(const Styles::Style* style, const Styles::PropertyKey& key)
{
    for (; style != nullptr; style = style->GetParent())
    {
        if (style->DoesOverridePathProperty({key}))
            return style->GetProperty(key);
    }
    return {};
}

void SetSubstyleParents(Styles::Style& style, const StyleRecord& record)
{
    for (const SubstyleParent& parent : record.substyleParents)
    {
        const Styles::PropertyKey category(
            Styles::PooledString<Styles::StringPool>(OvxUtils::FromUtf8(parent.category)));
        Styles::Style* const substyle = style.GetSubstyle(category, false);
        if (substyle != nullptr && parent.style != nullptr)
            substyle->SetParent(parent.style);
    }
}

ShapeParent FindShapeParent(StyleCatalogue& catalogue, const StyleRecord* record)
{
    const auto wholeStyle = [](const StyleRecord* named) -> Styles::Style*
    { return named != nullptr && named->ownCategory.empty() ? named->style : nullptr; };
    // Nobody has named it, so that no other drawing's can be meant.
    Styles::Style* const standard = wholeStyle(catalogue.FindOwnNamed(StyleFamily::Graphic, "standard"));
    if (record != nullptr && record->origin == StyleOrigin::Named && record->ownCategory.empty())
        return {record->style, false};
    if (record == nullptr || record->origin == StyleOrigin::Named)
        return {standard, false};
    if (record->hasNoParent)
        return {};
    if (record->parentName.empty())
        return {standard, false};
    Styles::Style* const parent = wholeStyle(catalogue.FindNamed(StyleFamily::Graphic, record->parentName));
    return parent != nullptr ? ShapeParent{parent, false} : ShapeParent{standard, true};
}

std::vector<StyleRecord*> LinkParents(StyleCatalogue& catalogue, Warnings& warnings)
{
    for (StyleRecord& record : catalogue.GetRecords())
    {
        if (!HasParentHere(record))
            continue;
        record.parent = FindParent(catalogue, record);
        if (record.parent == nullptr)
        {
            warnings.AddAbout(record, "its parent \"" + ReadableName(ParentNameOf(record)) +
                                          "\" does not exist; it was dropped");
        }
    }
    std::vector<StyleRecord*> ordered;
    CycleCutter cutter(ordered, warnings);
    for (StyleRecord& record : catalogue.GetRecords())
    {
        if (record.origin == StyleOrigin::Named || record.parent != nullptr)
            cutter.Follow(record);
    }
    return ordered;
}

} // namespace ReferenceHost
