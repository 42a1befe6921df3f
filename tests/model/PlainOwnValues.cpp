// What a plain style sets itself, and copying that from one style to another.

#include "tests/model/PlainStyle.h"

namespace LibraryModel
{

namespace
{

void AddOwnPaths(const PlainStyle& style, const Path& prefix, Paths& found)
{
    for (const auto& [key, value] : style.properties)
    {
        found.push_back(prefix);
        found.back().push_back(key);
    }
    for (const auto& [key, substyle] : style.substyles)
    {
        Path deeper = prefix;
        deeper.push_back(key);
        AddOwnPaths(*substyle, deeper, found);
    }
}

void ClearValues(PlainStyle& style)
{
    style.properties.clear();
    for (const auto& [key, substyle] : style.substyles)
        ClearValues(*substyle);
}

void CopyValues(PlainStyle& destination, const PlainStyle& source)
{
    destination.properties = source.properties;
    for (const auto& [key, substyle] : destination.substyles)
    {
        if (source.Substyle(key) == nullptr)
            ClearValues(*substyle);
    }
    for (const auto& [key, substyle] : source.substyles)
    {
        if (substyle->HasValues())
            destination.NeedSubstyle(key, substyle->category);
        if (PlainStyle* existing = destination.Substyle(key))
            CopyValues(*existing, *substyle);
    }
}

/// The place in the destination, made with the categories that the source has on the way.
PlainStyle& NeedPlace(PlainStyle& destination, const PlainStyle& source, const Path& path)
{
    PlainStyle* place = &destination;
    for (std::size_t depth = 1; depth <= path.size(); ++depth)
    {
        const auto end = path.begin() + static_cast<std::ptrdiff_t>(depth);
        place = place->NeedSubstyle(path[depth - 1], Descend(&source, Path(path.begin(), end))->category);
    }
    return *place;
}

void CopyProperty(PlainStyle& destination, const Path& path, const PlainStyle& source)
{
    const Path place(path.begin(), path.end() - 1);
    const PlainStyle* from = Descend(&source, place);
    if (from != nullptr && from->properties.contains(path.back()))
        NeedPlace(destination, source, place).Store(path.back(), from->properties.at(path.back()));
    else if (PlainStyle* to = Descend(&destination, place))
        to->properties.erase(path.back());
}

void CopySubstyle(PlainStyle& destination, const Path& path, const PlainStyle& source)
{
    const PlainStyle* from = Descend(&source, path);
    if (from != nullptr && from->HasValues())
        CopyValues(NeedPlace(destination, source, path), *from);
    else if (PlainStyle* to = Descend(&destination, path))
        ClearValues(*to);
}

} // namespace

bool OverridesAt(const PlainStyle& style, const Path& path)
{
    if (path.empty())
        return false;
    const PlainStyle* holder = Descend(&style, Path(path.begin(), path.end() - 1));
    if (holder == nullptr)
        return false;
    if (holder->properties.contains(path.back()))
        return true;
    const PlainStyle* whole = TextOf(path.back()) == "*" ? holder : holder->Substyle(path.back());
    return whole != nullptr && whole->HasValues();
}

Paths OwnPaths(const PlainStyle& style)
{
    Paths found;
    AddOwnPaths(style, {}, found);
    return found;
}

void CopyAt(PlainStyle& destination, const Paths& paths, const PlainStyle& source)
{
    for (const Path& path : paths)
    {
        if (path.empty())
            continue;
        CopyProperty(destination, path, source);
        CopySubstyle(destination, path, source);
    }
}

} // namespace LibraryModel
