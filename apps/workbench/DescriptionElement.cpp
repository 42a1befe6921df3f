#include "apps/workbench/DescriptionElement.h"

#include "host/utils/Utf8.h"
#include "reference_host/document/DocumentError.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace Workbench
{
namespace
{

std::string Listed(std::initializer_list<std::string_view> names, const std::string& whenEmpty)
{
    std::string list;
    for (const std::string_view name : names)
        list += (list.empty() ? "\"" : ", \"") + std::string(name) + "\"";
    return list.empty() ? whenEmpty : list;
}

bool IsAmong(std::initializer_list<std::string_view> names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

void DescriptionElement::AllowAttributes(std::initializer_list<std::string_view> names) const
{
    for (const pugi::xml_attribute attribute : element.attributes())
    {
        if (!IsAmong(names, attribute.name()))
            Fail("unknown attribute \"" + std::string(attribute.name()) + "\"",
                 "only " + Listed(names, "no attribute"));
    }
}

void DescriptionElement::AllowChildren(std::initializer_list<std::string_view> names) const
{
    for (const pugi::xml_node child : element.children())
    {
        if (child.type() == pugi::node_element)
        {
            if (!IsAmong(names, child.name()))
                DescriptionElement(*source, child)
                    .Fail("unknown element", "only " + Listed(names, "no element"));
            continue;
        }
        const std::string_view text = child.value();
        if (text.find_first_not_of(" \t\r\n") != std::string_view::npos)
            Fail("it holds a text", "elements and attributes only");
    }
}

std::string DescriptionElement::Text(const char* attribute) const
{
    const pugi::xml_attribute found = element.attribute(attribute);
    if (found.empty())
        Fail("attribute \"" + std::string(attribute) + "\" is missing", "the attribute");
    std::string text = found.value();
    if (text.empty())
        Fail("attribute \"" + std::string(attribute) + "\" is empty", "a text");
    return text;
}

OvxStringT DescriptionElement::WideText(const char* attribute) const
{
    return OvxUtils::FromUtf8(Text(attribute));
}

int DescriptionElement::Number(const char* attribute) const
{
    const std::string text = Text(attribute);
    const char* const end = text.data() + text.size();
    int number = 0;
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end)
        Fail("attribute \"" + std::string(attribute) + "\" is \"" + text + "\"", "a whole number");
    return number;
}

std::vector<DescriptionElement> DescriptionElement::Children(const char* name) const
{
    std::vector<DescriptionElement> found;
    for (const pugi::xml_node child : element.children(name))
        found.emplace_back(*source, child);
    return found;
}

void DescriptionElement::Fail(const std::string& problem, const std::string& expected) const
{
    const auto before =
        source->text.substr(0, static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, element.offset_debug())));
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    throw ReferenceHost::DocumentError(
        problem, source->label + ", line " + std::to_string(line) + ", <" + element.name() + ">", expected);
}

} // namespace Workbench
