// Many writes as one change. No group is opened yet.

#include "datasource/BaseStylePropertiesDatasource.h"

void BaseStylePropertiesDatasource::StartGroupModify()
{
}

void BaseStylePropertiesDatasource::EndGroupModify(bool /*commit*/)
{
}
