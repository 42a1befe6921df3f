#include "tests/reference_host/document/SavedDrawing.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/Utf8.h"

#include <algorithm>

std::string Saved(OpenedDrawing& opened)
{
    return opened.drawing->Serialise(opened.warnings);
}

OpenedDrawing Reopened(OpenedDrawing& opened)
{
    return OpenText(Saved(opened));
}

std::string Difference(const std::string& before, const std::string& after)
{
    if (before == after)
        return {};
    const std::size_t shorter = std::min(before.size(), after.size());
    const auto front = static_cast<std::size_t>(
        std::mismatch(before.begin(), before.begin() + static_cast<std::ptrdiff_t>(shorter), after.begin())
            .first -
        before.begin());
    std::size_t back = 0;
    while (back < shorter - front && before[before.size() - 1 - back] == after[after.size() - 1 - back])
        ++back;
    return before.substr(front, before.size() - back - front) + " -> " +
           after.substr(front, after.size() - back - front);
}

void Set(Styles::Style* style, const std::string& path, const OvxUtils::Any& value)
{
    const auto key = [](const std::string& text)
    { return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(OvxUtils::FromUtf8(text))); };
    const std::size_t dot = path.find('.');
    Styles::GetStyleOrSubstyle(style, key(path.substr(0, dot)), false)
        ->SetProperty(key(path.substr(dot + 1)), value);
}

OvxUtils::Any ColourValue(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return OvxUtils::Any(CLR_COLORSPEC::FromRgb({red, green, blue}));
}

OvxUtils::Any ChoiceValue(const std::wstring& text)
{
    return OvxUtils::Any(Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(OvxStringT(text))));
}

OvxUtils::Any TextValue(const std::wstring& text)
{
    return OvxUtils::Any(OvxStringT(text));
}

FlatDrawing OneRectangle(const std::string& properties)
{
    return FlatDrawing()
        .Automatic("graphic", "style:name='gr1'", properties)
        .Page("<draw:rect draw:style-name='gr1'/>");
}
