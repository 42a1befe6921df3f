// The bound names of every style-properties panel, one row each, in the order in which they are published.
// Panels and controls know this class by these names alone.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "datasource/PropertyRegistration.h"

namespace
{

using This = BaseStylePropertiesDatasource;
using OvxUtils::Any;

/// Binds members of one object into its own table, so that a row is one line.
class Table
{
public:
    explicit Table(This& source) : object(source) {}

    void Command(OvxStringViewT name, void (This::*action)())
    {
        RegisterCommand(object, name, {&object, action});
    }

    template <class T>
    void Read(OvxStringViewT name, T (This::*getter)())
    {
        RegisterProperty<T>(object, name, {&object, getter});
    }

    template <class T>
    void Read(OvxStringViewT name, T (This::*getter)() const)
    {
        RegisterProperty<T>(object, name, {&object, getter});
    }

    template <class T>
    void ReadWrite(OvxStringViewT name, T (This::*getter)(), void (This::*setter)(const T&))
    {
        RegisterProperty<T>(object, name, {&object, getter}, {&object, setter});
    }

    template <class T>
    void ReadWrite(OvxStringViewT name, T (This::*getter)() const, void (This::*setter)(const T&))
    {
        RegisterProperty<T>(object, name, {&object, getter}, {&object, setter});
    }

private:
    This& object;
};

void RegisterStyleNames(Table& table)
{
    table.ReadWrite(L"ActiveIdentifier", &This::GetActiveIdentifier, &This::SetActiveIdentifier);
    table.Read(L"RevertToParentEnable", &This::GetRevertToParentEnable);
    table.Command(L"OnRevertToParent", &This::OnRevertToParent);
    table.Read(L"BreakColorResourceEnable", &This::GetBreakColorResourceEnable);
    table.Command(L"OnBreakColorResource", &This::OnBreakColorResource);
    table.Read(L"ApplyToParentEnable", &This::GetApplyToParentEnable);
    table.Command(L"OnApplyToParent", &This::OnApplyToParent);
    table.Read(L"CreateStyleFromEnable", &This::GetCreateStyleFromEnable);
    table.Read(L"IsObjectStyle", &This::IsObjectStyleDatabound);
    table.Read(L"IsStyle", &This::IsStyle);
    table.Read(L"IsStyleOrDefault", &This::IsStyleOrDefault);
    table.Command(L"OnCreateStyleFrom", &This::OnCreateStyleFrom);
    table.Read(L"EditStyleEnable", &This::GetEditStyleEnable);
    table.Command(L"OnEditStyle", &This::OnEditStyle);
    table.ReadWrite(L"PropertyIcon", &This::GetPropertyIcon, &This::SetPropertyIcon);
    table.ReadWrite(L"PropertyTooltip", &This::GetPropertyTooltip, &This::SetPropertyTooltip);
    // Bound to the virtual operation: a derived class's title is what the panel reads.
    table.Read(L"SectionTitle", &This::GetSectionTitle);
}

void RegisterListNames(Table& table)
{
    table.Read(L"StyleResourceList", &This::GetStyleResourceList);
    table.ReadWrite(L"ApplyStyleResource", &This::GetApplyStyleResource, &This::SetApplyStyleResource);
    table.Read(L"RevertToMenuString", &This::GetRevertToMenuString);
    table.Read(L"ApplyToMenuString", &This::GetApplyToMenuString);
    table.Read(L"EditStyleMenuString", &This::GetEditStyleMenuString);
    table.Read(L"NewStyleList", &This::GetNewStyleList);
    table.Read(L"IsObjectProperties", &This::IsObjectProperties);
    table.ReadWrite(L"CurrentListStyleItem", &This::GetCurrentListStyleItem, &This::SetCurrentListStyleItem);
    table.Command(L"OnBaseStylePropertiesDatasourceOk", &This::OnBaseStylePropertiesDatasourceOk);
    table.Read(L"BaseStylePropertiesDatasourceOkEnabled", &This::GetBaseStylePropertiesDatasourceOkEnabled);
    table.Read(L"PropertyPanelStateIdentifier", &This::GetPropertyPanelStateIdentifier);
    table.Read(L"EnableStyleEditing", &This::GetEnableStyleEditing);
}

void RegisterPresetNames(Table& table)
{
    table.Read(L"PresetList", &This::GetPresetList);
    table.ReadWrite(L"CurrentPreset", &This::GetCurrentPreset, &This::SetCurrentPreset);
    table.Read(L"AddPresetEnabled", &This::IsAddPresetEnabled);
    table.Command(L"OnAddPreset", &This::OnAddPreset);
    table.Read(L"DeletePresetEnabled", &This::IsDeletePresetEnabled);
    table.Command(L"OnDeletePreset", &This::OnDeletePreset);
}

} // namespace

void BaseStylePropertiesDatasource::FillDataSourceMap()
{
    Table table(*this);
    RegisterStyleNames(table);
    RegisterListNames(table);
    RegisterPresetNames(table);
}
