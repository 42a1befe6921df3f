// Where selections become styles, and styles words. Nothing else of the programs sees the style model.

#include "apps/workbench/TargetHandover.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/style_model/StyleSheet.h"
#include "reference_host/style_model/CategoryRegistry.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <unordered_map>

namespace Workbench
{
namespace
{

using ReferenceHost::DrawingObject;
using Styles::PropertyKey;
using Styles::Style;

PropertyKey KeyOf(const OvxStringT& text)
{
    return PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

/// The styles that are handed in, and the objects that own them as numbers.
struct Targets
{
    std::vector<Style*> styles;
    std::map<Style*, std::size_t> objects;

    void Add(Style* style, DrawingObject& object)
    {
        styles.push_back(style);
        objects.emplace(style, reinterpret_cast<std::size_t>(&object));
    }
};

std::vector<ReferenceHost::TextUnit>* UnitsOf(DrawingObject& object, TargetKind kind)
{
    if (kind == TargetKind::Paragraphs)
        return &object.GetParagraphs();
    return kind == TargetKind::Runs ? &object.GetRuns() : nullptr;
}

Targets TargetsOfObjects(const std::vector<DrawingObject*>& objects, TargetKind kind)
{
    Targets targets;
    for (DrawingObject* object : objects)
    {
        auto* const units = UnitsOf(*object, kind);
        if (units == nullptr || units->empty())
        {
            targets.Add(object->GetStyle(), *object);
            continue;
        }
        for (ReferenceHost::TextUnit& unit : *units)
            targets.Add(unit.GetStyle(), *object);
    }
    return targets;
}

Targets TargetsOfSheet(const Styles::StyleSheet& sheet, const OvxStringT& styleName,
                       const PropertyKey& category)
{
    Targets targets;
    Style* const style = sheet.GetStyle(styleName);
    if (style == nullptr)
        return targets;
    const PropertyKey styleCategory = style->GetCategoryName();
    if (styleCategory == Styles::StyleCategoryName || styleCategory == category)
        targets.styles.push_back(style);
    return targets;
}

Targets TargetsOf(ReferenceHost::Drawing& drawing, const Selection& selection,
                  const PanelDescription& description)
{
    switch (selection.scope)
    {
    case SelectorScope::Objects:
        return TargetsOfObjects(selection.objects, description.targets);
    case SelectorScope::Defaults:
        return Targets{{&drawing.GetDefaultStyle()}, {}};
    case SelectorScope::Sheet:
        break;
    }
    return TargetsOfSheet(drawing.GetStyleSheet(), selection.styleName, KeyOf(description.category));
}

/// The parent of a category style, else that of the style that owns it; null without one.
const Style* DirectParentOf(const Style* categoryStyle)
{
    if (categoryStyle == nullptr || categoryStyle->GetParent() != nullptr)
        return categoryStyle == nullptr ? nullptr : categoryStyle->GetParent();
    const Style* const owner = categoryStyle->GetOwner();
    return owner == nullptr ? nullptr : owner->GetParent();
}

OvxStringT JoinKeys(const Styles::PropertyPath& path)
{
    OvxStringT joined;
    for (const PropertyKey& key : path)
        joined += (joined.empty() ? OvxStringT() : OvxStringT(L".")) + key.GetString();
    return joined;
}

/// The paths that `style` sets itself, each from its category on.
std::vector<OvxStringT> OwnPaths(const Style& style)
{
    const PropertyKey category = style.GetCategoryName();
    std::vector<OvxStringT> own;
    for (const Styles::PropertyPath& path : Styles::GetOverriddenPropertyPaths(style))
        own.push_back(
            JoinKeys(category == Styles::StyleCategoryName ? path : Styles::MakePath(category, path)));
    std::sort(own.begin(), own.end());
    return own;
}

} // namespace

bool TargetHandover::IsHostCategory(const OvxStringT& category)
{
    const PropertyKey hostCategories[] = {
        Styles::StyleCategoryName, Styles::FillStyleCategoryName, Styles::OutlineStyleCategoryName,
        Styles::GetParagraphStyleCategoryName(), Styles::GetCharacterStyleCategoryName()};
    return std::find(std::begin(hostCategories), std::end(hostCategories), KeyOf(category)) !=
           std::end(hostCategories);
}

bool TargetHandover::IsCategoryOfGroups(const OvxStringT& category)
{
    return KeyOf(category) == Styles::FillStyleCategoryName;
}

void TargetHandover::RegisterCategory(const CategoryDescription& category)
{
    ReferenceHost::CategoryRegistry::GetInstance().RegisterCategory(KeyOf(category.name), category.title);
}

HandedTargets TargetHandover::HandIn(BaseStylePropertiesDatasource& panel,
                                     const PanelDescription& description, const Selection& selection) const
{
    const Targets targets = TargetsOf(*drawing, selection, description);
    const bool isDefault = selection.scope == SelectorScope::Defaults;
    panel.SetObjectStyles(targets.objects);
    panel.SetTargetStyle(targets.styles, isDefault, KeyOf(description.category), {});

    HandedTargets handed{panel.HasTargets(), panel.AreTargetsDefaultStyles(), {}};
    const std::vector<Style*> styles = panel.GetTargetStyles();
    if (!styles.empty())
        handed.styleName = drawing->GetStyleSheet().GetStyleName(styles.front());
    return handed;
}

void TargetHandover::HandInAsSelected(ReferenceHost::DocumentStylesSource& source,
                                      const Selection& selection) const
{
    if (selection.scope == SelectorScope::Sheet)
    {
        Style* const style = drawing->GetStyleSheet().GetStyle(selection.styleName);
        source.SetSelectedStyles(style == nullptr ? std::vector<Style*>() : std::vector<Style*>{style});
        return;
    }
    source.SetSelectedStyles(TargetsOfObjects(selection.objects, TargetKind::Objects).styles);
}

void TargetHandover::HandInNothing(BaseStylePropertiesDatasource& panel, const PanelDescription& description)
{
    panel.SetObjectStyles({});
    panel.SetTargetStyle({}, /*isDefault=*/false, KeyOf(description.category), {});
}

void TargetHandover::OfferPresets(ReferenceHost::DocumentStylesSource& source,
                                  const BaseStylePropertiesDatasource& panel,
                                  const PanelDescription& description)
{
    const OvxStringT presetCategory = panel.PresetCategoryName();
    if (!presetCategory.empty())
        source.SetPresetCategory(presetCategory, KeyOf(description.category));
}

std::optional<OvxStringT> TargetHandover::TextOfChoice(const OvxUtils::Any& value)
{
    const auto* const key = value.TryGet<PropertyKey>();
    return key == nullptr ? std::nullopt : std::optional(key->GetString());
}

OvxUtils::Any TargetHandover::ChoiceOfText(const OvxStringT& text)
{
    return OvxUtils::Any(KeyOf(text));
}

std::vector<OvxStringT> TargetHandover::ParentsOfTargets(const BaseStylePropertiesDatasource& panel) const
{
    std::vector<OvxStringT> names;
    std::set<const Style*> seen;
    for (std::size_t index = 0; index < panel.GetNumTargetStyles(); ++index)
    {
        const Style* const parent = DirectParentOf(panel.GetTargetStyle(index));
        if (parent == nullptr || !seen.insert(parent).second)
            continue;
        const OvxStringT name = drawing->GetStyleSheet().GetStyleName(parent);
        if (!name.empty())
            names.push_back(name);
    }
    return names;
}

std::vector<OvxStringT> TargetHandover::ParentOfEachTarget(const BaseStylePropertiesDatasource& panel) const
{
    std::vector<OvxStringT> names;
    for (std::size_t index = 0; index < panel.GetNumTargetStyles(); ++index)
        names.push_back(drawing->GetStyleSheet().GetStyleName(DirectParentOf(panel.GetTargetStyle(index))));
    return names;
}

std::optional<std::vector<OvxStringT>> TargetHandover::DefinedNames(const PanelDescription& description,
                                                                    const RowDescription& row) const
{
    return drawing->GetDefinedNames(KeyOf(description.category), KeyOf(row.identifier));
}

const std::vector<OvxStringT>& TargetHandover::GetStyleNames() const
{
    return drawing->GetStyleSheet().GetNames();
}

OvxStringT TargetHandover::NamedStyleOf(DrawingObject& object) const
{
    const Style* const style = object.GetStyle();
    return style == nullptr ? OvxStringT() : drawing->GetStyleSheet().GetStyleName(style->GetParent());
}

std::vector<OvxStringT> TargetHandover::AncestorsOf(const OvxStringT& styleName) const
{
    const Styles::StyleSheet& sheet = drawing->GetStyleSheet();
    std::vector<OvxStringT> names;
    const Style* style = sheet.GetStyle(styleName);
    while (style != nullptr && (style = style->GetParent()) != nullptr)
        names.push_back(sheet.GetStyleName(style));
    return names;
}

OvxStringT TargetHandover::CategoryOf(const OvxStringT& styleName) const
{
    const Style* const style = drawing->GetStyleSheet().GetStyle(styleName);
    return style == nullptr ? OvxStringT() : style->GetCategoryName().GetString();
}

std::vector<NamedStyleFacts> TargetHandover::DescribeNamedStyles() const
{
    std::unordered_map<OvxStringT, std::size_t> users;
    for (DrawingObject& object : drawing->GetObjects())
        ++users[NamedStyleOf(object)];
    std::vector<NamedStyleFacts> facts;
    for (const OvxStringT& name : GetStyleNames())
    {
        facts.push_back(Describe(name));
        facts.back().users = users[name];
    }
    return facts;
}

NamedStyleFacts TargetHandover::Describe(const OvxStringT& styleName) const
{
    const Styles::StyleSheet& sheet = drawing->GetStyleSheet();
    NamedStyleFacts facts;
    facts.name = styleName;
    facts.displayName = drawing->GetDisplayName(styleName);
    const Style* const style = sheet.GetStyle(styleName);
    if (style == nullptr)
        return facts;
    facts.parent = sheet.GetStyleName(style->GetParent());
    facts.category = style->GetCategoryName().GetString();
    facts.own = OwnPaths(*style);
    facts.isExternal = style->IsExternal();
    return facts;
}

} // namespace Workbench
