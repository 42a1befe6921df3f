// What a plain style shows: its own values, those of its parents, and of what corresponds to it there.

#include "tests/model/PlainStyle.h"

namespace LibraryModel
{

namespace
{

void AddWithParents(std::vector<const PlainStyle*>& sources, const PlainStyle* style)
{
    for (; style != nullptr; style = style->parent)
        sources.push_back(style);
}

/// The name of a substyle in its owner.
Key NameInOwner(const PlainStyle& style)
{
    for (const auto& [key, substyle] : style.owner->substyles)
    {
        if (substyle.get() == &style)
            return key;
    }
    return Key();
}

void FlattenInto(PlainStyle& flattened, const PlainStyle& style, const Path& below)
{
    std::vector<std::pair<Key, Key>> namesAndCategories;
    for (const PlainStyle* source : SourcesOf(style, below))
    {
        flattened.properties.insert(source->properties.begin(), source->properties.end());
        for (const auto& [key, substyle] : source->substyles)
            namesAndCategories.emplace_back(key, substyle->category);
    }
    for (const auto& [key, category] : namesAndCategories)
    {
        if (flattened.Substyle(key) != nullptr)
            continue;
        PlainStyle* part = flattened.NeedSubstyle(key, category);
        const PlainStyle* own = below.empty() ? style.Substyle(key) : nullptr;
        Path deeper = below;
        deeper.push_back(key);
        FlattenInto(*part, own != nullptr ? *own : style, own != nullptr ? Path() : deeper);
    }
}

} // namespace

PlainStyle* Descend(const PlainStyle* style, const Path& path)
{
    auto* place = const_cast<PlainStyle*>(style);
    for (const Key key : path)
        place = place == nullptr ? nullptr : place->Substyle(key);
    return place;
}

std::vector<const PlainStyle*> SourcesOf(const PlainStyle& style, const Path& below)
{
    std::vector<const PlainStyle*> sources;
    AddWithParents(sources, Descend(&style, below));

    Path place = below;
    for (const PlainStyle* level = &style; level != nullptr; level = level->owner)
    {
        // Where the place is the level itself, its parents were taken already.
        for (const PlainStyle* parent = place.empty() ? nullptr : level->parent; parent != nullptr;
             parent = parent->parent)
            AddWithParents(sources, Descend(parent, place));
        if (level->owner != nullptr)
            place.insert(place.begin(), NameInOwner(*level));
    }
    return sources;
}

PlainValue EffectiveValue(const PlainStyle& style, Key key)
{
    return EffectiveValueAt(style, {key});
}

PlainValue EffectiveValueAt(const PlainStyle& style, const Path& path)
{
    if (path.empty())
        return {};

    const PlainStyle* place = &style;
    Path below(path.begin(), path.end() - 1);
    while (!below.empty() && place->Substyle(below.front()) != nullptr)
    {
        place = place->Substyle(below.front());
        below.erase(below.begin());
    }
    for (const PlainStyle* source : SourcesOf(*place, below))
    {
        const auto found = source->properties.find(path.back());
        if (found != source->properties.end())
            return found->second;
    }
    return {};
}

std::unique_ptr<PlainStyle> Flattened(const PlainStyle& style)
{
    auto flattened = std::make_unique<PlainStyle>(style.category);
    FlattenInto(*flattened, style, {});
    flattened->ClearEmptySubstyles();
    return flattened;
}

bool InheritsFrom(const PlainStyle& style, const PlainStyle& other)
{
    const auto leadsThere = [&other](const PlainStyle* step)
    { return step != nullptr && (step == &other || InheritsFrom(*step, other)); };

    if (leadsThere(style.parent))
        return true;
    Path place;
    for (const PlainStyle* level = &style; level->owner != nullptr; level = level->owner)
    {
        place.insert(place.begin(), NameInOwner(*level));
        for (const PlainStyle* parent = level->owner->parent; parent != nullptr; parent = parent->parent)
        {
            if (leadsThere(parent) || leadsThere(Descend(parent, place)))
                return true;
        }
    }
    return false;
}

} // namespace LibraryModel
