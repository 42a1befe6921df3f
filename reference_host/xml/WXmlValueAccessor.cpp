#include "host/xml/WXmlValueAccessor.h"

#include "host/utils/Utf8.h"
#include "reference_host/xml/XmlNodeTree.h"

#include <charconv>
#include <new>
#include <string>
#include <string_view>
#include <system_error>

namespace
{

using ReferenceHost::ElementOf;

constexpr std::string_view kTrue = "true";
constexpr std::string_view kFalse = "false";

/// The attribute name in an address "@name"; empty for an address of any other form.
std::string AttributeNameIn(const OvxStringT& address)
{
    const std::wstring_view view = address.Wide();
    return view.starts_with(L'@') ? OvxUtils::ToUtf8(view.substr(1)) : std::string();
}

/// The attribute at an address; a null one when it is absent.
pugi::xml_attribute FindAttribute(void* element, const OvxStringT& address)
{
    const std::string name = AttributeNameIn(address);
    return name.empty() ? pugi::xml_attribute() : ElementOf(element).attribute(name.c_str());
}

/// Writes the attribute at an address, behind the others when it is new.
void WriteAttribute(void* element, const OvxStringT& address, const std::string& value)
{
    const std::string name = AttributeNameIn(address);
    if (element == nullptr || name.empty())
        return;
    pugi::xml_node node = ElementOf(element);
    pugi::xml_attribute attribute = node.attribute(name.c_str());
    if (!attribute)
        attribute = node.append_attribute(name.c_str());
    if (!attribute.set_value(value.c_str()))
        throw std::bad_alloc();
}

} // namespace

void WXmlValueAccessor::SetString(const OvxStringT& value, const OvxStringT& fallback)
{
    if (!fallback.empty() && value == fallback)
    {
        ElementOf(element).remove_attribute(FindAttribute(element, address));
        return;
    }
    WriteAttribute(element, address, OvxUtils::ToUtf8(value));
}

void WXmlValueAccessor::SetBool(bool value)
{
    WriteAttribute(element, address, std::string(value ? kTrue : kFalse));
}

void WXmlValueAccessor::SetInt(int value)
{
    WriteAttribute(element, address, std::to_string(value));
}

OvxStringT WXmlValueAccessor::GetString(const OvxStringT& fallback) const
{
    const pugi::xml_attribute attribute = FindAttribute(element, address);
    return attribute.empty() ? fallback : OvxUtils::FromUtf8(attribute.value());
}

bool WXmlValueAccessor::GetBool(bool fallback) const
{
    const std::string_view value = FindAttribute(element, address).value();
    if (value == kTrue)
        return true;
    return value == kFalse ? false : fallback;
}

int WXmlValueAccessor::GetInt(int fallback) const
{
    const std::string_view text = FindAttribute(element, address).value();
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? value : fallback;
}
