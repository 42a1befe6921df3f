#include "tests/datasource/support/Description.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/Utf8.h"

#include <array>
#include <cstdio>
#include <ostream>

using namespace Styles;

namespace
{

template <class Range>
std::string Join(const Range& texts, const char* separator)
{
    std::string joined;
    for (const std::string& text : texts)
    {
        if (!joined.empty())
            joined += separator;
        joined += text;
    }
    return joined;
}

std::string Describe(const CLR_COLORSPEC& color)
{
    const CLR_COLORSPEC::Rgb rgb = color.ToRgb();
    std::array<char, 8> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "#%02x%02x%02x", static_cast<unsigned>(rgb.red),
                                    static_cast<unsigned>(rgb.green), static_cast<unsigned>(rgb.blue)));
    const std::string look = text.data();
    return color.GetModel() == CLR_COLORSPEC::kResource ? look + "@" + Describe(color.GetResourceName())
                                                        : look;
}

} // namespace

std::string Describe(const OvxStringT& text)
{
    return OvxUtils::ToUtf8(text);
}

std::string Describe(const PropertyKey& key)
{
    return Describe(key.GetString());
}

std::string Describe(const PropertyPath& path)
{
    std::vector<std::string> keys;
    for (const PropertyKey& key : path)
        keys.push_back(Describe(key));
    return keys.empty() ? "()" : Join(keys, ".");
}

std::string Describe(const PropertyPaths& paths)
{
    std::vector<std::string> texts;
    for (const PropertyPath& path : paths)
        texts.push_back(Describe(path));
    return "[" + Join(texts, ", ") + "]";
}

std::string Describe(const PropertyPaths* paths)
{
    return paths == nullptr ? "null" : Describe(*paths);
}

std::string Describe(const std::set<PropertyPath>& paths)
{
    std::set<std::string> texts;
    for (const PropertyPath& path : paths)
        texts.insert(Describe(path));
    return "{" + Join(texts, ", ") + "}";
}

std::string Describe(const OvxUtils::Any& value)
{
    if (value.IsEmpty())
        return "empty";
    if (const auto* number = value.TryGet<int>())
        return std::to_string(*number);
    if (const auto* text = value.TryGet<OvxStringT>())
        return "'" + Describe(*text) + "'";
    if (const auto* key = value.TryGet<PropertyKey>())
        return Describe(*key);
    if (const auto* color = value.TryGet<CLR_COLORSPEC>())
        return Describe(*color);
    return "other";
}

std::string Describe(const Style* style)
{
    if (style == nullptr)
        return "null";

    std::set<std::string> values;
    for (const PropertyPath& path : GetOverriddenPropertyPaths(*style))
        values.insert(Describe(path) + "=" + Describe(style->GetPathProperty(path)));
    return Describe(style->GetCategoryName()) + "{" + Join(values, ", ") + "}" +
           (style->GetParent() == nullptr ? "" : " with a parent");
}

std::string Describe(const InterfaceId& id)
{
    std::vector<std::string> bytes;
    for (const std::uint8_t byte : id.bytes)
    {
        std::array<char, 3> text{};
        static_cast<void>(std::snprintf(text.data(), text.size(), "%02x", static_cast<unsigned>(byte)));
        bytes.emplace_back(text.data());
    }
    return Join(bytes, " ");
}

std::string DescribeFlag(bool value)
{
    return value ? "true" : "false";
}

void PrintTo(const OvxWideString& text, std::ostream* out)
{
    *out << '"' << Describe(text) << '"';
}

void Styles::PrintTo(const PropertyKey& key, std::ostream* out)
{
    *out << "key " << Describe(key);
}

void OvxUtils::PrintTo(const Any& value, std::ostream* out)
{
    *out << "Any " << Describe(value);
}
