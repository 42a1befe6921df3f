#include "tests/datasource/support/ShownTexts.h"

#include "host/resources/Resources.h"

OvxStringT ShownTexts::Of(const wchar_t* key)
{
    return Framework::Resources::GetString(key);
}
