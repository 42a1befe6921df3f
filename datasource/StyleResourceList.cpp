// The drop-down of parent styles. No list is offered yet.

#include "datasource/BaseStylePropertiesDatasource.h"

WXmlNode BaseStylePropertiesDatasource::GetStyleResourceList()
{
    return resourceListNode;
}

unsigned BaseStylePropertiesDatasource::GetApplyStyleResource() const
{
    return 0;
}

void BaseStylePropertiesDatasource::SetApplyStyleResource(const unsigned& /*id*/)
{
}

WXmlNode BaseStylePropertiesDatasource::GetNewStyleList()
{
    return resourceListNode;
}

WXmlNode BaseStylePropertiesDatasource::GetCurrentListStyleItem() const
{
    return currentListItem;
}

void BaseStylePropertiesDatasource::SetCurrentListStyleItem(const WXmlNode& /*item*/)
{
}

void BaseStylePropertiesDatasource::OnBaseStylePropertiesDatasourceOk()
{
}

int BaseStylePropertiesDatasource::GetBaseStylePropertiesDatasourceOkEnabled() const
{
    return 0;
}

WCmnUI_Guid BaseStylePropertiesDatasource::GetPropertyPanelStateIdentifier() const
{
    return {};
}
