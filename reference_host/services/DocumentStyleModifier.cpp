#include "reference_host/services/DocumentStyleModifier.h"

#include "reference_host/services/TransactionOverrides.h"

#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"

#include <utility>

namespace ReferenceHost
{

using Styles::PropertyPath;
using Styles::PropertyPaths;
using Styles::Style;

namespace
{

/// What all the paths of `values` and `destination` stand for together: writing them makes the two set the
/// same.
PropertyPaths AllPaths(const Style& destination, const Style& values)
{
    PropertyPaths all = Styles::GetOverriddenPropertyPaths(destination);
    for (PropertyPath& path : Styles::GetOverriddenPropertyPaths(values))
        all.push_back(std::move(path));
    return all;
}

/// Writes the paths that lead through the destination's own category.
void WriteItself(Style& destination, const PropertyPaths& paths, const Style& change)
{
    const Style nothing;
    const Style* const part = change.GetSubstyle(destination.GetCategoryName(), true);
    const Style& values = part == nullptr ? nothing : *part;
    PropertyPaths rests;
    for (const PropertyPath& path : paths)
    {
        if (path.size() == 1)
            destination.SetProperties(AllPaths(destination, values), &values);
        else
            rests.emplace_back(path.begin() + 1, path.end());
    }
    destination.SetProperties(rests, &values);
}

void Write(Style& destination, const PropertyPaths& paths, const Style& change)
{
    PropertyPaths throughItself;
    PropertyPaths others;
    for (const PropertyPath& path : paths)
    {
        const bool isItself = !path.empty() && path.front() == destination.GetCategoryName();
        (isItself ? throughItself : others).push_back(path);
    }
    if (!throughItself.empty())
        WriteItself(destination, throughItself, change);
    destination.SetProperties(others, &change);
}

void WriteUnlessReadOnly(Style* destination, const PropertyPaths& paths, const Style& change)
{
    if (destination != nullptr && !IsReadOnly(*destination))
        Write(*destination, paths, change);
}

/// The part of an object's style that a change of one category concerns: where the targets are substyles, so
/// is what they override.
Style* FindOverridden(Style* objectStyle, const Style& change)
{
    const bool isWhole =
        objectStyle != nullptr && objectStyle->GetCategoryName() == Styles::StyleCategoryName;
    return isWhole && change.GetCategoryName() != Styles::PropertyKey::Empty
               ? Styles::GetStyleOrSubstyle(objectStyle, change.GetCategoryName(), true)
               : objectStyle;
}

} // namespace

DocumentStyleModifier::DocumentStyleModifier(History& itsHistory) : history(itsHistory)
{
}

void DocumentStyleModifier::Begin()
{
    history.Open(Framework::Resources::GetString(L"history.edit"));
    ++openCount;
}

void DocumentStyleModifier::End()
{
    if (openCount == 0)
        return;
    --openCount;
    history.Close();
}

void DocumentStyleModifier::Modify(const std::vector<Style*>& targets,
                                   const std::map<Style*, std::size_t>& objects, const PropertyPaths& paths,
                                   std::unique_ptr<Style> changeStyle, const PropertyPaths& overridePaths,
                                   bool /*reserved*/, bool bound,
                                   Styles::IModifyStyleOverrides* transactionOverrides)
{
    if (changeStyle == nullptr)
        return;

    const History::Step step(history, Framework::Resources::GetString(L"history.edit"));
    for (Style* const target : targets)
        WriteUnlessReadOnly(target, paths, *changeStyle);
    if (objects.empty())
    {
        for (Style* const target : targets)
            WriteUnlessReadOnly(target, overridePaths, *changeStyle);
    }
    else if (!overridePaths.empty())
    {
        for (const auto& [objectStyle, object] : objects)
            WriteUnlessReadOnly(FindOverridden(objectStyle, *changeStyle), overridePaths, *changeStyle);
    }
    if (!bound || transactionOverrides == nullptr)
        return;
    transactionOverrides->Add(paths);
    transactionOverrides->Add(overridePaths);
}

bool IsReadOnly(const Style& style)
{
    return style.IsExternal() && style.GetExternalLink().empty();
}

} // namespace ReferenceHost
