#include "tests/reference_host/style_model/StyleMaking.h"

#include "host/style_model/CategoryNames.h"

Styles::PropertyKey Key(const wchar_t* name)
{
    return Styles::PooledString<Styles::StringPool>(name);
}

Styles::PropertyPath Path(std::initializer_list<const wchar_t*> names)
{
    Styles::PropertyPath path;
    for (const wchar_t* name : names)
        path.push_back(Key(name));
    return path;
}

OvxUtils::Any Number(int value)
{
    return OvxUtils::Any(value);
}

std::unique_ptr<Styles::Style> MakeWhole(Styles::Style* parent)
{
    auto whole = std::make_unique<Styles::Style>(parent, Styles::StyleCategoryName);
    Sub(*whole, L"fill");
    Sub(*whole, L"outline");
    return whole;
}

Styles::Style& Sub(Styles::Style& style, const wchar_t* name)
{
    return *style.GetSubstyleAndCreateIfMissing(Key(name), Key(name));
}
