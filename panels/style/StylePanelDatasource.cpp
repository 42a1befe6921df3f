// The style panel and its factory.

#include "panels/style/StylePanelDatasource.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/StyleSheet.h"
#include "module/StylesCommon.h"
#include "panels/PanelRegistration.h"
#include "panels/SourceGroup.h"

#include <set>

using namespace Styles;
using OvxUtils::Any;

namespace
{

constexpr auto kRows = Panels::Rows({
    {L"StyleParent", L"style"},
});

const Panels::PanelRegistration<StylePanelDatasource> registration;

} // namespace

void StylePanelDatasource::FillDataSourceMap()
{
    RegisterRows(kRows);
}

PropertyKey StylePanelDatasource::GetCategory() const
{
    return StyleCategoryName;
}

PropertyPaths StylePanelDatasource::GetStyleCategoryProperties(Style* style) const
{
    PropertyPaths paths;
    for (const PropertyKey& category : {FillStyleCategoryName, OutlineStyleCategoryName,
                                        GetParagraphStyleCategoryName(), GetCharacterStyleCategoryName()})
    {
        const Style* substyle = style->GetSubstyle(category, false);
        if (substyle == nullptr)
            continue;
        for (const PropertyPath& path : MakePaths(Styles::GetStyleCategoryProperties(*substyle)))
            paths.push_back(MakePath(category, path));
    }
    return paths;
}

Any StylePanelDatasource::ReadValue(Style& categoryStyle, const PropertyPath& /*path*/) const
{
    const Style* parent = categoryStyle.GetParent();
    if (parent == nullptr)
        return Any();
    const OvxStringT name = Panels::FindSheetName(*parent);
    return name.empty() ? Any() : Any(name);
}

Panels::ValueOrigin StylePanelDatasource::ReadOrigin(Style& categoryStyle, const PropertyPath& path) const
{
    using Kind = Panels::ValueOrigin::Kind;
    return {ReadValue(categoryStyle, path).IsEmpty() ? Kind::Unset : Kind::Local, nullptr};
}

Any StylePanelDatasource::ReadParentValue(Style& /*categoryStyle*/, const PropertyPath& /*path*/) const
{
    return Any();
}

void StylePanelDatasource::WriteValue(const PropertyPath& /*path*/, const Any& value)
{
    const OvxStringT name = value.IsEmpty() ? OvxStringT() : value.Get<OvxStringT>();
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    if (source == nullptr || AreTargetsDefaultStyles())
        return;
    if (name.empty())
    {
        RemoveParents(*source);
        return;
    }
    const StyleSheet* sheet = source->GetStyleSheet();
    if (Style* parent = sheet == nullptr ? nullptr : sheet->GetStyle(name))
        SetParents(*source, *parent);
}

Style* StylePanelDatasource::FindApplyDestination(const Style& /*categoryStyle*/) const
{
    return nullptr;
}

void StylePanelDatasource::SetParents(IStylesSource& source, Style& parent)
{
    constexpr bool kReserved = true;
    Panels::SourceGroup group(source);
    for (std::size_t index = 0; index < GetNumTargetStyles(); ++index)
    {
        if (Style* style = GetTargetStyle(index))
            source.SetParent(style, &parent, kReserved);
    }
    group.Commit();
}

void StylePanelDatasource::RemoveParents(IStylesSource& source)
{
    Panels::SourceGroup group(source);
    for (std::size_t index = 0; index < GetNumTargetStyles(); ++index)
    {
        Style* style = GetTargetStyle(index);
        if (style != nullptr && style->GetParent() != nullptr)
            SetNoParent(&source, style);
    }
    group.Commit();
}
