#include "reference_host/document/TextSettling.h"

#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/TextUnit.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ReferenceHost
{

using Styles::PropertyKey;
using Styles::Style;
using Styles::StyleData;

namespace
{

/// A text or paragraph property that changed.
struct ValueChange
{
    PropertyKey category;
    PropertyKey key;
    OvxUtils::Any before; ///< Empty when it was not set.
};

/// What changed in one whole style.
struct WholeChange
{
    std::vector<ValueChange> values;
    std::set<PropertyKey> substylesWithNewParent; ///< Those that concern text.
    bool hasNewParent = false;

    [[nodiscard]] bool Contains(const ValueChange& sought) const
    {
        return std::ranges::any_of(values,
                                   [&sought](const ValueChange& change) {
                                       return change.key == sought.key && change.category == sought.category;
                                   });
    }
};

/// What changed in a shape and its text.
struct ShapeChange
{
    WholeChange object;
    std::unordered_map<const TextUnit*, WholeChange> units;

    [[nodiscard]] const WholeChange& Of(const TextUnit& unit) const
    {
        static const WholeChange none;
        const auto found = units.find(&unit);
        return found == units.end() ? none : found->second;
    }
};

/// The own value of a property in a substyle of a whole style; empty when it is not set.
OvxUtils::Any OwnValue(const Style& whole, const ValueChange& property)
{
    const Style* const substyle = StyleData::Of(whole).FindSubstyle(property.category);
    const OvxUtils::Any* const value =
        substyle == nullptr ? nullptr : StyleData::Of(*substyle).FindOwn(property.key);
    return value == nullptr ? OvxUtils::Any() : *value;
}

void Write(Style& whole, const ValueChange& property, OvxUtils::Any value)
{
    whole.SetPathProperty({property.category, property.key}, std::move(value));
}

bool ConcernsText(const PropertyMappings& table, PropertyKey category, PropertyKey key)
{
    const PropertyMapping* const row = table.FindRow(category, key);
    return row != nullptr && row->element != PropertyElement::Graphic;
}

bool ConcernsText(const PropertyMappings& table, PropertyKey category)
{
    return std::ranges::any_of(table.GetRows(),
                               [category](const PropertyMapping& row) {
                                   return row.category == category && row.element != PropertyElement::Graphic;
                               });
}

/// Adds what changed in the substyle `image` is of.
void AddSubstyle(WholeChange& change, const StyleImage& image, const PropertyMappings& table)
{
    const StyleData& now = image.GetStyle();
    for (const PropertyKey& key : image.FindChangedKeys())
    {
        const OvxUtils::Any* const before = image.Find(key);
        if (ConcernsText(table, now.name, key))
            change.values.push_back({now.name, key, before == nullptr ? OvxUtils::Any() : *before});
    }
    if (now.GetParent() != image.GetParent() && ConcernsText(table, now.name))
        change.substylesWithNewParent.insert(now.name);
}

/// Brings one shape in line.
class ShapeSettling
{
public:
    ShapeSettling(DrawingObject& shape, const ShapeChange& shapeChange) : object(shape), change(shapeChange)
    {
    }

    void Run()
    {
        SpreadValues();
        SpreadParent();
        SpreadParentsOfSubstyles();
        ClearOuterLevels();
    }

private:
    void SpreadValues()
    {
        auto run = object.GetRuns().begin();
        for (TextUnit& paragraph : object.GetParagraphs())
        {
            const auto first = run;
            while (run != object.GetRuns().end() && run->GetParagraph() == paragraph.GetParagraph())
                ++run;
            std::vector<ValueChange> changed = change.Of(paragraph).values;
            for (const ValueChange& value : change.object.values)
            {
                if (Follow(paragraph, *object.GetStyle(), value))
                    changed.push_back(value);
            }
            for (const ValueChange& value : changed)
                std::for_each(first, run,
                              [&](TextUnit& each) { Follow(each, *paragraph.GetStyle(), value); });
        }
    }

    /// Gives a unit the value of the level outside it, when it had the one of that level before.
    bool Follow(TextUnit& unit, const Style& outer, const ValueChange& value) const
    {
        if (change.Of(unit).Contains(value) || OwnValue(*unit.GetStyle(), value) != value.before)
            return false;
        Write(*unit.GetStyle(), value, OwnValue(outer, value));
        return true;
    }

    void SpreadParent()
    {
        Style* const source = FindSource([](const WholeChange& whole) { return whole.hasNewParent; });
        if (source == nullptr)
            return;
        Style* const parent = source->GetParent();
        object.GetStyle()->SetParent(parent);
        ForEachUnit([parent](TextUnit& unit) { unit.GetStyle()->SetParent(parent); });
    }

    void SpreadParentsOfSubstyles()
    {
        std::set<PropertyKey> categories(change.object.substylesWithNewParent);
        for (const auto& [unit, unitChange] : change.units)
            categories.insert(unitChange.substylesWithNewParent.begin(),
                              unitChange.substylesWithNewParent.end());
        for (const PropertyKey& category : categories)
        {
            const Style* const source =
                FindSource([&category](const WholeChange& whole)
                           { return whole.substylesWithNewParent.contains(category); });
            Style* const parent = source->GetSubstyle(category, false)->GetParent();
            const auto give = [&category, parent](Style* whole)
            { whole->GetSubstyleAndCreateIfMissing(category, category)->SetParent(parent); };
            give(object.GetStyle());
            ForEachUnit([&give](TextUnit& unit) { give(unit.GetStyle()); });
        }
    }

    /// The style that was changed in a way: the object's, or else the first of the text; null for none.
    template <class Predicate>
    Style* FindSource(const Predicate& isChanged)
    {
        if (isChanged(change.object))
            return object.GetStyle();
        Style* found = nullptr;
        ForEachUnit(
            [&](TextUnit& unit)
            {
                if (found == nullptr && isChanged(change.Of(unit)))
                    found = unit.GetStyle();
            });
        return found;
    }

    void ClearOuterLevels()
    {
        ForEachUnit(
            [this](TextUnit& unit)
            {
                for (const ValueChange& value : change.Of(unit).values)
                {
                    if (!value.before.IsEmpty() && OwnValue(*unit.GetStyle(), value).IsEmpty())
                        ClearAround(unit, value);
                }
            });
    }

    void ClearAround(const TextUnit& unit, const ValueChange& value)
    {
        if (unit.GetKind() == TextUnit::Kind::Run)
            Write(*object.GetParagraphs()[unit.GetParagraph()].GetStyle(), value, {});
        Write(*object.GetStyle(), value, {});
    }

    template <class Visitor>
    void ForEachUnit(const Visitor& visit)
    {
        std::ranges::for_each(object.GetParagraphs(), visit);
        std::ranges::for_each(object.GetRuns(), visit);
    }

    DrawingObject& object;
    const ShapeChange& change;
};

} // namespace

TextSettling::TextSettling(const PropertyMappings& properties, CascadeStyles& cascadeStyles)
    : table(properties), cascades(cascadeStyles)
{
    for (const PropertyKey& category : table.GetCategories())
    {
        if (ConcernsText(table, category))
            textCategories.push_back(category);
    }
}

/// A fill or outline, as most of what changes, is known without asking whose it is; a whole style concerns
/// text when it has another parent.
bool TextSettling::MayConcernText(const StyleImage& image) const
{
    const StyleData& style = image.GetStyle();
    if (style.owner == nullptr)
        return style.GetParent() != image.GetParent();
    return std::ranges::find(textCategories, style.name) != textCategories.end();
}

void TextSettling::Settle(const StepChanges& changes)
{
    // Bringing shapes in line adds to the changes: what is to be done is known before.
    std::unordered_map<DrawingObject*, ShapeChange> shapes;
    for (const StyleImage& image : changes.GetImages())
    {
        if (!MayConcernText(image))
            continue;
        const StyleData& style = image.GetStyle();
        const StyleData& whole = style.owner == nullptr ? style : StyleData::Of(*style.owner);
        const StyleUser user = cascades.FindUser(whole);
        if (user.object == nullptr || user.object->GetParagraphs().empty())
            continue;
        ShapeChange& shape = shapes[user.object];
        WholeChange& change = user.unit == nullptr ? shape.object : shape.units[user.unit];
        if (style.owner != nullptr)
            AddSubstyle(change, image, table);
        else
            change.hasNewParent = true;
    }
    for (const auto& [object, change] : shapes)
        ShapeSettling(*object, change).Run();
}

} // namespace ReferenceHost
