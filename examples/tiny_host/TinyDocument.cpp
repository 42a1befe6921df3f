// An open document as the library reaches it: what its styles are, and every way in which they change.

#include "tiny_host/TinyDocument.h"

#include "host/style_model/CategoryNames.h"
#include "tiny_host/StyleInsides.h"
#include "tiny_host/StyleLookup.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace TinyHost
{

using Styles::PropertyKey;
using Styles::PropertyPath;
using Styles::PropertyPaths;

/// What the styles were when a group began.
struct Document::Image
{
    std::size_t namedStyleCount = 0;
    std::vector<std::pair<Style*, std::unique_ptr<Style>>> copies;
};

namespace
{

/// All that either of two styles sets: writing these paths makes one set what the other does.
PropertyPaths AllPaths(const Style& one, const Style& other)
{
    PropertyPaths all = Styles::GetOverriddenPropertyPaths(one);
    std::ranges::move(Styles::GetOverriddenPropertyPaths(other), std::back_inserter(all));
    return all;
}

/// A style outside the document can be changed only where there is a link to it.
bool IsReadOnly(const Style& style)
{
    return style.IsExternal() && style.GetExternalLink().empty();
}

/// The part of a style that has the category: itself, or the substyle of a whole style. Null for any other.
Style* PartOf(Style* style, const PropertyKey& category)
{
    if (style == nullptr || style->GetCategoryName() == category)
        return style;
    const bool isWhole = style->GetCategoryName() == Styles::StyleCategoryName;
    return isWhole ? style->GetSubstyleAndCreateIfMissing(category, category) : nullptr;
}

/// Writes a change to one style. A path whose first key is the style's own category means the style itself,
/// since panels of the whole style write "style" in front of their paths as all others write their category.
void Write(Style* destination, const PropertyPaths& paths, const Style& change)
{
    if (destination == nullptr || IsReadOnly(*destination))
        return;
    const PropertyKey own = destination->GetCategoryName();
    const Style* const part = change.GetSubstyle(own, true);
    const Style values = part == nullptr ? Style() : Style(*part);
    for (const PropertyPath& path : paths)
    {
        if (path.empty() || path.front() != own)
            destination->SetProperties({path}, &change);
        else if (path.size() == 1)
            destination->SetProperties(AllPaths(*destination, values), &values);
        else
            destination->SetProperties({PropertyPath(path.begin() + 1, path.end())}, &values);
    }
}

/// Gives `to` the parents that `from` has, at every depth.
void CopyParents(Style& to, const Style& from)
{
    to.SetParent(from.GetParent());
    for (const auto& [key, substyle] : StyleData::Of(from).substyles)
        CopyParents(*to.GetSubstyleAndCreateIfMissing(key, substyle->GetCategoryName()), *substyle);
}

void ClearParents(Style& style)
{
    style.SetParent(nullptr);
    for (const auto& [key, substyle] : StyleData::Of(style).substyles)
        ClearParents(*substyle);
}

} // namespace

Document::Document(Presets& presetKeeper)
    : presets(presetKeeper), defaultStyle(std::make_unique<Style>(nullptr, Styles::StyleCategoryName))
{
}

Document::~Document() = default;

Style* Document::AddStyle(const PropertyKey& category, const OvxStringT& name)
{
    Style* const added = sheet.Add(category, name);
    if (added != nullptr && category == Styles::StyleCategoryName)
        StyleData::Of(*added).defaults = StyleData::LinkTo(defaultStyle.get());
    return added;
}

std::size_t Document::AddObject(Style* parent)
{
    Style& added = objectStyles.emplace_back(parent, Styles::StyleCategoryName);
    StyleData::Of(added).defaults = StyleData::LinkTo(defaultStyle.get());
    return objectStyles.size() - 1;
}

Style* Document::GetObjectStyle(std::size_t object)
{
    return object < objectStyles.size() ? &objectStyles[object] : nullptr;
}

void Document::Select(std::vector<Style*> styles)
{
    selection = std::move(styles);
}

Style* Document::AddExternalStyle(const OvxStringT& sheetName, const OvxStringT& name, const OvxStringT& link)
{
    Style* const added = externalSheets[sheetName].Add(Styles::StyleCategoryName, name);
    if (added != nullptr)
    {
        StyleData::Of(*added).externalSheet = sheetName;
        StyleData::Of(*added).externalLink = link;
    }
    return added;
}

void Document::SetPresetCategory(const OvxStringT& presetCategory, const PropertyKey& category)
{
    presetCategories[presetCategory] = category;
}

Styles::StyleSheet* Document::GetExternalStyleSheet(const OvxStringT& sheetName)
{
    const auto found = externalSheets.find(sheetName);
    return found == externalSheets.end() ? nullptr : &found->second;
}

void Document::ApplyToParent(std::function<void(const PropertyPaths&)> clear, Style* destination,
                             const PropertyPaths& paths, std::unique_ptr<Style> values)
{
    if (clear == nullptr || destination == nullptr || values == nullptr || IsReadOnly(*destination))
        return;
    destination->SetProperties(paths, values.get());
    clear(paths);
}

void Document::ReplaceProperties(Style* style, const PropertyPaths& paths, std::unique_ptr<Style> values,
                                 bool dropParent, bool /*reserved*/)
{
    if (style == nullptr || values == nullptr || IsReadOnly(*style))
        return;
    style->SetProperties(paths, values.get());
    if (dropParent)
        style->SetParent(nullptr);
}

void Document::CreateStyle(const PropertyKey& category, const OvxStringT& name)
{
    Style* const created = AddStyle(category, name);
    Style* const first =
        selection.empty() || !MayInherit(selection.front()) ? nullptr : PartOf(selection.front(), category);
    if (created == nullptr || first == nullptr)
        return;

    // It takes over the parents as well: what they set must not come before what it sets.
    const Style nothing;
    created->SetProperties(Styles::GetOverriddenPropertyPaths(*first), first);
    CopyParents(*created, *first);
    first->SetProperties(Styles::GetOverriddenPropertyPaths(*first), &nothing);
    ClearParents(*first);
    first->SetParent(created);
}

void Document::ApplyStyle(Style* style, bool /*reserved*/)
{
    if (style == nullptr)
        return;
    for (Style* const selected : selection)
        SetParent(selected, style, true);
}

void Document::SetParent(Style* target, Style* parent, bool /*reserved*/)
{
    if (!MayInherit(target))
        return;
    // A parent of one category is that of the substyle.
    Style* const part = parent == nullptr ? target : PartOf(target, parent->GetCategoryName());
    if (part != nullptr)
        part->SetParent(parent);
}

void Document::ApplyPresetToStyles(const OvxStringT& name, const OvxStringT& category,
                                   const std::vector<Style*>& styles)
{
    const std::unique_ptr<Style> preset = presets.Load(category, name);
    const auto known = presetCategories.find(category);
    const PropertyKey& concerned =
        known == presetCategories.end() ? Styles::StyleCategoryName : known->second;
    const Style* const values = Styles::GetStyleOrSubstyle(preset.get(), concerned, false);
    for (Style* const style : styles)
    {
        Style* const part = style == nullptr || IsReadOnly(*style) ? nullptr : PartOf(style, concerned);
        if (part != nullptr && values != nullptr)
            part->SetProperties(AllPaths(*part, *values), values);
    }
}

void Document::ApplyPresetToObjects(const OvxStringT& name, const OvxStringT& category,
                                    const std::vector<std::size_t>& objects)
{
    std::vector<Style*> styles;
    for (const std::size_t object : objects)
        styles.push_back(GetObjectStyle(object));
    ApplyPresetToStyles(name, category, styles);
}

void Document::FillPresetItems(std::vector<Styles::PresetListEntry> entries, const OvxStringT& /*category*/)
{
    for (const Styles::PresetListEntry& entry : entries)
    {
        if (entry.item == nullptr)
            continue;
        entry.item->SetText(entry.name);
        entry.item->SetIndex(static_cast<int>(entry.position));
    }
}

void Document::BeginGroup()
{
    Image& image = groups.emplace_back();
    image.namedStyleCount = sheet.GetStyles().size();
    for (Style* const style : CollectStyles())
        image.copies.emplace_back(style, std::make_unique<Style>(*style));
}

void Document::EndGroup(bool commit)
{
    if (groups.empty())
        return;
    const Image image = std::move(groups.back());
    groups.pop_back();
    if (commit || !Keeps(Promise::GroupsCanBeTakenBack))
        return;

    // All parents go before any comes back: on the way, none may look like a cycle.
    sheet.Shrink(image.namedStyleCount);
    for (const auto& [style, copy] : image.copies)
        ClearParents(*style);
    for (const auto& [style, copy] : image.copies)
    {
        // In place: panels hold substyles.
        style->SetProperties(AllPaths(*style, *copy), copy.get());
        CopyParents(*style, *copy);
    }
}

// Nothing is gathered between these two: what is written is written at once.
void Document::Begin()
{
}

void Document::End()
{
}

void Document::Modify(const std::vector<Style*>& targets, const std::map<Style*, std::size_t>& objects,
                      const PropertyPaths& paths, std::unique_ptr<Style> changeStyle,
                      const PropertyPaths& overridePaths, bool /*reserved*/, bool /*bound*/,
                      Styles::IModifyStyleOverrides* /*transactionOverrides*/)
{
    if (changeStyle == nullptr)
        return;
    for (Style* const target : targets)
        Write(target, paths, *changeStyle);
    if (overridePaths.empty())
        return;

    // Overrides are for the objects; where none are known, the targets are all there is.
    const PropertyKey category = changeStyle->GetCategoryName();
    for (const auto& [style, object] : objects)
    {
        Style* const part = category == PropertyKey::Empty ? style : PartOf(style, category);
        Write(part == nullptr ? style : part, overridePaths, *changeStyle);
    }
    if (objects.empty())
    {
        for (Style* const target : targets)
            Write(target, overridePaths, *changeStyle);
    }
}

std::vector<Style*> Document::CollectStyles()
{
    std::vector<Style*> styles{defaultStyle.get()};
    for (const auto& [name, style] : sheet.GetStyles())
        styles.push_back(style.get());
    for (Style& style : objectStyles)
        styles.push_back(&style);
    return styles;
}

bool Document::MayInherit(const Style* style) const
{
    return style != nullptr && !IsReadOnly(*style) && &OutermostOwner(*style) != defaultStyle.get();
}

} // namespace TinyHost
