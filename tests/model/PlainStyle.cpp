#include "tests/model/PlainStyle.h"

namespace LibraryModel
{

PlainStyle::PlainStyle(Key itsCategory, PlainStyle* itsParent) : category(itsCategory), parent(itsParent)
{
    ++liveCount;
}

PlainStyle::PlainStyle(const PlainStyle& other)
    : category(other.category), parent(other.parent), properties(other.properties)
{
    ++liveCount;
    for (const auto& [key, substyle] : other.substyles)
        PlaceSubstyle(key, substyle.get());
}

PlainStyle::~PlainStyle()
{
    --liveCount;
}

void PlainStyle::Assign(const PlainStyle& other)
{
    PlainStyle copy(other);
    category = copy.category;
    parent = copy.parent;
    properties = copy.properties;
    substyles.clear();
    for (const auto& [key, substyle] : copy.substyles)
        PlaceSubstyle(key, substyle.get());
}

PlainStyle* PlainStyle::NeedSubstyle(Key key, Key substyleCategory)
{
    if (key == Key())
        return nullptr;
    auto& place = substyles[key];
    if (place == nullptr)
    {
        place = std::make_unique<PlainStyle>(substyleCategory);
        place->owner = this;
    }
    return place.get();
}

PlainStyle* PlainStyle::Substyle(Key key) const
{
    const auto found = substyles.find(key);
    return found == substyles.end() ? nullptr : found->second.get();
}

void PlainStyle::PlaceSubstyle(Key key, const PlainStyle* substyle)
{
    if (key == Key())
        return;
    if (substyle == nullptr)
        substyles.erase(key);
    else
        NeedSubstyle(key, substyle->category)->Assign(*substyle);
}

bool PlainStyle::HasValues() const
{
    if (!properties.empty())
        return true;
    for (const auto& [key, substyle] : substyles)
    {
        if (substyle->HasValues())
            return true;
    }
    return false;
}

const PlainStyle& PlainStyle::Outermost() const
{
    return owner == nullptr ? *this : owner->Outermost();
}

void PlainStyle::Store(Key key, const PlainValue& value)
{
    if (HoldsNothing(value))
        properties.erase(key);
    else
        properties[key] = value;
}

void PlainStyle::StoreAt(const Path& path, const PlainValue& value)
{
    if (path.empty())
        return;
    PlainStyle* place = this;
    for (std::size_t i = 0; place != nullptr && i + 1 < path.size(); ++i)
        place = HoldsNothing(value) ? place->Substyle(path[i]) : place->NeedSubstyle(path[i], path[i]);
    if (place != nullptr)
        place->Store(path.back(), value);
}

void PlainStyle::ClearEmptySubstyles()
{
    for (auto place = substyles.begin(); place != substyles.end();)
    {
        place->second->ClearEmptySubstyles();
        place = place->second->IsEmpty() ? substyles.erase(place) : std::next(place);
    }
}

PlainStyle* StyleOrSubstyle(PlainStyle* style, Key category)
{
    if (style == nullptr || style->category == category)
        return style;
    return style->Substyle(category);
}

PlainStyle* StyleOrMadeSubstyle(PlainStyle* style, Key category)
{
    if (style == nullptr || style->category == category)
        return style;
    return style->NeedSubstyle(category, category);
}

} // namespace LibraryModel
