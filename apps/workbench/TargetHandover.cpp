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
        // Styles that were made one after another lie so as a rule, and each goes behind the one before.
        objects.emplace_hint(objects.end(), style, reinterpret_cast<std::size_t>(&object));
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

Targets TargetsOfNamedStyle(Style* style, const PropertyKey& category)
{
    Targets targets;
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
    return TargetsOfNamedStyle(drawing.FindStyle(selection.styleName), KeyOf(description.category));
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

NamedStyleFacts Describe(const ReferenceHost::Drawing& drawing, const Style& style)
{
    NamedStyleFacts facts;
    facts.name = drawing.FindStyleName(&style);
    const bool isMeantByName = drawing.FindStyle(facts.name) == &style;
    facts.displayName = isMeantByName ? drawing.GetDisplayName(facts.name) : facts.name;
    facts.category = style.GetCategoryName().GetString();
    facts.own = OwnPaths(style);
    facts.isExternal = style.IsExternal();
    facts.sheet = style.GetExternalStyleSheetName();
    if (const Style* const parent = style.GetParent())
    {
        facts.parent = drawing.FindStyleName(parent);
        facts.parentSheet = parent->GetExternalStyleSheetName();
    }
    return facts;
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
        handed.styleName = drawing->FindStyleName(styles.front());
    return handed;
}

void TargetHandover::HandInAsSelected(ReferenceHost::DocumentStylesSource& source,
                                      const Selection& selection) const
{
    if (selection.scope == SelectorScope::Sheet)
    {
        Style* const style = drawing->FindStyle(selection.styleName);
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
        const OvxStringT name = drawing->FindStyleName(parent);
        if (!name.empty())
            names.push_back(name);
    }
    return names;
}

std::vector<OvxStringT> TargetHandover::ParentOfEachTarget(const BaseStylePropertiesDatasource& panel) const
{
    std::vector<OvxStringT> names;
    for (std::size_t index = 0; index < panel.GetNumTargetStyles(); ++index)
        names.push_back(drawing->FindStyleName(DirectParentOf(panel.GetTargetStyle(index))));
    return names;
}

std::optional<std::vector<OvxStringT>> TargetHandover::DefinedNames(const PanelDescription& description,
                                                                    const RowDescription& row,
                                                                    const Selection& selection) const
{
    return drawing->GetDefinedNames(KeyOf(description.category), KeyOf(row.identifier),
                                    SheetOf(selection.styleName));
}

const std::vector<OvxStringT>& TargetHandover::GetStyleNames() const
{
    return drawing->GetStyleSheet().GetNames();
}

std::vector<OvxStringT> TargetHandover::GetExternalStyleNames() const
{
    std::vector<OvxStringT> names;
    for (const OvxStringT& sheetName : drawing->GetExternalSheetNames())
    {
        const ReferenceHost::NamedStyleSheet& sheet = *drawing->FindExternalSheet(sheetName);
        for (const OvxStringT& name : sheet.GetNames())
        {
            if (drawing->FindStyle(name) == sheet.GetStyle(name))
                names.push_back(name);
        }
    }
    return names;
}

OvxStringT TargetHandover::SheetOf(const OvxStringT& styleName) const
{
    const Style* const style = drawing->FindStyle(styleName);
    return style == nullptr ? OvxStringT() : style->GetExternalStyleSheetName();
}

OvxStringT TargetHandover::ReadOnlySheetOf(const OvxStringT& styleName) const
{
    const Style* const style = drawing->FindStyle(styleName);
    const bool isReadOnly = style != nullptr && style->IsExternal() && style->GetExternalLink().empty();
    return isReadOnly ? style->GetExternalStyleSheetName() : OvxStringT();
}

OvxStringT TargetHandover::NamedStyleOf(DrawingObject& object) const
{
    const Style* const style = object.GetStyle();
    return style == nullptr ? OvxStringT() : drawing->FindStyleName(style->GetParent());
}

std::vector<OvxStringT> TargetHandover::AncestorsOf(const OvxStringT& styleName) const
{
    std::vector<OvxStringT> names;
    const Style* style = drawing->FindStyle(styleName);
    while (style != nullptr && (style = style->GetParent()) != nullptr)
        names.push_back(drawing->FindStyleName(style));
    return names;
}

OvxStringT TargetHandover::CategoryOf(const OvxStringT& styleName) const
{
    const Style* const style = drawing->FindStyle(styleName);
    return style == nullptr ? OvxStringT() : style->GetCategoryName().GetString();
}

std::vector<NamedStyleFacts> TargetHandover::DescribeNamedStyles() const
{
    std::unordered_map<const Style*, std::size_t> users;
    for (DrawingObject& object : drawing->GetObjects())
    {
        const Style* const style = object.GetStyle();
        ++users[style == nullptr ? nullptr : style->GetParent()];
    }
    std::vector<NamedStyleFacts> facts;
    const auto describeAll = [&](const ReferenceHost::NamedStyleSheet& sheet)
    {
        for (const OvxStringT& name : sheet.GetNames())
        {
            const Style& style = *sheet.GetStyle(name);
            facts.push_back(Describe(*drawing, style));
            facts.back().users = users[&style];
        }
    };
    describeAll(drawing->GetStyleSheet());
    for (const OvxStringT& sheetName : drawing->GetExternalSheetNames())
        describeAll(*drawing->FindExternalSheet(sheetName));
    return facts;
}

} // namespace Workbench
