#include "tests/datasource/support/StyleWorkshop.h"

#include "host/style_model/CategoryNames.h"

using namespace Styles;

PropertyKey Key(const wchar_t* text)
{
    return PooledString<StringPool>(text);
}

PropertyPath Path(std::initializer_list<const wchar_t*> keys)
{
    PropertyPath path;
    for (const wchar_t* key : keys)
        path.push_back(Key(key));
    return path;
}

Style& FillOf(Style& whole)
{
    return *whole.GetSubstyleAndCreateIfMissing(FillStyleCategoryName, FillStyleCategoryName);
}

StyleWorkshop::~StyleWorkshop()
{
    while (!styles.empty())
        styles.pop_back();
}

Style& StyleWorkshop::Whole(const std::string& name, Style* parent)
{
    return OfCategory(name, StyleCategoryName, parent);
}

Style& StyleWorkshop::WithFill(const std::string& name, Style* parent)
{
    Style& whole = Whole(name, parent);
    FillOf(whole);
    return whole;
}

Style& StyleWorkshop::WithColor(const std::string& name, int color, Style* parent)
{
    Style& whole = Whole(name, parent);
    FillOf(whole).SetProperty(Key(L"color"), OvxUtils::Any(color));
    return whole;
}

Style& StyleWorkshop::OfCategory(const std::string& name, const PropertyKey& category, Style* parent)
{
    Style& made = *styles.emplace_back(std::make_unique<Style>(parent, category));
    log.SetName(&made, name);
    return made;
}
