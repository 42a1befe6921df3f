// Whether the targets agree, and where the values of the active property come from.

#include "tests/model/PlainPanel.h"

#include <algorithm>
#include <sstream>

namespace LibraryModel
{

namespace
{

bool BeginsWith(const Path& path, const Path& prefix)
{
    return prefix.size() <= path.size() && std::equal(prefix.begin(), prefix.end(), path.begin());
}

std::vector<std::string> Split(const std::string& text, char separator)
{
    std::vector<std::string> pieces;
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, separator);)
    {
        if (!piece.empty())
            pieces.push_back(piece);
    }
    return pieces;
}

/// Whether a further target has nothing to inherit from.
bool LacksParent(const PlainStyle* style)
{
    return style == nullptr ||
           (style->parent == nullptr && (style->owner == nullptr || style->owner->parent == nullptr));
}

} // namespace

Paths ParseActivePaths(const std::string& identifier, bool dropWildcard)
{
    Paths paths;
    for (const std::string& piece : Split(identifier, ','))
    {
        std::vector<std::string> words = Split(piece, '.');
        if (dropWildcard && !words.empty() && words.back() == "*")
            words.pop_back();
        Path path;
        for (const std::string& word : words)
            path.push_back(KeyOf(word));
        paths.push_back(path);
    }
    return paths;
}

void PlainPanel::ImportForceAmbiguous(const Path& path, const std::set<Path>& paths)
{
    for (std::size_t length = 0; length <= path.size(); ++length)
    {
        if (paths.contains(Path(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(length))))
        {
            forceAmbiguous.insert(Path());
            return;
        }
    }
    for (const Path& each : paths)
    {
        if (BeginsWith(each, path))
            forceAmbiguous.insert(Path(each.begin() + static_cast<std::ptrdiff_t>(path.size()), each.end()));
    }
}

bool PlainPanel::IsAmbiguous(const Path& path)
{
    if (targetStyles.size() == 1)
        return false;
    if (std::ranges::any_of(forceAmbiguous, [&path](const Path& forced) { return BeginsWith(path, forced); }))
        return true;
    if (path.empty())
        return false;

    PlainValue reference;
    for (std::size_t i = 0; i < targetStyles.size(); ++i)
    {
        const PlainStyle* style = GetTargetStyle(i);
        style = Descend(style, Path(path.begin(), path.end() - 1));
        if (style == nullptr)
            continue;
        const PlainValue value = EffectiveValue(*style, path.back());
        if (HoldsNothing(reference))
            reference = value;
        else if (value != reference)
            return true;
    }
    return false;
}

bool PlainPanel::HasParent()
{
    if (hasParentPending)
    {
        hasParentPending = false;
        hasParent = PrivateHasParent();
    }
    return hasParent;
}

bool PlainPanel::PrivateHasParent() const
{
    const PlainStyle* style = PanelStyle();
    if (style == nullptr)
        return false;
    if (style->parent != nullptr)
        return true;
    if (style->owner == nullptr || style->owner->parent == nullptr || category == KeyOf("style"))
        return false;
    return style->owner->parent->Substyle(category) != nullptr;
}

PlainPanel::State PlainPanel::GetActivePropertyState(const std::string& identifier)
{
    if (!HasParent())
        return kNone;

    const bool isWhole = identifier == "style";
    const PlainStyle* first = PanelStyle();
    bool overrides = false;
    if (!isWhole)
    {
        overrides = DoesOverrideProperties(first, identifier);
    }
    else if (first != nullptr && !first->IsEmpty())
    {
        PlainStyle copy(*first);
        copy.ClearEmptySubstyles();
        overrides = !copy.IsEmpty();
    }

    for (std::size_t i = 1; i < targetStyles.size(); ++i)
    {
        const PlainStyle* style = StyleOrSubstyle(targetStyles[i], category);
        if (LacksParent(style))
            return kAmbiguousParent;
        const bool same = isWhole ? !style->properties.empty() : DoesOverrideProperties(style, identifier);
        if (same != overrides)
            return kAmbiguous;
    }
    return overrides ? kOverridden : kInherited;
}

bool PlainPanel::DoesOverrideProperties(const PlainStyle* style, const std::string& identifier) const
{
    if (style == nullptr)
        return false;
    const Paths paths = ParseActivePaths(identifier, false);
    return std::ranges::any_of(paths, [style](const Path& path) { return OverridesAt(*style, path); });
}

void PlainPanel::SetActiveIdentifier(const std::string& identifier)
{
    activeIdentifier = identifier;
    Notify({"RevertToParentEnable", "BreakColorResourceEnable"});
}

std::string PlainPanel::PropertyIcon(const std::string& identifier)
{
    static const std::vector<std::string> pictures = {"NoneImage", "OverriddenImage", "InheritedImage",
                                                      "AmbiguousImage", "AmbiguousImage"};
    return pictures.at(static_cast<std::size_t>(GetActivePropertyState(identifier)));
}

std::string PlainPanel::PropertyTooltip(const std::string& identifier)
{
    static const std::vector<std::string> keys = {
        "881fe267-e7e0-4e0e-879a-1771032cbd0e", "e00592b9-072e-4ce1-9cb1-92085fbc0591",
        "d342e6ca-41ea-42a4-8f92-6e5579ad3715", "7df734c4-2fb0-41fb-b368-5fadc8758275",
        "7df734c4-2fb0-41fb-b368-5fadc8758275"};
    return ShownText(keys.at(static_cast<std::size_t>(GetActivePropertyState(identifier))));
}

} // namespace LibraryModel
