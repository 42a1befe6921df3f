// Where a change goes, and groups of changes.

#include "tests/model/PlainDescription.h"
#include "tests/model/PlainPanel.h"

#include <algorithm>

namespace LibraryModel
{

namespace
{

Paths Prefixed(Key key, const Paths& paths)
{
    Paths prefixed;
    for (Path path : paths)
    {
        path.insert(path.begin(), key);
        prefixed.push_back(path);
    }
    return prefixed;
}

std::string TellObjects(const std::vector<std::pair<PlainStyle*, std::size_t>>& objects)
{
    std::set<std::string> entries;
    for (const auto& [style, object] : objects)
        entries.insert(NameOf(style) + ": " + std::to_string(object));
    return "{" + Join({entries.begin(), entries.end()}, ", ") + "}";
}

bool Contains(const Paths& paths, const Path& path)
{
    return std::ranges::find(paths, path) != paths.end();
}

} // namespace

void PlainPanel::ModifyStyles(const Paths& paths, Change change, const Paths* overridePaths)
{
    const Paths overrides = overridePaths == nullptr ? Paths() : *overridePaths;
    if (groupStyle != nullptr)
    {
        groupPaths.insert(groupPaths.end(), paths.begin(), paths.end());
        groupOverridePaths.insert(groupOverridePaths.end(), overrides.begin(), overrides.end());
        if (change != nullptr)
        {
            CopyAt(*groupStyle, paths, *change);
            CopyAt(*groupStyle, overrides, *change);
        }
        return;
    }

    const auto tellApplicator = [&]
    {
        host.Record("applicator.ModifyStyles(" + std::to_string(applicatorId) + ", paths=" + Tell(paths) +
                    ", changeStyle=" + Tell(change.get()) + ", overridePaths=" + Tell(overridePaths) +
                    ", toDefaultStyles=" + Tell(isDefaultStyles) + ")");
    };
    if (isDefaultStyles)
    {
        if (hasApplicator)
            tellApplicator();
        else
            ModifyDefaultStyles(paths, std::move(change));
        return;
    }

    // The modifier that stands in for a missing one writes no lines.
    const bool hasModifier = host.HasSource() && host.hasModifier;
    if (host.HasSource())
        host.Record("source.GetMultipleStyleModifier()");
    if (hasModifier)
        host.Record("modifier.Begin()");
    if (hasApplicator)
    {
        tellApplicator();
    }
    else
    {
        if (ownStyles.size() < targetStyles.size())
            ForwardToSiblings(paths, change.get(), overridePaths);
        WriteOwnStyles(paths, std::move(change), overridePaths);
    }
    if (hasModifier)
        host.Record("modifier.End()");
}

void PlainPanel::ForwardToSiblings(const Paths& paths, const PlainStyle* change, const Paths* overridePaths)
{
    isForwarding = true;
    for (PlainPanel* sibling : siblings)
    {
        if (!TakesPart(sibling) || sibling->isForwarding)
            continue;
        sibling->ModifyStyles(paths, change == nullptr ? nullptr : std::make_unique<PlainStyle>(*change),
                              overridePaths);
    }
    isForwarding = false;
}

void PlainPanel::WriteOwnStyles(const Paths& paths, Change change, const Paths* overridePaths)
{
    std::vector<PlainStyle*> targets = ownStyles;
    if (targets.empty() || targets.front() == nullptr)
        return;

    const Key whole = KeyOf("style");
    auto objects = objectStyles;
    Paths ordinary = paths;
    Paths overrides = overridePaths == nullptr ? Paths() : *overridePaths;
    if (std::ranges::any_of(targets, [whole](const PlainStyle* target)
                            { return target != nullptr && target->category == whole; }))
    {
        objects.clear();
        for (PlainStyle*& target : targets)
        {
            if (target == nullptr)
                continue;
            const auto object = GetObjectFromStyle(target);
            while (target->owner != nullptr && target->category != whole)
                target = target->owner;
            const bool isNew =
                std::ranges::none_of(objects, [target](const auto& entry) { return entry.first == target; });
            if (object.has_value() && isNew)
                objects.emplace_back(target, *object);
        }
        if (change != nullptr)
        {
            auto wrapper = std::make_unique<PlainStyle>(targets.front()->category);
            wrapper->PlaceSubstyle(change->category, change.get());
            change = std::move(wrapper);
        }
        ordinary = Prefixed(category, paths);
        overrides = Prefixed(category, overrides);
    }
    for (const Path& path : overrides)
    {
        const auto found = std::ranges::find(ordinary, path);
        if (found != ordinary.end())
            ordinary.erase(found);
    }

    const bool bound = styleName.empty();
    const std::string transaction = bound ? GetTransactionOverrides() : "null";
    if (host.HasSource() && host.hasModifier)
        host.Record("modifier.Modify(targets=" + NamesOf(targets) + ", objects=" + TellObjects(objects) +
                    ", paths=" + Tell(ordinary) + ", changeStyle=" + Tell(change.get()) +
                    ", overridePaths=" + Tell(overrides) + ", reserved=false, bound=" + Tell(bound) +
                    ", transactionOverrides=" + transaction + ")");
}

std::string PlainPanel::GetTransactionOverrides()
{
    if (!host.HasSource())
        return "null";
    host.Record("source.GetTransactionOverrides()");
    return host.hasTransaction ? "transaction" : "null";
}

void PlainPanel::ModifyStyles(Change change, const Paths* overridePaths)
{
    if (change == nullptr)
        return;
    Paths paths;
    for (const auto& [key, value] : change->properties)
        paths.push_back({key});
    ModifyStyles(paths, std::move(change), overridePaths);
}

void PlainPanel::ModifySubstyles(const Paths& paths, const PlainStyle* substyle, Key substyleKey,
                                 const Paths* overridePaths)
{
    Change change = NewChange();
    change->PlaceSubstyle(substyleKey, substyle);
    const Paths overrides = overridePaths == nullptr ? Paths() : Prefixed(substyleKey, *overridePaths);
    ModifyStyles(Prefixed(substyleKey, paths), std::move(change),
                 overridePaths == nullptr ? nullptr : &overrides);
}

void PlainPanel::ModifyDefaultStyles(const Paths& paths, Change change)
{
    if (host.HasSource() && change != nullptr)
    {
        host.Record("source.GetDefaultStyles()");
        for (PlainStyle* style : host.defaultStyles)
        {
            PlainStyle* destination = change->category == KeyOf("style")
                                          ? style
                                          : style->NeedSubstyle(change->category, change->category);
            if (destination != nullptr)
                CopyAt(*destination, paths, *change);
        }
    }
    const Key changed = change == nullptr ? Key() : change->category;
    host.waitingEvents.push_back("event StylePropertiesChange(" + TextOf(changed) + ", '')");
}

void PlainPanel::WriteTarget(Key key, const PlainValue& value, const Key* key2, const PlainValue* value2)
{
    if (targetStyles.empty())
        return;
    Change change = NewChange();
    change->Store(key, value);
    Paths paths = {{key}};
    if (key2 != nullptr && value2 != nullptr)
    {
        change->Store(*key2, *value2);
        paths.push_back({*key2});
    }
    const Paths noOverrides;
    ModifyStyles(paths, std::move(change), &noOverrides);
}

void PlainPanel::WriteToDefault(const std::string& sheetName, Key key, const PlainValue& value)
{
    if (!host.HasSource())
        return;
    host.Record("source.GetDefaultStyleSheet()");
    if (!host.hasDefaultSheet)
        return;
    const PlainStyle* style = host.GetStyle(host.defaultSheet, sheetName);
    PlainStyle* substyle = style == nullptr ? nullptr : style->Substyle(category);
    if (substyle != nullptr)
        substyle->Store(key, value);
}

void PlainPanel::ClearProperties(const Paths& paths)
{
    if (!targetStyles.empty())
        ModifyStyles(paths, NewChange(), nullptr);
}

void PlainPanel::StartGroupModify()
{
    if (!host.HasSource())
        return;
    if (!isDefaultStyles)
    {
        host.Record("source.BeginGroup()");
        return;
    }
    groupStyle = std::make_unique<PlainStyle>(KeyOf("fill"));
    groupPaths.clear();
    groupOverridePaths.clear();
}

void PlainPanel::EndGroupModify(bool commit)
{
    if (groupStyle == nullptr)
    {
        if (host.HasSource())
            host.Record("source.EndGroup(" + Tell(commit) + ")");
        return;
    }
    Change gathered = std::move(groupStyle);
    if (!commit)
    {
        host.Record("event ObjectStyleChanged()");
        return;
    }
    const std::set<Path> ordered(groupPaths.begin(), groupPaths.end());
    const std::set<Path> orderedOverrides(groupOverridePaths.begin(), groupOverridePaths.end());
    const Paths paths(ordered.begin(), ordered.end());
    Paths overrides;
    for (const Path& path : orderedOverrides)
    {
        if (!Contains(paths, path))
            overrides.push_back(path);
    }
    // The lists keep their content, ordered, until the next group.
    groupPaths = paths;
    groupOverridePaths = overrides;
    ModifyStyles(paths, std::move(gathered), &overrides);
}

} // namespace LibraryModel
