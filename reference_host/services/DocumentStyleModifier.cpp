#include "reference_host/services/DocumentStyleModifier.h"

#include "reference_host/services/TransactionOverrides.h"

#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"

#include <optional>
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

/// Writes the same paths of one change to many styles.
class ChangeWriter
{
public:
    /// Borrows both.
    ChangeWriter(const PropertyPaths& writtenPaths, const Style& writtenChange)
        : paths(writtenPaths), change(writtenChange)
    {
    }

    /// Null is passed over, and so is a style that may not be edited.
    void WriteTo(Style* destination)
    {
        if (destination == nullptr || IsReadOnly(*destination))
            return;
        SplitFor(destination->GetCategoryName());
        if (!throughItself.empty())
            WriteItself(*destination, throughItself, change);
        if (!others.empty())
            destination->SetProperties(others, &change);
    }

private:
    /// Most destinations are of the category of the one before.
    void SplitFor(const Styles::PropertyKey& destinationCategory)
    {
        if (category == destinationCategory)
            return;
        category = destinationCategory;
        throughItself.clear();
        others.clear();
        for (const PropertyPath& path : paths)
        {
            const bool isItself = !path.empty() && path.front() == destinationCategory;
            (isItself ? throughItself : others).push_back(path);
        }
    }

    const PropertyPaths& paths;
    const Style& change;
    std::optional<Styles::PropertyKey> category; ///< That the paths are split for; none at first.
    PropertyPaths throughItself;                 ///< Those that lead through that category.
    PropertyPaths others;
};

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

void WriteOverrides(const std::vector<Style*>& targets, const std::map<Style*, std::size_t>& objects,
                    const PropertyPaths& paths, const Style& change)
{
    ChangeWriter writer(paths, change);
    if (objects.empty())
    {
        for (Style* const target : targets)
            writer.WriteTo(target);
    }
    for (const auto& [objectStyle, object] : objects)
        writer.WriteTo(FindOverridden(objectStyle, change));
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
    ChangeWriter writer(paths, *changeStyle);
    for (Style* const target : targets)
        writer.WriteTo(target);
    if (!overridePaths.empty())
        WriteOverrides(targets, objects, overridePaths, *changeStyle);
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
